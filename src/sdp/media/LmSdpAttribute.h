#pragma once

#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmSerializable.h"
#include "LmLibs/LmUtil/LmString.h"
#include "core/MemAccountOperators.h"
#include "sdp/LmSdpExport.h"
#include "sdp/frame/LmSdpChangeable.h"

#include <string_view>

/// The value of an `a=` line (RFC 4566, section 5.13): text that is not looked into. Classes that know a value's
/// structure derive from this one and build the text from their members when it is asked for.
///
/// Not safe for use by two threads at once.
class LMSDP_API LmSdpAttribute : public LmSdpChangeable, public LmSerializable
{
public:
    /// An empty value.
    LmSdpAttribute();

    /// A copy of the text; a null pointer gives an empty value.
    explicit LmSdpAttribute(const char* value);

    /// A copy of the bytes.
    explicit LmSdpAttribute(std::string_view value) : m_Value(value) {}

    /// Shares the text.
    explicit LmSdpAttribute(LmString value);
    ~LmSdpAttribute() override;

    LmSdpAttribute(const LmSdpAttribute&) = delete;
    LmSdpAttribute& operator=(const LmSdpAttribute&) = delete;

    /// Reads one word.
    virtual void parse(LmInputStream& in);

    /// Writes the value and nothing else: no name, no line end.
    void serialize(LmOutputStream& out) const override;

    /// The value as text, built anew when a member has changed.
    LmString getValue() const;

    QUORVEX_MEM_ACCOUNT(LmSdpAttribute)

protected:
    ///@{
    /// Whether a member has changed since the text was built.
    void setChangedFlag(bool changed) { setChanged(changed); }
    void clearChangedFlag() const { setChanged(false); }
    ///@}

    /// The text of the members as they are now.
    void setBuiltValue(const LmString& value) const { m_Value = value; }

    /// The text that was last built or given, however old it is.
    const LmString& builtValue() const { return m_Value; }

private:
    /// Writes the members into the text, by `setBuiltValue`. There are none here.
    virtual void buildValue() const;

    mutable LmString m_Value;
};
