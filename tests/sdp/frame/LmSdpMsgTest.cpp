#include "sdp/frame/LmSdpMsg.h"

#include "LmLibs/LmUtil/LmByteArrayInputStream.h"
#include "sdp/frame/LmSdpParseError.h"
#include "sdp/frame/LmSdpUnusedField.h"
#include "sdp/media/LmSdpMediaField.h"
#include "support/ByteStream.h"
#include "support/Matchers.h"

#include <stdexcept>

namespace
{

constexpr const char* s_NoVersion = "SDP Message does not begin with 'v'";
constexpr const char* s_Refused = "field doesn't belong in this description type LmSdpDescription::addField()";
constexpr const char* s_First = "v=0\r\no=- 1 1 IN IP4 h\r\ns=first\r\nc=IN IP4 10.0.0.1\r\nc=IN IP4 10.0.0.2\r\n"
                                "t=0 0\r\nm=audio 1 RTP/AVP 0\r\n";
constexpr const char* s_Second = "v=0\r\ns=second\r\n";

void parse(LmSdpMsg& message, const char* text)
{
    LmByteArrayInputStream in(LmByteArray::sCreate(text), 0, 0);
    message.parse(in);
}

TEST(Message, KeepsItsTreeWhenABodyIsRefused)
{
    struct
    {
        const char* body;
        Failure failure;
        unsigned int left;
    } const rows[] = {
        {"", parseError(s_NoVersion), 0},
        {" \r\n", parseError(s_NoVersion), 0},
        {"o=- 1 1 IN IP4 h\r\n", parseError(s_NoVersion), 18},
        {"V=0", parseError(s_NoVersion), 3},
        {"\xFFv=0", parseError(s_NoVersion), 4},
        {"version=0\r\n", exception("Invalid format generic SDP field in LmSdpField::sConstructFrom()"), 4},
        {"vx=0\r\n", exception(s_Refused), 0},
        {"v=0\r\nx=1\r\ns=x", exception(s_Refused), 3},
        {"v=0\r\nt=0 0\r\nm=audio 1 RTP/AVP 0\r\na=\r\nm=",
         exception("LmSdpAttributeField::parse Incomplete Attribute Field"), 4},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(readBody(row.body), (Reading{"", row.failure, row.left}));
        LmSdpMsg message(s_First);
        EXPECT_EQ(failureOf([&] { parse(message, row.body); }), row.failure);
        EXPECT_THAT(message, SerializesTo(s_First));
        EXPECT_EQ(failureOf([&] { LmSdpMsg other(row.body); }), row.failure);
    }
}

TEST(Message, IsEmptyWithoutAText)
{
    LmSdpMsg made;
    LmSdpMsg madeOfNull(nullptr);
    for (LmSdpMsg* const pMessage : {&made, &madeOfNull})
    {
        EXPECT_TRUE(pMessage->getField("v").isNull());
        EXPECT_TRUE(pMessage->getTimeDescription().isNull());
        EXPECT_TRUE(pMessage->getMediaDescription().isNull());
        EXPECT_TRUE(pMessage->getMediaDescription(0).isNull());
        EXPECT_TRUE(pMessage->getOriginField().isNull());
        EXPECT_THAT([&] { written(*pMessage); },
                    ThrowsException("Session Description is invalid in LmSdpMsg::serialize()"));
        EXPECT_THAT([&] { pMessage->addField(new LmSdpUnusedField("a", "x")); },
                    ThrowsException("Session Description is invalid in LmSdpMsg::addField()"));
        EXPECT_THAT([&] { pMessage->addDescription(new LmSdpMediaDescription(nullptr, nullptr)); },
                    ThrowsException("Session Description is invalid in LmSdpMsg::addDescription()"));
        pMessage->addField(nullptr);
        pMessage->addDescription(nullptr);
    }
}

TEST(Message, TakesANewTreeInPlaceOfTheFormerOne)
{
    LmSdpMsg message(s_First);
    const LmHandle<LmSdpField> hSession = message.getField("s");
    const LmHandle<LmSdpMediaDescription> hMedia = message.getMediaDescription();
    parse(message, s_Second);
    EXPECT_THAT(message, SerializesTo(s_Second));
    EXPECT_THAT(hSession, SerializesTo("s=first\r\n"));
    EXPECT_THAT(hMedia, SerializesTo("m=audio 1 RTP/AVP 0\r\n"));
}

TEST(Message, IsOutlivedByItsTree)
{
    LmHandle<LmSdpMsg> hMessage = new LmSdpMsg(s_First);
    const LmHandle<LmSdpField> hConnection = hMessage->getField("c");
    const LmHandle<LmSdpTimeDescription> hTime = hMessage->getTimeDescription();
    hMessage = nullptr;
    EXPECT_THAT(hConnection->getNext(), SerializesTo("c=IN IP4 10.0.0.2\r\n"));
    EXPECT_THAT(hTime, SerializesTo("t=0 0\r\n"));
}

TEST(Message, IsWrittenAnewEachTime)
{
    LmSdpMsg message("v=0\r\n");
    const LmHandle<LmSdpUnusedField> hField = new LmSdpUnusedField("a", "one");
    message.addField(hField);
    EXPECT_THAT(message, SerializesTo("v=0\r\na=one\r\n"));
    hField->setField("two");
    EXPECT_THAT(message, SerializesTo("v=0\r\na=two\r\n"));
}

TEST(Message, TakesSessionLinesOnly)
{
    const std::pair<const char*, const char*> taken[] = {{"i", "v=0\r\ns=second\r\ni=x\r\n"},
                                                         {"s", "v=0\r\ns=second\r\ns=x\r\n"},
                                                         {"os", "v=0\r\nos=x\r\ns=second\r\n"}};
    for (const auto& [token, text] : taken)
    {
        LmSdpMsg message(s_Second);
        message.addField(new LmSdpUnusedField(token, "x"));
        EXPECT_THAT(message, SerializesTo(std::string(text)));
    }
    LmSdpMsg message(s_Second);
    for (const char* token : {"m", "t", "x", ""})
    {
        EXPECT_THAT([&] { message.addField(new LmSdpUnusedField(token, "x")); },
                    ThrowsParseError("Attempting to insert invalid field at Session-level"));
        EXPECT_THAT(message, SerializesTo(s_Second));
    }
}

TEST(Message, RefusesALineThatIsThere)
{
    LmSdpMsg message(s_First);
    EXPECT_THAT([&] { message.addField(message.getField("c")); },
                ThrowsException("field is already in this description LmSdpDescription::addField()"));
    EXPECT_THAT(message, SerializesTo(s_First));
}

/// A stream that breaks at a place of its text.
class BrokenStream : public ByteStream
{
public:
    BrokenStream(const char* text, unsigned int left) : ByteStream(LmByteArray::sCreate(text)), m_Left(left) {}

    using ByteStream::read;
    int read() override
    {
        if (available() <= m_Left)
        {
            throw std::runtime_error("the line is down");
        }
        return ByteStream::read();
    }

private:
    unsigned int m_Left;
};

TEST(Message, FailureOfAStreamPassesThroughAtEachPlace)
{
    LmSdpMsg message(s_Second);
    const auto size = static_cast<unsigned int>(std::string_view(s_First).size());
    for (unsigned int left = 1; left <= size; ++left)
    {
        BrokenStream in(s_First, left);
        EXPECT_THROW(message.parse(in), std::runtime_error) << left;
    }
    EXPECT_THAT(message, SerializesTo(s_Second));
}

/// Remembers when it was flushed.
class FlushedStream : public LmOutputStream
{
public:
    void write(const char* data, unsigned int length) override { text.append(data, length); }
    void flush() override { text += "<flush>"; }

    std::string text;
};

TEST(Message, FlushesTheStreamOnceAtTheEnd)
{
    const LmSdpMsg message(s_Second);
    FlushedStream out;
    message.serialize(out);
    EXPECT_EQ(out.text, std::string(s_Second) + "<flush>");
}

} // namespace
