#include "support/Matchers.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "LmLibs/LmUtil/LmStdInputStream.h"
#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "sdp/frame/LmSdpMsg.h"
#include "sdp/frame/LmSdpParseError.h"
#include "support/ByteStream.h"

#include <sstream>
#include <typeinfo>

namespace
{

LmHandle<LmByteArray> bytesOf(std::string_view text)
{
    return LmByteArray::sCreate(static_cast<unsigned int>(text.size()), text.data());
}

Reading readFrom(LmInputStream& in, const Reader& read)
{
    Reading reading;
    reading.failure = failureOf([&] { reading.result = read(in); });
    reading.left = in.available();
    return reading;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Failure& failure)
{
    return failure.thrown.empty() ? out << "no failure" : out << failure.thrown << " \"" << failure.words << '"';
}

std::ostream& operator<<(std::ostream& out, const Reading& reading)
{
    out << testing::PrintToString(reading.result) << ", ";
    return out << reading.failure << ", " << reading.left << " bytes left";
}

Failure failureOf(const std::function<void()>& action)
{
    try
    {
        action();
        return {};
    }
    catch (const LmException& thrown)
    {
        LmStringOutputStream className;
        thrown.LmObject::display(className, false);
        return {className.getString().c_str(), thrown.getMessage()};
    }
}

std::string written(const LmSerializable& object)
{
    LmStringOutputStream out;
    object.serialize(out);
    return std::string(out.getString().view());
}

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
