#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `v=` line: the version of SDP (RFC 4566, section 5.1).
///
///     v=<version>
///     v=0
///
/// The version is text: any run of decimal digits of any length, not only "0".
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpProtocolVersionField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `v=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpProtocolVersionField(const char* text);
    ~LmSdpProtocolVersionField() override;

    /// The text behind the "="; valid until the next change.
    const char* getProtocolVersion() { return m_ProtocolVersion.c_str(); }

    /// Replaces the text, which is not looked into, and sets the changed flag.
    void setProtocolVersion(const char* text);

    /// Reads the version. An empty line gives a blank one. The changed flag stays.
    /// @throws LmSdpParseError "LmSdpProtocolVersionField::parse()Invalid character in Sdp Protocol Version Field" for
    ///         anything but a digit; the version is as it was then.
    void parse(LmInputStream& in) override;

    /// @throws LmException "LmSdpProtocolVersionField::serialize() Incomplete Protocol Version Field" when the text
    ///         is blank; nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "v".
    static LmSdpField* sConstruct();

private:
    LmSdpProtocolVersionField();

    LmString m_ProtocolVersion;
};
