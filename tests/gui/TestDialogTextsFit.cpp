#include "host/OrviControl/CustomComboBox.h"
#include "tests/gui/AllDialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

/// Room that a combo box keeps for its arrow, a button for its frame, and a check box for its mark, pixels.
constexpr int c_nArrowRoom = 25;
constexpr int c_nFrameRoom = 10;
constexpr int c_nMarkRoom = 20;

bool LabelFits(const QLabel& label)
{
    if (label.wordWrap())
        return label.heightForWidth(label.width()) <= label.height();
    return label.fontMetrics().horizontalAdvance(label.text()) <= label.width();
}

int RoomBesideText(const QAbstractButton& button)
{
    if (qobject_cast<const QCheckBox*>(&button) != nullptr)
        return c_nMarkRoom;
    return qobject_cast<const CCustomComboBox*>(&button) == nullptr ? c_nFrameRoom : c_nArrowRoom;
}

bool ButtonFits(const QAbstractButton& button)
{
    return button.fontMetrics().horizontalAdvance(button.text()) <= button.width() - RoomBesideText(button);
}

/// The texts that are cut, or that lie outside the window.
QStringList CutTexts(const QWidget& window)
{
    QStringList listCut;
    const auto Inside = [&window](const QWidget& widget) {
        return window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size()));
    };
    for (const QLabel* pLabel : window.findChildren<QLabel*>()) {
        if (pLabel->isVisible() && !(LabelFits(*pLabel) && Inside(*pLabel)))
            listCut.append(pLabel->text());
    }
    for (const QAbstractButton* pButton : window.findChildren<QAbstractButton*>()) {
        if (pButton->isVisible() && !(ButtonFits(*pButton) && Inside(*pButton)))
            listCut.append(pButton->text());
    }
    return listCut;
}

} // namespace

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
    QCOMPARE(CutTexts(*pDialog), QStringList());
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
