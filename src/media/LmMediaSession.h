#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "LmLibs/LmUtil/LmString.h"
#include "media/LmMediaStream.h"
#include "sdp/LmSdpExport.h"

#include <vector>

/// SDP for a caller who knows only streams and codecs: gives the text of a local body for a list of streams, and reads
/// a received body as such a list.
///
/// Not safe for use by two threads at once: asking for the body builds it.
class LMSDP_API LmMediaSession : public LmObject
{
public:
    /// @throws LmException "LmMediaSession::addStream() without a stream" for an empty handle
    explicit LmMediaSession(const LmHandle<LmMediaStream>& stream);
    ~LmMediaSession() override;

    /// Appends a stream, which is shared; one that is added twice counts twice. The body is built anew when it is
    /// asked for next.
    /// @throws LmException "LmMediaSession::addStream() without a stream" for an empty handle
    void addStream(LmHandle<LmMediaStream> stream);

    /// In the order of addition.
    const std::vector<LmHandle<LmMediaStream>>& getStreams() const { return m_Streams; }

    /// The text of a local body with a NUL behind it. It belongs to the session and is valid until the next build,
    /// which comes with the first question after an `addStream`. A codec that is added to a stream does not make a
    /// built body old.
    ///
    /// Session id, version and start time are the seconds since 1970 at the time of building. Each `m=` line has the
    /// transport RTP/AVP, and each codec with a name an `a=rtpmap` line with the clock rate 8000.
    void* getBody();

    /// The length of that text in bytes, its NUL not counted.
    unsigned int getBodyLength();

    /// Reads `length` bytes of a received body. Every stream gets the address of the session-level `c=` line, or else
    /// of the `o=` line. A codec has the name of its `a=rtpmap` line, or else the empty name; those with one stand
    /// behind those without. A media line whose word is none of audio, video, text, image and application is passed
    /// over.
    /// @return the session; an empty handle for a null pointer, a length of 0, and a body without a usable media line
    /// @throws LmSdpParseError "Invalid SDP Message, both Connection field  and Origin Field are missing\n"
    /// @throws what LmSdpMsg::parse raises
    static LmHandle<LmMediaSession> sCreateSession(void* body, unsigned int length);

private:
    void build();
    void setLocalBody();

    std::vector<LmHandle<LmMediaStream>> m_Streams;
    unsigned int m_BodyLength = 0;
    LmString m_Body;
    bool m_BodyChanged = true;
};
