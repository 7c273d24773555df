#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"

#include <ostream>

/// Writes to a `std::ostream` of the caller's, who keeps it alive and asks it whether writing went well.
class LMUTIL_API LmStdOutputStream : public LmOutputStream
{
public:
    /// Writes to where `out` stands.
    explicit LmStdOutputStream(std::ostream& out);
    ~LmStdOutputStream() override;

    void write(const char* data, unsigned int length) override;
    void flush() override;

private:
    std::ostream& m_Out;
};
