#include "workbench/edid/EdidSources.h"

#include "instruments/edid/Reading.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace EdidSources {

namespace {

class CEdidSources
{
    Q_DECLARE_TR_FUNCTIONS(CEdidSources)
};

SEdidSource Failed(const QString& strError)
{
    return {{}, strError};
}

/// Of several displays each has its name; a single one is called as its source is.
SEdidSource Contents(const Edid::SReading& reading, enEdidOrigin origin, const QString& strName)
{
    SEdidSource source;
    const bool bSeveral = reading.vecEdids.size() > 1;
    for (const Edid::SNamedEdid& named : reading.vecEdids) {
        QStringList listNames;
        for (const QString& strPart : {strName, bSeveral ? named.strName : QString()})
            if (!strPart.isEmpty())
                listNames += strPart;
        source.vecContents.append({named.bytes, origin, listNames.join(QStringLiteral(": ")), false});
    }
    return source;
}

} // namespace

SEdidSource FromFile(const QString& strFile)
{
    QFile file(strFile);
    const QString strShown = QDir::toNativeSeparators(strFile);
    if (!QFileInfo(strFile).isFile())
        return Failed(CEdidSources::tr("%1 不是文件。请选择一个 EDID 文件。").arg(strShown));
    if (!file.open(QIODevice::ReadOnly))
        return Failed(CEdidSources::tr("无法打开 %1：%2。请检查权限。").arg(strShown, file.errorString()));
    const Edid::SReading reading = Edid::Read(file.read(Edid::c_nMaxText + 1));
    if (!reading.IsRead())
        return Failed(CEdidSources::tr("无法读取 %1：%2。").arg(strShown, reading.ErrorText()));
    return Contents(reading, enEdidOrigin::enFile, QFileInfo(strFile).fileName());
}

SEdidSource FromText(const QString& strText)
{
    if (strText.trimmed().isEmpty())
        return Failed(CEdidSources::tr("剪贴板中没有文本。请先复制 EDID 的十六进制文本。"));
    const Edid::SReading reading = Edid::Read(strText.left(Edid::c_nMaxText + 1).toUtf8());
    if (!reading.IsRead())
        return Failed(CEdidSources::tr("文本不是 EDID：%1。").arg(reading.ErrorText()));
    return Contents(reading, enEdidOrigin::enPasted, QString());
}

bool CanRead(const QMimeData& data)
{
    return data.hasUrls() ? data.urls().constFirst().isLocalFile() : data.hasText();
}

SEdidSource FromMime(const QMimeData& data)
{
    return data.hasUrls() ? FromFile(data.urls().constFirst().toLocalFile()) : FromText(data.text());
}

} // namespace EdidSources
