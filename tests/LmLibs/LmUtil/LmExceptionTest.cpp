#include "LmLibs/LmUtil/LmException.h"

#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "sdp/frame/LmSdpParseError.h"
#include "support/Matchers.h"

#include <exception>
#include <new>
#include <thread>

namespace
{

/// A failure of a host's own, with something to destroy.
class HostError : public LmSdpParseError
{
public:
    explicit HostError(int code) : LmSdpParseError("host error"), number(code) {}

    const std::string text = "more words than fit a small buffer";
    const int number;
};

TEST(Exception, ArrivesWithItsOwnClass)
{
    EXPECT_THAT([] { LmException::sThrow("words"); }, ThrowsException("words"));
    EXPECT_THAT([] { LmException::sThrow(new LmException("words")); }, ThrowsException("words"));
    EXPECT_THAT([] { LmException::sThrow(new LmSdpParseError("words")); }, ThrowsParseError("words"));
    EXPECT_THAT([] { LmSdpParseError::sThrow("words"); }, ThrowsParseError("words"));
    try
    {
        LmException::sThrow(new HostError(7));
    }
    catch (const HostError& error)
    {
        EXPECT_EQ(error.number, 7);
        EXPECT_EQ(error.text, "more words than fit a small buffer");
    }
}

TEST(Exception, IsCaughtByTheHandlersOfItsBases)
{
    EXPECT_THROW(LmSdpParseError::sThrow("words"), LmException);
    EXPECT_THROW(LmException::sThrow(new HostError(7)), LmSdpParseError);
    EXPECT_THROW(LmException::sThrow(new HostError(7)), LmObject);
}

TEST(Exception, TellsItsMessage)
{
    LmStringOutputStream out;
    const LmException failure("some words");
    failure.display(out);
    EXPECT_EQ(out.getString().view(), "some words");
    EXPECT_STREQ(failure.getMessage(), "some words");
    EXPECT_STREQ(LmException().getMessage(), "");
    EXPECT_STREQ(LmException(nullptr).getMessage(), "");
    EXPECT_STREQ(LmSdpParseError().getMessage(), "");
    EXPECT_STREQ(LmException(failure).getMessage(), "some words");
}

TEST(Exception, OutlivesItsHandlerWhereSomebodyKeepsIt)
{
    std::exception_ptr kept;
    std::thread([&kept] {
        try
        {
            LmException::sThrow(new HostError(7));
        }
        catch (...)
        {
            kept = std::current_exception();
        }
    }).join();
    EXPECT_THAT([&kept] { std::rethrow_exception(kept); }, testing::Throws<HostError>());
}

TEST(Exception, RaisedWhileAnotherOneIsHandled)
{
    const auto raiseAnother = [] {
        try
        {
            LmSdpParseError::sThrow("first");
        }
        catch (const LmException& first)
        {
            LmException::sThrow((std::string(first.getMessage()) + ", second").c_str());
        }
    };
    EXPECT_THAT(raiseAnother, ThrowsException("first, second"));
}

TEST(Exception, ThatIsNeverThrownIsDeletedLikeAnyOther)
{
    alignas(LmException) unsigned char place[sizeof(LmException)];
    LmException* const pPlaced = new (place) LmException("words");
    EXPECT_STREQ(pPlaced->getMessage(), "words");
    pPlaced->~LmException();

    const LmHandle<LmException> hFailure = new HostError(7);
    EXPECT_STREQ(hFailure->getMessage(), "host error");
}

} // namespace
