#pragma once

#include "LmLibs/LmUtil/LmHandle.h"

#include <utility>

/// Releases the chain behind an object that is being destroyed, link by link: a chain may be longer than a stack of
/// nested destructors could be deep. It stops at a link that somebody else holds as well.
template <typename Link, typename NextOf>
void lmReleaseChain(LmHandle<Link>& hNext, NextOf nextOf)
{
    for (Link* pNext = hNext.untested(); pNext != nullptr && pNext->isUnshared(); pNext = hNext.untested())
    {
        LmHandle<Link> hBehind = std::move(nextOf(*pNext));
        hNext = std::move(hBehind);
    }
}
