#ifndef HOST_TEVRADATA_CONSTANTDATA_H
#define HOST_TEVRADATA_CONSTANTDATA_H

#include "host/HostExport.h"

#include <QString>

/// Fixed places of the host's installation. All calls come from the GUI thread.
class CConstantData
{
public:
    virtual ~CConstantData() = default;

    /// Directory that holds the stored background pictures.
    virtual QString GetBKImagePath() = 0;
    /// Path of a sender's stored background picture. The file need not exist.
    /// @param nSender index of the sender
    /// @param bFullPath the library passes true
    virtual QString GetSenderBKImgName(int nSender, bool bFullPath) = 0;
};

/// The host's constants; the object outlives every dialog.
TEVRADATA_EXPORT CConstantData* GetConstantData();

#endif // HOST_TEVRADATA_CONSTANTDATA_H
