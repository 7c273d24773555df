#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `t=` line: when the session begins and ends (RFC 4566, section 5.9).
///
///     t=<start-time> <stop-time>
///     t=2873397496 2873404696
///
/// The times are in seconds since 1900 and are held as text: neither is converted or compared.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpTimeField : public LmSdpField
{
public:
    /// Takes both texts as they stand.
    /// @throws LmSdpParseError "Attempting to create Time field with blank start time" or "Attempting to create Time
    ///         field with blank stop time" for a null pointer or an empty text
    LmSdpTimeField(const char* startTime, const char* stopTime);

    /// Reads `text`, which stands behind `t=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpTimeField(const char* text);
    ~LmSdpTimeField() override;

    ///@{
    /// Each valid until the next change.
    const char* getStartTime() { return m_StartTime.c_str(); }
    const char* getStopTime() { return m_StopTime.c_str(); }
    ///@}

    ///@{
    /// Each replaces one time, which is not looked into, and sets the changed flag.
    void setStartTime(const char* text);
    void setStopTime(const char* text);
    ///@}

    /// Reads up to 127 digits, one blank, and up to 127 digits more; either time may have none. What stands behind the
    /// last digit stays unread. The changed flag stays.
    /// @throws LmException "LmSdpTimeField::parse Incomplete Time Field" for an empty line
    /// @throws LmException "LmSdpTimeField::Invalid Time Field" for a 128th digit, and where no blank ends the first
    ///         time
    /// After a failure the times are as they were.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpTimeField::serialize() Incomplete Time Field" when either time is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "t".
    static LmSdpField* sConstruct();

private:
    LmSdpTimeField();

    LmString m_StartTime;
    LmString m_StopTime;
};
