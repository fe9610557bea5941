#ifndef WORKBENCH_RECENTFILES_H
#define WORKBENCH_RECENTFILES_H

#include <QStringList>

class QSettings;

/// The recent project files, latest first, stored in the program's settings.
class CRecentFiles
{
public:
    static constexpr int c_nMaxFiles = 8;

    explicit CRecentFiles(QSettings& settings);

    QStringList List() const;
    /// Moves a file to the front.
    void Note(const QString& strFile);
    /// Removes a file that could not be opened.
    void Forget(const QString& strFile);

private:
    void Store(const QStringList& listFiles);

    QSettings& m_settings;
};

#endif // WORKBENCH_RECENTFILES_H
