#pragma once

#include "LmLibs/LmUtil/LmString.h"
#include "sdp/LmSdpExport.h"

/// One media format of a stream. A plain value; copies share the name's text.
class LMSDP_API LmCodecDescription
{
public:
    /// `codecNo` is the RTP payload type, which is what identifies a codec in its stream; `codecName` the encoding
    /// name. A null pointer makes a codec without a name.
    LmCodecDescription(unsigned int codecNo, const char* codecName);

    /// The RTP payload type.
    unsigned int getCodecNo() const { return m_CodecNo; }

    /// A null pointer for a codec without a name; valid as long as this value or a copy.
    const char* getCodecName() const { return m_CodecName.c_str(); }

private:
    unsigned int m_CodecNo;
    LmString m_CodecName;
};
