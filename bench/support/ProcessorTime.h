#pragma once

#include <time.h>

/// Seconds for which the calling thread has had a processor since it began: what others do meanwhile is not in them.
inline double processorSeconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
