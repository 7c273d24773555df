#include "Reading.h"

#include "Lines.h"

#include <algorithm>

namespace lmsdp
{
namespace
{

LmHandle<LmByteArrayInputStream> streamOf(const std::string& bytes)
{
    return new LmByteArrayInputStream(LmByteArray::sCreate(static_cast<unsigned int>(bytes.size()), bytes.data()), 0,
                                      0);
}

std::size_t skipWhite(const std::string& bytes, std::size_t from)
{
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(from);
    return static_cast<std::size_t>(std::find_if_not(begin, bytes.end(), &isWhite) - bytes.begin());
}

} // namespace

Failure failureOf(const LmException& exception)
{
    const char* const name =
        dynamic_cast<const LmSdpParseError*>(&exception) != nullptr ? "LmSdpParseError" : "LmException";
    LmString words(exception.getMessage());
    words.trim();
    return {name, asString(words)};
}

Reading read(const Body& body)
{
    const LmHandle<LmByteArrayInputStream> in = streamOf(body.bytes);
    Reading reading;
    reading.message = new LmSdpMsg;
    reading.refusal = attempt([&] { reading.message->parse(*in); });
    reading.stop = body.bytes.size() - in->available();
    if (reading.refusal)
    {
        reading.message = nullptr;
    }
    return reading;
}

std::vector<ReadLine> readLines(const Body& body, const Reading& reading)
{
    std::vector<ReadLine> lines;
    const LmHandle<LmByteArrayInputStream> in = streamOf(body.bytes);
    std::size_t begin = skipWhite(body.bytes, 0);
    bool refused = false;
    while (begin < reading.stop && !refused)
    {
        ReadLine line{nullptr, begin, begin};
        refused = attempt([&] { line.field = LmSdpField::sConstructFrom(*in); }).has_value();
        line.end = body.bytes.size() - in->available();
        begin = skipWhite(body.bytes, line.end);
        lines.push_back(line);
    }
    return lines;
}

std::size_t refusedAt(const Body& body, const Reading& reading)
{
    const std::vector<ReadLine> lines = readLines(body, reading);
    return lines.empty() ? skipWhite(body.bytes, 0) : lines.back().begin;
}

std::string written(const LmSerializable& object)
{
    const LmHandle<LmStringOutputStream> out = new LmStringOutputStream;
    object.serialize(*out);
    return asString(out->getString());
}

} // namespace lmsdp
