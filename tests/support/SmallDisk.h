#ifndef TESTS_SUPPORT_SMALLDISK_H
#define TESTS_SUPPORT_SMALLDISK_H

#include <QStringList>
#include <QTemporaryDir>

/// A disk of 64 KB for a test, which no other process sees. It vanishes with the object, or with the process.
///
/// Call `EnterOwnMounts` first thing in `main`, before any thread starts.
class CSmallDisk
{
public:
    /// Puts the process where it may mount disks that no other process sees.
    /// @return false when the system does not allow this
    static bool EnterOwnMounts();
    /// Prints why the test does not run.
    /// @return exit status that tells CTest that the test was skipped (property SKIP_RETURN_CODE)
    static int SayThatSkipped();

    CSmallDisk();
    ~CSmallDisk();
    CSmallDisk(const CSmallDisk&) = delete;
    CSmallDisk& operator=(const CSmallDisk&) = delete;

    bool IsMounted() const { return m_bMounted; }
    QString Path(const char* szFile) const;
    /// All files on the disk, hidden ones too.
    QStringList Files() const;
    /// Leaves no room: the file "filler" takes it.
    void Fill() const;

private:
    QTemporaryDir m_dir;
    bool m_bMounted;
};

#endif // TESTS_SUPPORT_SMALLDISK_H
