#pragma once

#include "core/MemAccountOperators.h"
#include "sdp/frame/LmSdpField.h"
#include "sdp/media/LmSdpAttribute.h"

/// The `a=` line: an attribute of the session or of one medium (RFC 4566, section 5.13).
///
///     a=<attribute>
///     a=<attribute>:<value>
///     a=rtpmap:96 telephone-event/8000
///
/// The value is an object, whose class follows from the name: LmSdpRtpAttribute for "rtpmap", LmSdpCryptoAttribute for
/// "crypto", and LmSdpAttribute for any other.
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpAttributeField : public LmSdpField
{
public:
    /// Reads `text`, which stands behind `a=` and needs no line end. A null pointer makes a blank field.
    explicit LmSdpAttributeField(const char* text);

    /// Name and value text; the class of the value follows from the name. A null value makes a line without one.
    /// @throws LmSdpParseError "Attempting to create Attribute Field with empty Name field" for a null pointer or an
    ///         empty name
    /// @throws what the value's class raises on its text
    LmSdpAttributeField(const char* name, const char* value);

    /// Name and value object, which is owned from here on, also when the name is refused. A null value makes a line
    /// without one.
    /// @throws LmSdpParseError "Attempting to create Attribute Field with empty Name field" for a null pointer or an
    ///         empty name
    LmSdpAttributeField(const char* name, LmSdpAttribute* pValue);
    ~LmSdpAttributeField() override;

    /// Valid until the next change.
    const char* getName() const { return m_Name.c_str(); }

    /// Replaces the name, which is not looked into, and sets the changed flag. The class of the value stays.
    void setName(const char* name);

    /// Whether there is a value object.
    bool hasValue() const { return !m_Attribute.isNull(); }

    /// The value as text; empty when there is none.
    LmString getValue() const;

    /// The value object; an empty handle when there is none.
    LmHandle<LmSdpAttribute> getAttribute() { return m_Attribute; }

    /// Replaces the value object, which is owned from here on, and sets the changed flag. A null pointer makes a line
    /// without a value.
    void setValue(LmSdpAttribute* pValue);

    /// Reads the line and cuts it at its first colon. Without a colon the present value stays. The changed flag stays.
    /// @throws LmException "LmSdpAttributeField::parse Incomplete Attribute Field" for an empty line; the field is as
    ///         it was then
    /// @throws what the value's class raises on its text; the name is set then, and the value is as it was
    void parse(LmInputStream& in) override;

    /// @throws LmException "Serializing Invalid Attribute Field" when the name is blank; nothing has been written then
    /// @throws what the value raises; the name has been written then
    void serialize(LmOutputStream& out) const override;

    QUORVEX_MEM_ACCOUNT(LmSdpAttributeField)

    /// The class of the letter "a".
    static LmSdpField* sConstruct();

private:
    LmSdpAttributeField();

    LmString m_Name;
    LmHandle<LmSdpAttribute> m_Attribute;
};
