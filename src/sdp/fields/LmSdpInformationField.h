#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `i=` line: a description of the session or of one medium (RFC 4566, section 5.4).
///
///     i=<session description>
///     i=A Seminar on the session description protocol
///
/// The text is not looked into.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpInformationField : public LmSdpField
{
public:
    /// Takes the text as it stands, without parsing it.
    /// @throws LmSdpParseError "Attempting to create LmSdpInformationField with blank string" for a null pointer or an
    ///         empty text
    explicit LmSdpInformationField(const char* text);
    ~LmSdpInformationField() override;

    /// The text behind the "="; valid until the next change.
    const char* getInformation() const { return m_Information.c_str(); }

    /// Replaces the text, which is not looked into, and sets the changed flag.
    void setInformation(const char* text);

    /// Reads the text, blanks at its ends included. The changed flag stays.
    /// @throws LmException "LmSdpInformationField::parse() Empty Information Field" for an empty line; the text is as
    ///         it was then.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpInformationField::serialize() Incomplete Information Field" when the text
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "i".
    static LmSdpField* sConstruct();

private:
    LmSdpInformationField();

    LmString m_Information;
};
