#pragma once

#include "LmLibs/LmUtil/LmHandle.h"

class LmObservable;

/// Somebody who wants to hear of changes to an LmObservable.
class LMUTIL_API LmObserver : public LmObject
{
public:
    ~LmObserver() override;

    /// Called when `hSource` has something to tell; `hArgument` says what, and may be empty. Does nothing here.
    virtual void onNotification(LmHandle<LmObservable> hSource, LmHandle<LmObject> hArgument);
};
