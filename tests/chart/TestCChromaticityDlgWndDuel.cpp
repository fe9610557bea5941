#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/MouseTesting.h"
#include "tests/support/ExactCompare.h"

using namespace MouseTesting;

/// The chart under real mouse events, beside the plain one.
class TestCChromaticityDlgWndDuel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnyRowOfEventsGoesLikeThePlainOne();
};

namespace {

/// The answer of a host that looks at the numbers alone, and offers a point of its own now and then.
bool Answer(int nTurn, QPointF& ptNearest)
{
    if (nTurn % 3 == 0)
        ptNearest = QPointF(0.2 + nTurn % 7 * 0.01, 0.3);
    return nTurn % 2 == 0;
}

QString StateDifference(const CTestChart& chart, const CPlainChart& plain)
{
    QStringList listDifferent;
    const auto funcCompare = [&listDifferent](const char* szName, int nActual, int nExpected) {
        if (nActual != nExpected)
            listDifferent.append(QStringLiteral("%1 is %2 instead of %3")
                                     .arg(QLatin1String(szName))
                                     .arg(nActual)
                                     .arg(nExpected));
    };
    funcCompare("hover group", chart.m_nHoverGroup, plain.nHoverGroup);
    funcCompare("hover point", chart.m_nHoverPoint, plain.nHoverPoint);
    funcCompare("can drag", chart.m_bCanDrag, plain.bCanDrag);
    funcCompare("pressed", chart.m_bPressed, plain.bPressed);
    funcCompare("dragging", chart.m_bDragging, plain.bDragging);
    funcCompare("hit white", chart.m_bHitWhite, plain.bHitWhite);
    funcCompare("mouse inside", chart.m_bMouseInside, plain.bMouseInside);
    funcCompare("show standard", chart.m_bShowStandard, plain.bShowStandard);
    funcCompare("first press", chart.m_bFirstPress, plain.bFirstPress);
    funcCompare("mouse x", chart.m_ptMouse.x(), plain.ptMouse.x());
    funcCompare("mouse y", chart.m_ptMouse.y(), plain.ptMouse.y());
    if (!ExactCompare::SameBits(chart.m_ptNearest, plain.ptNearest))
        listDifferent.append(ExactCompare::Difference(chart.m_ptNearest, plain.ptNearest));
    for (auto it = chart.m_mapGroups.constBegin(); it != chart.m_mapGroups.constEnd(); ++it) {
        const QString strPoints = PointDifference(*it.value(), *plain.mapGroups.value(it.key()));
        if (!strPoints.isEmpty())
            listDifferent.append(strPoints);
    }
    return listDifferent.join(QStringLiteral(", "));
}

/// One chart under real events and the plain one beside it.
class CDuel
{
public:
    explicit CDuel(unsigned int nSeed)
        : m_inputs(nSeed, CChromaGamutInterpolation().GetQPointFData())
    {
        m_plain.SetSize(c_nSide, c_nSide);
        QObject::connect(
            &m_chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &m_chart,
            [this](int, int, bool& bSuccessed) { bSuccessed = Answer(m_nTurn, m_chart.m_ptNearest); });
        m_plain.funcAnswer = [this](int, int) { return Answer(m_nTurn, m_plain.ptNearest); };
    }

    void NewGroups()
    {
        m_chart.ReleaseChromaData();
        m_plain.mapGroups.clear();
        for (int nKey = 0; nKey < 3; ++nKey) {
            m_groups[nKey] = m_inputs.Whole(0, 7) == 0 ? m_inputs.Group() : m_inputs.OrdinaryGroup();
            // Points on top of each other now and then.
            if (nKey > 0 && m_inputs.Coin())
                GroupPoint(m_groups[nKey], m_inputs.Whole(0, 3)) = m_groups[nKey - 1].ptGreen;
            m_chart.AddChromaGroupByIndex(nKey, m_groups[nKey]);
            m_plain.mapGroups.insert(nKey, &m_groups[nKey]);
        }
        m_chart.m_bSnapWhite = m_plain.bSnapWhite = m_inputs.Coin();
    }

    /// The next event, to both.
    void Step(int nTurn)
    {
        m_nTurn = nTurn;
        // The plain one's list grows with each use; a fresh one keeps this test short.
        m_plain.gamut = CChromaGamutInterpolation();
        if (m_inputs.Whole(0, 19) == 0)
            m_chart.m_bShowStandard = m_plain.bShowStandard = true;
        const QPoint pos = Position();
        switch (m_inputs.Whole(0, 9)) {
        case 0:
        case 1:
            Press(pos, m_inputs.Whole(0, 4) == 0 ? Qt::RightButton : Qt::LeftButton);
            break;
        case 2:
            Release(pos);
            break;
        default:
            Move(pos, m_inputs.Whole(0, 3) == 0 ? Qt::NoButton : Qt::LeftButton);
        }
    }

    QString Difference() const { return StateDifference(m_chart, m_plain); }
    int Drags() const { return m_nDrags; }

private:
    QPoint Position()
    {
        if (m_inputs.Coin())
            return {m_inputs.Whole(-100, c_nSide + 100), m_inputs.Whole(-100, c_nSide + 100)};
        const SChromaGroupInfo& group = m_groups[m_inputs.Whole(0, 2)];
        const QPointF pt = m_chart.Mapping().ToPixel(GroupPointOrOrigin(group, m_inputs.Whole(0, 3)));
        // Not by QRectF::contains, which takes NaN for inside.
        const bool bOnChart = pt.x() >= 0.0 && pt.x() <= c_nSide && pt.y() >= 0.0 && pt.y() <= c_nSide;
        return (bOnChart ? pt.toPoint() : QPoint(5, 5)) +
               QPoint(m_inputs.Whole(-7, 7), m_inputs.Whole(-7, 7));
    }
    void Send(QEvent::Type type, QPoint pos, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, pos, m_chart.mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&m_chart, &event);
    }
    void Press(QPoint pos, Qt::MouseButton button)
    {
        Send(QEvent::MouseButtonPress, pos, button, button);
        m_plain.Press(pos, button == Qt::LeftButton);
    }
    void Move(QPoint pos, Qt::MouseButtons buttons)
    {
        Send(QEvent::MouseMove, pos, Qt::NoButton, buttons);
        m_plain.Move(pos, buttons.testFlag(Qt::LeftButton));
        m_nDrags += m_chart.m_bDragging && buttons.testFlag(Qt::LeftButton) ? 1 : 0;
    }
    void Release(QPoint pos)
    {
        Send(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
        m_plain.Release(pos, c_nSide, c_nSide);
    }

    CChartInputs m_inputs;
    CTestChart m_chart;
    CPlainChart m_plain;
    SChromaGroupInfo m_groups[3];
    int m_nTurn = 0;
    int m_nDrags = 0;
};

} // namespace

void TestCChromaticityDlgWndDuel::AnyRowOfEventsGoesLikeThePlainOne()
{
    CDuel duel(41);
    for (int i = 0; i < 120000; ++i) {
        if (i % 50 == 0)
            duel.NewGroups();
        duel.Step(i);
        const QString strDifference = duel.Difference();
        QVERIFY2(strDifference.isEmpty(), qPrintable(QStringLiteral("event %1: ").arg(i) + strDifference));
    }
    QVERIFY(duel.Drags() > 10000);
}

QTEST_MAIN(TestCChromaticityDlgWndDuel)
#include "TestCChromaticityDlgWndDuel.moc"
