// Writes what the library does into a file. It logs through log4cplus, and is silent until the program sets that up.

#include "LmSdpObject.h"

#include <log4cplus/configurator.h>
#include <log4cplus/initializer.h>

#include <fstream>
#include <iostream>
#include <sstream>

namespace
{

constexpr const char* s_File = "log_to_file.log";

void setUpLogging()
{
    // The same lines can stand in a file for log4cplus::PropertyConfigurator. TRACE shows each operation as well.
    std::istringstream settings("log4cplus.logger.harnwick=DEBUG, file\n"
                                "log4cplus.appender.file=log4cplus::FileAppender\n"
                                "log4cplus.appender.file.File=log_to_file.log\n"
                                "log4cplus.appender.file.Append=false\n"
                                "log4cplus.appender.file.ImmediateFlush=true\n"
                                "log4cplus.appender.file.layout=log4cplus::PatternLayout\n"
                                "log4cplus.appender.file.layout.ConversionPattern=%p %c: %m%n\n");
    log4cplus::PropertyConfigurator(settings).configure();
}

} // namespace

int main()
try
{
    const log4cplus::Initializer initializer;
    setUpLogging();

    LmSdpMsg message("v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nt=0 0\r\nm=audio 49170 RTP/AVP 0\r\n");

    std::ifstream log(s_File);
    std::cout << log.rdbuf();
}
catch (const LmException& exception)
{
    std::cerr << exception.getMessage() << '\n';
    return 1;
}
