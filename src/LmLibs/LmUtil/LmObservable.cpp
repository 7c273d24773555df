#include "LmLibs/LmUtil/LmObservable.h"

#include <algorithm>

LmObservable::~LmObservable() = default;

// NOLINTBEGIN(performance-unnecessary-value-param): callers are linked against these signatures
void LmObservable::attachObserver(LmHandle<LmObserver> hObserver)
{
    const bool attached = std::find(m_Observers.begin(), m_Observers.end(), hObserver) != m_Observers.end();
    if (hObserver && !attached)
    {
        m_Observers.push_back(hObserver);
    }
}

void LmObservable::detachObserver(LmHandle<LmObserver> hObserver)
{
    m_Observers.erase(std::remove(m_Observers.begin(), m_Observers.end(), hObserver), m_Observers.end());
}

// NOLINTEND(performance-unnecessary-value-param)

unsigned int LmObservable::countObservers() const
{
    return static_cast<unsigned int>(m_Observers.size());
}

bool LmObservable::block()
{
    const bool changed = !m_Blocked;
    m_Blocked = true;
    return changed;
}

bool LmObservable::unblock()
{
    const bool changed = m_Blocked;
    m_Blocked = false;
    return changed;
}

void LmObservable::notifyObservers(const LmHandle<LmObject>& hArgument)
{
    if (m_Blocked)
    {
        return;
    }
    const std::vector<LmHandle<LmObserver>> observers = m_Observers;
    for (const LmHandle<LmObserver>& hObserver : observers)
    {
        hObserver->onNotification(this, hArgument);
    }
}
