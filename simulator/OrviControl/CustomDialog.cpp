#include "host/OrviControl/CustomDialog.h"

#include "simulator/OrviControl/Theme.h"

CCustomDialog::CCustomDialog(QWidget* pParent, bool bResizable)
    : QDialog(pParent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint, !bResizable);
    Theme::Apply(this);
}

CCustomDialog::~CCustomDialog() = default;
