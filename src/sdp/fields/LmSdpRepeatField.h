#pragma once

#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpWords.h"

/// The `r=` line: when the session is repeated (RFC 4566, section 5.10). It belongs to the `t=` line in front of it.
///
///     r=<repeat interval> <active duration> <offsets from start-time>
///     r=7d 1h 0 25h
///
/// All values are text, units included; nothing tests that one is a number.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpRepeatField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `r=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpRepeatField(const char* text);
    ~LmSdpRepeatField() override;

    ///@{
    /// Each valid until the next change.
    const char* getRepeatInterval() { return m_RepeatInterval.c_str(); }
    const char* getActiveDuration() { return m_ActiveDuration.c_str(); }
    ///@}

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag.
    void setRepeatInterval(const char* text);
    void setActiveDuration(const char* text);
    ///@}

    /// All offsets, each two separated by one blank.
    LmString getOffsetList();

    /// Replaces the offsets by those of `addOffsets` and sets the changed flag.
    void setOffsetList(const char* text);

    /// Appends the words of the text, which blanks separate. An empty text, a null pointer, and a text that ends in a
    /// blank give an empty last offset. The changed flag stays.
    void addOffsets(const char* text);

    /// Reads the line and sets the changed flag. Without an offset the list gets an empty one.
    /// @throws LmException "LmSdpRepeatField::parse Incomplete Repeat Field" for an empty line; the field is as it was
    ///         then
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpRepeatField::serialize() Incomplete Repeat Field" when the interval or the duration
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "r".
    static LmSdpField* sConstruct();

private:
    LmSdpRepeatField();

    LmString m_RepeatInterval;
    LmString m_ActiveDuration;
    LmSdpWordList m_Offsets;
};
