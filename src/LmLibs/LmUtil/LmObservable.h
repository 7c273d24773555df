#pragma once

#include "LmLibs/LmUtil/LmObserver.h"

#include <vector>

/// An object that tells observers of its changes. It holds its observers alive until they are detached.
class LMUTIL_API LmObservable : public LmObserver
{
public:
    ~LmObservable() override;

    /// Adds an observer. An empty handle, or one that is attached already, changes nothing.
    virtual void attachObserver(LmHandle<LmObserver> hObserver);

    /// Gives an observer up. One that is not attached changes nothing.
    virtual void detachObserver(LmHandle<LmObserver> hObserver);

    /// How many are attached.
    virtual unsigned int countObservers() const;

    ///@{
    /// Holds notifications back until `unblock`; those raised in between are lost. Each gives true when it changed
    /// the state.
    virtual bool block();
    virtual bool unblock();
    ///@}

protected:
    /// Tells each observer, in the order of attachment. Observers may attach and detach meanwhile. The object must be
    /// held by a handle.
    void notifyObservers(const LmHandle<LmObject>& hArgument);

private:
    std::vector<LmHandle<LmObserver>> m_Observers;
    bool m_Blocked = false;
};
