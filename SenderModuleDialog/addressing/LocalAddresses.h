#ifndef SENDERMODULEDIALOG_ADDRESSING_LOCALADDRESSES_H
#define SENDERMODULEDIALOG_ADDRESSING_LOCALADDRESSES_H

#include <QHostAddress>
#include <QList>

#include <functional>

/// The addresses of this computer, in the system's order.
namespace LocalAddresses {

/// Where the addresses come from.
using FuncSource = std::function<QList<QHostAddress>()>;

/// The addresses: those of `QNetworkInterface::allAddresses` unless another source was set.
QList<QHostAddress> All();

/// Replaces the source, so that a test does not depend on the machine; an empty one restores the system's.
void SetSource(FuncSource funcSource);

} // namespace LocalAddresses

#endif // SENDERMODULEDIALOG_ADDRESSING_LOCALADDRESSES_H
