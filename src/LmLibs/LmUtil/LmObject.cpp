#include "LmLibs/LmUtil/LmObject.h"

#include "LmLibs/LmUtil/LmOutputStream.h"

#include <cxxabi.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <typeinfo>

namespace
{

std::atomic<long> s_Live{0};

} // namespace

LmObject* LmObject::clone() const
{
    return nullptr;
}

int LmObject::compareWith(const LmObject* pOther) const
{
    if (pOther == this)
    {
        return 0;
    }
    return std::less<const LmObject*>()(this, pOther) ? -1 : 1;
}

unsigned int LmObject::hashCode() const
{
    const auto address = reinterpret_cast<std::uintptr_t>(this);
    return static_cast<unsigned int>(address >> 4) ^ static_cast<unsigned int>(address >> 36);
}

void LmObject::display(LmOutputStream& out, bool) const
{
    const char* const name = typeid(*this).name();
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> readable(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                                               &std::free);
    out << (readable != nullptr ? readable.get() : name);
}

/// The way of an object that seemed to have several owners; the others may give it up meanwhile.
unsigned long LmObject::releaseShared(bool destroyAtZero)
{
    const unsigned long count = m_Count.decrement();
    if (count == 0 && destroyAtZero)
    {
        delete this;
    }
    return count;
}

long LmObject::sLiveObjects()
{
    return s_Live.load();
}

void LmObject::sCountLive(long change)
{
    s_Live.fetch_add(change, std::memory_order_relaxed);
}
