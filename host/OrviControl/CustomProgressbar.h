#ifndef HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H
#define HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H

#include "host/HostExport.h"

#include <QProgressDialog>

/// Who runs a progress dialog.
struct SProgressOwnerRecord
{
    QWidget* pOwner = nullptr; ///< the dialog that the progress belongs to
};

/// A progress dialog from 0 to 100 in the host's look. It is for work that blocks the GUI thread: each step
/// shows at once, and until `CloseProgress` no other window of the program takes input.
class ORVICONTROL_EXPORT CCustomProgressbar : public QProgressDialog
{
    Q_OBJECT

public:
    /// @param bCancelable a cancel button is shown; the library passes false
    CCustomProgressbar(QWidget* pParent, bool bCancelable);
    ~CCustomProgressbar() override;

    /// Shows the progress, and the dialog if it is not on the screen yet. What the operator typed and clicked
    /// meanwhile is taken off the queue here, and reaches no other window.
    /// @param nValue per cent
    virtual void SetProgressValue(int nValue);
    /// Ends the progress and hides the dialog.
    virtual void CloseProgress();
    /// The record whose owner field the caller sets to itself.
    virtual SProgressOwnerRecord& GetProgressOwnerRecord();

protected:
    /// Esc hides only a dialog with a cancel button: the work goes on either way.
    void keyPressEvent(QKeyEvent* pEvent) override;
    /// Refused without a cancel button.
    void closeEvent(QCloseEvent* pEvent) override;

private:
    const bool m_bCancelable;
    SProgressOwnerRecord m_ownerRecord;
};

#endif // HOST_ORVICONTROL_CUSTOMPROGRESSBAR_H
