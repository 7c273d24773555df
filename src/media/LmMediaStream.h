#pragma once

#include "LmLibs/LmUtil/LmInetAddress.h"
#include "LmLibs/LmUtil/LmObject.h"
#include "media/LmCodecDescription.h"
#include "sdp/LmSdpExport.h"

#include <vector>

/// One media stream: its kind, its port, its address and its codecs. It knows no SDP.
///
/// Sessions share a stream, they do not copy it. Not safe for use by two threads at once.
class LMSDP_API LmMediaStream : public LmObject
{
public:
    /// What is sent: the first word of an `m=` line.
    enum Type
    {
        AUDIO = 0,
        VIDEO = 1,
        TEXT = 2,
        IMAGE = 3,
        APPLICATION = 4
    };

    /// Nothing is tested. An address that is not set means that the stream has none of its own.
    LmMediaStream(Type type, unsigned int portNo, const LmInetAddress& address);
    ~LmMediaStream() override;

    ///@{
    /// What it was made with.
    Type getType() const { return m_Type; }
    unsigned int getPortNo() const { return m_PortNo; }
    LmInetAddress getInetAddress() const { return m_InetAddress; }
    ///@}

    /// In the order in which they were last added; no two have the same number.
    const std::vector<LmCodecDescription>& getCodecs() const { return m_Codecs; }

    /// Appends a codec. One that is there under the same number goes.
    void addCodec(const LmCodecDescription& codec);

    /// Appends one codec after the other, in time that grows with their number.
    void addCodecs(const std::vector<LmCodecDescription>& codecs);

private:
    Type m_Type;
    unsigned int m_PortNo;
    LmInetAddress m_InetAddress;
    std::vector<LmCodecDescription> m_Codecs;
};
