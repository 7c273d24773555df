#pragma once

#include "sdp/frame/LmSdpField.h"

/// A line whose letter has no class: its text is held as it stands.
class LMSDP_API LmSdpUnusedField : public LmSdpField
{
public:
    /// Takes letter and text as they stand. A null pointer gives the empty text.
    LmSdpUnusedField(const char* token, const char* value);
    ~LmSdpUnusedField() override;

    /// The text behind the "="; valid until the next change.
    const char* getField() const { return m_Field.c_str(); }

    /// Replaces the text, which is not looked into, and sets the changed flag.
    void setField(const char* value);

    /// Takes the rest of the line; an empty one is fine. The changed flag stays.
    void parse(LmInputStream& in) override;

    /// Writes the line; an empty text gives `x=`.
    void serialize(LmOutputStream& out) const override;

private:
    friend class LmSdpField;

    explicit LmSdpUnusedField(const char* token);

    LmString m_Field;
};
