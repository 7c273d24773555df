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
    // letters, and a name that says nothing
    "a", "b", "c", "e", "i", "k", "m", "o", "p", "r", "s", "t", "u", "v", "z", "-",
    // network and address types, bandwidth types
    "IN", "IP4", "IP6", "0.0.0.0", "127.0.0.1", "AS", "CT", "TIAS", "RS", "RR",
    // key methods
    "clear", "base64", "prompt",
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

/// What tells two short texts apart at once: their first and their last bytes, which overlap where the text is not
/// twice as long as a piece, and the length. It tells all of a text up to 16 bytes.
struct Ends
{
    explicit Ends(std::string_view text) : size(text.size())
    {
        const char* const begin = text.data();
        const char* const end = begin + size;
        if (size >= sizeof(std::uint64_t))
        {
            front = load<std::uint64_t>(begin);
            back = load<std::uint64_t>(end - sizeof(std::uint64_t));
        }
        else if (size >= sizeof(std::uint32_t))
        {
            front = load<std::uint32_t>(begin);
            back = load<std::uint32_t>(end - sizeof(std::uint32_t));
        }
        else
        {
            front = load<std::uint16_t>(begin);
            back = load<std::uint16_t>(end - sizeof(std::uint16_t));
        }
    }

    static constexpr std::size_t sm_Whole = 2 * sizeof(std::uint64_t);

    bool operator==(const Ends& other) const
    {
        return ((front ^ other.front) | (back ^ other.back) | (size ^ other.size)) == 0;
    }

    std::uint64_t front;
    std::uint64_t back;
    std::size_t size;

private:
    template <typename Word>
    static Word load(const char* text)
    {
        Word word;
        std::memcpy(&word, text, sizeof word);
        return word;
    }
};

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
        if (text.size() > Ends::sm_Whole)
        {
            return text.size() <= s_LongestWord ? findLong(text) : nullptr;
        }
        const Ends ends(text);
        const Entry* const entry = firstOf(ends);
        if (__builtin_expect(entry->ends == ends, 1))
        {
            return entry->pText;
        }
        return entry->pText == nullptr ? nullptr : findBehind(entry, text);
    }

private:
    static constexpr unsigned int sm_SlotBits = 10;
    static constexpr std::size_t sm_Overflow = 32; ///< more than ever stand behind their own slot

    struct Entry
    {
        Ends ends{"  "};
        LmStringBuffer* pText = nullptr;
    };

    /// The way of a text that is not in its own slot, while another is.
    __attribute__((noinline)) static LmStringBuffer* findBehind(const Entry* entry, std::string_view text)
    {
        const Ends ends(text);
        while (entry->pText != nullptr && !(entry->ends == ends))
        {
            ++entry;
        }
        return entry->pText;
    }

    __attribute__((noinline)) LmStringBuffer* findLong(std::string_view text) const
    {
        const Entry* entry = firstOf(Ends(text));
        while (entry->pText != nullptr && entry->pText->view() != text)
        {
            ++entry;
        }
        return entry->pText;
    }

    const Entry* firstOf(const Ends& ends) const
    {
        const std::uint64_t mixed = (ends.front + ends.back * 31 + ends.size) * 0x9E3779B97F4A7C15U;
        return &m_Entries[static_cast<std::size_t>(mixed >> (64 - sm_SlotBits))];
    }

    void enter(std::string_view text)
    {
        LmStringBuffer* const pText = LmStringBuffer::sCreateImmortal(text);
        if (text.size() == 1)
        {
            lmSdpLetters[static_cast<unsigned char>(text.front())] = pText;
            return;
        }
        const Ends ends(text);
        Entry* entry = m_Entries.data() + (firstOf(ends) - m_Entries.data());
        while (entry->pText != nullptr)
        {
            ++entry;
        }
        if (entry != &m_Entries.back()) // which stays empty: it ends every search
        {
            entry->ends = ends;
            entry->pText = pText;
        }
    }

    std::array<Entry, (std::size_t(1) << sm_SlotBits) + sm_Overflow> m_Entries;
};

CommonTexts s_CommonTexts;

const bool s_Filled = (s_CommonTexts.fill(), true);

} // namespace

__attribute__((noinline)) LmStringBuffer* lmSdpSharedText(std::string_view text) noexcept
{
    return s_CommonTexts.find(text);
}

void lmSdpTakeWords(LmInputStream& in, std::initializer_list<LmString*> members)
{
    lmWithCursor(in, [members](auto& cursor) {
        for (LmString* const pMember : members)
        {
            *pMember = lmSdpText(lmTakeWord(cursor));
        }
    });
}
