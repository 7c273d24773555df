// The value of a crypto attribute: both ways of reading agree, the loops end, a clone writes what its original writes,
// and the built text, several lines and all, reads back to the same text.

#include "Exempt.h"
#include "Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = viewOf(data, size);
    const Reading outcome = readBothWays(text, [](LmInputStream& in) {
        LmSdpCryptoAttribute crypto;
        crypto.parse(in);
        return writing(crypto).result;
    });
    if (!outcome.failure.thrown.empty())
    {
        return 0;
    }
    require(outcome.left == 0, "a value that is read is read to its end");

    LmSdpCryptoAttribute crypto;
    LmByteArrayInputStream in(bytesOf(text), 0, 0);
    crypto.parse(in);
    const std::string value(crypto.getValue().view());
    const LmHandle<LmSdpCryptoAttribute> hClone = static_cast<LmSdpCryptoAttribute*>(crypto.clone());
    require(hClone->getValue().view() == value, "a clone has the value of its original");
    hClone->setTag(crypto.getTag());
    require(hClone->getValue().view() == value, "a clone builds the value of its original");

    const Reading first = writing(crypto);
    if (first.failure.thrown.empty() && !Exempt::hasSignedNumber(crypto))
    {
        const LmSdpCryptoAttribute again(first.result.c_str());
        require(written(again) == first.result, "the built text reads and writes the same");
    }
    return 0;
}
