#include "LmLibs/LmUtil/LmException.h"

#include "LmLibs/LmUtil/LmOutputStream.h"

#include <cxxabi.h>

#include <typeinfo>

namespace __cxxabiv1
{

// The run-time library exports this entry without declaring it.
// NOLINTNEXTLINE(readability-redundant-declaration): clang declares it, gcc does not
extern "C" void __cxa_throw(void* object, std::type_info* type, void (*destructor)(void*));

} // namespace __cxxabiv1

LmException::LmException() = default;

LmException::LmException(const char* message) : m_Message(message) {}

LmException::~LmException() = default;

void LmException::display(LmOutputStream& out) const
{
    out << m_Message;
}

const char* LmException::getMessage() const
{
    return m_Message.c_str();
}

void LmException::sThrow(const char* message)
{
    throw LmException(message);
}

void LmException::sThrow(LmException* pException)
{
    // Counted objects have LmObject as their first base, so that this is also where the whole object begins.
    void* const object = dynamic_cast<void*>(pException);
    auto& type = const_cast<std::type_info&>(typeid(*pException));
    const auto destroy = [](void* thrown) { static_cast<LmException*>(thrown)->~LmException(); };
    __cxxabiv1::__cxa_throw(object, &type, destroy);
}

void* LmException::operator new(std::size_t size)
{
    return abi::__cxa_allocate_exception(size);
}

void LmException::operator delete(void* block)
{
    abi::__cxa_free_exception(block);
}

void* LmException::operator new(std::size_t, void* place) noexcept
{
    return place;
}

void LmException::operator delete(void*, void*) noexcept {}
