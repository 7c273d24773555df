#pragma once

#include "LmLibs/LmUtil/LmObject.h"
#include "sdp/LmSdpExport.h"

/// An object with a changed flag, which lies in what would be unused bytes of each object.
class LMSDP_API LmSdpChangeable : public LmObject
{
protected:
    /// Not changed.
    LmSdpChangeable() = default;

    ///@{
    /// The flag.
    bool isChanged() const { return m_IsChanged; }
    void setChanged(bool changed) const { m_IsChanged = changed; }
    ///@}

private:
    mutable bool m_IsChanged = false;
};
