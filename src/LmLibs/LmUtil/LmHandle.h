#pragma once

#include "LmLibs/LmUtil/LmHandleBase.h"
#include "LmLibs/LmUtil/LmTypeTest.h"
#include "core/Assertion.h"

#include <cstddef>
#include <utility>

/// A counted reference to a `T`, one pointer wide; `T` derives from LmObject. The last handle ends its object.
///
/// Different handles to one object may be used by different threads; one handle belongs to one thread at a time.
template <typename T>
class LmHandle : public LmHandleBase
{
public:
    // NOLINTBEGIN(google-explicit-constructor): a handle converts as a pointer does.

    ///@{
    /// An empty handle.
    LmHandle() noexcept : LmHandleBase(nullptr) {}
    LmHandle(std::nullptr_t) noexcept : LmHandleBase(nullptr) {}
    ///@}

    /// Shares the object, or owns one that is new.
    LmHandle(T* pObject) noexcept : LmHandleBase(pObject) {}

    ///@{
    /// Copying shares the object; moving leaves the other handle empty.
    LmHandle(const LmHandle&) noexcept = default;
    LmHandle(LmHandle&&) noexcept = default;
    ///@}

    /// Shares the object of a handle of a related type; empty when that object is no `T`.
    template <typename U>
    LmHandle(const LmHandle<U>& other) noexcept : LmHandleBase(other.object(), LmTypeTest<T>::sCast(other.object()))
    {
    }

    /// The same for a handle that is not needed any more: it gives its reference away, or keeps it where its object is
    /// no `T`.
    template <typename U>
    LmHandle(LmHandle<U>&& other) noexcept
        : LmHandleBase(LmTypeTest<T>::sCast(other.object()) != nullptr ? other.object() : nullptr, Adopt())
    {
        if (!isNull())
        {
            other.forget();
        }
    }

    ///@{
    /// Takes what the constructor of that kind would take, and gives the present object up.
    LmHandle& operator=(const LmHandle&) noexcept = default;
    LmHandle& operator=(LmHandle&&) noexcept = default;

    LmHandle& operator=(T* pObject) noexcept
    {
        assign(pObject);
        return *this;
    }

    template <typename U>
    LmHandle& operator=(const LmHandle<U>& other) noexcept
    {
        return *this = LmHandle(other); // NOLINT(misc-unconventional-assign-operator): this is *this
    }

    template <typename U>
    LmHandle& operator=(LmHandle<U>&& other) noexcept
    {
        return *this = LmHandle(std::move(other)); // NOLINT(misc-unconventional-assign-operator): this is *this
    }
    ///@}

    ~LmHandle() = default;

    /// Whether it refers to no object.
    bool isNull() const noexcept { return object() == nullptr; }

    /// Whether it refers to an object.
    explicit operator bool() const noexcept { return !isNull(); }

    ///@{
    /// The object, or a null pointer for an empty handle. An object that is no `T` raises the assertion "pObj!=0" and
    /// gives a null pointer.
    T* operator->() const { return dereference(); }
    operator T*() const { return dereference(); }
    // NOLINTEND(google-explicit-constructor)

    /// The object without the run-time type test, for loops over handles that were only ever given a `T`.
    T* untested() const noexcept { return static_cast<T*>(object()); }
    ///@}

    ///@{
    /// Handles, pointers and null pointers are equal when they refer to the same object, or all to none.
    friend bool operator==(const LmHandle& left, const LmHandle& right)
    {
        return left.dereference() == right.dereference();
    }
    friend bool operator!=(const LmHandle& left, const LmHandle& right) { return !(left == right); }
    template <typename U>
    friend bool operator==(const LmHandle& left, const LmHandle<U>& right)
    {
        const LmHandle<LmObject> hLeft(left);
        const LmHandle<LmObject> hRight(right);
        return hLeft == hRight;
    }
    template <typename U>
    friend bool operator!=(const LmHandle& left, const LmHandle<U>& right)
    {
        return !(left == right);
    }
    friend bool operator==(const LmHandle& left, T* right) { return left.dereference() == right; }
    friend bool operator!=(const LmHandle& left, T* right) { return left.dereference() != right; }
    friend bool operator==(T* left, const LmHandle& right) { return left == right.dereference(); }
    friend bool operator!=(T* left, const LmHandle& right) { return left != right.dereference(); }
    friend bool operator==(const LmHandle& left, const T* right) { return left.dereference() == right; }
    friend bool operator!=(const LmHandle& left, const T* right) { return left.dereference() != right; }
    friend bool operator==(const T* left, const LmHandle& right) { return left == right.dereference(); }
    friend bool operator!=(const T* left, const LmHandle& right) { return left != right.dereference(); }
    friend bool operator==(const LmHandle& handle, std::nullptr_t) { return handle.isNull(); }
    friend bool operator!=(const LmHandle& handle, std::nullptr_t) { return !handle.isNull(); }
    friend bool operator==(std::nullptr_t, const LmHandle& handle) { return handle.isNull(); }
    friend bool operator!=(std::nullptr_t, const LmHandle& handle) { return !handle.isNull(); }
    ///@}

protected:
    /// Takes over a reference that the caller has counted.
    LmHandle(T* pCounted, Adopt adopt) noexcept : LmHandleBase(pCounted, adopt) {}

private:
    template <typename U>
    friend class LmHandle;

    T* dereference() const
    {
        LmObject* const pStored = object();
        if (pStored == nullptr)
        {
            return nullptr;
        }
        T* const pObj = LmTypeTest<T>::sCast(pStored);
        if (pObj == nullptr)
        {
            Quorvex::Assertion(false, "pObj!=0", "LmHandle", __LINE__);
        }
        return pObj;
    }
};
