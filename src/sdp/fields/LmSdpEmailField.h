#pragma once

#include "sdp/fields/LmSdpContact.h"
#include "sdp/frame/LmSdpField.h"

/// The `e=` line: whom to write to (RFC 4566, section 5.6).
///
///     e=<address>
///     e=<comment> "<"<address>">"
///     e=<address> "("<comment>")"
///
/// A line is written back in the shape in which it was read. The address is not looked into.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpEmailField : public LmSdpField
{
public:
    /// Takes both texts as they stand. The comment may be empty; it is kept for `getComment` and not written.
    /// @throws LmSdpParseError "Attempting to create Email Field with blank E-mail ID" for a null pointer or an empty
    ///         address
    LmSdpEmailField(const char* emailId, const char* comment);

    /// Reads `text`, which stands behind `e=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpEmailField(const char* text);
    ~LmSdpEmailField() override;

    ///@{
    /// Each valid until the next change.
    const char* getEmailId() const { return m_Contact.m_Address.c_str(); }
    const char* getComment() const { return m_Contact.m_Comment.c_str(); }
    ///@}

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag. The shape stays, so that a
    /// comment shows only in a line that was read with one.
    void setEmailId(const char* text);
    void setComment(const char* text);
    ///@}

    /// Reads the line without white space at its ends, and sets the changed flag. A "(" counts before a "<". A blank
    /// in front of the "(" stays at the end of the address; what stands behind the closing ")" or ">" is dropped.
    /// @throws LmException "LmSdpEmailField::serialize() Incomplete Email Field" for an empty line, the words of
    ///         `serialize`; the field is as it was then
    /// @throws LmException "Parsing Error(blank EmailId) in LmSdpEmailField::parse()" for an empty address, also where
    ///         a "<" has no ">"; shape and comment are set then, and the address is as it was
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpEmailField::serialize() Incomplete Email Field" when the address is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "e".
    static LmSdpField* sConstruct();

private:
    LmSdpEmailField();

    LmSdpContact m_Contact;
};
