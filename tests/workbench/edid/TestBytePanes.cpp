#include "workbench/edid/BytePanes.h"
#include "workbench/edid/HexView.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <optional>

class TestBytePanes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheOtherBytesAreHiddenWithoutAComparison();
    void BothViewsScrollTogether();
    void MarkedBytesAreScrolledIntoView();
    void ARangeIsMarkedInTheFirstViewAlone();
    void AChosenByteIsTold();

private:
    CHexView& First() { return *m_panes->findChildren<CHexView*>().constFirst(); }
    CHexView& Other() { return *m_panes->findChild<CHexView*>(QStringLiteral("edidOtherBytes")); }
    QScrollBar& Bar(const CHexView& view)
    {
        return *qobject_cast<QScrollArea*>(view.parentWidget()->parentWidget())->verticalScrollBar();
    }

    std::optional<CBytePanes> m_panes;
};

/// Four blocks in each view, of which a few rows are visible.
void TestBytePanes::init()
{
    m_panes.emplace();
    m_panes->Show({QByteArray(512, '\1'), {1}});
    m_panes->ShowOther({QByteArray(512, '\2'), {1, 2}}, true);
    m_panes->SetOtherTitle(QStringLiteral("other"));
    m_panes->resize(500, 300);
    m_panes->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*m_panes));
}

void TestBytePanes::TheOtherBytesAreHiddenWithoutAComparison()
{
    QVERIFY(Other().isVisible());
    QVERIFY(m_panes->findChild<QLabel*>()->isVisible());
    m_panes->ShowOther({}, false);
    QVERIFY(!Other().isVisible());
    QVERIFY(!m_panes->findChild<QLabel*>()->isVisible());
    QVERIFY(First().isVisible());
    QCOMPARE(First().Changed(), QVector<int>{1});
}

void TestBytePanes::BothViewsScrollTogether()
{
    Bar(First()).setValue(40);
    QCOMPARE(Bar(Other()).value(), 40);
    Bar(Other()).setValue(20);
    QCOMPARE(Bar(First()).value(), 20);
}

void TestBytePanes::MarkedBytesAreScrolledIntoView()
{
    m_panes->Mark({500}, {500, 501});
    QCOMPARE(First().Marked(), QVector<int>{500});
    QCOMPARE(Other().Marked(), (QVector<int>{500, 501}));
    QVERIFY(First().visibleRegion().contains(First().ByteRect(500).center()));
    m_panes->Mark({0}, {});
    QVERIFY(First().visibleRegion().contains(First().ByteRect(0).center()));
    QVERIFY(!First().visibleRegion().contains(First().ByteRect(500).center()));
}

void TestBytePanes::ARangeIsMarkedInTheFirstViewAlone()
{
    m_panes->Mark({}, {});
    m_panes->MarkRange(300, 3);
    QCOMPARE(First().Marked(), (QVector<int>{300, 301, 302}));
    QCOMPARE(Other().Marked(), QVector<int>());
    QVERIFY(First().visibleRegion().contains(First().ByteRect(300).center()));
}

void TestBytePanes::AChosenByteIsTold()
{
    QSignalSpy spy(&*m_panes, &CBytePanes::ByteChosen);
    QTest::mouseClick(&First(), Qt::LeftButton, Qt::NoModifier, First().ByteRect(3).center());
    QTest::mouseClick(&Other(), Qt::LeftButton, Qt::NoModifier, Other().ByteRect(4).center());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toInt(), 3);
}

QTEST_MAIN(TestBytePanes)
#include "TestBytePanes.moc"
