#include "simulator/CommonClass/SimulatedProject.h"
#include "workbench/edid/InputHead.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

namespace {

SSimulatedInput Input(int nWidth, int nHeight)
{
    SEdidSetting setting;
    setting.wWidth = quint16(nWidth);
    setting.wHeight = quint16(nHeight);
    setting.byRate = 60;
    SSimulatedInput input;
    input.strName = QStringLiteral("DP 1");
    input.setting = setting;
    return input;
}

bool Shows(const CInputHead& head, const QString& strText)
{
    const QList<QLabel*> listLabels = head.findChildren<QLabel*>();
    return std::any_of(listLabels.begin(), listLabels.end(), [&](const QLabel* pLabel) {
        return pLabel->isVisibleTo(&head) && pLabel->text() == strText;
    });
}

} // namespace

class TestInputHead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NameAndModeAreShown();
    void WhatABlockCannotHoldIsSaid();
    void WithoutAnInputNothingCanBeEdited();
    void TheButtonAsksForTheDialog();
    void TheBoxTellsLowRates();
};

void TestInputHead::NameAndModeAreShown()
{
    CInputHead head;
    const SSimulatedInput input = Input(1920, 1080);
    head.Show(&input);
    QVERIFY(Shows(head, QStringLiteral("DP 1")));
    QVERIFY(Shows(head, QString::fromUtf8("1920 × 1080 @ 60 Hz")));
    QVERIFY(!head.findChild<QLabel*>(QStringLiteral("edidCuts"))->isVisibleTo(&head));
}

void TestInputHead::WhatABlockCannotHoldIsSaid()
{
    CInputHead head;
    const SSimulatedInput input = Input(8192, 1080);
    head.Show(&input);
    const auto* pCuts = head.findChild<QLabel*>(QStringLiteral("edidCuts"));
    QVERIFY(pCuts->isVisibleTo(&head));
    QVERIFY2(pCuts->text().contains(QStringLiteral("8192")), qPrintable(pCuts->text()));
}

void TestInputHead::WithoutAnInputNothingCanBeEdited()
{
    CInputHead head;
    const SSimulatedInput input = Input(8192, 1080);
    head.Show(&input);
    QVERIFY(head.findChild<QPushButton*>()->isEnabled());
    head.Show(nullptr);
    QVERIFY(!head.findChild<QPushButton*>()->isEnabled());
    QVERIFY(!head.findChild<QCheckBox*>()->isEnabled());
    QVERIFY(!head.findChild<QLabel*>(QStringLiteral("edidCuts"))->isVisibleTo(&head));
    QVERIFY(!Shows(head, QStringLiteral("DP 1")));
}

void TestInputHead::TheButtonAsksForTheDialog()
{
    CInputHead head;
    const SSimulatedInput input = Input(1920, 1080);
    head.Show(&input);
    QSignalSpy spy(&head, &CInputHead::EditPressed);
    QTest::mouseClick(head.findChild<QPushButton*>(), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
}

void TestInputHead::TheBoxTellsLowRates()
{
    CInputHead head;
    const SSimulatedInput input = Input(1920, 1080);
    head.Show(&input);
    QVERIFY(!head.IsLowRatesOnly());
    auto* pBox = head.findChild<QCheckBox*>();
    QTest::keyClick(pBox, Qt::Key_Space);
    QVERIFY(head.IsLowRatesOnly());
}

QTEST_MAIN(TestInputHead)
#include "TestInputHead.moc"
