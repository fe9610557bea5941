#ifndef HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H
#define HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H

#include "host/HostExport.h"

#include <QProgressDialog>

/// Who runs a progress dialog.
struct SProgressOwnerRecord
{
    QWidget* pOwner = nullptr; ///< the dialog that the progress belongs to
};

/// A progress dialog from 0 to 100 in the host's look.
class ORVICONTROL_EXPORT CCustomProgressbar : public QProgressDialog
{
    Q_OBJECT

public:
    /// @param bCancelable a cancel button is shown; the library passes false
    CCustomProgressbar(QWidget* pParent, bool bCancelable);
    ~CCustomProgressbar() override;

    /// Shows the progress.
    /// @param nValue per cent
    virtual void SetProgressValue(int nValue);
    /// Ends the progress and hides the dialog.
    virtual void CloseProgress();
    /// The record whose owner field the caller sets to itself.
    virtual SProgressOwnerRecord& GetProgressOwnerRecord();

private:
    SProgressOwnerRecord m_ownerRecord;
};

#endif // HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H
