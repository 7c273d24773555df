#pragma once

#include "sdp/fields/LmSdpContact.h"
#include "sdp/frame/LmSdpField.h"

/// The `p=` line: whom to call (RFC 4566, section 5.6).
///
///     p=<number>
///     p=<comment> "<"<number>">"
///     p=<number> "("<comment>")"
///     p=+1 617 555-6011 (Help Desk)
///
/// A number is "+" and digits, with single blanks or hyphens in front of digits. A line is written back in the shape
/// in which it was read.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpPhoneField : public LmSdpField
{
public:
    /// Takes both texts as they stand; the number is not checked. The comment may be empty; it is kept for
    /// `getComment` and not written.
    /// @throws LmSdpParseError "Attempting to create Phone Field with blank phone number" for a null pointer or an
    ///         empty number
    LmSdpPhoneField(const char* phoneNumber, const char* comment);

    /// Reads `text`, which stands behind `p=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpPhoneField(const char* text);
    ~LmSdpPhoneField() override;

    ///@{
    /// Each valid until the next change.
    const char* getPhoneNumber() const { return m_Contact.m_Address.c_str(); }
    const char* getComment() const { return m_Contact.m_Comment.c_str(); }
    ///@}

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag. The shape stays, so that a
    /// comment shows only in a line that was read with one.
    void setPhoneNumber(const char* text);
    void setComment(const char* text);
    ///@}

    /// Reads the line and sets the changed flag. A "(" counts before a "<"; the one character in front of either is
    /// left out. A number of one character is not checked.
    /// @throws LmSdpParseError "Invalid character in Phone Number - LmSdpPhoneField::parse()" for any other number,
    ///         and where a "<" has no ">"; the comment and the number are as they were then
    /// @throws LmSdpParseError "Parsing Error(blank PhoneNumber) in LmSdpPhoneField::parse()" for an empty line or
    ///         number; the comment is set then, and the number is as it was
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpPhoneField::serialize() Incomplete Phone Field" when the number is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "p".
    static LmSdpField* sConstruct();

private:
    LmSdpPhoneField();

    LmSdpContact m_Contact;
};
