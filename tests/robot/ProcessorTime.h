#ifndef TESTS_ROBOT_PROCESSORTIME_H
#define TESTS_ROBOT_PROCESSORTIME_H

#include <QtGlobal>

#include <ctime>

/// Microseconds of processor time that this thread has used: a busy machine makes no difference.
inline qint64 ProcessorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000 + qint64(time.tv_nsec) / 1000;
}

#endif // TESTS_ROBOT_PROCESSORTIME_H
