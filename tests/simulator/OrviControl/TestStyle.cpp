#include "host/OrviControl/Style.h"

#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"

#include <QDoubleSpinBox>
#include <QFontInfo>
#include <QPainter>
#include <QRawFont>
#include <QTextOption>
#include <QtTest>

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFontFamilyHasLatinAndChineseGlyphs();
    void AControlCharacterIsEmptyAndHasNoWidth_data();
    void AControlCharacterIsEmptyAndHasNoWidth();
    void ALineIsNoHigherForItsControlCharacters();
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

namespace {

/// A text in the host's font, drawn into a box as the chart does.
QImage Drawn(const QFont& font, const QString& strText)
{
    QImage image(800, 250, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(image.rect()), strText, QTextOption());
    return image;
}

} // namespace

void TestStyle::AControlCharacterIsEmptyAndHasNoWidth_data()
{
    QTest::addColumn<QChar>("ch");
    constexpr QChar c_chVariant(0x9C); // separates the variants of a text in Qt
    for (ushort nCode = 1; nCode < 0xA0; ++nCode) {
        const QChar ch(nCode);
        if (ch.category() == QChar::Other_Control && !ch.isSpace() && ch != c_chVariant)
            QTest::addRow("U+%04X", nCode) << ch;
    }
}

void TestStyle::AControlCharacterIsEmptyAndHasNoWidth()
{
    QFETCH(QChar, ch);
    QFont font(GetFontFamily());
    // Each character has its own size, so that fallbacks which a font has already loaded do not matter.
    font.setPixelSize(10 + ch.unicode());
    const QString strFill(97, ch);
    QCOMPARE(QFontMetricsF(font).horizontalAdvance(strFill), 0.0);
    const QImage imagePlain = Drawn(font, QStringLiteral("5001K"));
    QVERIFY(imagePlain != Drawn(font, QString()));
    QCOMPARE(Drawn(font, strFill + QStringLiteral("5001K")), imagePlain);
}

void TestStyle::ALineIsNoHigherForItsControlCharacters()
{
    const QFontMetrics metrics(QFont(GetFontFamily(), 11));
    QCOMPARE(metrics.boundingRect(QRect(), 0, QStringLiteral("\u0002K")).height(),
             metrics.boundingRect(QRect(), 0, QStringLiteral("K")).height());
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
