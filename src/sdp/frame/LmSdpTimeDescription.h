#pragma once

#include "sdp/frame/LmSdpDescription.h"

class LmSdpRepeatField;
class LmSdpTimeField;

/// A `t=` line with the `r=` lines that belong to it (RFC 4566, sections 5.9 and 5.10).
class LMSDP_API LmSdpTimeDescription : public LmSdpDescription
{
public:
    /// Takes the two lines themselves, not copies. Either handle may be empty.
    LmSdpTimeDescription(const LmHandle<LmSdpTimeField>& hTime, const LmHandle<LmSdpRepeatField>& hRepeat);
    ~LmSdpTimeDescription() override;

    /// The `t=` line; an empty handle when there is none.
    LmHandle<LmSdpTimeField> getTimeField();

    /// The first `r=` line, the others follow by `getNext`; an empty handle when there is none.
    LmHandle<LmSdpRepeatField> getRepeatField();

    void parse(LmInputStream& in) override;

    using LmSdpDescription::serialize;

    /// The same for a caller who may change the description.
    virtual void serialize(LmOutputStream& out);

    /// The class that the letter "t" begins.
    static LmSdpDescription* sConstruct();

private:
    static const FieldTokens& sFieldTokens();
    LmSdpTimeDescription();
};
