#ifndef TESTS_SUPPORT_NETWORKNAMESPACE_H
#define TESTS_SUPPORT_NETWORKNAMESPACE_H

#include <QList>
#include <QString>
#include <QStringList>

/// An interface of a test network. Addresses are as `ip` takes them: "192.168.7.20/24", or with a broadcast
/// address of its own "10.20.0.5/16 brd 10.20.200.255".
struct STestInterface
{
    QString strName;
    QStringList listAddresses;
};

/// A network of its own for a test: interfaces, addresses and routes of the kernel that no other process
/// sees. It vanishes with the object, or with the process.
///
/// The calling thread is inside from construction to destruction, and so are the processes that it starts.
/// Create it on the main thread: /proc/net shows the main thread's network.
///
///     const CNetworkNamespace network({{QStringLiteral("lan0"), {QStringLiteral("192.168.7.20/24")}}},
///                                     {QStringLiteral("192.168.7.1")});
///     QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
class CNetworkNamespace
{
public:
    /// Exit status that tells CTest that a test was skipped (property SKIP_RETURN_CODE).
    static constexpr int c_nSkipped = 77;

    /// Makes a network of loopback, these interfaces, and default routes through these gateways.
    explicit CNetworkNamespace(const QList<STestInterface>& listInterfaces = {},
                               const QStringList& listGateways = {});
    /// Returns the thread to the network that it came from.
    ~CNetworkNamespace();
    CNetworkNamespace(const CNetworkNamespace&) = delete;
    CNetworkNamespace& operator=(const CNetworkNamespace&) = delete;

    /// True when the network is set up.
    bool IsReady() const { return m_strProblem.isEmpty(); }
    /// What went wrong, for the test's message.
    QString Problem() const { return m_strProblem; }

    /// Why this process cannot make networks, for lack of rights, of the program `ip` or of the kernel's
    /// paired interfaces; empty when it can.
    static QString WhyNot();

private:
    void AddInterface(const STestInterface& testInterface);
    /// The kernel notices a carrier after a while; until then the interface does not count as up.
    void WaitForCarrier(const QString& strName);
    /// Runs `ip` with arguments separated by blanks, unless something went wrong before.
    void Run(const QString& strCommand);

    int m_nOutside = -1; ///< file of the network where the thread came from
    QString m_strProblem;
};

#endif // TESTS_SUPPORT_NETWORKNAMESPACE_H
