#include "LmLibs/LmUtil/LmObserver.h"

#include "LmLibs/LmUtil/LmObservable.h"

LmObserver::~LmObserver() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): observers override this signature
void LmObserver::onNotification(LmHandle<LmObservable>, LmHandle<LmObject>) {}
