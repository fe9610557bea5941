#include "tests/support/DeathTest.h"

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void RunChild(const std::function<void()>& funcAction, int nWriteEnd)
{
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    // Qt Test and the sanitizers catch the signal to print a report; here it is the expected end.
    std::signal(SIGABRT, SIG_DFL);
    dup2(nWriteEnd, STDERR_FILENO);
    funcAction();
    _exit(EXIT_SUCCESS);
}

QByteArray ReadAll(int nReadEnd)
{
    QByteArray strAll;
    char szBuffer[4096];
    for (ssize_t nRead = read(nReadEnd, szBuffer, sizeof szBuffer); nRead > 0;
         nRead = read(nReadEnd, szBuffer, sizeof szBuffer))
        strAll.append(szBuffer, int(nRead));
    return strAll;
}

} // namespace

SDeath RunToDeath(const std::function<void()>& funcAction)
{
    int arrPipe[2] = {-1, -1};
    if (pipe(arrPipe) != 0)
        return {};
    const pid_t nChild = fork();
    if (nChild == 0)
        RunChild(funcAction, arrPipe[1]);
    close(arrPipe[1]);
    SDeath death;
    death.strOutput = ReadAll(arrPipe[0]);
    close(arrPipe[0]);
    int nStatus = 0;
    waitpid(nChild, &nStatus, 0);
    death.bAborted = WIFSIGNALED(nStatus) && WTERMSIG(nStatus) == SIGABRT;
    return death;
}
