#pragma once

#include "LmLibs/LmUtil/LmObject.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <typeinfo>
#include <utility>

/// The run-time type test behind every dereference of a handle.
///
/// A `dynamic_cast` to a base walks the class's bases, which costs more than reading a short line. So the classes that
/// have passed the test before are remembered, and an object whose class is among them is cast without a walk.
template <typename T>
class LmTypeTest
{
public:
    /// The object as a `T`; a null pointer when it is none, or when `pObject` is null.
    static T* sCast(LmObject* pObject) noexcept
    {
        if (pObject == nullptr)
        {
            return nullptr;
        }
        if constexpr (std::is_same_v<std::remove_cv_t<T>, LmObject>)
        {
            return pObject;
        }
        else if constexpr (!isFixedCast<T>(0))
        {
            return dynamic_cast<T*>(pObject);
        }
        else
        {
            const std::type_info& type = typeid(*pObject);
            std::atomic<const std::type_info*>& known = sm_Known[slotOf(type)];
            if (known.load(std::memory_order_relaxed) == &type)
            {
                return static_cast<T*>(pObject);
            }
            T* const pResult = dynamic_cast<T*>(pObject);
            if (pResult != nullptr)
            {
                known.store(&type, std::memory_order_relaxed);
            }
            return pResult;
        }
    }

private:
    /// True when `T` lies at a fixed distance from its LmObject.
    template <typename U>
    static constexpr auto isFixedCast(int) -> decltype(static_cast<U*>(std::declval<LmObject*>()), bool())
    {
        return true;
    }
    template <typename U>
    static constexpr bool isFixedCast(...)
    {
        return false;
    }

    static constexpr std::size_t sm_Slots = 64;

    static std::size_t slotOf(const std::type_info& type) noexcept
    {
        const auto address = reinterpret_cast<std::uintptr_t>(&type);
        return ((address >> 3) ^ (address >> 9)) % sm_Slots;
    }

    static inline std::array<std::atomic<const std::type_info*>, sm_Slots> sm_Known{};
};
