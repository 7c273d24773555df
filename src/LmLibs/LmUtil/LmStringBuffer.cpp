#include "LmLibs/LmUtil/LmStringBuffer.h"

#include "LmLibs/LmUtil/LmCharacters.h"
#include "core/ThreadHeap.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <new>

using Quorvex::ThreadHeap;

namespace
{

constexpr std::size_t s_Granule = 8;
constexpr std::size_t s_RoomInFront = sizeof(std::uint32_t);
constexpr std::size_t s_LargestRoom = std::numeric_limits<std::uint32_t>::max() / 2; ///< below the mark
constexpr std::size_t s_LongestShort = 32;                                           ///< what is copied in place
constexpr std::size_t s_OutsideHead = 8; ///< keeps the room number of an outside text aligned

constexpr std::size_t s_LeastBytes = 32; ///< of a block that may have to hold the pointer to an outside text

constexpr std::size_t innerBytes(std::size_t room)
{
    return sizeof(LmStringBuffer) + s_RoomInFront + room + 1;
}

/// The room of a block that is filled up to a multiple of the granule.
constexpr std::size_t roundedRoom(std::size_t room)
{
    const std::size_t bytes = (innerBytes(room) + s_Granule - 1) & ~(s_Granule - 1);
    return std::max(bytes, s_LeastBytes) - innerBytes(0);
}

// A block holds the pointer to an outside text.
static_assert(innerBytes(roundedRoom(0)) >= sizeof(LmStringBuffer) + 2 * s_RoomInFront + sizeof(char*));

/// Copies front and back of so many bytes, which may overlap.
template <std::size_t Bytes>
inline void copyEnds(char* to, std::string_view text)
{
    char front[Bytes];
    char back[Bytes];
    const std::size_t behind = text.size() - Bytes;
    std::memcpy(front, text.data(), Bytes);
    std::memcpy(back, text.data() + behind, Bytes);
    std::memcpy(to, front, Bytes);
    std::memcpy(to + behind, back, Bytes);
}

/// Copies a text without a call where it is as short as most are.
inline void copyShort(char* to, std::string_view text)
{
    if (text.size() > s_LongestShort)
    {
        std::memcpy(to, text.data(), text.size());
    }
    else if (text.size() >= 16)
    {
        copyEnds<16>(to, text);
    }
    else if (text.size() >= 8)
    {
        copyEnds<8>(to, text);
    }
    else if (text.size() >= 4)
    {
        copyEnds<4>(to, text);
    }
    else if (text.size() >= 2)
    {
        copyEnds<2>(to, text);
    }
    else if (!text.empty())
    {
        *to = text.front();
    }
}

} // namespace

/// The shared empty text, laid out as in any other block.
struct LmEmptyText
{
    constexpr LmEmptyText() : m_Buffer(LmReferenceCount::Immortal()) {}

    LmStringBuffer m_Buffer;
    std::uint32_t m_Room = 0;
    char m_Text[4] = {};
};
static_assert(sizeof(LmEmptyText) == sizeof(LmStringBuffer) + 2 * s_RoomInFront);

namespace
{

/// Keeps it from being destroyed at exit.
union Undying
{
    constexpr Undying() : empty() {}
    ~Undying() {} // NOLINT(modernize-use-equals-default): that would be deleted

    LmEmptyText empty;
};

Undying s_Empty;

} // namespace

LmStringBuffer* const LmStringBuffer::sm_pEmpty = &s_Empty.empty.m_Buffer;

inline std::size_t LmStringBuffer::sBlockBytes(void* block) noexcept
{
    return innerBytes(sRoom(block) & ~sm_Outside);
}

inline LmStringBuffer::LmStringBuffer(Room room) noexcept
{
    sRoom(this) = room;
}

/// The sizes are those that `sMake` gives.
inline LmStringBuffer::LmStringBuffer(LmReferenceCount::Owned owned, Room room, Room length) noexcept
    : LmObject(owned), m_Length(length)
{
    sRoom(this) = room;
}

