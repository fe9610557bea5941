#include <QtTest>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

QString L(const char* szText)
{
    return QString::fromLatin1(szText);
}

/// The lines of a build file that name a package, target or command of one Qt alone, as `number: line`.
QStringList LinesWithAVersion(const QString& strText)
{
    // A word of CMake begins with the version: Qt5, Qt6::Core, qt5_add_resources, Qt5_DIR.
    static const QRegularExpression s_version(L("(^|[^A-Za-z0-9_])[Qq][Tt][56]"));
    const QStringList listLines = strText.split(QLatin1Char('\n'));
    QStringList listFound;
    for (int i = 0; i < int(listLines.size()); ++i) {
        const QString strCode = listLines[i].section(QLatin1Char('#'), 0, 0);
        if (s_version.match(strCode).hasMatch())
            listFound.append(L("%1: %2").arg(i + 1).arg(strCode.trimmed()));
    }
    return listFound;
}

/// The package of Qt 5 is wrapped there for the other processor.
bool IsOfOneVersion(const QString& strPath)
{
    return strPath.startsWith(L("cmake/aarch64/"));
}

/// The paths of the build files in a folder, below the root of the sources.
QStringList BuildFilesIn(const QString& strFolder, QDirIterator::IteratorFlags flags)
{
    const QDir dirRoot(L(SENDER_SOURCE_DIR));
    QStringList listFiles;
    QDirIterator itFile(dirRoot.filePath(strFolder), {L("CMakeLists.txt"), L("*.cmake"), L("*.cmake.in")},
                        QDir::Files, flags);
    while (itFile.hasNext())
        listFiles.append(dirRoot.relativeFilePath(itFile.next()));
    return listFiles;
}

QStringList BuildFiles()
{
    QStringList listFiles = BuildFilesIn(L("."), QDirIterator::NoIteratorFlags);
    for (const QString& strFolder : QDir(L(SENDER_SOURCE_DIR)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        // What a build makes is no source.
        if (strFolder != L("build") && strFolder != L("out"))
            listFiles += BuildFilesIn(strFolder, QDirIterator::Subdirectories);
    }
    return listFiles;
}

} // namespace

/// The same build files serve Qt 5 and Qt 6: they name packages and targets by the version that was chosen,
/// as in `Qt${SENDER_QT}::Widgets`.
class TestBuildNamesNoQtVersion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryBuildFileServesBothVersions();
    void AVersionIsNoticed_data();
    void AVersionIsNoticed();
    void TheChosenVersionIsAllowed_data();
    void TheChosenVersionIsAllowed();
};

void TestBuildNamesNoQtVersion::EveryBuildFileServesBothVersions()
{
    const QStringList listFiles = BuildFiles();
    QVERIFY(listFiles.size() > 20);
    QStringList listComplaints;
    for (const QString& strPath : listFiles) {
        if (IsOfOneVersion(strPath))
            continue;
        QFile file(QDir(L(SENDER_SOURCE_DIR)).filePath(strPath));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(strPath));
        for (const QString& strLine : LinesWithAVersion(QString::fromUtf8(file.readAll())))
            listComplaints.append(L("%1:%2").arg(strPath, strLine));
    }
    QVERIFY2(listComplaints.isEmpty(), qPrintable(listComplaints.join(QLatin1Char('\n'))));
}

void TestBuildNamesNoQtVersion::AVersionIsNoticed_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("a target") << "target_link_libraries(page PRIVATE Qt5::Widgets)";
    QTest::newRow("a target of Qt 6") << "target_link_libraries(page PRIVATE Qt6::Widgets)";
    QTest::newRow("a target in quotes") << "set(LIBRARIES \"Qt5::Widgets\")";
    QTest::newRow("a package") << "find_package(Qt5 REQUIRED COMPONENTS Core)";
    QTest::newRow("a package with a module") << "find_package(Qt5Test REQUIRED)";
    QTest::newRow("a package with blanks") << "  FIND_PACKAGE ( Qt5 )";
    QTest::newRow("a command") << "qt5_add_resources(SOURCES icon.qrc)";
    QTest::newRow("a variable of a package") << "include_directories(${Qt5Core_INCLUDE_DIRS})";
    QTest::newRow("a line further down") << "find_package(Threads)\nfind_package(Qt5)";
}

void TestBuildNamesNoQtVersion::AVersionIsNoticed()
{
    QFETCH(QString, line);
    QCOMPARE(int(LinesWithAVersion(line).size()), 1);
}

void TestBuildNamesNoQtVersion::TheChosenVersionIsAllowed_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("a target") << "target_link_libraries(page PRIVATE Qt${SENDER_QT}::Widgets)";
    QTest::newRow("a package") << "find_package(Qt${SENDER_QT} ${SENDER_QT_VERSION} REQUIRED)";
    QTest::newRow("what each version needs") << "set(SENDER_QT5_VERSION 5.15)";
    QTest::newRow("a remark") << "link() # Qt5::Core has it already";
}

void TestBuildNamesNoQtVersion::TheChosenVersionIsAllowed()
{
    QFETCH(QString, line);
    QVERIFY(LinesWithAVersion(line).isEmpty());
}

QTEST_APPLESS_MAIN(TestBuildNamesNoQtVersion)
#include "TestBuildNamesNoQtVersion.moc"
