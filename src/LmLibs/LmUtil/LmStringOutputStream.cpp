#include "LmLibs/LmUtil/LmStringOutputStream.h"

LmStringOutputStream::~LmStringOutputStream() = default;

void LmStringOutputStream::write(const char* data, unsigned int length)
{
    m_Text.append(data, length);
}

LmString LmStringOutputStream::getString() const
{
    return LmString(std::string_view(m_Text));
}

void LmStringOutputStream::clear()
{
    m_Text.clear();
}
