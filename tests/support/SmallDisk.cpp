#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QFile>

#include <cstdio>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

constexpr int c_nSkipped = 77;
constexpr char c_szOptions[] = "size=64k,mode=777";

bool WriteText(const char* szFile, const QByteArray& baText)
{
    QFile file(QString::fromLatin1(szFile));
    return file.open(QIODevice::WriteOnly) && file.write(baText) == baText.size() && file.flush();
}

bool Mount(const char* szWhat, const char* szWhere, const char* szType, unsigned long nFlags,
           const char* szOptions)
{
    return mount(szWhat, szWhere, szType, nFlags, szOptions) == 0;
}

/// Without the rights of root, a user of its own who has them in the process's own mounts.
bool EnterAsOwnUser()
{
    const QByteArray baUser = QByteArray::number(getuid());
    const QByteArray baGroup = QByteArray::number(getgid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && WriteText("/proc/self/setgroups", "deny") &&
           WriteText("/proc/self/uid_map", "0 " + baUser + " 1") &&
           WriteText("/proc/self/gid_map", "0 " + baGroup + " 1");
}

} // namespace

bool CSmallDisk::EnterOwnMounts()
{
    return (unshare(CLONE_NEWNS) == 0 || EnterAsOwnUser()) &&
           Mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
}

int CSmallDisk::SayThatSkipped()
{
    std::printf("skipped: this system lets no process mount a disk of its own\n");
    return c_nSkipped;
}

CSmallDisk::CSmallDisk()
    : m_bMounted(Mount("tmpfs", QFile::encodeName(m_dir.path()).constData(), "tmpfs", 0, c_szOptions))
{}

CSmallDisk::~CSmallDisk()
{
    if (m_bMounted)
        umount2(QFile::encodeName(m_dir.path()).constData(), MNT_DETACH);
}

QString CSmallDisk::Path(const char* szFile) const
{
    return m_dir.filePath(QString::fromUtf8(szFile));
}

QStringList CSmallDisk::Files() const
{
    return QDir(m_dir.path()).entryList(QDir::Files | QDir::Hidden);
}

void CSmallDisk::Fill() const
{
    constexpr int c_nBlock = 4096;
    const QByteArray baBlock(c_nBlock, 'x');
    QFile file(Path("filler"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return;
    while (file.write(baBlock) == baBlock.size()) {}
}
