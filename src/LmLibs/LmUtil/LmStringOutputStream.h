#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"

#include <string>

/// Collects what is written to it.
class LMUTIL_API LmStringOutputStream : public LmOutputStream
{
public:
    ~LmStringOutputStream() override;

    void write(const char* data, unsigned int length) override;

    /// A copy of all that has been written since the start or the last `clear`.
    LmString getString() const;

    void clear();

private:
    std::string m_Text;
};
