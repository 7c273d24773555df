#include "sdp/frame/LmSdpCommonText.h"

#include "LmLibs/LmUtil/LmStreamCursor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

LmStringBuffer* lmSdpLetters[256] = {};

namespace
{

constexpr const char* s_Words[] = {
    // letters, a name that says nothing, and the letters of each kind of description
    "a", "b", "c", "e", "i", "k", "m", "o", "p", "r", "s", "t", "u", "v", "z", "-", "vosiuepcbzka", "tr", "micbka",
    // network and address types, bandwidth types
    "IN", "IP4", "IP6", "0.0.0.0", "127.0.0.1", "AS", "CT", "TIAS", "RS", "RR",
    // media words and transports
    "audio", "video", "text", "image", "application", "message", "udp", "udptl", "UDPTL", "UDP", "TCP", "RTP/AVP",
    "RTP/AVPF", "RTP/SAVP", "RTP/SAVPF", "UDP/TLS/RTP/SAVP", "UDP/TLS/RTP/SAVPF", "DTLS/SCTP", "UDP/DTLS/SCTP",
    "webrtc-datachannel", "t38",
    // attribute names
    "candidate", "cat", "charset", "connection", "control", "crypto", "direction", "end-of-candidates", "extmap",
    "extmap-allow-mixed", "fingerprint", "fmtp", "framerate", "framesize", "group", "ice-lite", "ice-options",
    "ice-pwd", "ice-ufrag", "imageattr", "inactive", "keywds", "label", "lang", "max-message-size", "maxptime", "mid",
    "msid", "msid-semantic", "orient", "ptime", "quality", "range", "recvonly", "remote-candidates", "rid", "rtcp",
    "rtcp-fb", "rtcp-mux", "rtcp-mux-only", "rtcp-rsize", "rtpmap", "sctp-port", "sctpmap", "sdplang", "sendonly",
    "sendrecv", "setup", "silenceSupp", "simulcast", "source-filter", "ssrc", "ssrc-group", "tool", "type",
    "x-dimensions",
    // encoding names
    "AMR", "AMR-WB", "AV1", "CN", "DVI4", "EVS", "G722", "G723", "G726-32", "G728", "G729", "GSM", "H261", "H263",
    "H263-1998", "H264", "H265", "ISAC", "L16", "MP2T", "MP4A-LATM", "MP4V-ES", "PCMA", "PCMU", "VP8", "VP9",
    "flexfec-03", "iLBC", "mpeg4-generic", "opus", "red", "rtx", "speex", "telephone-event", "ulpfec"};

constexpr unsigned int s_PayloadTypes = 128;
constexpr std::size_t s_LongestWord = 20;

/// An open hash table of the shared texts. Until it has been filled, when the library is loaded, it is empty, and all
/// texts are copied.
class CommonTexts
{
public:
    void fill()
    {
        for (const char* const word : s_Words)
        {
            enter(word);
        }
        for (unsigned int payloadType = 0; payloadType < s_PayloadTypes; ++payloadType)
        {
            enter(std::to_string(payloadType));
        }
    }

    LmStringBuffer* find(std::string_view text) const
    {
        if (text.size() == 1)
        {
            return lmSdpLetters[static_cast<unsigned char>(text.front())];
        }
        if (text.size() > s_LongestWord)
        {
            return nullptr;
        }
        std::size_t slot = slotOf(text);
        while (m_Texts[slot] != nullptr && !isSame(m_Texts[slot]->view(), text))
        {
            slot = (slot + 1) % sm_Slots;
        }
        return m_Texts[slot];
    }

private:
    static constexpr std::size_t sm_Slots = 1024;

    template <typename Word>
    static Word load(const char* text)
    {
        Word word;
        std::memcpy(&word, text, sizeof word);
        return word;
    }

    /// Compares two pieces, which overlap where the text is not twice as long as a piece.
    template <typename Word>
    static bool isSameAtEnds(const char* left, const char* right, std::size_t size)
    {
        const std::size_t last = size - sizeof(Word);
        return load<Word>(left) == load<Word>(right) && load<Word>(left + last) == load<Word>(right + last);
    }

    /// In place, as the words are too short for a function of the C library to pay.
    static bool isSame(std::string_view left, std::string_view right)
    {
        const std::size_t size = left.size();
        if (right.size() != size)
        {
            return false;
        }
        if (size > 2 * sizeof(std::uint64_t))
        {
            return left == right;
        }
        if (size >= sizeof(std::uint64_t))
        {
            return isSameAtEnds<std::uint64_t>(left.data(), right.data(), size);
        }
        if (size >= sizeof(std::uint32_t))
        {
            return isSameAtEnds<std::uint32_t>(left.data(), right.data(), size);
        }
        return isSameAtEnds<std::uint16_t>(left.data(), right.data(), size);
    }

    /// Every text that is looked up here has two bytes or more.
    static std::size_t slotOf(std::string_view text)
    {
        const std::size_t size = text.size();
        const auto front = load<std::uint16_t>(text.data());
        const auto back = load<std::uint16_t>(text.data() + size - sizeof(std::uint16_t));
        return (front * 5U + back * 37U + size * 71U) % sm_Slots;
    }

    void enter(std::string_view text)
    {
        if (text.size() == 1)
        {
            lmSdpLetters[static_cast<unsigned char>(text.front())] = LmStringBuffer::sCreateImmortal(text);
            return;
        }
        std::size_t slot = slotOf(text);
        while (m_Texts[slot] != nullptr)
        {
            slot = (slot + 1) % sm_Slots;
        }
        m_Texts[slot] = LmStringBuffer::sCreateImmortal(text);
    }

    std::array<LmStringBuffer*, sm_Slots> m_Texts{};
};

CommonTexts s_CommonTexts;

const bool s_Filled = (s_CommonTexts.fill(), true);

} // namespace

LmString lmSdpText(std::string_view text)
{
    if (text.empty())
    {
        return LmString();
    }
    LmStringBuffer* const pShared = s_CommonTexts.find(text);
    return pShared != nullptr ? LmString(*pShared) : LmString(text);
}

LmString lmSdpWord(LmInputStream& in)
{
    return lmWithCursor(in, [](auto& cursor) { return lmSdpText(lmTakeWord(cursor)); });
}
