#include "LmLibs/LmUtil/LmOutputStream.h"

#include "LmLibs/LmUtil/LmStdOutputStream.h"
#include "LmLibs/LmUtil/LmStringOutputStream.h"
#include "support/Matchers.h"

#include <limits>
#include <sstream>

namespace
{

void writeOneOfEach(LmOutputStream& out)
{
    out << "text " << 0u << " " << std::numeric_limits<unsigned int>::max() << static_cast<const char*>(nullptr)
        << LmString(std::string_view(" a\0b", 4)) << LmString() << LmString(LmHandle<LmStringBuffer>());
}

const std::string s_OneOfEach("text 0 4294967295 a\0b", 21);

TEST(StringOutputStream, CollectsUntilCleared)
{
    LmStringOutputStream out;
    writeOneOfEach(out);
    out.flush();
    EXPECT_EQ(out.getString().view(), s_OneOfEach);
    out.clear();
    EXPECT_EQ(out.getString().view(), "");
    out.write("abc", 2);
    EXPECT_EQ(out.getString().view(), "ab");
}

/// Counts how often it was told to pass its bytes on.
class FlushCounter : public std::stringbuf
{
public:
    int flushed = 0;

protected:
    int sync() override
    {
        ++flushed;
        return 0;
    }
};

TEST(StdOutputStream, PassesOnTextAndFlush)
{
    FlushCounter buffer;
    std::ostream target(&buffer);
    LmStdOutputStream out(target);
    writeOneOfEach(out);
    EXPECT_EQ(buffer.str(), s_OneOfEach);
    EXPECT_EQ(buffer.flushed, 0);
    out.flush();
    EXPECT_EQ(buffer.flushed, 1);
}

} // namespace
