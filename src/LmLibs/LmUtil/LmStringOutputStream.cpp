#include "LmLibs/LmUtil/LmStringOutputStream.h"

#include <algorithm>
#include <cstring>
#include <typeinfo>
#include <utility>

namespace
{

constexpr std::size_t s_FirstCapacity = 1024;

} // namespace

LmStringOutputStream::~LmStringOutputStream() = default;

void LmStringOutputStream::write(const char* data, unsigned int length)
{
    if (length != 0)
    {
        const std::size_t present = this->length();
        growTo(present + length);
        std::memcpy(m_Text.get() + present, data, length);
        setLength(present + length);
    }
}

LmString LmStringOutputStream::getString() const
{
    return LmString(std::string_view(m_Text.get(), length()));
}

void LmStringOutputStream::clear()
{
    setLength(0);
}

void LmStringOutputStream::growTo(std::size_t length)
{
    if (length <= m_Capacity)
    {
        return;
    }
    const std::size_t capacity = std::max({length, m_Capacity * 2, s_FirstCapacity});
    std::unique_ptr<char[]> text(new char[capacity]);
    const std::size_t present = this->length();
    if (present != 0)
    {
        std::memcpy(text.get(), m_Text.get(), present);
    }
    m_Text = std::move(text);
    m_Capacity = capacity;
    setLength(present);
}

/// The room is shown to writers, but for a class derived from this one: it may have a `write` of its own.
void LmStringOutputStream::setLength(std::size_t length)
{
    const bool isDerived = typeid(*this) != typeid(LmStringOutputStream);
    char* const begin = m_Text.get() + length;
    setRoom(begin, isDerived ? begin : m_Text.get() + m_Capacity);
}
