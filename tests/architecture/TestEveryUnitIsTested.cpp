#include <QtTest>

#include <QDir>
#include <QDirIterator>

namespace {

/// A unit that is tested under another name.
struct SException
{
    const char* szUnit; ///< its path below the library, without extension
    const char* szReason;
};

constexpr SException c_arrExceptions[] = {
    {"chart/bitmap/ChromaBitmapRow", "TestChromaBitmapPainter paints by each instruction set"},
};

QString L(const char* szText)
{
    return QString::fromLatin1(szText);
}

QStringList BaseNames(const QStringList& listFiles, const QString& strSuffix)
{
    QStringList listNames;
    for (const QString& strFile : listFiles)
        if (strFile.endsWith(strSuffix))
            listNames.append(strFile.chopped(strSuffix.size()));
    return listNames;
}

/// The unit that a source or a test belongs to: the longest name of a header that its own begins with.
QString UnitOf(const QString& strName, const QStringList& listHeaders)
{
    QString strUnit;
    for (const QString& strHeader : listHeaders)
        if (strName.startsWith(strHeader) && strHeader.size() > strUnit.size())
            strUnit = strHeader;
    return strUnit;
}

/// The units of a folder that have a source but no test. A source without any header stands for itself.
QStringList Untested(const QStringList& listFiles, const QStringList& listTests)
{
    const QStringList listHeaders = BaseNames(listFiles, L(".h"));
    QStringList listTested;
    for (const QString& strTest : BaseNames(listTests, L(".cpp")))
        if (strTest.startsWith(L("Test")))
            listTested.append(UnitOf(strTest.mid(4), listHeaders));
    QStringList listUntested;
    for (const QString& strSource : BaseNames(listFiles, L(".cpp"))) {
        const QString strUnit = UnitOf(strSource, listHeaders);
        if (strUnit.isEmpty() || !listTested.contains(strUnit))
            listUntested.append(strUnit.isEmpty() ? strSource : strUnit);
    }
    listUntested.removeDuplicates();
    return listUntested;
}

QStringList FilesOf(const QString& strFolder)
{
    return QDir(QDir(L(SENDER_SOURCE_DIR)).filePath(strFolder)).entryList(QDir::Files, QDir::Name);
}

/// The folders of the library as paths below it; empty for the module frame.
QStringList Folders()
{
    const QDir dirLibrary(QDir(L(SENDER_SOURCE_DIR)).filePath(L("SenderModuleDialog")));
    QStringList listFolders = {QString()};
    QDirIterator itFolder(dirLibrary.path(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (itFolder.hasNext())
        listFolders.append(dirLibrary.relativeFilePath(itFolder.next()));
    return listFolders;
}

/// The paths of all units without a test, below the library.
QStringList UntestedUnits()
{
    QStringList listPaths;
    for (const QString& strFolder : Folders()) {
        const QString strTests = strFolder.isEmpty() ? L("frame") : strFolder;
        const QStringList listUnits =
            Untested(FilesOf(L("SenderModuleDialog/") + strFolder), FilesOf(L("tests/") + strTests));
        for (const QString& strUnit : listUnits)
            listPaths.append(strFolder.isEmpty() ? strUnit : strFolder + QLatin1Char('/') + strUnit);
    }
    return listPaths;
}

} // namespace

/// Each unit of the library has a test of its name, in the folder of the same name below `tests/`: of
/// `edid/EdidLimit.cpp` it is `TestEdidLimit.cpp`. A unit with several sources or several tests adds a word
/// to its name: `EdidSetDlgCommit.cpp`, `TestEdidSetDlgMenus.cpp`.
class TestEveryUnitIsTested : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachUnitHasATestOfItsName();
    void EachExceptionIsNeeded();
    void AMissingTestIsNoticed_data();
    void AMissingTestIsNoticed();
};

void TestEveryUnitIsTested::EachUnitHasATestOfItsName()
{
    QVERIFY(Folders().size() >= 9);
    QStringList listUntested = UntestedUnits();
    for (const SException& exception : c_arrExceptions)
        listUntested.removeAll(L(exception.szUnit));
    QCOMPARE(listUntested, QStringList());
}

void TestEveryUnitIsTested::EachExceptionIsNeeded()
{
    const QStringList listUntested = UntestedUnits();
    for (const SException& exception : c_arrExceptions)
        QVERIFY2(listUntested.contains(L(exception.szUnit)), exception.szUnit);
}

void TestEveryUnitIsTested::AMissingTestIsNoticed_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("tests");
    QTest::addColumn<QStringList>("expected");
    const QStringList listUnit = {L("Line.cpp"), L("Line.h")};
    QTest::newRow("a test of the name") << listUnit << QStringList{L("TestLine.cpp")} << QStringList();
    QTest::newRow("a test of the name and a word")
        << listUnit << QStringList{L("TestLineCrossing.cpp")} << QStringList();
    QTest::newRow("no test") << listUnit << QStringList() << QStringList{L("Line")};
    QTest::newRow("another test") << listUnit << QStringList{L("TestPolygon.cpp")} << QStringList{L("Line")};
    QTest::newRow("the test of a unit whose name begins alike")
        << listUnit + QStringList{L("LineStyle.h")} << QStringList{L("TestLineStyle.cpp")}
        << QStringList{L("Line")};
    QTest::newRow("a second source belongs to its unit")
        << listUnit + QStringList{L("LineFit.cpp")} << QStringList{L("TestLine.cpp")} << QStringList();
    QTest::newRow("a header alone needs no test")
        << QStringList{L("Saturate.h")} << QStringList() << QStringList();
    QTest::newRow("a source without a header")
        << QStringList{L("Line.cpp")} << QStringList() << QStringList{L("Line")};
}

void TestEveryUnitIsTested::AMissingTestIsNoticed()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, tests);
    QTEST(Untested(files, tests), "expected");
}

QTEST_APPLESS_MAIN(TestEveryUnitIsTested)
#include "TestEveryUnitIsTested.moc"
