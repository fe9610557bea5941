#include "host/OrviControl/CustomDialog.h"

CCustomDialog::CCustomDialog(QWidget* pParent, bool bResizable)
    : QDialog(pParent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint, !bResizable);
    setStyleSheet(QStringLiteral("CCustomDialog{background:rgb(45,45,45);}"));
}

CCustomDialog::~CCustomDialog() = default;
