#include "workbench/addresses/HandAddition.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"

#include <QCoreApplication>
#include <QNetworkInterface>

#include <algorithm>

namespace HandAddition {

namespace {

class CHandAdditionText
{
    Q_DECLARE_TR_FUNCTIONS(CHandAdditionText)
};

constexpr unsigned int c_nOctetEnd = 256; ///< first value beyond an octet
constexpr unsigned int c_nOctetMask = 255;
constexpr unsigned int c_nUpperOctets = 0xFFFF0000;

/// Largest number of addresses that the dialogs put into the list.
constexpr int c_nListLimit = 255;

/// The one detect strategy by which processors are found by address.
constexpr int c_nAddressStrategy = 2;

/// The base of the dialog's search: this computer's first IPv4 address, 127.0.0.1 only if it
/// has no other.
unsigned int Base()
{
    const QHostAddress addressLocal(QHostAddress::LocalHost);
    const QList<QHostAddress> listAddresses = QNetworkInterface::allAddresses();
    const auto itFirst = std::find_if(listAddresses.cbegin(), listAddresses.cend(),
                                      [&addressLocal](const QHostAddress& address) {
                                          return !(address == addressLocal) && address.toIPv4Address() != 0;
                                      });
    return (itFirst == listAddresses.cend() ? addressLocal : *itFirst).toIPv4Address();
}

} // namespace

QList<unsigned int> Candidates(unsigned int nBase)
{
    const unsigned int nThird = nBase >> 8 & c_nOctetMask;
    const unsigned int nLast = nBase & c_nOctetMask;
    QList<unsigned int> listCandidates;
    for (unsigned int nOctet = nLast + 1; nOctet < c_nOctetEnd; ++nOctet)
        listCandidates.append((nBase & c_nUpperOctets) | nThird << 8 | nOctet);
    const unsigned int nNextThird = nThird == c_nOctetMask ? 1 : nThird + 1;
    listCandidates.append((nBase & c_nUpperOctets) | nNextThird << 8 | (nLast + 1));
    return listCandidates;
}

QString Obstacle()
{
    CSimulator& simulator = CSimulator::Instance();
    const SAddressing& addressing = simulator.Project().addressing;
    if (!addressing.bIPAddressMode || addressing.nDetectStrategy != c_nAddressStrategy)
        return {};
    const int nListed = int(simulator.Project().addresses.listStored.size());
    if (nListed >= c_nListLimit)
        return CHandAdditionText::tr(
                   "地址列表已满（%1 个地址），无法再手动添加主控。\n请先删除不再使用的地址。")
            .arg(nListed);
    const unsigned int nBase = Base();
    const QList<unsigned int> listCandidates = Candidates(nBase);
    const bool bFree = std::any_of(listCandidates.cbegin(), listCandidates.cend(), [&](unsigned int nIP) {
        return simulator.Addresses().Judge(nIP) == enAddressGood;
    });
    return bFree ? QString()
                 : CHandAdditionText::tr("本机地址 %1 之后没有空闲的地址，无法手动添加主控。\n"
                                         "请先删除不再使用的地址，或检查本机的网络设置。")
                       .arg(AddressText(nBase));
}

} // namespace HandAddition
