#pragma once

#include "LmLibs/LmUtil/LmHandle.h"
#include "LmLibs/LmUtil/LmInputStream.h"
#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmSerializable.h"
#include "LmLibs/LmUtil/LmString.h"
#include "core/ThreadHeapOperators.h"
#include "sdp/LmSdpExport.h"
#include "sdp/frame/LmSdpChangeable.h"
#include "sdp/frame/LmSdpCommonText.h"

namespace Quorvex
{
class FileLogger;
class Logger;
} // namespace Quorvex

template <typename Product>
class LmSdpRegistry;

/// One line of an SDP body, `<letter>=<value>` (RFC 4566, section 5): the base of all line classes.
///
/// Lines of one letter that stand in one description are chained; each owns the next. A field, with its chain, is not
/// safe for use by two threads at once.
class LMSDP_API LmSdpField : public LmSdpChangeable, public LmSerializable, public Quorvex::ThreadHeapOperators
{
public:
    /// Makes a line of its own class.
    using Constructor = LmSdpField* (*)();

    /// `token` is the line's letter. A null pointer gives an empty token.
    explicit LmSdpField(const char* token) : LmSdpField(lmSdpTokenBuffer(token)) {}
    ~LmSdpField() override
    {
        if (__builtin_expect(!m_Next.isNull(), 0))
        {
            releaseChain();
        }
    }

    LmSdpField(const LmSdpField&) = delete;
    LmSdpField& operator=(const LmSdpField&) = delete;

    /// The letter; valid as long as the field.
    const char* getToken() const { return m_Token.c_str(); }

    /// The next line of the same letter in the same description; an empty handle behind the last one.
    LmHandle<LmSdpField> getNext() { return m_Next; }

    /// True once a value was changed through a setter, and in some classes after `parse`. Nothing in the library
    /// clears it, and writing does not depend on it.
    bool getChangedFlag() { return isChanged(); }

    /// Reads the value of the line; `in` stands behind the "=". The line end may be consumed or left.
    virtual void parse(LmInputStream& in) = 0;

    /// Writes this one line, with "\r\n" at its end.
    void serialize(LmOutputStream& out) const override = 0;

    /// Reads one line into a new object of the class that is registered for its letter; an LmSdpUnusedField where
    /// none is.
    /// @throws LmException "Invalid format generic SDP field in LmSdpField::sConstructFrom()" at the end of input, and
    ///         when four or more characters stand in front of the "="
    /// @throws whatever the class's `parse` raises
    static LmHandle<LmSdpField> sConstructFrom(LmInputStream& in);

    /// Registers the class for a letter. A letter that is taken stays with its class. Not beside a thread that reads.
    static void sAddConstructor(const char* token, Constructor constructor);

protected:
    /// What the setter of a text does: takes it as it stands, a null pointer as the empty text, and sets the changed
    /// flag.
    void change(LmString& member, const char* text);

    ///@{
    /// What `getChangedFlag` gives from now on.
    void setChangedFlag() { setChanged(true); }
    void clearChangedFlag() { setChanged(false); }
    ///@}

private:
    friend class LmSdpDescription;

    /// The same when the token has been made, so that nothing is left to fail.
    explicit LmSdpField(LmStringBuffer& counted) noexcept : m_Token(LmString::sAdopt(counted)) {}

    ///@{
    /// What `sConstructFrom` does, in place for the loop over a description's lines (LmSdpLineReading.h).
    static LmHandle<LmSdpField> sReadLine(LmInputStream& in);
    static LmHandle<LmSdpField> sReadValue(const char* token, LmInputStream& in);
    static LmHandle<LmSdpField> sReadLineTraced(LmInputStream& in, const Quorvex::Logger* pLogger);
    ///@}

    void releaseChain() noexcept;

    /// The last link of the chain that begins here.
    LmSdpField* last()
    {
        LmSdpField* pLast = this;
        while (LmSdpField* const pNext = pLast->m_Next.untested())
        {
            pLast = pNext;
        }
        return pLast;
    }

    LMSDP_LOCAL static LmSdpRegistry<LmSdpField>* sm_pConstructorMap;
    LMSDP_LOCAL static Quorvex::FileLogger sm_Logger;

    LmString m_Token;
    LmHandle<LmSdpField> m_Next;
};
