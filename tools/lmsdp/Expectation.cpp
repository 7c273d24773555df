#include "Expectation.h"

namespace lmsdp
{
namespace
{

struct Form
{
    std::string_view start;
    const char* text;
};

/// A longer start stands in front of the shorter one with which it begins.
constexpr Form s_Forms[] = {
    {"v=", "RFC 4566, section 5.1: v=0"},
    {"o=", "RFC 4566, section 5.2: o=<username> <sess-id> <sess-version> <nettype> <addrtype> <unicast-address>"},
    {"s=", "RFC 4566, section 5.3: s=<session name>, which is not empty; one blank stands for no name"},
    {"i=", "RFC 4566, section 5.4: i=<session description>, which is not empty"},
    {"u=", "RFC 4566, section 5.5: u=<uri>"},
    {"e=", "RFC 4566, section 5.6: e=<address>, e=<address> (<name>) or e=<name> <<address>>"},
    {"p=", "RFC 4566, section 5.6: p=+<digits>, p=+<digits> (<name>) or p=<name> <+<digits>>, with single blanks or "
           "hyphens between digits"},
    {"c=", "RFC 4566, section 5.7: c=<nettype> <addrtype> <connection-address>"},
    {"b=", "RFC 4566, section 5.8: b=<bwtype>:<bandwidth>, a decimal number"},
    {"t=", "RFC 4566, section 5.9: t=<start-time> <stop-time>, two decimal numbers"},
    {"r=", "RFC 4566, section 5.10: r=<repeat interval> <active duration> <offsets from start-time>"},
    {"z=", "RFC 4566, section 5.11: z=<adjustment time> <offset> <adjustment time> <offset> ..."},
    {"k=", "RFC 4566, section 5.12: k=clear:<key>, k=base64:<key>, k=uri:<uri> or k=prompt"},
    {"a=rtpmap:", "RFC 4566, section 6: a=rtpmap:<payload type> <encoding name>/<clock rate>[/<encoding parameters>]"},
    {"a=crypto:",
     "RFC 4568, section 9.1: a=crypto:<tag> <crypto-suite> inline:<key||salt>[|<lifetime>][|<MKI>:<length>]"
     "[;inline:...] [<session parameter> ...], all in one line"},
    {"a=", "RFC 4566, section 5.13: a=<attribute> or a=<attribute>:<value>"},
    {"m=", "RFC 4566, section 5.14: m=<media> <port>[/<number of ports>] <proto> <fmt> ..., port and number decimal, "
           "at least one format"},
};

} // namespace

std::string expectedForm(std::string_view line)
{
    line.remove_prefix(std::min(line.find_first_not_of(" \t\v\f"), line.size()));
    for (const Form& form : s_Forms)
    {
        if (line.substr(0, form.start.size()) == form.start)
        {
            return form.text;
        }
    }
    return "RFC 4566, section 5: <type>=<value>, where the type is one of v o s i u e p c b t r z k a m";
}

const char* expectedOrder()
{
    return "RFC 4566, section 5: v o s i u e p c b, then t r for each time, then z k a, then m i c b k a for each "
           "medium";
}

const char* expectedLineEnd()
{
    return "RFC 4566, section 5: each line ends in CR LF, and the next one follows at once";
}

} // namespace lmsdp
