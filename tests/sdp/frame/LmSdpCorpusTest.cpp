#include "sdp/frame/LmSdpMsg.h"

#include "support/Corpus.h"
#include "support/Matchers.h"

#include <map>

namespace
{

class AcceptedBody : public testing::TestWithParam<CorpusFile>
{
};

TEST_P(AcceptedBody, ComesBackByteForByte)
{
    EXPECT_EQ(readBody(GetParam().text), (Reading{GetParam().text, {}, 0}));
}

INSTANTIATE_TEST_SUITE_P(, AcceptedBody, testing::ValuesIn(corpusFolder("accept")), RowName());

class NormalisedBody : public testing::TestWithParam<CorpusFile>
{
};

TEST_P(NormalisedBody, ComesBackAsWrittenBesideIt)
{
    const std::string& file = GetParam().file;
    const std::string expected = corpusText("normalise/" + file.substr(0, file.size() - 4) + ".written");
    EXPECT_NE(expected, GetParam().text) << "it belongs to the accepted ones";
    EXPECT_EQ(readBody(GetParam().text).result, expected);
}

INSTANTIATE_TEST_SUITE_P(, NormalisedBody, testing::ValuesIn(corpusFolder("normalise")), RowName());

const std::map<std::string, Failure> s_Refusals = {
    {"quirk-bandwidth-not-a-number.sdp", exception("Invalid value for Amount in Bandwidth field")},
    {"quirk-connection-doubled-blank.sdp", exception("LmSdpConnectionField::parse() Invalid Address Field")},
    {"quirk-connection-type-missing.sdp", exception("LmSdpConnectionField::parse() Incomplete Address Field")},
    {"quirk-information-empty.sdp", exception("LmSdpInformationField::parse() Empty Information Field")},
    {"quirk-media-200-formats.sdp", parseError("Parse error in LmSdpMediaField::parse()")},
    {"quirk-media-rejected-short.sdp", exception("LmSdpMediaField::parse Incomplete Media Field")},
    {"quirk-origin-short.sdp", exception("LmSdpOriginField::serialize() Incomplete Origin Field")},
    {"quirk-origin-user-with-blanks.sdp",
     exception("Invalid format generic SDP field in LmSdpField::sConstructFrom()")},
    {"quirk-phone-without-plus.sdp", parseError("Invalid character in Phone Number - LmSdpPhoneField::parse()")},
    {"quirk-rtpmap-no-clock.sdp", parseError("RTP attribute encoding name: Slash not found or misplaced")},
    {"quirk-short-line.sdp", exception("field doesn't belong in this description type LmSdpDescription::addField()")},
    {"quirk-time-not-numbers.sdp", exception("LmSdpTimeField::Invalid Time Field")},
    {"quirk-trailing-blanks.sdp",
     parseError("LmSdpProtocolVersionField::parse()Invalid character in Sdp Protocol Version Field")},
    {"rfc4570-elvis.sdp", exception("LmSdpOriginField::serialize() Incomplete Origin Field")},
};

class RejectedBody : public testing::TestWithParam<CorpusFile>
{
};

TEST_P(RejectedBody, IsRefusedInTheseWords)
{
    const auto refusal = s_Refusals.find(GetParam().file);
    ASSERT_NE(refusal, s_Refusals.end()) << "a body without words in the table";
    EXPECT_EQ(readBody(GetParam().text).failure, refusal->second);
}

INSTANTIATE_TEST_SUITE_P(, RejectedBody, testing::ValuesIn(corpusFolder("reject")), RowName());

} // namespace
