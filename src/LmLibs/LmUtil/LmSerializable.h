#pragma once

#include "LmLibs/LmUtil/LmUtilExport.h"

class LmOutputStream;

/// Second base of whatever can be written as text.
class LMUTIL_API LmSerializable
{
public:
    ///@{
    /// It holds nothing.
    LmSerializable() = default;
    LmSerializable(const LmSerializable&) = default;
    LmSerializable& operator=(const LmSerializable&) = default;
    ///@}
    virtual ~LmSerializable() = default;

    /// Writes this object. What it raises, and what has been written by then, each class says.
    virtual void serialize(LmOutputStream& out) const = 0;
};
