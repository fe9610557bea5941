// What every change does: the picture goes to its place, its settings to the sender's record.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/BackgroundRules.h"

#include <QDir>
#include <QFile>

/// Saves and announces. The host is told also when there was nothing to save.
void CBackgroundImageDlg::RefreshView(bool bImageChanged)
{
    if (m_bRefreshing)
        return;
    const QDir dirImages(HostAccess::ConstantData().GetBKImagePath());
    if (!dirImages.exists())
        dirImages.mkpath(QStringLiteral("."));
    if (QFile::exists(m_strImagePath))
        StorePicture();
    HostAccess::Label().PostLabelEvent(bImageChanged ? enPictureChanged : enPictureViewChanged, 1, 0, 0);
}

/// The record is cleared first and filled last: while the picture is not in place the sender has none.
void CBackgroundImageDlg::StorePicture()
{
    const QString strStored = HostAccess::CurrentPicturePath();
    CSender& sender = HostAccess::CurrentSender();
    sender.BkImageAlpha = 0;
    sender.BkImageEnable = false;
    sender.BkImageFit = 0;
    if (!BackgroundRules::IsSameFile(m_strImagePath, strStored)) {
        QFile::remove(strStored);
        if (!QFile::copy(m_strImagePath, strStored))
            return;
    }
    sender.BkImageAlpha = BackgroundRules::AlphaByte(m_nAlpha);
    sender.BkImageEnable = m_bEnable;
    sender.BkImageFit = m_nFit != 0 ? 1 : 0;
}
