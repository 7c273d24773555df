#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"

#include <cstddef>
#include <memory>

/// Collects what is written to it.
class LMUTIL_API LmStringOutputStream : public LmOutputStream
{
public:
    ~LmStringOutputStream() override;

    void write(const char* data, unsigned int length) override;

    /// A copy of all that has been written since the start or the last `clear`.
    LmString getString() const;

    /// Forgets what has been written.
    void clear();

private:
    void growTo(std::size_t length);
    std::size_t length() const { return static_cast<std::size_t>(roomBegin() - m_Text.get()); }
    void setLength(std::size_t length);

    std::unique_ptr<char[]> m_Text;
    std::size_t m_Capacity = 0;
};
