// All measurements of the library itself.

#include "Bodies.h"

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 2;
    }
    // In this order: what follows a thread is measured with the atomic counts of a process that has had threads, and
    // what follows a huge body with the memory that was taken for that.
    registerMessages();
    registerGrowth();
    registerThreads();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
