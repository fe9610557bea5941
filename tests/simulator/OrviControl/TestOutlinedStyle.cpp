#include "simulator/OrviControl/Theme.h"

#include <QStyle>
#include <QtTest>

#include <memory>

class TestOutlinedStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSignOfAMessageIsSharpAtAnyScale_data();
    void TheSignOfAMessageIsSharpAtAnyScale();
};

void TestOutlinedStyle::TheSignOfAMessageIsSharpAtAnyScale_data()
{
    QTest::addColumn<int>("sign");
    QTest::newRow("information") << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("question") << int(QStyle::SP_MessageBoxQuestion);
    QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("failure") << int(QStyle::SP_MessageBoxCritical);
}

void TestOutlinedStyle::TheSignOfAMessageIsSharpAtAnyScale()
{
    constexpr int c_nSide = 512; // no picture of pixels is that large
    QFETCH(int, sign);
    const std::unique_ptr<QStyle> pStyle(Theme::CreateStyle());
    const QPixmap pixmap = pStyle->standardIcon(QStyle::StandardPixmap(sign)).pixmap(c_nSide);
    QCOMPARE(pixmap.size(), QSize(c_nSide, c_nSide));
}

QTEST_MAIN(TestOutlinedStyle)
#include "TestOutlinedStyle.moc"
