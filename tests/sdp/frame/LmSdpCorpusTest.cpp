#include "sdp/frame/LmSdpMsg.h"

#include "support/Corpus.h"
#include "support/Matchers.h"

#include <sstream>

namespace
{

/// What stands beside the body in a file of that ending.
std::string textBeside(const CorpusFile& body, const std::string& folder, const char* ending)
{
    return corpusText(folder + "/" + body.file.substr(0, body.file.size() - 4) + ending);
}

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
    const std::string expected = textBeside(GetParam(), "normalise", ".written");
    EXPECT_NE(expected, GetParam().text) << "it belongs to the accepted ones";
    EXPECT_EQ(readBody(GetParam().text).result, expected);
}

INSTANTIATE_TEST_SUITE_P(, NormalisedBody, testing::ValuesIn(corpusFolder("normalise")), RowName());

class RejectedBody : public testing::TestWithParam<CorpusFile>
{
};

TEST_P(RejectedBody, IsRefusedInTheWordsBesideIt)
{
    std::ostringstream refusal;
    refusal << readBody(GetParam().text).failure << "\n";
    EXPECT_EQ(refusal.str(), textBeside(GetParam(), "reject", ".refusal"));
}

INSTANTIATE_TEST_SUITE_P(, RejectedBody, testing::ValuesIn(corpusFolder("reject")), RowName());

} // namespace
