# Runs PROGRAM, with the file INPUT as its standard input if one is named, and compares what it prints, on standard
# error too, with the file EXPECTED. CR LF counts as LF. What differs from run to run, the time and the address of this
# host in a local body, stands there as TIME and HOST.

set(input "")
if(INPUT)
    set(input INPUT_FILE "${INPUT}")
endif()
execute_process(COMMAND "${PROGRAM}" ${input}
    OUTPUT_VARIABLE printed ERROR_VARIABLE printed RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
string(REPLACE "\r\n" "\n" printed "${printed}")
if(printed MATCHES "\no=user ([0-9]+) [0-9]+ IN IP4 ([0-9.]+)\n")
    set(time "${CMAKE_MATCH_1}")
    set(host "${CMAKE_MATCH_2}")
    string(REPLACE "${time}" "TIME" printed "${printed}")
    string(REPLACE "${host}\n" "HOST\n" printed "${printed}")
endif()
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} printed\n${printed}\nand not\n${expected}")
endif()
