#include "host/OrviControl/CustomProgressbar.h"

#include "host/OrviControl/CustomDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

/// Counts the paint events of a widget.
class CPaintCounter : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint)
            ++nPaints;
        return QObject::eventFilter(pWatched, pEvent);
    }

    int nPaints = 0;
};

class TestCustomProgressbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstValueShowsTheDialog();
    void EachStepIsPaintedWithoutAnEventLoop();
    void CloseHidesIt();
    void WithoutCancelNothingTheOperatorDoesClosesIt();
    void TheDialogBelowTakesNoInputUntilItIsClosed();
    void TheOwnerRecordKeepsItsOwner();
    void ItIsAnOrdinaryProgressDialog();
};

void TestCustomProgressbar::TheFirstValueShowsTheDialog()
{
    CCustomProgressbar bar(nullptr, false);
    QVERIFY(!bar.isVisible());
    bar.SetProgressValue(2);
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.value(), 2);
}

void TestCustomProgressbar::EachStepIsPaintedWithoutAnEventLoop()
{
    CCustomProgressbar bar(nullptr, false);
    bar.SetProgressValue(2);
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    CPaintCounter counter;
    bar.findChild<QProgressBar*>()->installEventFilter(&counter);
    for (int i = 10; i < 20; ++i) {
        const int nBefore = counter.nPaints;
        bar.SetProgressValue(i);
        QVERIFY(counter.nPaints > nBefore);
    }
}

void TestCustomProgressbar::CloseHidesIt()
{
    CCustomProgressbar bar(nullptr, false);
    bar.SetProgressValue(99);
    bar.CloseProgress();
    QVERIFY(!bar.isVisible());
    bar.CloseProgress();
    QVERIFY(!bar.isVisible());
}

void TestCustomProgressbar::WithoutCancelNothingTheOperatorDoesClosesIt()
{
    CCustomProgressbar bar(nullptr, false);
    bar.SetProgressValue(50);
    QTest::keyClick(&bar, Qt::Key_Escape);
    bar.close();
    QVERIFY(bar.isVisible());
    QVERIFY(!bar.wasCanceled());
    QVERIFY(bar.findChild<QPushButton*>() == nullptr);
}

void TestCustomProgressbar::TheDialogBelowTakesNoInputUntilItIsClosed()
{
    CCustomDialog dialog(nullptr, false);
    QPushButton button(&dialog);
    QSignalSpy spyClicked(&button, &QPushButton::clicked);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QPoint ptButton = button.mapTo(&dialog, button.rect().center());

    CCustomProgressbar bar(&dialog, false);
    bar.SetProgressValue(2);
    // Like a real click: through the window, and so through the check for modality.
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, ptButton);
    bar.SetProgressValue(3);
    bar.CloseProgress();
    QCoreApplication::processEvents();
    QCOMPARE(spyClicked.size(), 0);
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, ptButton);
    QCOMPARE(spyClicked.size(), 1);
}

void TestCustomProgressbar::TheOwnerRecordKeepsItsOwner()
{
    CCustomDialog dialog(nullptr, false);
    CCustomProgressbar bar(&dialog, false);
    QVERIFY(bar.GetProgressOwnerRecord().pOwner == nullptr);
    bar.GetProgressOwnerRecord().pOwner = &dialog;
    QCOMPARE(bar.GetProgressOwnerRecord().pOwner, &dialog);
}

void TestCustomProgressbar::ItIsAnOrdinaryProgressDialog()
{
    CCustomProgressbar bar(nullptr, true);
    bar.setLabelText(QStringLiteral("发送中..."));
    QCOMPARE(bar.findChild<QLabel*>()->text(), QStringLiteral("发送中..."));
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 100);
    QVERIFY(bar.findChild<QPushButton*>() != nullptr);
    bar.SetProgressValue(100);
    QVERIFY2(bar.isVisible(), "the last step doesn't close it");
    QCOMPARE(bar.value(), 100);
}

QTEST_MAIN(TestCustomProgressbar)
#include "TestCustomProgressbar.moc"
