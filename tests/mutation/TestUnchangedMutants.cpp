#include <QFile>
#include <QtTest>

namespace {

constexpr int c_nParts = 4; ///< of an entry: file, line before, line after, reason

QDir Root()
{
    return QDir(QStringLiteral(SENDER_SOURCE_DIR));
}

QStringList LinesOf(const QString& strFile)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList listLines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (QString& strLine : listLines)
        strLine = strLine.trimmed();
    return listLines;
}

/// The entries of the list of changes that change nothing.
QStringList Entries()
{
    const QString strList = Root().filePath(QStringLiteral("tests/mutation/unchanged.txt"));
    return LinesOf(strList).filter(QRegularExpression(QStringLiteral("^[^#]")));
}

} // namespace

class TestUnchangedMutants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachEntryNamesALineOfTheProgram_data();
    void EachEntryNamesALineOfTheProgram();
};

void TestUnchangedMutants::EachEntryNamesALineOfTheProgram_data()
{
    QTest::addColumn<QString>("strEntry");
    const QStringList listEntries = Entries();
    QVERIFY(!listEntries.isEmpty());
    for (int i = 0; i < listEntries.size(); ++i)
        QTest::addRow("entry %d", i + 1) << listEntries[i];
}

void TestUnchangedMutants::EachEntryNamesALineOfTheProgram()
{
    QFETCH(const QString, strEntry);
    const QStringList listParts = strEntry.split(QLatin1Char('\t'));
    QCOMPARE(listParts.size(), c_nParts);
    QVERIFY2(LinesOf(Root().filePath(listParts[0])).contains(listParts[1]), qPrintable(strEntry));
    QVERIFY2(listParts[1] != listParts[2], "the change is none");
    QVERIFY2(!listParts[3].isEmpty(), "no reason is given");
}

QTEST_APPLESS_MAIN(TestUnchangedMutants)
#include "TestUnchangedMutants.moc"
