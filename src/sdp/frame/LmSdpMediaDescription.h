#pragma once

#include "sdp/frame/LmSdpDescription.h"

class LmSdpAttributeField;
class LmSdpMediaField;

/// An `m=` line with the lines that follow it up to the next one (RFC 4566, section 5.14). Beside the media line it
/// takes `i=`, `c=`, `b=`, `k=` and `a=` lines, which `getField` gives.
class LMSDP_API LmSdpMediaDescription : public LmSdpDescription
{
public:
    /// Takes the two lines themselves, not copies. Either handle may be empty.
    LmSdpMediaDescription(const LmHandle<LmSdpMediaField>& hMedia, const LmHandle<LmSdpAttributeField>& hAttribute);
    ~LmSdpMediaDescription() override;

    /// The `m=` line; an empty handle when there is none.
    LmHandle<LmSdpMediaField> getMediaField() const;

    /// True when the `m=` line lists the format; false without an `m=` line.
    bool isMediaFormatPresent(unsigned int format);

    void parse(LmInputStream& in) override;

    /// The class that the letter "m" begins.
    static LmSdpDescription* sConstruct();

private:
    static const FieldTokens& sFieldTokens();
    LmSdpMediaDescription();
};
