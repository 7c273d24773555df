#include "media/LmCodecDescription.h"

LmCodecDescription::LmCodecDescription(unsigned int codecNo, const char* codecName) : m_CodecNo(codecNo)
{
    m_CodecName.assign(codecName);
}