inline LmStringBuffer::LmStringBuffer(LmReferenceCount::Immortal immortal, Room length) noexcept
    : LmObject(immortal), m_Length(length)
{
    sRoom(this) = length;
}

/// A buffer with room for a text of that length, its block filled up to a multiple of the granule.
inline LmStringBuffer* LmStringBuffer::sMake(std::size_t room)
{
    const std::size_t rounded = roundedRoom(room);
    if (__builtin_expect(rounded > s_LargestRoom, 0))
    {
        throw std::bad_alloc();
    }
    return new (static_cast<Room>(rounded)) LmStringBuffer(static_cast<Room>(rounded));
}

LmStringBuffer* LmStringBuffer::sCreate(const char* text, unsigned int length, unsigned int capacity)
{
    const std::string_view whole =
        length == 0 || text == nullptr ? lmViewOf(text) : std::string_view(text, ::strnlen(text, length));
    return sCreate(whole, capacity);
}

inline LmStringBuffer* LmStringBuffer::sMakeWith(std::string_view text, std::size_t room)
{
    LmStringBuffer* const pBuffer = sMake(room);
    copyShort(sInnerText(pBuffer), text);
    pBuffer->setLength(text.size());
    return pBuffer;
}

LmStringBuffer* LmStringBuffer::sCreate(std::string_view text, unsigned int capacity)
{
    return sMakeWith(text, std::max<std::size_t>(text.size(), capacity));
}

/// A short text for which the thread has a block at hand takes no call at all.
LmStringBuffer* LmStringBuffer::sCreateOwned(std::string_view text)
{
    if (__builtin_expect(text.size() <= s_LongestShort, 1))
    {
        const std::size_t room = roundedRoom(text.size());
        if (void* const block = ThreadHeap::allocateAtHand(innerBytes(room)))
        {
            auto* const pBuffer = new (block)
                LmStringBuffer(LmReferenceCount::Owned(), static_cast<Room>(room), static_cast<Room>(text.size()));
            char* const inner = sInnerText(block);
            copyShort(inner, text);
            inner[text.size()] = '\0';
            return pBuffer;
        }
    }
    return sCreateOwnedSlowly(text);
}

__attribute__((noinline)) LmStringBuffer* LmStringBuffer::sCreateOwnedSlowly(std::string_view text)
{
    LmStringBuffer* const pBuffer = sMakeWith(text, text.size());
    pBuffer->LmObject::AddRef();
    return pBuffer;
}

LmStringBuffer* LmStringBuffer::sCreateImmortal(std::string_view text)
{
    void* const block = ::operator new(roundedRoom(text.size()) + innerBytes(0));
    auto* const pBuffer = new (block) LmStringBuffer(LmReferenceCount::Immortal(), static_cast<Room>(text.size()));
    text.copy(sInnerText(block), text.size());
    sInnerText(block)[text.size()] = '\0';
    return pBuffer;
}

LmStringBuffer::~LmStringBuffer()
{
    if (isTextOutside())
    {
        setOutsideText(nullptr);
    }
}

/// The same as `delete`, in one piece for a buffer whose text lies behind it, as nearly all do.
void LmStringBuffer::sDestroy(LmStringBuffer* pBuffer) noexcept
{
    if (__builtin_expect(pBuffer->isTextOutside(), 0))
    {
        delete pBuffer;
        return;
    }
    const std::size_t bytes = sBlockBytes(pBuffer);
    pBuffer->LmStringBuffer::~LmStringBuffer();
    ThreadHeap::deallocate(pBuffer, bytes);
}

void* LmStringBuffer::operator new(std::size_t, Room room)
{
    return ThreadHeap::allocate(innerBytes(room));
}

void LmStringBuffer::operator delete(void* block, Room room) noexcept
{
    ThreadHeap::deallocate(block, innerBytes(room));
}

void LmStringBuffer::operator delete(void* block) noexcept
{
    ThreadHeap::deallocate(block, sBlockBytes(block));
}

