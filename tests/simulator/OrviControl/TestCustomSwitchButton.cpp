#include "host/OrviControl/CustomSwitchButton.h"

#include <QtTest>

class TestCustomSwitchButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void StartsClosed();
    void SetOpenShowsTheStateAndEmitsNothing();
    void AClickSwitchesAndTells();
    void SpaceSwitchesAndTells();
    void AHandlerMaySetTheStateBack();
    void TheStateCanBeReadAsThatOfAnyButton();
    void ADisabledSwitchTakesNoInput();
    void TheEnvironmentTurnsAnimationsOff();
    void TheKnobJumpsWithoutAnimation();
    void TheKnobSlidesWithAnimation();
    void TheFocusShows();

private:
    std::unique_ptr<CCustomSwitchButton> m_pSwitch;
};

void TestCustomSwitchButton::init()
{
    m_pSwitch = std::make_unique<CCustomSwitchButton>();
    m_pSwitch->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pSwitch.get()));
    m_pSwitch->clearFocus();
}

void TestCustomSwitchButton::StartsClosed()
{
    QVERIFY(!m_pSwitch->isOpen());
}

void TestCustomSwitchButton::SetOpenShowsTheStateAndEmitsNothing()
{
    QSignalSpy spyChecked(m_pSwitch.get(), &CCustomSwitchButton::checked);
    m_pSwitch->setOpen(true, true);
    QVERIFY(m_pSwitch->isOpen());
    m_pSwitch->setOpen(false, true);
    QVERIFY(!m_pSwitch->isOpen());
    QCOMPARE(spyChecked.size(), 0);
}

void TestCustomSwitchButton::AClickSwitchesAndTells()
{
    QSignalSpy spyChecked(m_pSwitch.get(), &CCustomSwitchButton::checked);
    QTest::mouseClick(m_pSwitch.get(), Qt::LeftButton);
    QVERIFY(m_pSwitch->isOpen());
    QTest::mouseClick(m_pSwitch.get(), Qt::LeftButton);
    QVERIFY(!m_pSwitch->isOpen());
    QCOMPARE(spyChecked.size(), 2);
    QCOMPARE(spyChecked.at(0).at(0).toBool(), true);
    QCOMPARE(spyChecked.at(1).at(0).toBool(), false);
}

void TestCustomSwitchButton::SpaceSwitchesAndTells()
{
    QSignalSpy spyChecked(m_pSwitch.get(), &CCustomSwitchButton::checked);
    QTest::keyClick(m_pSwitch.get(), Qt::Key_Space);
    QVERIFY(m_pSwitch->isOpen());
    QCOMPARE(spyChecked.size(), 1);
}

void TestCustomSwitchButton::AHandlerMaySetTheStateBack()
{
    connect(m_pSwitch.get(), &CCustomSwitchButton::checked, this,
            [this] { m_pSwitch->setOpen(false, true); });
    QTest::mouseClick(m_pSwitch.get(), Qt::LeftButton);
    QVERIFY(!m_pSwitch->isOpen());
}

void TestCustomSwitchButton::TheStateCanBeReadAsThatOfAnyButton()
{
    m_pSwitch->setOpen(true, true);
    QVERIFY(m_pSwitch->isChecked());
}

void TestCustomSwitchButton::ADisabledSwitchTakesNoInput()
{
    m_pSwitch->setEnabled(false);
    QTest::mouseClick(m_pSwitch.get(), Qt::LeftButton);
    QTest::keyClick(m_pSwitch.get(), Qt::Key_Space);
    QVERIFY(!m_pSwitch->isOpen());
}

void TestCustomSwitchButton::TheEnvironmentTurnsAnimationsOff()
{
    QCOMPARE(qgetenv("ORVICONTROL_ANIMATIONS"), QByteArray("0"));
    QVERIFY(!m_pSwitch->isAnimated());
}

void TestCustomSwitchButton::TheKnobJumpsWithoutAnimation()
{
    const QImage imageClosed = m_pSwitch->grab().toImage();
    m_pSwitch->setOpen(true, true);
    const QImage imageOpen = m_pSwitch->grab().toImage();
    QVERIFY(imageOpen != imageClosed);
    QTest::qWait(1);
    QVERIFY(m_pSwitch->grab().toImage() == imageOpen);
}

void TestCustomSwitchButton::TheKnobSlidesWithAnimation()
{
    m_pSwitch->setOpen(true, true);
    const QImage imageOpen = m_pSwitch->grab().toImage();
    m_pSwitch->setOpen(false, true);
    m_pSwitch->setProperty("animated", true);
    m_pSwitch->setOpen(true, true);
    QVERIFY2(m_pSwitch->isOpen(), "the state changes at once");
    QVERIFY2(m_pSwitch->grab().toImage() != imageOpen, "the knob is on its way");
    QTRY_VERIFY(m_pSwitch->grab().toImage() == imageOpen);
}

void TestCustomSwitchButton::TheFocusShows()
{
    const QImage imageWithout = m_pSwitch->grab().toImage();
    m_pSwitch->setFocus();
    QVERIFY(m_pSwitch->hasFocus());
    QVERIFY(m_pSwitch->grab().toImage() != imageWithout);
}

QTEST_MAIN(TestCustomSwitchButton)
#include "TestCustomSwitchButton.moc"
