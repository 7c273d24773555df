#pragma once

#include "LmLibs/LmUtil/LmObject.h"
#include "LmLibs/LmUtil/LmString.h"

#include <cstddef>

/// The root of all failures: a message that names the operation and what is wrong. Catch it by constant reference.
class LMUTIL_API LmException : public LmObject
{
public:
    /// An exception with an empty message.
    LmException();
    /// A null pointer gives the empty message.
    explicit LmException(const char* message);

    ///@{
    /// A copy shares the text of the message.
    LmException(const LmException&) = default;
    LmException& operator=(const LmException&) = default;
    ///@}
    ~LmException() override;

    using LmObject::display;

    /// Writes the message.
    virtual void display(LmOutputStream& out) const;

    /// The message; valid as long as the exception.
    const char* getMessage() const;

    /// Throws an LmException with that message.
    [[noreturn, gnu::cold]] static void sThrow(const char* message);

    /// Throws the object itself, so that it arrives with its own class, and takes it over. It must have been made with
    /// the `new` of its class, not the global one, and its class must have LmException as its first base.
    [[noreturn, gnu::cold]] static void sThrow(LmException* pException);

    ///@{
    /// An exception is made where the run-time system can throw it in place, which still works when memory has run
    /// out. Derived classes must not bring allocation operators of their own.
    static void* operator new(std::size_t size);
    static void operator delete(void* block);
    static void* operator new(std::size_t size, void* place) noexcept;
    static void operator delete(void* block, void* place) noexcept;
    ///@}

private:
    LmString m_Message;
};
