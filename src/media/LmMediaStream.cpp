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
    addCodecs({codec});
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
