#pragma once

#include "core/MemAccountOperators.h"
#include "sdp/frame/LmSdpSessionDescription.h"

namespace Quorvex
{
class FileLogger;
}

class LmSdpAttributeField;
class LmSdpBandwidthField;
class LmSdpConnectionField;
class LmSdpEmailField;
class LmSdpInformationField;
class LmSdpKeyField;
class LmSdpOriginField;
class LmSdpPhoneField;
class LmSdpProtocolVersionField;
class LmSdpSessionNameField;
class LmSdpTimeZoneField;
class LmSdpUriField;

/// One SDP body (RFC 4566): reads a text, gives access to its lines, takes additions, and writes it back.
///
/// All handles that it gives keep their objects alive, also beyond the message. Nothing tests that the lines which the
/// RFC asks for are there. One message belongs to one thread at a time; different messages may be used at once.
class LMSDP_API LmSdpMsg : public LmObject, public LmSerializable
{
public:
    /// An empty message: getters give empty handles, and it can't be written.
    LmSdpMsg();

    /// Reads a text, as `parse` does. A null pointer makes an empty message.
    explicit LmSdpMsg(const char* text);

    ///@{
    /// Puts a message together from ready-made lines, with `v=0` in front. Each handle may be empty.
    LmSdpMsg(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
             const LmHandle<LmSdpEmailField>& hEmail, const LmHandle<LmSdpConnectionField>& hConnection,
             const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia);
    LmSdpMsg(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
             const LmHandle<LmSdpPhoneField>& hPhone, const LmHandle<LmSdpConnectionField>& hConnection,
             const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia);
    ///@}

    ~LmSdpMsg() override;

    LmSdpMsg(const LmSdpMsg&) = delete;
    LmSdpMsg& operator=(const LmSdpMsg&) = delete;

    /// Reads a body and takes its tree in place of the present one. White space in front is passed over. What the
    /// body has behind its last line that belongs there stays unread in `in`, and is no error.
    /// @throws LmSdpParseError "SDP Message does not begin with 'v'", also for an empty text
    /// @throws whatever a line raises
    /// After a failure the message has its former tree.
    void parse(LmInputStream& in);

    /// Writes v o s i u e p c b, the time descriptions (t r), z k a, and the media descriptions (m i c b k a), each
    /// line with "\r\n" at its end, and flushes the stream.
    /// @throws LmException "Session Description is invalid in LmSdpMsg::serialize()" on an empty message
    /// @throws whatever an incomplete line raises; the lines in front of it are then in `out`
    void serialize(LmOutputStream& out) const override;

    /// Adds a session-level line. An empty handle does nothing.
    /// @throws LmSdpParseError "Attempting to insert invalid field at Session-level" for a letter that is not one of
    ///         "vosiuepcbzka"
    /// @throws LmException "Session Description is invalid in LmSdpMsg::addField()" on an empty message
    /// @throws what LmSdpDescription::addField raises
    void addField(const LmHandle<LmSdpField>& hField);

    /// Adds a time or media description. An empty handle does nothing.
    /// @throws LmException "Session Description is invalid in LmSdpMsg::addDescription()" on an empty message
    /// @throws what LmSdpSessionDescription::addDescription raises
    void addDescription(const LmHandle<LmSdpDescription>& hDescription);

    /// The first session-level line of a letter, whatever its class; the others follow by `getNext`.
    LmHandle<LmSdpField> getField(const char* token);

    ///@{
    /// The first description of its kind; the others follow by `getNext`.
    LmHandle<LmSdpTimeDescription> getTimeDescription();
    LmHandle<LmSdpMediaDescription> getMediaDescription();
    ///@}

    /// The first media description whose `m=` line lists the format: a payload type, not a place in the chain.
    LmHandle<LmSdpMediaDescription> getMediaDescription(unsigned int format);

    ///@{
    /// The first session-level line of each letter; an empty handle when there is none, or when the first one is of
    /// another class.
    LmHandle<LmSdpProtocolVersionField> getProtocolVersionField();
    LmHandle<LmSdpOriginField> getOriginField();
    LmHandle<LmSdpSessionNameField> getSessionNameField();
    LmHandle<LmSdpInformationField> getInformationField();
    LmHandle<LmSdpUriField> getUriField();
    LmHandle<LmSdpEmailField> getEmailField();
    LmHandle<LmSdpPhoneField> getPhoneField();
    LmHandle<LmSdpConnectionField> getConnectionField();
    LmHandle<LmSdpBandwidthField> getBandwidthField();
    LmHandle<LmSdpTimeZoneField> getTimeZoneField();
    LmHandle<LmSdpKeyField> getKeyField();
    LmHandle<LmSdpAttributeField> getAttributeField();
    ///@}

    QUORVEX_MEM_ACCOUNT(LmSdpMsg)

private:
    static Quorvex::FileLogger& sLogger();

    void build(const LmHandle<LmSdpOriginField>& hOrigin, const LmHandle<LmSdpSessionNameField>& hSessionName,
               const LmHandle<LmSdpField>& hContact, const LmHandle<LmSdpConnectionField>& hConnection,
               const LmHandle<LmSdpTimeDescription>& hTime, const LmHandle<LmSdpMediaDescription>& hMedia);

    LmHandle<LmSdpSessionDescription> m_SessionDescription;
};
