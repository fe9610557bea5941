#include "tests/support/NetworkNamespace.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

QString SystemProblem(const char* szCall)
{
    return QStringLiteral("%1: %2").arg(QString::fromLatin1(szCall),
                                        QString::fromLocal8Bit(std::strerror(errno)));
}

/// Whether the kernel has seen the interface's carrier.
bool HasCarrier(int nSocket, const QString& strName)
{
    ifreq request = {};
    qstrncpy(request.ifr_name, strName.toLatin1().constData(), sizeof request.ifr_name);
    return ioctl(nSocket, SIOCGIFFLAGS, &request) == 0 && (request.ifr_flags & IFF_RUNNING) != 0;
}

} // namespace

CNetworkNamespace::CNetworkNamespace(const QList<STestInterface>& listInterfaces,
                                     const QStringList& listGateways)
{
    m_nOutside = open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
    if (m_nOutside < 0) {
        m_strProblem = SystemProblem("open /proc/thread-self/ns/net");
        return;
    }
    if (unshare(CLONE_NEWNET) != 0) {
        m_strProblem = SystemProblem("unshare(CLONE_NEWNET)");
        return;
    }
    Run(QStringLiteral("link set lo up"));
    for (const STestInterface& testInterface : listInterfaces)
        AddInterface(testInterface);
    // Each default route has a metric of its own: the kernel takes no two alike.
    int nMetric = 0;
    for (const QString& strGateway : listGateways)
        Run(QStringLiteral("route add default via %1 metric %2").arg(strGateway).arg(++nMetric));
}

CNetworkNamespace::~CNetworkNamespace()
{
    if (m_nOutside < 0)
        return;
    setns(m_nOutside, CLONE_NEWNET);
    close(m_nOutside);
}

void CNetworkNamespace::AddInterface(const STestInterface& testInterface)
{
    // A pair, because it is the kind of interface that every kernel with containers has. The far end is up
    // too: an interface without a carrier does not count as up.
    Run(QStringLiteral("link add %1 type veth peer name %1-far").arg(testInterface.strName));
    for (const QString& strAddress : testInterface.listAddresses) {
        const QString strBroadcast =
            strAddress.contains(QLatin1Char(' ')) ? QString() : QStringLiteral(" brd +");
        Run(QStringLiteral("addr add %1%2 dev %3").arg(strAddress, strBroadcast, testInterface.strName));
    }
    Run(QStringLiteral("link set %1 up").arg(testInterface.strName));
    Run(QStringLiteral("link set %1-far up").arg(testInterface.strName));
    WaitForCarrier(testInterface.strName);
}

void CNetworkNamespace::WaitForCarrier(const QString& strName)
{
    if (!IsReady())
        return;
    constexpr int c_nPatience = 10000; // milliseconds
    const int nSocket = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const QDeadlineTimer deadline(c_nPatience);
    while (!HasCarrier(nSocket, strName)) {
        if (deadline.hasExpired()) {
            m_strProblem = QStringLiteral("%1 got no carrier").arg(strName);
            break;
        }
        QThread::yieldCurrentThread();
    }
    close(nSocket);
}

void CNetworkNamespace::Run(const QString& strCommand)
{
    if (!IsReady())
        return;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("ip"), strCommand.split(QLatin1Char(' ')));
    const bool bRan = process.waitForFinished();
    if (!bRan || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        m_strProblem =
            QStringLiteral("ip %1: %2")
                .arg(strCommand, bRan ? QString::fromLocal8Bit(process.readAll()) : process.errorString());
}

QString CNetworkNamespace::WhyNot()
{
    return CNetworkNamespace({{QStringLiteral("probe"), {}}}).Problem();
}
