#include "LmLibs/LmUtil/LmStdOutputStream.h"

LmStdOutputStream::LmStdOutputStream(std::ostream& out) : m_Out(out) {}

LmStdOutputStream::~LmStdOutputStream() = default;

void LmStdOutputStream::write(const char* data, unsigned int length)
{
    m_Out.write(data, static_cast<std::streamsize>(length));
}

void LmStdOutputStream::flush()
{
    m_Out.flush();
}
