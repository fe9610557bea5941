#ifndef SENDERMODULEDIALOG_ADDRESSING_IPADDRESSRULES_H
#define SENDERMODULEDIALOG_ADDRESSING_IPADDRESSRULES_H

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <set>

/// The rules by which an address enters the host's list: what a verdict of the host means on each path of the
/// dialogs, and from which address of this computer a proposal starts. Values in, values out: the dialogs
/// show the result.
///
/// An address value has the first octet in the most significant byte, like `QHostAddress::toIPv4Address`.
namespace IPAddressRules {

/// Largest number of addresses in the host's list.
constexpr int c_nListLimit = 255;

/// The host's verdict: true on error, and then the code in `*pCode` unless it is null.
using FuncVerdict = std::function<bool(unsigned int nIP, unsigned int* pCode)>;

/// One of the validation paths of an address. They differ intentionally: hosts rely on each.
struct SPath
{
    bool bRefusesEmptyText;   ///< an empty text is unreasonable before the host is asked
    bool bRefusesDuplicates;  ///< equal texts are refused before the host is asked
    bool bKeepsOldAddress;    ///< an address in use is fine when it is the remembered old one
    bool bHeedsResult;        ///< the verdict's result decides; else the code alone is read
    bool bRefusesUnknownCode; ///< a code outside the table is unreasonable; else it is ignored
};

constexpr SPath c_pathCheckIPAddress = {true, false, false, true, true}; ///< processors added by hand
constexpr SPath c_pathCustomAdd = {true, false, true, true, true};       ///< start address of a batch
constexpr SPath c_pathModify = {true, false, true, true, true};          ///< a changed entry
constexpr SPath c_pathRows = {false, true, false, false, false};         ///< one address for each processor

/// What the operator is told. Texts are source texts in the context `CCustomDialog`.
struct SJudgement
{
    const char* szQuestion = nullptr; ///< asked first; anything but yes fails without a further message
    const char* szRefusal = nullptr;  ///< shown after the question; fails

    bool IsAccepted() const { return szQuestion == nullptr && szRefusal == nullptr; }
};

/// Judges the addresses of one confirmation.
/// @param path the validation path
/// @param listTexts the fields' texts as they stand
/// @param strOldAddress the remembered old address, compared as text; empty when there is none
/// @param funcVerdict the host's verdict
SJudgement Judge(const SPath& path, const QStringList& listTexts, const QString& strOldAddress,
                 const FuncVerdict& funcVerdict);

/// The address value of a field's text; 0 for a text that is not an IPv4 address.
unsigned int AddressValue(const QString& strText);

/// The dotted-decimal text of an address value.
QString AddressText(unsigned int nIP);

/// Networks of 24 bits, each as the value of its address 0.
using Networks = std::set<unsigned int>;

/// The networks of addresses that were detected, given with the first octet in the low byte.
Networks NetworksOf(const QList<unsigned int>& listDetected);

/// The address from which a proposal counts when nothing is known of the processors' networks: the first
/// local address that is IPv4 and not 127.0.0.1, else 127.0.0.1.
unsigned int FirstLocalAddress(const QList<QHostAddress>& listLocal);

/// The address from which a proposal counts when networks are known: the last local address in one of them,
/// else 127.0.0.1.
unsigned int LastLocalAddressIn(const Networks& networks, const QList<QHostAddress>& listLocal);

/// The two parts of a stored entry `address(name)`.
struct SEntry
{
    QString strAddress; ///< before the first "(", the whole entry when there is none
    QString strName;    ///< between the first "(" and the first ")"
};

/// Takes a stored entry apart.
SEntry SplitEntry(const QString& strEntry);

/// The entry with the name that an unnamed one is shown with: 192.168.1.17() gives 192.168.1.17(IP17).
QString EntryWithDefaultName(const QString& strEntry);

} // namespace IPAddressRules

#endif // SENDERMODULEDIALOG_ADDRESSING_IPADDRESSRULES_H
