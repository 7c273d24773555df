#include "LmLibs/LmUtil/LmObservable.h"

#include "support/Matchers.h"

namespace
{

class Subject : public LmObservable
{
public:
    using LmObservable::notifyObservers;
};

class Listener : public LmObserver
{
public:
    void onNotification(LmHandle<LmObservable> hSource, LmHandle<LmObject> hArgument) override
    {
        ++heard;
        argument = hArgument;
        if (leaves)
        {
            hSource->detachObserver(this);
        }
    }

    int heard = 0;
    bool leaves = false;
    LmHandle<LmObject> argument;
};

TEST(Observable, TellsEachObserverOnce)
{
    const LmHandle<Subject> hSubject = new Subject;
    const LmHandle<Listener> hOne = new Listener;
    const LmHandle<Listener> hTwo = new Listener;
    const LmHandle<LmObject> hArgument = new Listener;
    hSubject->attachObserver(hOne);
    hSubject->attachObserver(hOne);
    hSubject->attachObserver(hTwo);
    hSubject->attachObserver(nullptr);
    hSubject->attachObserver(new LmObserver);
    EXPECT_EQ(hSubject->countObservers(), 3u);
    hSubject->notifyObservers(hArgument);
    EXPECT_EQ(hOne->heard, 1);
    EXPECT_EQ(hTwo->heard, 1);
    EXPECT_TRUE(hTwo->argument == hArgument);
    hSubject->detachObserver(hOne);
    hSubject->detachObserver(hOne);
    hSubject->notifyObservers(nullptr);
    EXPECT_EQ(hOne->heard, 1);
    EXPECT_EQ(hTwo->heard, 2);
}

TEST(Observable, ObserverMayLeaveWhileItIsTold)
{
    const LmHandle<Subject> hSubject = new Subject;
    LmHandle<Listener> hOne = new Listener;
    const LmHandle<Listener> hTwo = new Listener;
    hOne->leaves = true;
    hSubject->attachObserver(hOne);
    hSubject->attachObserver(hTwo);
    hOne = nullptr;
    hSubject->notifyObservers(nullptr);
    EXPECT_EQ(hSubject->countObservers(), 1u);
    EXPECT_EQ(hTwo->heard, 1);
}

TEST(Observable, BlockedOneIsSilent)
{
    const LmHandle<Subject> hSubject = new Subject;
    const LmHandle<Listener> hOne = new Listener;
    hSubject->attachObserver(hOne);
    EXPECT_FALSE(hSubject->unblock());
    EXPECT_TRUE(hSubject->block());
    EXPECT_FALSE(hSubject->block());
    hSubject->notifyObservers(nullptr);
    EXPECT_TRUE(hSubject->unblock());
    EXPECT_EQ(hOne->heard, 0);
    hSubject->notifyObservers(nullptr);
    EXPECT_EQ(hOne->heard, 1);
}

} // namespace
