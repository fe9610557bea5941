#include "workbench/colour/PointKeys.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/PointReadout.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double c_dStep = 0.001;      ///< of an arrow
constexpr double c_dFineStep = 0.0001; ///< of an arrow with Shift: the last digit that is shown
constexpr int c_nBurst = 700;          ///< ms without an arrow that end a step

constexpr double c_dRingRadius = 11.0; ///< pixels: around the largest dot
constexpr double c_dRingWidth = 2.0;   ///< pixels
const QColor c_clrRing(255, 255, 255);
const QColor c_clrHalo(0, 0, 0, 200);

struct SArrow
{
    int nKey;
    double dX;
    double dY;
};

constexpr SArrow c_arrArrows[] = {
    {Qt::Key_Left, -1.0, 0.0},
    {Qt::Key_Right, 1.0, 0.0},
    {Qt::Key_Up, 0.0, 1.0},
    {Qt::Key_Down, 0.0, -1.0},
};

const SArrow* ArrowOf(const QKeyEvent& event)
{
    // Other modifiers belong to shortcuts; the numeric keypad has arrows too.
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0)
        return nullptr;
    const auto* const pArrow = std::find_if(std::begin(c_arrArrows), std::end(c_arrArrows),
                                            [&](const SArrow& arrow) { return arrow.nKey == event.key(); });
    return pArrow == std::end(c_arrArrows) ? nullptr : pArrow;
}

} // namespace

CPointKeys::CPointKeys(CChartView& view, QWidget* pParent)
    : QWidget(pParent)
    , m_view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::StrongFocus);
    m_pause.setSingleShot(true);
    m_pause.setInterval(c_nBurst);
    connect(&m_pause, &QTimer::timeout, this, &CPointKeys::EndBurst);
}

QVector<SGroupPoint> CPointKeys::Points() const
{
    QVector<SGroupPoint> vecPoints;
    const auto& groups = m_view.Chart().m_mapGroups;
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        for (int nPoint = enRedPoint; nPoint <= enWhitePoint; ++nPoint)
            if (it.value()->bVisible && IsPointMovable(*it.value(), nPoint))
                vecPoints.append({it.key(), nPoint});
    return vecPoints;
}

void CPointKeys::Select(SGroupPoint point)
{
    EndBurst();
    m_current = point;
    Tell();
    update();
}

bool CPointKeys::focusNextPrevChild(bool bNext)
{
    const QVector<SGroupPoint> vecPoints = Points();
    const int nCurrent = int(vecPoints.indexOf(m_current));
    const int nNext = nCurrent + (bNext ? 1 : -1);
    if (nCurrent < 0 || nNext < 0 || nNext >= vecPoints.size())
        return QWidget::focusNextPrevChild(bNext);
    Select(vecPoints[nNext]);
    return true;
}

void CPointKeys::focusInEvent(QFocusEvent* pEvent)
{
    const QVector<SGroupPoint> vecPoints = Points();
    const bool bKept = vecPoints.contains(m_current) && pEvent->reason() != Qt::TabFocusReason &&
                       pEvent->reason() != Qt::BacktabFocusReason;
    if (!bKept && !vecPoints.isEmpty())
        m_current = pEvent->reason() == Qt::BacktabFocusReason ? vecPoints.last() : vecPoints.first();
    Tell();
    update();
}

void CPointKeys::focusOutEvent(QFocusEvent* /*pEvent*/)
{
    EndBurst();
    update();
    Q_EMIT Told(QString());
}

bool CPointKeys::event(QEvent* pEvent)
{
    // A shortcut such as undo comes before the key itself: the step is then complete.
    if (pEvent->type() == QEvent::ShortcutOverride && ArrowOf(*static_cast<QKeyEvent*>(pEvent)) == nullptr)
        EndBurst();
    return QWidget::event(pEvent);
}

void CPointKeys::keyPressEvent(QKeyEvent* pEvent)
{
    const SArrow* const pArrow = ArrowOf(*pEvent);
    if (pArrow == nullptr) {
        EndBurst();
        return QWidget::keyPressEvent(pEvent);
    }
    const double dStep = pEvent->modifiers().testFlag(Qt::ShiftModifier) ? c_dFineStep : c_dStep;
    Move({pArrow->dX * dStep, pArrow->dY * dStep});
}

void CPointKeys::Move(QPointF offset)
{
    if (!Points().contains(m_current))
        return;
    if (!m_bBurst)
        m_view.Editor().BeginDrag();
    m_bBurst = true;
    m_pause.start();
    m_view.MovePoint(m_current.nGroup, m_current.nPoint, offset);
    Tell();
    update();
}

void CPointKeys::EndBurst()
{
    if (!m_bBurst)
        return;
    m_bBurst = false;
    m_pause.stop();
    m_view.EndDrag();
}

void CPointKeys::Tell()
{
    const QString strText = PointReadout::OfPoint(m_view.Chart(), m_current.nGroup, m_current.nPoint);
    if (strText.isEmpty())
        return;
    setAccessibleName(strText);
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
    if (hasFocus()) {
        // Screen readers announce the name of the widget that gets the focus.
        QAccessibleEvent focused(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
    Q_EMIT Told(strText);
}

void CPointKeys::paintEvent(QPaintEvent* /*pEvent*/)
{
    const SChromaGroupInfo* pGroup = m_view.Chart().m_mapGroups.value(m_current.nGroup, nullptr);
    if (!hasFocus() || pGroup == nullptr || !Points().contains(m_current))
        return;
    const QPoint pixel = m_view.PixelOf(GroupPointOrOrigin(*pGroup, m_current.nPoint));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(c_clrHalo, 2.0 * c_dRingWidth));
    painter.drawEllipse(QPointF(pixel), c_dRingRadius, c_dRingRadius);
    painter.setPen(QPen(c_clrRing, c_dRingWidth, Qt::DotLine));
    painter.drawEllipse(QPointF(pixel), c_dRingRadius, c_dRingRadius);
}
