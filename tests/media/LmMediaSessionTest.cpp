#include "media/LmMediaSession.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "sdp/frame/LmSdpMsg.h"
#include "support/Matchers.h"

#include <cstring>
#include <ctime>
#include <memory>

namespace
{

using testing::EndsWith;

const std::string s_Local = LmInetAddress::sGetLocalHost(250).getHostAddress();

LmInetAddress address(const char* text)
{
    return {text, nullptr, 250};
}

LmHandle<LmMediaStream> stream(LmMediaStream::Type type, unsigned int port, const char* host,
                               const std::vector<LmCodecDescription>& codecs)
{
    const LmHandle<LmMediaStream> hStream = new LmMediaStream(type, port, address(host));
    for (const LmCodecDescription& codec : codecs)
    {
        hStream->addCodec(codec);
    }
    return hStream;
}

/// The body with "(id)" in each place of the id, the seconds since 1970.
std::string bodyOf(LmMediaSession& session)
{
    std::string body(static_cast<const char*>(session.getBody()));
    const std::size_t start = body.find("user ") + 5;
    const std::string id = body.substr(start, body.find(' ', start) - start);
    EXPECT_NEAR(std::stod(id), static_cast<double>(std::time(nullptr)), 60) << body;
    for (std::size_t place = body.find(id); place != std::string::npos; place = body.find(id, place))
    {
        body.replace(place, id.size(), "(id)");
    }
    return body;
}

/// Lines 1 to 6, with the local host filled in.
const std::string s_Head = "v=0\r\no=user (id) (id) IN IP4 " + s_Local + "\r\ns=SDP Media Session\r\ne=user@" +
                           s_Local + "\r\nt=(id) 0\r\nc=IN IP4 " + s_Local + "\r\n";

/// `kind port address: number/name ...` of each stream, one to a line.
std::string show(const LmHandle<LmMediaSession>& hSession)
{
    static const char* const kinds[] = {"audio", "video", "text", "image", "application"};
    std::ostringstream text;
    for (const LmHandle<LmMediaStream>& hStream :
         hSession ? hSession->getStreams() : std::vector<LmHandle<LmMediaStream>>())
    {
        text << kinds[hStream->getType()] << " " << hStream->getPortNo() << " "
             << hStream->getInetAddress().getHostAddress() << ":";
        for (const LmCodecDescription& codec : hStream->getCodecs())
        {
            text << " " << codec.getCodecNo() << "/" << codec.getCodecName();
        }
        text << "\n";
    }
    return hSession ? text.str() : "(nothing)";
}

/// From a block exactly as long as the body.
LmHandle<LmMediaSession> read(const std::string& body)
{
    const auto block = std::make_unique<char[]>(body.size());
    std::memcpy(block.get(), body.data(), body.size());
    return LmMediaSession::sCreateSession(block.get(), static_cast<unsigned int>(body.size()));
}

TEST(Codecs, LastWordOnANumberCounts)
{
    const std::pair<std::vector<LmCodecDescription>, const char*> rows[] = {
        {{}, ""},
        {{{0, "A"}, {8, "A"}, {18, "C"}}, " 0/A 8/A 18/C"},
        {{{0, "A"}, {8, "B"}, {18, "C"}, {8, "B"}}, " 0/A 18/C 8/B"},
        {{{96, ""}, {0, ""}, {96, "T"}}, " 0/ 96/T"}};
    for (const auto& [codecs, shown] : rows)
    {
        const LmHandle<LmMediaStream> hStream = stream(LmMediaStream::AUDIO, 0, "", codecs);
        EXPECT_EQ(show(new LmMediaSession(hStream)), std::string("audio 0 0.0.0.0:") + shown + "\n");
    }
}

TEST(Codec, CopiesShareTheName)
{
    const LmCodecDescription codec(8, "PCMA");
    const LmCodecDescription copy = codec;
    EXPECT_EQ(copy.getCodecName(), codec.getCodecName());
    EXPECT_EQ(LmCodecDescription(8, nullptr).getCodecName(), nullptr);
}

TEST(LocalBody, IsWrittenFromItsStreams)
{
    LmMediaSession session(stream(LmMediaStream::AUDIO, 49170, "", {{0, "PCMU"}, {8, "PCMA"}}));
    session.addStream(stream(LmMediaStream::VIDEO, 51372, "192.0.2.20", {{96, "H263"}, {34, nullptr}, {35, ""}}));
    session.addStream(stream(LmMediaStream::TEXT, 0, s_Local.c_str(), {}));
    session.addStream(stream(LmMediaStream::IMAGE, 0xFFFFFFFF, "", {{0x80000000, "x y"}}));
    session.addStream(session.getStreams()[2]);
    session.addStream(stream(LmMediaStream::APPLICATION, 9, "", {}));
    EXPECT_EQ(bodyOf(session), s_Head +
                                   "m=audio 49170 RTP/AVP 0 8\r\na=rtpmap:0 PCMU/8000\r\na=rtpmap:8 PCMA/8000\r\n"
                                   "m=video 51372 RTP/AVP 96 34 35\r\nc=IN IP4 192.0.2.20\r\na=rtpmap:96 H263/8000\r\n"
                                   "m=text 0 RTP/AVP\r\n"
                                   "m=image -1 RTP/AVP -2147483648\r\na=rtpmap:-2147483648 x y/8000\r\n"
                                   "m=text 0 RTP/AVP\r\nm=application 9 RTP/AVP\r\n");
}

TEST(LocalBody, HasItsLengthInEveryOrderOfCalls)
{
    const LmHandle<LmMediaStream> hAudio = stream(LmMediaStream::AUDIO, 1, "", {{0, "PCMU"}});
    LmMediaSession session(hAudio);
    const unsigned int length = session.getBodyLength();
    const char* const body = static_cast<const char*>(session.getBody());
    EXPECT_EQ(std::strlen(body), length);
    hAudio->addCodec({8, "PCMA"});
    EXPECT_EQ(session.getBody(), body) << "a codec does not make a built body old";
    EXPECT_EQ(session.getBodyLength(), length);

    session.addStream(stream(LmMediaStream::VIDEO, 2, "", {}));
    EXPECT_THAT(
        bodyOf(session),
        EndsWith("m=audio 1 RTP/AVP 0 8\r\na=rtpmap:0 PCMU/8000\r\na=rtpmap:8 PCMA/8000\r\nm=video 2 RTP/AVP\r\n"));
    EXPECT_EQ(session.getBodyLength(), std::strlen(static_cast<const char*>(session.getBody())));
}

TEST(LocalBody, NeedsAStream)
{
    constexpr const char* words = "LmMediaSession::addStream() without a stream";
    EXPECT_THAT([] { LmMediaSession(nullptr); }, ThrowsException(words));
    LmMediaSession session(stream(LmMediaStream::AUDIO, 1, "", {}));
    EXPECT_THAT([&] { session.addStream(nullptr); }, ThrowsException(words));
    EXPECT_EQ(session.getStreams().size(), 1U);
}

TEST(LocalBody, ReadsBack)
{
    LmMediaSession session(stream(LmMediaStream::AUDIO, 49170, "", {{0, "PCMU"}, {8, "PCMA"}, {18, nullptr}}));
    session.addStream(stream(LmMediaStream::VIDEO, 2, "192.0.2.20", {{96, "H263"}}));
    const std::string body(static_cast<const char*>(session.getBody()), session.getBodyLength());
    EXPECT_EQ(show(read(body)), "audio 49170 " + s_Local + ": 18/ 0/PCMU 8/PCMA\nvideo 2 " + s_Local + ": 96/H263\n");
    EXPECT_EQ(written(LmSdpMsg(body.c_str())).size(), body.size());
}

struct BodyRow
{
    const char* name;
    std::string body;
    std::string shown;
    Failure failure = {};
};

/// A session whose address is 192.0.2.7, and these lines behind it.
std::string peer(const std::string& lines)
{
    return "v=0\no=p 1 1 IN IP4 192.0.2.1\ns=s\nc=IN IP4 192.0.2.7\nt=0 0\n" + lines;
}

const Failure s_NoAddress = parseError("Invalid SDP Message, both Connection field  and Origin Field are missing\n");

const BodyRow s_Bodies[] = {
    {"NamedCodecsStandBehindTheOthers",
     peer("m=audio 49170 RTP/AVP 0 8 96\na=rtpmap:96 telephone-event/8000\na=rtpmap:0 "
          "PCMU/8000\na=ptime:20\nm=video 0 RTP/AVP 34\nc=IN IP4 192.0.2.9\n"),
     "audio 49170 192.0.2.7: 8/ 96/telephone-event 0/PCMU\nvideo 0 192.0.2.7: 34/\n"},
    {"AllKinds", peer("m=text 1 x 1\nm=image 2/9 udptl t38 x\nm=application 3 x  5  5 \n"),
     "text 1 192.0.2.7: 1/\nimage 2 192.0.2.7: 0/\napplication 3 192.0.2.7: 5/\n"},
    {"RtpmapOfAnUnlistedNumber",
     peer("a=rtpmap:7 SESSION/1\nm=audio 1 x 0\na=rtpmap:97 A/1\na=rtpmap\na=rtpmap:97 B/1\nb=AS:1\n"),
     "audio 1 192.0.2.7: 0/ 97/B\n"},
    {"OriginCountsWithoutConnection", "v=0\no=p 1 1 IN IP4 192.0.2.1\ns=s\nt=0 0\nm=audio 1 x 0\nc=IN IP4 192.0.2.9\n",
     "audio 1 192.0.2.1: 0/\n"},
    {"AddressThatIsNone", "v=0\nc=IN IP4 host\nt=0 0\nm=audio 1 x 0\n", "audio 1 0.0.0.0: 0/\n"},
    {"ConnectionWithEmptyAddress", "v=0\nc=IN IP4 \nt=0 0\nm=audio 1 x 0\n", "audio 1 0.0.0.0: 0/\n"},
    {"UnknownWordsArePassedOver", peer("m=Audio 1 x 0\nm=audiox 1 x 0\nm=audio 2 x 0\nm=\xFF 1 x 0\n"),
     "audio 2 192.0.2.7: 0/\n"},
    {"NothingUsable", peer("m=message 1 x 0\n"), "(nothing)"},
    {"NoMedia", peer("a=sendrecv\n"), "(nothing)"},
    {"MediaLineWithoutItsClass", peer("mi=audio 1 x 0\n"), "(nothing)"},
    {"OnlyAMediaLevelConnection", "v=0\ns=s\nt=0 0\nm=audio 1 x 0\nc=IN IP4 192.0.2.9\n", "", s_NoAddress},
    {"NoAddressAndNoMedia", "v=0\ns=s\nt=0 0\n", "", s_NoAddress},
    {"OriginWithoutItsClass", "v=0\nos=p 1 1 IN IP4 192.0.2.1\nt=0 0\nm=audio 1 x 0\n", "", s_NoAddress},
    {"ParserErrorsPassThrough", "o=p", "", parseError("SDP Message does not begin with 'v'")}};

TEST(ReceivedBodies, AreReadAsStreams)
{
    for (const BodyRow& row : s_Bodies)
    {
        SCOPED_TRACE(row.name);
        std::string shown;
        EXPECT_EQ(failureOf([&] { shown = show(read(row.body)); }), row.failure);
        EXPECT_EQ(shown, row.shown);
    }
}

TEST(ReceivedBodies, NoBodyIsNothing)
{
    char body[] = "v=0";
    EXPECT_TRUE(LmMediaSession::sCreateSession(nullptr, 10).isNull());
    EXPECT_TRUE(LmMediaSession::sCreateSession(body, 0).isNull());
}

} // namespace
