// One line of whatever letter, and a second text read into the same object after it: both ways of reading agree, a
// refused line leaves an object that can be used, and what can be written is stable.

#include "Exempt.h"
#include "Fuzz.h"

namespace
{

void checkStable(std::string_view line)
{
    LmByteArrayInputStream in(bytesOf(line), 0, 0);
    const LmHandle<LmSdpField> hField = LmSdpField::sConstructFrom(in);
    const Reading first = writing(*hField);
    if (!first.failure.thrown.empty() || Exempt::isLine(*hField))
    {
        return;
    }
    LmByteArrayInputStream own(bytesOf(first.result), 0, 0);
    require(written(*LmSdpField::sConstructFrom(own)) == first.result, "the own line reads and writes the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = viewOf(data, size);
    const std::size_t cut = text.find('\0');
    const std::string_view line = text.substr(0, cut);
    const std::string_view second = cut == std::string_view::npos ? std::string_view() : text.substr(cut + 1);
    const Reading outcome = readBothWays(line, [&](LmInputStream& in) {
        const LmHandle<LmSdpField> hField = LmSdpField::sConstructFrom(in);
        std::string result = writing(*hField).result;
        LmByteArrayInputStream more(bytesOf(second), 0, 0);
        result += failureOf([&] { hField->parse(more); }).words;
        return result + writing(*hField).result;
    });
    if (outcome.failure.thrown.empty())
    {
        checkStable(line);
    }
    return 0;
}
