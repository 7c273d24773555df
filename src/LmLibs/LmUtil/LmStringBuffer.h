#pragma once

#include "LmLibs/LmUtil/LmObject.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Counted text with copy-on-write, held through LmString or a handle.
///
/// The text lies behind the object in one block of memory until it outgrows it. Lengths are in bytes. The text may
/// hold NUL bytes when it came from a stream; whoever reads it as a C string then sees its first part.
class LMUTIL_API LmStringBuffer final : public LmObject
{
public:
    /// A new buffer without an owner, with a copy of `text`. A null text gives an empty one. `length` is how much to
    /// take of the text, 0 for all of it; `capacity` is how much room to reserve in bytes.
    /// @throws std::bad_alloc
    static LmStringBuffer* sCreate(const char* text, unsigned int length, unsigned int capacity);

    /// The same for bytes with a known end.
    static LmStringBuffer* sCreate(std::string_view text, unsigned int capacity = 0);

    /// The same with one owner, who is to adopt it.
    static LmStringBuffer* sCreateOwned(std::string_view text);

    /// The one empty text that all share; it is never counted.
    static LmStringBuffer* sEmpty() noexcept { return sm_pEmpty; }

    /// A text that is made once and never released, so that threads can share it without counting.
    static LmStringBuffer* sCreateImmortal(std::string_view text);

    LmStringBuffer(const LmStringBuffer&) = delete;
    LmStringBuffer& operator=(const LmStringBuffer&) = delete;
    ~LmStringBuffer() override;

    /// The text with a NUL behind it; a null pointer only after `assign` was given one.
    const char* getText() const { return const_cast<LmStringBuffer*>(this)->text(); }

    /// In bytes.
    unsigned int getLength() const { return m_Length; }

    /// All bytes, valid until the text changes.
    std::string_view view() const { return {getText(), m_Length}; }

    /// The changing operations give the buffer that holds the result, for the handle they were called through: this
    /// one when no other handle shares it, otherwise a new one. The text given may be part of this one.

    /// Replaces the text; a null pointer leaves a buffer whose text pointer is null.
    LmStringBuffer* assign(const char* text);

    /// Appends the text; `length` is how much to take of it, 0 for all of it.
    LmStringBuffer* append(const char* text, unsigned int length = 0);

    /// Appends all bytes of the text.
    LmStringBuffer* append(std::string_view text);

    /// Removes white space at both ends.
    LmStringBuffer* trim();

    /// The first place of `needle` at or behind `start`, or -1; always -1 for an empty or null needle.
    int indexOf(const char* needle, int start) const;

    /// A new buffer with `length` bytes from `start`, cut at the end of the text; a length of 0 means up to the end.
    LmStringBuffer* substr(unsigned int start, unsigned int length) const;

    /// 0 when the texts are equal byte by byte, below 0 when this one sorts first. A null text counts as empty.
    int compareWith(const char* text) const;
    using LmObject::compareWith;

    /// What `Release` does, for LmString, which knows the class: not through the object's table.
    void drop()
    {
        if (dropsLast())
        {
            sDestroy(this);
        }
    }

    /// The text's room lies behind the object, so a buffer is made by `sCreate` alone.
    static void operator delete(void* block) noexcept;

private:
    friend struct LmEmptyText;

    /// How long a text may become in its place. The number stands behind the object, and behind it the inner text; of
    /// a text in a block of its own, it stands at the begin of that block.
    using Room = std::uint32_t;

    /// Set in the room behind the object when its text is in a block of its own, or null. The pointer to it then stands
    /// where the inner text was.
    static constexpr Room sm_Outside = 0x80000000;

    explicit LmStringBuffer(Room room) noexcept;
    LmStringBuffer(LmReferenceCount::Owned owned, Room room, Room length) noexcept;
    LmStringBuffer(LmReferenceCount::Immortal immortal, Room length) noexcept;
    explicit constexpr LmStringBuffer(LmReferenceCount::Immortal immortal) noexcept : LmObject(immortal) {}

    static void* operator new(std::size_t size, Room room);
    static void operator delete(void* block, Room room) noexcept;
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void*, void*) noexcept {}

    static LmStringBuffer* sMake(std::size_t room);
    static LmStringBuffer* sCreateOwnedSlowly(std::string_view text);
    static LmStringBuffer* sMakeWith(std::string_view text, std::size_t room);
    static void sDestroy(LmStringBuffer* pBuffer) noexcept;
    static Room& sRoom(void* block) noexcept
    {
        return *reinterpret_cast<Room*>(static_cast<LmStringBuffer*>(block) + 1);
    }
    static char* sInnerText(void* block) noexcept { return reinterpret_cast<char*>(&sRoom(block) + 1); }
    static std::size_t sBlockBytes(void* block) noexcept;

    char*& outsideText() noexcept { return *reinterpret_cast<char**>(sInnerText(this) + sizeof(Room)); }
    bool isTextOutside() const noexcept { return (sRoom(const_cast<LmStringBuffer*>(this)) & sm_Outside) != 0; }
    char* text() noexcept { return __builtin_expect(isTextOutside(), 0) ? outsideText() : sInnerText(this); }

    bool isShared() const noexcept { return !isUnshared() && !isUnowned(); }
    std::size_t presentRoom() noexcept;
    void setLength(std::size_t length) noexcept;
    void setOutsideText(char* text) noexcept;
    void growTo(std::size_t length);

    static LmStringBuffer* const sm_pEmpty;

    Room m_Length = 0;
};
