#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `u=` line: where to find more about the session (RFC 4566, section 5.5).
///
///     u=<uri>
///     u=http://www.example.com/seminars/sdp.pdf
///
/// The text is not looked into; it need not be a URI.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpUriField : public LmSdpField
{
public:
    /// Takes the text as it stands, without parsing it.
    /// @throws LmSdpParseError "Attempting to create LmSdpUriField with empty string" for a null pointer or an
    ///         empty text
    explicit LmSdpUriField(const char* text);
    ~LmSdpUriField() override;

    /// The text behind the "="; valid until the next change.
    const char* getUri() { return m_Uri.c_str(); }

    /// Replaces the text, which is not looked into, and sets the changed flag.
    void setUri(const char* text);

    /// Reads the text, blanks at its ends included. The changed flag stays.
    /// @throws LmException "LmSdpUriField::serialize() Incomplete URI Field" for an empty line, the words of
    ///         `serialize`; the text is as it was then.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpUriField::serialize() Incomplete URI Field" when the text
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "u".
    static LmSdpField* sConstruct();

private:
    LmSdpUriField();

    LmString m_Uri;
};
