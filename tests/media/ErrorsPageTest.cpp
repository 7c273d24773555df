// Runs the examples of docs/errors.md, which the build makes rows of.

#include "LmSdpObject.h"
#include "support/Matchers.h"

#include <algorithm>

namespace
{

/// A line is read and written by itself, several of them as a message.
void readAndWrite(const std::string& text)
{
    if (std::count(text.begin(), text.end(), '\n') > 1)
    {
        written(LmSdpMsg(text.c_str()));
        return;
    }
    LmByteArrayInputStream in(LmByteArray::sCreate(text.c_str()), 0, 0);
    written(LmSdpField::sConstructFrom(in));
}

struct Example
{
    const char* words;
    const char* thrown;
    void (*provoke)();
};

const Example s_Examples[] = {
#include "errors_page.inc"
};

TEST(ErrorsPage, ExamplesProvokeTheirMessages)
{
    for (const Example& example : s_Examples)
    {
        EXPECT_EQ(failureOf(example.provoke), (Failure{example.thrown, example.words}));
    }
}

} // namespace
