#ifndef TESTS_SUPPORT_DEATHTEST_H
#define TESTS_SUPPORT_DEATHTEST_H

#include <QByteArray>

#include <functional>

/// How a process ended that was expected to fault.
struct SDeath
{
    bool bAborted = false; ///< it ended by SIGABRT
    QByteArray strOutput;  ///< what it printed to standard error
};

/// Runs an action in a forked child and reports how it ended. The child writes no core file. Call it while
/// the test has one thread.
SDeath RunToDeath(const std::function<void()>& funcAction);

#endif // TESTS_SUPPORT_DEATHTEST_H
