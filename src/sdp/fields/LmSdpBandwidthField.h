#pragma once

#include "sdp/frame/LmSdpField.h"

#include <string_view>

/// The `b=` line: the bandwidth that the session or one medium may take (RFC 4566, section 5.8).
///
///     b=<bwtype>:<bandwidth>
///     b=AS:128
///
/// The type is text and is not compared with any list; the amount is in the unit of its type, kbit/s for CT and AS.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpBandwidthField : public LmSdpField
{
public:
    /// @throws LmSdpParseError "Trying to create Bandwidth field with blank type field" for a null pointer or an empty
    ///         type
    LmSdpBandwidthField(const char* type, unsigned int amount);

    /// Reads `text`, which stands behind `b=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpBandwidthField(const char* text);
    ~LmSdpBandwidthField() override;

    /// The text in front of the colon; valid until the next change.
    const char* getType() const { return m_Type.c_str(); }

    /// In the unit of the type.
    unsigned int getAmount() const { return m_Amount; }

    /// Replaces the type, which is not looked into, and sets the changed flag.
    void setType(const char* type);

    /// Stores the amount and sets the changed flag.
    void setAmount(unsigned int amount);

    /// Takes the number with which the text begins, behind white space, as `atoi` does: a negative one gives its bits.
    /// @throws LmException "Invalid value for Amount in Bandwidth field" when that is 0 and the text is not "0", and
    ///         for a null pointer; the amount is 0 and the changed flag as it was then
    void setAmount(const char* amount);

    /// Reads the line and sets the changed flag.
    /// @throws LmException "LmSdpBandwidthField::parse() Invalid Bandwidth Field" for an empty line
    /// @throws LmSdpParseError with the same words for a line without a colon; the field is as it was in both cases
    /// @throws LmException "Invalid value for Amount in Bandwidth field" as `setAmount`; the type is set then
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpBandwidthField::serialize() Incomplete Bandwidth Field" when the type is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "b".
    static LmSdpField* sConstruct();

private:
    LmSdpBandwidthField();

    void takeAmount(std::string_view text);

    LmString m_Type;
    unsigned int m_Amount = 0;
};
