#ifndef HOST_TEVRADATA_CONFIGDATA_H
#define HOST_TEVRADATA_CONFIGDATA_H

#include "host/HostExport.h"

#include <QString>
#include <QStringList>

/// The host's configuration: above all the list of specified processor addresses.
///
/// An address is an `unsigned int` with the first octet in the most significant byte. A list entry is the
/// text `address(name)`, where the name may be empty. All calls come from the GUI thread.
class CConfigData
{
public:
    virtual ~CConfigData() = default;

    /// Judges an address.
    /// @param nIP the address
    /// @param pError may be null; on error takes the code, an `enAddressVerdict`. Without an error it must
    ///               not end up holding one of these codes
    /// @param bReserved every caller passes false
    /// @return true on error
    virtual bool IsIPHasError(unsigned int nIP, unsigned int* pError, bool bReserved) = 0;
    /// Refreshes what `IsIPHasError` tests against.
    virtual void UpdateErrorIPList() = 0;
    /// The strategy by which processors are found; only the value 2 is told apart.
    virtual int GetDetectStrategy() = 0;
    /// Number of addresses in the list.
    /// @param pList the library passes null
    virtual int GetSpecifiedIPDWORD(unsigned int* pList) = 0;
    /// The list as texts.
    virtual void GetSpecifiedIPs(QStringList& listIP) = 0;
    /// Appends an entry. `IsIPHasError` must see the new address at once.
    virtual void AddSpecifiedIP(QString strIP, QString strName) = 0;
    /// Makes the list permanent.
    virtual void SpecifiedIPsSave() = 0;
    /// Entry of the list that is being set.
    virtual QString GetCurSetSpecifiedIPWithIndex(int nIndex) = 0;
    /// Entry of the list as it was first stored.
    virtual QString GetSpecifiedIPOriginal(int nIndex) = 0;
    /// Entry with the name that the host shows for it.
    virtual QString GetSpecifiedIPWithName(int nIndex) = 0;
    /// Replaces an entry of the list that is being set.
    virtual void SetCurSetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) = 0;
    /// Replaces an entry of the stored list.
    virtual void SetSpecifiedIPWithIndex(int nIndex, QString strIP, QString strName) = 0;
};

/// The host's configuration; the object outlives every dialog.
TEVRADATA_EXPORT CConfigData* GetConfigData();

#endif // HOST_TEVRADATA_CONFIGDATA_H
