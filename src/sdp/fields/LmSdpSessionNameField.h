#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `s=` line: the name of the session (RFC 4566, section 5.3).
///
///     s=<session name>
///     s=SDP Seminar
///
/// The name is not looked into. One blank, the RFC's way to say that there is no name, stays a blank.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpSessionNameField : public LmSdpField
{
public:
    /// Takes the text as it stands, without parsing it.
    /// @throws LmSdpParseError "Attempting to create LmSdpSessionNameField with blank string" for a null pointer or an
    ///         empty text
    explicit LmSdpSessionNameField(const char* text);
    ~LmSdpSessionNameField() override;

    /// The text behind the "="; valid until the next change.
    const char* getSessionName() { return m_SessionName.c_str(); }

    /// Replaces the text, which is not looked into, and sets the changed flag.
    void setSessionName(const char* text);

    /// Reads the name, blanks at its ends included. An empty line gives the name "empty", so that the message can be
    /// written again. The changed flag stays.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpSessionNameField::serialize() Incomplete Session Name Field" when the text
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "s".
    static LmSdpField* sConstruct();

private:
    LmSdpSessionNameField();

    LmString m_SessionName;
};
