#pragma once

#include "LmLibs/LmUtil/LmReferenceCount.h"
#include "LmLibs/LmUtil/LmUtilExport.h"

class LmOutputStream;

/// The root of every class with identity: an object that lives as long as handles refer to it.
///
/// A new object has a count of 0 and no owner; the first LmHandle that receives it owns it. An object may also be a
/// plain local variable that no handle ever sees.
class LMUTIL_API LmObject
{
public:
    /// An object with a count of 0.
    LmObject() noexcept // NOLINT(modernize-use-equals-default): counts in debug builds
    {
#ifdef LMUTIL_COUNT_OBJECTS
        sCountLive(1);
#endif
    }

    ///@{
    /// A copy is an object of its own, without an owner.
    LmObject(const LmObject&) noexcept : LmObject() {}
    LmObject& operator=(const LmObject&) noexcept
    {
        return *this;
    }
    ///@}

    virtual ~LmObject() // NOLINT(modernize-use-equals-default): counts in debug builds
    {
#ifdef LMUTIL_COUNT_OBJECTS
        sCountLive(-1);
#endif
    }

    /// A copy of this object, without an owner; a null pointer where the class offers none, as here.
    virtual LmObject* clone() const;

    /// 0 for the same object, otherwise the order of the two addresses.
    virtual int compareWith(const LmObject* pOther) const;

    /// A number that follows from the address.
    virtual unsigned int hashCode() const;

    /// Writes the name of the class.
    virtual void display(LmOutputStream& out, bool verbose) const;

    /// Takes a reference; gives the count after it. For handles only.
    virtual unsigned long AddRef()
    {
        return m_Count.increment();
    }

    /// Gives a reference up; gives the count after it. The last one destroys the object, unless `destroyAtZero` is
    /// false. For handles only.
    virtual unsigned long Release(bool destroyAtZero = true)
    {
        if (__builtin_expect(!m_Count.dropOnlyOwner(), 0))
        {
            return releaseShared(destroyAtZero);
        }
        if (__builtin_expect(destroyAtZero, 1))
        {
            delete this;
        }
        return 0;
    }

    /// True when the caller, who holds a handle, holds the only one.
    bool isUnshared() const noexcept
    {
        return m_Count.isOne();
    }

    /// How many objects are alive; counted where the library was built for debugging, elsewhere 0.
    static long sLiveObjects();

protected:
    /// What `Release` does to the count; true when the object is to be destroyed.
    bool dropsLast() noexcept
    {
        return m_Count.decrementsToZero();
    }

    /// True before the first handle has received this object.
    bool isUnowned() const noexcept
    {
        return m_Count.isZero();
    }

    /// For an object that is made with an owner, who counts nothing.
    explicit LmObject(LmReferenceCount::Owned owned) noexcept : m_Count(owned)
    {
#ifdef LMUTIL_COUNT_OBJECTS
        sCountLive(1);
#endif
    }

    /// For objects of static lifetime, which handles may share without end.
    explicit constexpr LmObject(LmReferenceCount::Immortal immortal) noexcept : m_Count(immortal) {}

private:
    unsigned long releaseShared(bool destroyAtZero);
    static void sCountLive(long change);

    LmReferenceCount m_Count;
};
