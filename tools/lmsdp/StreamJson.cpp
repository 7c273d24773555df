#include "StreamJson.h"

#include "media/LmMediaWord.h"

namespace lmsdp
{

const char* kindOf(const LmMediaStream& stream)
{
    return lmMediaWords[stream.getType()].word;
}

Json streamsJson(const std::vector<LmHandle<LmMediaStream>>& streams)
{
    Json list = Json::array();
    for (const LmHandle<LmMediaStream>& stream : streams)
    {
        Json entry{{"kind", kindOf(*stream)}, {"port", stream->getPortNo()}};
        if (stream->getInetAddress().getAddress() != 0)
        {
            entry["address"] = stream->getInetAddress().getHostAddress();
        }
        Json& codecs = entry["codecs"] = Json::array();
        for (const LmCodecDescription& codec : stream->getCodecs())
        {
            Json described{{"number", codec.getCodecNo()}};
            if (const char* const name = codec.getCodecName(); name != nullptr && *name != '\0')
            {
                described["name"] = name;
            }
            codecs.push_back(std::move(described));
        }
        list.push_back(std::move(entry));
    }
    return list;
}

} // namespace lmsdp
