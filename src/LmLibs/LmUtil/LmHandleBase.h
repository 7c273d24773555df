#pragma once

#include "LmLibs/LmUtil/LmObject.h"

/// What all handles share: one pointer to a counted object, or to nothing.
class LmHandleBase
{
protected:
    /// Refers to the object and takes a reference; a null pointer makes an empty handle.
    explicit LmHandleBase(const LmObject* pObject) noexcept : m_pObject(const_cast<LmObject*>(pObject))
    {
        if (m_pObject != nullptr)
        {
            m_pObject->AddRef();
        }
    }

    /// Refers to the object if `pDowncast`, the same object cast to the handle's type, is not null.
    LmHandleBase(const LmObject* pObject, const LmObject* pDowncast) noexcept
        : LmHandleBase(pDowncast != nullptr ? pObject : nullptr)
    {
    }

    LmHandleBase(const LmHandleBase& other) noexcept : LmHandleBase(other.m_pObject) {}
    LmHandleBase(LmHandleBase&& other) noexcept : m_pObject(other.m_pObject) { other.m_pObject = nullptr; }

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the new object is counted before the old one is given up
    LmHandleBase& operator=(const LmHandleBase& other) noexcept
    {
        assign(other.m_pObject);
        return *this;
    }

    LmHandleBase& operator=(LmHandleBase&& other) noexcept
    {
        if (this != &other)
        {
            LmObject* const pFormer = m_pObject;
            m_pObject = other.m_pObject;
            other.m_pObject = nullptr;
            if (__builtin_expect(pFormer != nullptr, 0))
            {
                pFormer->Release();
            }
        }
        return *this;
    }

    ~LmHandleBase() { release(m_pObject); }

    /// For owners that count for themselves: takes a reference over, or leaves its release to them.
    struct Adopt
    {
    };
    LmHandleBase(LmObject* pCounted, Adopt) noexcept : m_pObject(pCounted) {}
    void forget() noexcept { m_pObject = nullptr; }

    /// Refers to the new object, or to nothing, and gives the old one up.
    void assign(const LmObject* pObject) noexcept
    {
        LmObject* const pFormer = m_pObject;
        m_pObject = const_cast<LmObject*>(pObject);
        if (m_pObject != nullptr)
        {
            m_pObject->AddRef();
        }
        release(pFormer);
    }

    void swap(LmHandleBase& other) noexcept
    {
        LmObject* const pOwn = m_pObject;
        m_pObject = other.m_pObject;
        other.m_pObject = pOwn;
    }

    LmObject* object() const noexcept { return m_pObject; }

private:
    friend class LmString;

    static void release(LmObject* pObject) noexcept
    {
        if (pObject != nullptr)
        {
            pObject->Release();
        }
    }

    LmObject* m_pObject;
};
