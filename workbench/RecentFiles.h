#ifndef WORKBENCH_RECENTFILES_H
#define WORKBENCH_RECENTFILES_H

#include <QStringList>

class QSettings;

/// The project files that were used last, latest first, kept in the program's settings.
class CRecentFiles
{
public:
    static constexpr int c_nMaxFiles = 8;

    explicit CRecentFiles(QSettings& settings);

    QStringList List() const;
    /// Puts a file at the head.
    void Note(const QString& strFile);
    /// Forgets a file that could not be opened.
    void Forget(const QString& strFile);

private:
    void Store(const QStringList& listFiles);

    QSettings& m_settings;
};

#endif // WORKBENCH_RECENTFILES_H
