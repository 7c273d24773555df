#include "support/Reading.h"

#include "LmLibs/LmUtil/LmException.h"
#include "LmLibs/LmUtil/LmStringOutputStream.h"

#include <iomanip>

std::ostream& operator<<(std::ostream& out, const Failure& failure)
{
    return failure.thrown.empty() ? out << "no failure" : out << failure.thrown << " \"" << failure.words << '"';
}

std::ostream& operator<<(std::ostream& out, const Reading& reading)
{
    return out << std::quoted(reading.result) << ", " << reading.failure << ", " << reading.left << " bytes left";
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
