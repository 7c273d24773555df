#include "OfferOptions.h"

#include "media/LmMediaWord.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

namespace lmsdp
{
namespace
{

constexpr unsigned int s_LastPort = 65535;
constexpr unsigned int s_LastPayloadType = 127;

std::optional<unsigned int> numberUpTo(unsigned int last, std::string_view text)
{
    unsigned int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size() && number <= last;
    return isNumber ? std::optional<unsigned int>(number) : std::nullopt;
}

bool isName(std::string_view text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7F' && c != '/'; });
}

/// What one of the stream options was given; the texts have passed the tests below.
unsigned int portOf(const std::string& text)
{
    return *numberUpTo(s_LastPort, text);
}

LmCodecDescription codecOf(const std::string& text)
{
    const std::size_t colon = text.find(':');
    const unsigned int number = *numberUpTo(s_LastPayloadType, std::string_view(text).substr(0, colon));
    return {number, colon == std::string::npos ? nullptr : text.c_str() + colon + 1};
}

std::string testPort(const std::string& text)
{
    return numberUpTo(s_LastPort, text) ? "" : "a port is a number from 0 to 65535, not " + text;
}

std::string testCodec(const std::string& text)
{
    const std::size_t colon = text.find(':');
    const bool isNumber = numberUpTo(s_LastPayloadType, std::string_view(text).substr(0, colon)).has_value();
    const bool hasName = colon == std::string::npos || isName(std::string_view(text).substr(colon + 1));
    return isNumber && hasName ? "" : "a codec is a payload type from 0 to 127 and a name, as in 0:PCMU, not " + text;
}

std::string testAddress(const std::string& text)
{
    return LmInetAddress().initFromAddress(text.c_str()) ? "" : "an address is dotted IPv4, not " + text;
}

/// The streams as the command line tells them, piece by piece.
class StreamList
{
public:
    void take(const CLI::Option& option, const std::string& value)
    {
        const std::string name = option.get_name().substr(2);
        if (name == "codec")
        {
            current(option).codecs.push_back(codecOf(value));
        }
        else if (name == "address")
        {
            takeAddress(option, value);
        }
        else
        {
            m_Streams.push_back({name, portOf(value), LmInetAddress(), {}});
        }
    }

    std::vector<LmHandle<LmMediaStream>> result() const
    {
        std::vector<LmHandle<LmMediaStream>> streams;
        for (const Stream& stream : m_Streams)
        {
            streams.push_back(make(stream));
        }
        return streams;
    }

private:
    struct Stream
    {
        std::string kind;
        unsigned int port;
        LmInetAddress address;
        std::vector<LmCodecDescription> codecs;
    };

    Stream& current(const CLI::Option& option)
    {
        if (m_Streams.empty())
        {
            throw CLI::ValidationError(option.get_name(), "stands behind the stream to which it belongs");
        }
        return m_Streams.back();
    }

    void takeAddress(const CLI::Option& option, const std::string& value)
    {
        Stream& stream = current(option);
        if (stream.address.getAddress() != 0)
        {
            throw CLI::ValidationError(option.get_name(), "a stream has one address");
        }
        stream.address.initFromAddress(value.c_str());
    }

    static LmHandle<LmMediaStream> make(const Stream& stream)
    {
        const auto word = std::find_if(std::begin(lmMediaWords), std::end(lmMediaWords),
                                       [&stream](const LmMediaWord& entry) { return entry.word == stream.kind; });
        LmHandle<LmMediaStream> made = new LmMediaStream(word->type, stream.port, stream.address);
        made->addCodecs(stream.codecs);
        return made;
    }

    std::vector<Stream> m_Streams;
};

} // namespace

void addStreamOptions(CLI::App& command)
{
    const auto add = [&command](const std::string& name, const char* type, const std::string& help, auto test) {
        command.add_option("--" + name, help)
            ->type_name(type)
            ->expected(1)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
            ->check(CLI::Validator(test, ""));
    };
    for (const LmMediaWord& entry : lmMediaWords)
    {
        add(entry.word, "PORT", "begin a stream of this kind on that port", &testPort);
    }
    add("codec", "NUMBER[:NAME]", "add a codec to the stream in front", &testCodec);
    add("address", "ADDRESS", "give the stream in front an IPv4 address of its own", &testAddress);
}

std::vector<LmHandle<LmMediaStream>> streamsOf(const CLI::App& command)
{
    StreamList list;
    std::map<const CLI::Option*, std::size_t> taken;
    for (const CLI::Option* option : command.parse_order())
    {
        if (option->get_items_expected_max() != 0)
        {
            list.take(*option, option->results()[taken[option]++]);
        }
    }
    std::vector<LmHandle<LmMediaStream>> streams = list.result();
    if (streams.empty())
    {
        throw CLI::ValidationError("offer", "at least one stream is needed, as in --audio 49170 --codec 0:PCMU");
    }
    return streams;
}

} // namespace lmsdp
