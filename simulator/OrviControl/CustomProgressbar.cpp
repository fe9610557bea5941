#include "host/OrviControl/CustomProgressbar.h"

CCustomProgressbar::CCustomProgressbar(QWidget* pParent, bool bCancelable)
    : QProgressDialog(pParent)
{
    setRange(0, 100);
    setMinimumDuration(0);
    setAutoClose(false);
    setAutoReset(false);
    setWindowModality(Qt::WindowModal);
    if (!bCancelable)
        setCancelButton(nullptr);
}

CCustomProgressbar::~CCustomProgressbar() = default;

void CCustomProgressbar::SetProgressValue(int nValue)
{
    setValue(nValue);
}

void CCustomProgressbar::CloseProgress()
{
    reset();
    hide();
}

SProgressOwnerRecord& CCustomProgressbar::GetProgressOwnerRecord()
{
    return m_ownerRecord;
}