/// The room of the text as it lies now; not for a null text.
std::size_t LmStringBuffer::presentRoom() noexcept
{
    return isTextOutside() ? *reinterpret_cast<Room*>(outsideText() - s_OutsideHead) : sRoom(this);
}

inline void LmStringBuffer::setLength(std::size_t length) noexcept
{
    text()[length] = '\0';
    m_Length = static_cast<Room>(length);
}

/// From now on the text is in that block, which is owned, or null. A former block goes.
void LmStringBuffer::setOutsideText(char* text) noexcept
{
    if (isTextOutside() && outsideText() != nullptr)
    {
        ::operator delete(outsideText() - s_OutsideHead);
    }
    sRoom(this) |= sm_Outside;
    outsideText() = text;
}

/// Makes room for a text of that length, keeping the present one.
void LmStringBuffer::growTo(std::size_t length)
{
    if (text() == nullptr)
    {
        sRoom(this) &= ~sm_Outside;
        setLength(0);
    }
    const std::size_t present = presentRoom();
    if (length <= present)
    {
        return;
    }
    if (length > s_LargestRoom)
    {
        throw std::bad_alloc();
    }
    const std::size_t room = std::max(length, present * 2);
    char* const grown = static_cast<char*>(::operator new(s_OutsideHead + room + 1)) + s_OutsideHead;
    *reinterpret_cast<Room*>(grown - s_OutsideHead) = static_cast<Room>(room);
    if (m_Length != 0)
    {
        std::memcpy(grown, text(), m_Length);
    }
    setOutsideText(grown);
    setLength(m_Length);
}

LmStringBuffer* LmStringBuffer::assign(const char* text)
{
    if (text == nullptr)
    {
        LmStringBuffer* const pTarget = isShared() ? sMake(0) : this;
        pTarget->setOutsideText(nullptr);
        pTarget->m_Length = 0;
        return pTarget;
    }
    const std::size_t length = std::strlen(text);
    if (isShared())
    {
        return sCreate({text, length});
    }
    // A text that is part of this one is never longer, so it is still there after growing.
    growTo(length);
    std::memmove(this->text(), text, length);
    setLength(length);
    return this;
}

LmStringBuffer* LmStringBuffer::append(const char* text, unsigned int length)
{
    const std::string_view whole = lmViewOf(text);
    return append(length == 0 ? whole : whole.substr(0, length));
}

LmStringBuffer* LmStringBuffer::append(std::string_view text)
{
    if (text.empty())
    {
        return this;
    }
    const std::size_t joined = m_Length + text.size();
    if (isShared())
    {
        LmStringBuffer* const pJoined =
            sCreate(view(), static_cast<unsigned int>(std::min<std::size_t>(joined, UINT32_MAX)));
        return pJoined->append(text);
    }
    const char* const own = this->text();
    const std::less_equal<const char*> notBehind;
    const bool isOwn = own != nullptr && notBehind(own, text.data()) && notBehind(text.data(), own + m_Length);
    const std::ptrdiff_t offset = isOwn ? text.data() - own : 0;
    growTo(joined);
    char* const grown = this->text();
    std::memmove(grown + m_Length, isOwn ? grown + offset : text.data(), text.size());
    setLength(joined);
    return this;
}

LmStringBuffer* LmStringBuffer::trim()
{
    const std::string_view trimmed = lmTrimmed(view());
    if (trimmed.size() == m_Length)
    {
        return this;
    }
    if (isShared())
    {
        return sCreate(trimmed);
    }
    std::memmove(text(), trimmed.data(), trimmed.size());
    setLength(trimmed.size());
    return this;
}

int LmStringBuffer::indexOf(const char* needle, int start) const
{
    return lmIndexOf(view(), lmViewOf(needle), start);
}

LmStringBuffer* LmStringBuffer::substr(unsigned int start, unsigned int length) const
{
    return sCreate(lmSubstr(view(), start, length));
}

int LmStringBuffer::compareWith(const char* text) const
{
    return view().compare(lmViewOf(text));
}
