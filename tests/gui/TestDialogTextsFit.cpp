#include "tests/gui/AllDialogs.h"
#include "tests/support/CutTexts.h"

#include <QtTest>

/// No dialog can grow, so its texts must fit as they are, in Chinese and in the library's English.
class TestDialogTextsFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NoDialogIsResizable_data();
    void NoDialogIsResizable();
    void NoTextIsCut_data();
    void NoTextIsCut();
};

void TestDialogTextsFit::NoTextIsCut_data()
{
    QTest::addColumn<AllDialogs::FuncMake>("funcMake");
    QTest::addColumn<bool>("bEnglish");
    for (const auto& [szName, funcMake] : AllDialogs::Variants()) {
        QTest::addRow("%s, Chinese", szName) << funcMake << false;
        QTest::addRow("%s, English", szName) << funcMake << true;
    }
}

void TestDialogTextsFit::NoTextIsCut()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    QFETCH(bool, bEnglish);
    QTranslator translator;
    if (bEnglish) {
        QVERIFY(translator.load(QStringLiteral(SENDER_ENGLISH_FILE)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    pDialog->show();
    QCOMPARE(CutTexts::Of(*pDialog), QStringList());
}

void TestDialogTextsFit::NoDialogIsResizable_data()
{
    QTest::addColumn<AllDialogs::FuncMake>("funcMake");
    for (const auto& [szName, funcMake] : AllDialogs::Variants())
        QTest::newRow(szName) << funcMake;
}

void TestDialogTextsFit::NoDialogIsResizable()
{
    QFETCH(AllDialogs::FuncMake, funcMake);
    CRecordingHost host;
    const std::unique_ptr<QDialog> pDialog = funcMake(host);
    QVERIFY(pDialog->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QCOMPARE(pDialog->minimumSize(), pDialog->maximumSize());
}

QTEST_MAIN(TestDialogTextsFit)
#include "TestDialogTextsFit.moc"
