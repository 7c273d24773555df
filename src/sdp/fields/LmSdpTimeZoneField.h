#pragma once

#include "sdp/frame/LmSdpField.h"
#include "sdp/frame/LmSdpWords.h"

/// The `z=` line: when the offset from UTC changes (RFC 4566, section 5.11).
///
///     z=<adjustment time> <offset> <adjustment time> <offset> ...
///     z=2882844526 -1h 2898848070 0
///
/// An element is an adjustment time, in seconds since 1900, and an offset, held as one text with a blank in between.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpTimeZoneField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `z=` and must hold its line end. A null pointer makes a blank field.
    explicit LmSdpTimeZoneField(const char* text);
    ~LmSdpTimeZoneField() override;

    /// All elements, each two separated by one blank.
    LmString getTimeZoneElements();

    /// Replaces the elements by those of `addTimeZoneElements`, and sets the changed flag. A null pointer only sets
    /// the flag.
    void setTimeZoneElements(const char* text);

    /// Appends elements, without checking them: every second blank of the text ends one, and "\r\n" or the end of the
    /// text ends the last. An empty text or a null pointer gives one empty element. The changed flag stays.
    void addTimeZoneElements(const char* text);

    /// Reads the line and sets the changed flag. An adjustment time has ten digits or more and does not begin with 0;
    /// the last offset carries no unit. A leading zero of an offset goes, and an offset without a digit becomes
    /// 4294967295.
    /// @throws LmException "LmSdpTimeZoneField::parse() Incomplete Time Zone Field" for an empty line
    /// @throws LmException "LmSdpTimeField::Invalid Time Zone Field" for any other adjustment time, for a unit without
    ///         an element behind it, and for a line whose elements take more than 510 bytes
    /// @throws LmException "LmSdpTimeField::Invalid Time Zone Field 1" for any other character behind an offset, and
    ///         where the input ends there
    /// After a failure the elements are as they were.
    void parse(LmInputStream& in) override;

    /// @throws LmException "No time zone elements in LmSdpTimeZoneField::serialize()" when there are none;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "z".
    static LmSdpField* sConstruct();

private:
    LmSdpTimeZoneField();

    LmSdpWordList m_TimeZoneElements;
};
