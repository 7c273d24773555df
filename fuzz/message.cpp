// A whole message: both ways of reading agree, what was read and can be written is stable, and a tree that is taken
// apart and put together writes the same.

#include "Exempt.h"
#include "Fuzz.h"

namespace
{

/// A new message of the same lines and descriptions; the version line is that of the constructor.
std::string putTogether(LmSdpMsg& message)
{
    LmSdpMsg rebuilt(LmHandle<LmSdpOriginField>(), LmHandle<LmSdpSessionNameField>(), LmHandle<LmSdpEmailField>(),
                     LmHandle<LmSdpConnectionField>(), message.getTimeDescription(), message.getMediaDescription());
    for (const char letter : std::string_view("akzbcpeuiso"))
    {
        const char token[] = {letter, '\0'};
        rebuilt.addField(message.getField(token));
    }
    return written(rebuilt);
}

void checkStable(LmSdpMsg& message)
{
    const Reading first = writing(message);
    if (!first.failure.thrown.empty())
    {
        return;
    }
    if (first.result.substr(0, 5) == "v=0\r\n" && !Exempt::hasSecondVersion(message))
    {
        require(putTogether(message) == first.result, "a tree put together writes the same");
    }
    if (!Exempt::isMessage(message))
    {
        LmSdpMsg again;
        LmByteArrayInputStream in(bytesOf(first.result), 0, 0);
        again.parse(in);
        require(in.available() == 0, "nothing of the own text is left");
        require(written(again) == first.result, "the own text reads and writes the same");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = viewOf(data, size);
    const Reading outcome = readBothWays(text, [](LmInputStream& in) {
        LmSdpMsg message;
        message.parse(in);
        return writing(message).result;
    });
    if (outcome.failure.thrown.empty())
    {
        LmSdpMsg message;
        LmByteArrayInputStream in(bytesOf(text), 0, 0);
        message.parse(in);
        checkStable(message);
    }
    return 0;
}
