#ifndef HOST_ORVICONTROL_CUSTOMDIALOG_H
#define HOST_ORVICONTROL_CUSTOMDIALOG_H

#include "host/HostExport.h"

#include <QDialog>

/// Base of every dialog: a `QDialog` with the host's look. Its meta-object is the translation context of all
/// texts of the library: they are looked up with `CCustomDialog::tr`.
///
/// A dialog of the library belongs to its parent or to whoever made it, lives on the GUI thread, and owns its
/// controls. It is made after `SenderModuleDialogInit`, shown with `exec()`, read, and deleted.
class ORVICONTROL_EXPORT CCustomDialog : public QDialog
{
    Q_OBJECT

public:
    /// An empty dialog of the host's look.
    /// @param pParent owner of the dialog; may be null
    /// @param bResizable the library passes false
    CCustomDialog(QWidget* pParent, bool bResizable);
    ~CCustomDialog() override;
};

#endif // HOST_ORVICONTROL_CUSTOMDIALOG_H
