#include "support/Matchers.h"

#include "LmLibs/LmUtil/LmStdInputStream.h"
#include "sdp/frame/LmSdpMsg.h"
#include "support/ByteStream.h"

#include <sstream>

Reading readEachWay(std::string_view text, const Reader& read)
{
    LmByteArrayInputStream window(bytesOf(text), 0, 0);
    const Reading reading = readFrom(window, read);

    ByteStream bytes(bytesOf(text));
    EXPECT_EQ(readFrom(bytes, read), reading) << "a stream without a window reads otherwise";

    std::istringstream source{std::string(text)};
    LmStdInputStream adaptor(source);
    EXPECT_EQ(readFrom(adaptor, read), reading) << "a std::istream reads otherwise";
    return reading;
}

Reading readLine(std::string_view line)
{
    return readEachWay(line, [](LmInputStream& in) { return written(LmSdpField::sConstructFrom(in)); });
}

Reading readBody(std::string_view body)
{
    return readEachWay(body, [](LmInputStream& in) {
        LmSdpMsg message;
        message.parse(in);
        return written(message);
    });
}
