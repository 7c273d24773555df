# One step of the consumer tests: cmake -DSTEP=... -P Consume.cmake. CMakeLists.txt says which steps there are.

cmake_minimum_required(VERSION 3.25)

set(prefix "${WORK}/prefix")
set(build "${WORK}/${STEP}")

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_output expected)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "expected \"${expected}\", got \"${output}\"")
    endif()
endfunction()

function(build_with_cmake)
    run(${CMAKE_COMMAND} -S ${PROJECT} -B ${build} -G Ninja
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${FLAGS} -DBUILD_SHARED_LIBS=${SHARED} ${ARGN})
    run(${CMAKE_COMMAND} --build ${build})
    expect_output("Weekly call\n" ${build}/consumer)
endfunction()

if(STEP STREQUAL "install")
    set(staged "${WORK}/staged")
    file(REMOVE_RECURSE "${staged}" "${prefix}")
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${staged})
    file(RENAME "${staged}" "${prefix}")
    if(EXISTS "${prefix}/bin/lmsdp")
        run(${prefix}/bin/lmsdp --version)
    endif()

elseif(STEP STREQUAL "find_package")
    file(REMOVE_RECURSE "${build}")
    build_with_cmake(-DCMAKE_PREFIX_PATH=${prefix})

elseif(STEP STREQUAL "pkg_config")
    set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
    set(ENV{LD_LIBRARY_PATH} "${prefix}/${LIBDIR}")
    set(ask ${PKG_CONFIG} --cflags --libs LmSdpObject)
    if(NOT SHARED)
        list(INSERT ask 1 --static)
    endif()
    execute_process(COMMAND ${ask}
        OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(answer UNIX_COMMAND "${answer}")
    separate_arguments(FLAGS UNIX_COMMAND "${FLAGS}")
    file(MAKE_DIRECTORY "${build}")
    run(${CXX} -std=c++17 ${FLAGS} ${PROJECT}/main.cpp -o ${build}/consumer ${answer})
    expect_output("Weekly call\n" ${build}/consumer)

elseif(STEP STREQUAL "add_subdirectory")
    build_with_cmake(-DLMSDP_SOURCE=${SOURCE})

else()
    message(FATAL_ERROR "unknown step \"${STEP}\"")
endif()
