#include "host/OrviControl/Style.h"

#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"

#include <QDoubleSpinBox>
#include <QFontInfo>
#include <QRawFont>
#include <QtTest>

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFontFamilyHasLatinAndChineseGlyphs();
    void TheStyleSheetBeginsWithTheStyleAndNamesTheFont();
    void NoColourNameIsLeftInAStyle_data();
    void NoColourNameIsLeftInAStyle();
    void AStyledLabelHasTheFontSizeOfTheSheet();
    void AMisspeltSelectorLeavesTheColoursInForce();
    void ADialogIsDark();
};

void TestStyle::TheFontFamilyHasLatinAndChineseGlyphs()
{
    QFont font(GetFontFamily());
    font.setPixelSize(12);
    QCOMPARE(QFontInfo(font).family(), GetFontFamily());
    const QRawFont raw = QRawFont::fromFont(font);
    QVERIFY(raw.supportsCharacter(QLatin1Char('A')));
    QVERIFY(raw.supportsCharacter(QChar(0x753b)));
    QVERIFY(raw.supportsCharacter(QChar(0x00d7)));
}

void TestStyle::TheStyleSheetBeginsWithTheStyleAndNamesTheFont()
{
    const QString strSheet =
        GetFontStyleSheet(QStringLiteral("QLabel{color:white;}"), QStringLiteral("QLabel"), 12);
    QVERIFY(strSheet.startsWith(QStringLiteral("QLabel{color:white;}")));
    QVERIFY(strSheet.contains(GetFontFamily()));
    QVERIFY(strSheet.contains(QStringLiteral("12px")));
}

void TestStyle::NoColourNameIsLeftInAStyle_data()
{
    QTest::addColumn<QString>("strStyle");
    QTest::newRow("caption label") << g_labelNoFrameStyle;
    QTest::newRow("warning label") << g_labelWarnStyle;
    QTest::newRow("push button") << g_pushButtonStyle;
    QTest::newRow("menu") << g_menuStyle;
    QTest::newRow("check box") << g_checkBoxStyle;
    QTest::newRow("spin box") << g_doubleSpinBoxStyle;
}

void TestStyle::NoColourNameIsLeftInAStyle()
{
    QFETCH(QString, strStyle);
    QVERIFY(!strStyle.isEmpty());
    QVERIFY(!strStyle.contains(QLatin1Char('@')));
    QCOMPARE(strStyle.count(QLatin1Char('{')), strStyle.count(QLatin1Char('}')));
}

void TestStyle::AStyledLabelHasTheFontSizeOfTheSheet()
{
    CCustomLabel label(QStringLiteral("x"));
    label.setStyleSheet(GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
    label.ensurePolished();
    QCOMPARE(QFontInfo(label.font()).pixelSize(), 12);
    QCOMPARE(label.font().family(), GetFontFamily());
}

void TestStyle::AMisspeltSelectorLeavesTheColoursInForce()
{
    CCustomDialog dialog(nullptr, false);
    QDoubleSpinBox box(&dialog);
    box.setStyleSheet(GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QSpinxBox"), 12));
    box.setFixedSize(90, 24);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint ptBehindTheText(60, 12);
    QCOMPARE(box.grab().toImage().pixelColor(ptBehindTheText), QColor(31, 31, 31));
    QCOMPARE(box.font().family(), GetFontFamily());
}

void TestStyle::ADialogIsDark()
{
    CCustomDialog dialog(nullptr, true);
    dialog.resize(20, 20);
    QCOMPARE(dialog.grab().toImage().pixelColor(10, 10), QColor(45, 45, 45));
    QCOMPARE(dialog.palette().color(QPalette::WindowText), QColor(Qt::white));
}

QTEST_MAIN(TestStyle)
#include "TestStyle.moc"
