#include "LmLibs/LmUtil/LmObserver.h"

#include "LmLibs/LmUtil/LmObservable.h"

LmObserver::~LmObserver() = default;

void LmObserver::onNotification(LmHandle<LmObservable>, LmHandle<LmObject>) {}
