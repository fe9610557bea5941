#ifndef HOST_ORVICONTROL_CUSTOMDIALOG_H
#define HOST_ORVICONTROL_CUSTOMDIALOG_H

#include "host/HostExport.h"

#include <QDialog>

/// Base of every dialog: a `QDialog` with the host's look. Its meta-object is the translation context of all
/// texts of the library: they are looked up with `CCustomDialog::tr`.
class ORVICONTROL_EXPORT CCustomDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param bResizable the library passes false
    CCustomDialog(QWidget* pParent, bool bResizable);
    ~CCustomDialog() override;
};

#endif // HOST_ORVICONTROL_CUSTOMDIALOG_H
