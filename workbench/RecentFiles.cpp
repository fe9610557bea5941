#include "workbench/RecentFiles.h"

#include <QDir>
#include <QSettings>

namespace {

const QString c_strKey = QStringLiteral("recentFiles");

QString Absolute(const QString& strFile)
{
    return QDir::cleanPath(QDir().absoluteFilePath(strFile));
}

} // namespace

CRecentFiles::CRecentFiles(QSettings& settings)
    : m_settings(settings)
{}

QStringList CRecentFiles::List() const
{
    return m_settings.value(c_strKey).toStringList();
}

void CRecentFiles::Note(const QString& strFile)
{
    QStringList listFiles = List();
    listFiles.removeAll(Absolute(strFile));
    listFiles.prepend(Absolute(strFile));
    Store(listFiles.mid(0, c_nMaxFiles));
}

void CRecentFiles::Forget(const QString& strFile)
{
    QStringList listFiles = List();
    listFiles.removeAll(Absolute(strFile));
    Store(listFiles);
}

void CRecentFiles::Store(const QStringList& listFiles)
{
    m_settings.setValue(c_strKey, listFiles);
}
