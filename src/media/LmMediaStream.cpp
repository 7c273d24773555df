#include "media/LmMediaStream.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

LmMediaStream::LmMediaStream(Type type, unsigned int portNo, const LmInetAddress& address)
    : m_Type(type), m_PortNo(portNo), m_InetAddress(address)
{
}

LmMediaStream::~LmMediaStream() = default;

void LmMediaStream::addCodec(const LmCodecDescription& codec)
{
    const LmCodecDescription added = codec; // the codec given may be the one in the list that goes
    const auto isFormer = [&added](const LmCodecDescription& present) {
        return present.getCodecNo() == added.getCodecNo();
    };
    const auto former = std::find_if(m_Codecs.begin(), m_Codecs.end(), isFormer);
    if (former != m_Codecs.end())
    {
        m_Codecs.erase(former);
    }
    m_Codecs.push_back(added);
}

void LmMediaStream::addCodecs(const std::vector<LmCodecDescription>& codecs)
{
    std::vector<LmCodecDescription> all = m_Codecs;
    all.insert(all.end(), codecs.begin(), codecs.end());

    // The last word on each number counts, so the list is gone through from its end.
    std::unordered_set<unsigned int> seen;
    const auto isLastWord = [&seen](const LmCodecDescription& codec) { return seen.insert(codec.getCodecNo()).second; };
    std::vector<LmCodecDescription> kept;
    std::copy_if(all.rbegin(), all.rend(), std::back_inserter(kept), isLastWord);
    std::reverse(kept.begin(), kept.end());
    m_Codecs = std::move(kept);
}
