#ifndef TESTS_CHART_OVERLAYTESTING_H
#define TESTS_CHART_OVERLAYTESTING_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "tests/chart/RecordingPaintDevice.h"

#include <QPainter>

/// What the tests of the chart's layers share: a chart, a group, and a look at what a painter was told.
namespace OverlayTesting {

/// A side at which the margins are 30 pixels and the scale is 600.
inline constexpr int c_nSide = 600;

inline SChromaGroupInfo Group()
{
    SChromaGroupInfo group;
    group.ptRed = {0.64F, 0.33F};
    group.ptGreen = {0.30F, 0.60F};
    group.ptBlue = {0.15F, 0.06F};
    group.ptWhite = {0.3127F, 0.329F};
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    group.nPenStyle = int(Qt::SolidLine);
    group.strName = QStringLiteral("a group");
    return group;
}

/// A chart of the size above, laid out and given its geometry.
class CTestChart : public CChromaticityDlgWnd
{
public:
    explicit CTestChart(int nWidth = c_nSide, int nHeight = c_nSide)
        : CChromaticityDlgWnd(nullptr)
    {
        resize(nWidth, nHeight);
        SetSize(nWidth, nHeight);
    }

    QVector<SPaintCall> Record(void (CChromaticityDlgWnd::*pLayer)(QPainter&))
    {
        return RecordPainting([this, pLayer](QPainter& painter) { (this->*pLayer)(painter); });
    }

    void MoveMouseTo(double dX, double dY) { m_ptMouse = Mapping().ToPixel(QPointF(dX, dY)).toPoint(); }
};

inline QVector<SPaintCall> Only(const QVector<SPaintCall>& vecCalls, const char* szKind)
{
    QVector<SPaintCall> vecOnly;
    for (const SPaintCall& call : vecCalls) {
        if (call.strKind == QLatin1String(szKind))
            vecOnly.append(call);
    }
    return vecOnly;
}

inline QStringList TextsOf(const QVector<SPaintCall>& vecCalls)
{
    QStringList listTexts;
    for (const SPaintCall& call : Only(vecCalls, "text"))
        listTexts.append(call.strText);
    return listTexts;
}

} // namespace OverlayTesting

#endif // TESTS_CHART_OVERLAYTESTING_H
