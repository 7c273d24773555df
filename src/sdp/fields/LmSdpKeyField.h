#pragma once

#include "sdp/frame/LmSdpField.h"

/// The `k=` line: an encryption key, or how to come by it (RFC 4566, section 5.12).
///
///     k=clear:<key>
///     k=base64:<key>
///     k=prompt
///     k=http://<where to get the key>
///
/// These four forms are read and no other; the URL stands without a method word in front. The key is not decoded.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpKeyField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `k=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpKeyField(const char* text);
    ~LmSdpKeyField() override;

    /// "clear", "base64", "prompt" or the whole URL; valid until the next change.
    const char* getMethod() { return m_Method.c_str(); }

    /// The key; empty where the method has none. Valid until the next change.
    const char* getKey() { return m_Key.c_str(); }

    ///@{
    /// Each replaces one value, which is not looked into, and sets the changed flag.
    void setMethod(const char* text);
    void setKey(const char* text);
    ///@}

    /// Reads the line. A line without a key leaves the present key as it is. The changed flag stays.
    /// @throws LmException "LmSdpKeyField::parse() Incomplete Key Field" for an empty line; the field is as it was then
    /// @throws LmException "LmSdpKeyField::parse() Invalid Key Field" for any other form; where the line has a colon,
    ///         the method is then what stands in front of it
    void parse(LmInputStream& in) override;

    /// Writes the method and, where there is a key, a colon and the key: `k=clear:` comes back as `k=clear`.
    /// @throws LmException "LmSdpKeyField::serialize() Incomplete Key Field" when the method is blank;
    ///         nothing has been written then.
    void serialize(LmOutputStream& out) const override;

    /// The class of the letter "k".
    static LmSdpField* sConstruct();

private:
    LmSdpKeyField();

    LmString m_Method;
    LmString m_Key;
};
