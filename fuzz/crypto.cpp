// The value of a crypto attribute: both ways of reading agree, the loops end, a clone writes what its original writes,
// and the built text, several lines and all, reads back to the same text.

#include "Exempt.h"
#include "Fuzz.h"

namespace
{

/// The one text that reads differently although it was built from what was read: see Exempt.
bool isReadable(const LmSdpCryptoAttribute& crypto)
{
    for (const LmCryptoKey& key : crypto.getKeyVector())
    {
        const bool hasMki = key.m_MkiValue != LmCryptoKey::sm_NotSet;
        if (hasMki && (Exempt::isSignedBelowZero(key.m_MkiValue) || Exempt::isSignedBelowZero(key.m_MkiLength)))
        {
            return false;
        }
    }
    return !Exempt::isSignedBelowZero(crypto.getTag());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = viewOf(data, size);
    const Outcome outcome = readBothWays(text, [](LmInputStream& in) {
        LmSdpCryptoAttribute crypto;
        crypto.parse(in);
        return outcomeOf([&] { return written(crypto); }).result;
    });
    if (!outcome.failure.empty())
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

    const Outcome first = outcomeOf([&] { return written(crypto); });
    if (first.failure.empty() && isReadable(crypto))
    {
        const LmSdpCryptoAttribute again(first.result.c_str());
        require(written(again) == first.result, "the built text reads and writes the same");
    }
    return 0;
}
