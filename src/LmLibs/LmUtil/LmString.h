#pragma once

#include "LmLibs/LmUtil/LmCharacters.h"
#include "LmLibs/LmUtil/LmHandle.h"
#include "LmLibs/LmUtil/LmStringBuffer.h"

#include <string_view>
#include <utility>

/// A text value: one handle on a copy-on-write buffer. Copies share the buffer until one of them changes.
///
/// An empty text takes no memory. A text given as a null pointer is the empty one, but for `assign`. One value belongs
/// to one thread at a time; values that share a buffer may be used by different threads.
class LmString : private LmHandle<LmStringBuffer>
{
public:
    /// The empty text.
    LmString() noexcept : LmHandle(LmStringBuffer::sEmpty(), Adopt()) {}

    /// A copy of the text. @throws std::bad_alloc
    // NOLINTNEXTLINE(google-explicit-constructor): a text stands wherever a string is wanted
    LmString(const char* text) : LmString(lmViewOf(text)) {}

    /// A copy of the bytes, NUL bytes included. @throws std::bad_alloc
    explicit LmString(std::string_view text)
        : LmHandle(text.empty() ? LmStringBuffer::sEmpty() : LmStringBuffer::sCreateOwned(text), Adopt())
    {
    }

    /// Shares the buffer. An empty handle gives a text without a buffer, whose `c_str` is a null pointer.
    explicit LmString(const LmHandle<LmStringBuffer>& hBuffer) noexcept
        : LmHandle(sCounted(static_cast<LmStringBuffer*>(hBuffer.object())), Adopt())
    {
    }

    /// Shares the buffer, or owns one that is new.
    explicit LmString(LmStringBuffer& buffer) noexcept : LmHandle(sCounted(&buffer), Adopt()) {}

    /// Takes a buffer over together with a reference that the caller has counted, or that needs no counting, as those
    /// of `LmStringBuffer::sCreateImmortal`.
    static LmString sAdopt(LmStringBuffer& buffer) noexcept { return LmString(&buffer, Adopt()); }

    ///@{
    /// Copying shares the buffer; moving leaves the other one empty.
    LmString(const LmString& other) noexcept : LmHandle(sCounted(other.buffer()), Adopt()) {}
    LmString(LmString&& other) noexcept : LmHandle(LmStringBuffer::sEmpty(), Adopt()) { swap(other); }
    ///@}

    ///@{
    /// Takes the other value in place of this one; a text as `assign` does.
    LmString& operator=(const LmString& other) noexcept
    {
        LmString copy(other);
        swap(copy);
        return *this;
    }
    LmString& operator=(LmString&& other) noexcept
    {
        swap(other);
        return *this;
    }
    LmString& operator=(const char* text)
    {
        assign(text);
        return *this;
    }
    ///@}

    ~LmString()
    {
        // Counted here, where the class is known, rather than through the object's table; the base finds nothing left.
        LmStringBuffer* const pBuffer = buffer();
        if (__builtin_expect(pBuffer != nullptr, 1))
        {
            pBuffer->drop();
            forget();
        }
    }

    /// The text with a NUL behind it, valid until this value changes; a null pointer without a buffer, or when
    /// `assign` was given one.
    const char* c_str() const noexcept { return buffer() == nullptr ? nullptr : buffer()->getText(); }

    /// In bytes; 0 without a buffer.
    unsigned int length() const noexcept { return buffer() == nullptr ? 0 : buffer()->getLength(); }

    /// True without a buffer or with an empty text. A text of one blank is not blank.
    bool isBlank() const noexcept { return length() == 0; }

    /// All bytes, valid until this value changes.
    std::string_view view() const noexcept { return buffer() == nullptr ? std::string_view() : buffer()->view(); }

    /// `length` bytes from `start`, cut at the end of the text; a length of 0 means up to the end.
    LmString substr(unsigned int start, unsigned int length) const
    {
        return buffer() == nullptr ? LmString() : LmString(*buffer()->substr(start, length));
    }

    /// The first place of `needle` at or behind `start`, or -1; always -1 for an empty or null needle.
    int indexOf(const char* needle, int start) const
    {
        return buffer() == nullptr ? -1 : buffer()->indexOf(needle, start);
    }

    /// 0 when the texts are equal byte by byte, below 0 when this one sorts first. A null text counts as empty.
    int compareWith(const char* text) const { return solid()->compareWith(text); }

    /// Replaces the text; a null pointer leaves a text whose `c_str` is a null pointer.
    void assign(const char* text) { store(solid()->assign(text)); }

    ///@{
    /// Puts a text behind this one; nothing for a null pointer. @throws std::bad_alloc
    void append(const char* text) { store(solid()->append(text)); }
    void append(const LmString& text) { store(solid()->append(text.view())); }
    void append(std::string_view text) { store(solid()->append(text)); }
    ///@}

    /// Removes white space at both ends.
    void trim() { store(solid()->trim()); }

private:
    LmString(LmStringBuffer* pCounted, Adopt adopt) noexcept : LmHandle(pCounted, adopt) {}

    static LmStringBuffer* sCounted(LmStringBuffer* pBuffer) noexcept
    {
        if (pBuffer != nullptr)
        {
            pBuffer->LmObject::AddRef();
        }
        return pBuffer;
    }

    LmStringBuffer* buffer() const noexcept { return static_cast<LmStringBuffer*>(object()); }

    /// The buffer, or the shared empty one for a value that has none.
    LmStringBuffer* solid() const noexcept { return buffer() == nullptr ? LmStringBuffer::sEmpty() : buffer(); }

    void store(LmStringBuffer* pResult) noexcept
    {
        if (pResult != buffer())
        {
            LmString result(*pResult);
            swap(result);
        }
    }
};
