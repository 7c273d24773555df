#pragma once

#include "sdp/frame/LmSdpDescription.h"
#include "sdp/frame/LmSdpMediaDescription.h"
#include "sdp/frame/LmSdpTimeDescription.h"

/// The root of the tree of one body: the session-level lines, and the chains of time and media descriptions
/// (RFC 4566, section 5).
class LMSDP_API LmSdpSessionDescription : public LmSdpDescription
{
public:
    ~LmSdpSessionDescription() override;

    /// The first description of a kind, "t" or "m"; an empty handle when there is none, and for any other token.
    LmHandle<LmSdpDescription> getDescription(const char* token);

    /// Appends a time or media description to its chain. An empty handle does nothing.
    /// @throws LmException "trying to add unknown description in LmSdpSessionDescription::addDescription()" for one
    ///         that is neither an LmSdpTimeDescription nor an LmSdpMediaDescription
    /// @throws LmException "description is already in this chain LmSdpDescription::addNext()" when the chain would run
    ///         into itself
    /// After a failure the description is as it was.
    void addDescription(const LmHandle<LmSdpDescription>& hDescription);

    /// Reads session-level lines, time descriptions, session-level lines again, and media descriptions. Blank lines
    /// are passed over. What comes behind stays unread, and is no error.
    /// @throws whatever a line raises
    void parse(LmInputStream& in) override;

    /// Writes v o s i u e p c b, the time descriptions, z k a, and the media descriptions.
    /// @throws whatever an incomplete line raises; the lines in front of it are then in `out`
    void serialize(LmOutputStream& out) const override;

    /// Writes a chain of descriptions; nothing for an empty handle.
    static void serializeDescription(LmHandle<LmSdpDescription> hDescription, LmOutputStream& out);

    /// The class that the letter "v" begins.
    static LmSdpDescription* sConstruct();

private:
    static const FieldTokens& sFieldTokens();
    friend class LmSdpMsg;

    LmSdpSessionDescription();

    /// Also asks the first time and the first media description.
    bool checkForChangeFlag();

    LmSdpDescription* first(const char* token, const Quorvex::Logger* pLogger) const;
    void add(LmHandle<LmSdpDescription>&& hDescription);

    LmHandle<LmSdpTimeDescription> m_TimeDescription;
    LmHandle<LmSdpMediaDescription> m_MediaDescription;
};
