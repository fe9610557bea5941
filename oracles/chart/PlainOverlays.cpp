#include "oracles/chart/PlainOverlays.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/Style.h"
#include "oracles/chart/PlainChart.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>

#include <cmath>

double CPlainOverlays::X(double dX) const
{
    return dX * double(m_chart.m_fScale) + double(m_chart.m_fMarginX);
}

double CPlainOverlays::Y(double dY) const
{
    return (double(m_chart.m_nWndHeight) - double(m_chart.m_fMarginY)) - dY * double(m_chart.m_fScale);
}

void CPlainOverlays::DrawBorder(QPainter& painter) const
{
    painter.setPen(QPen(QColor(200, 200, 200), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(m_chart.m_pBoundaryPx, int(m_chart.m_pGamut->GetQPointFData().size()),
                        Qt::OddEvenFill);
}

void CPlainOverlays::DrawHexCoorDialog(QPainter& painter) const
{
    QFont font(painter.font());
    font.setPixelSize(10);
    font.setFamily(GetFontFamily());
    painter.setFont(font);
    const double s = double(m_chart.m_fScale);
    const double mx = double(m_chart.m_fMarginX);
    const double my = double(m_chart.m_fMarginY);
    const double b = double(m_chart.m_nWndHeight) - my;
    for (int i = 0; i <= 9; ++i) {
        const double y = b - s * i / 10.0;
        painter.setPen(QPen(QColor(255, 255, 255, m_chart.m_nGridAlpha), 1.0));
        painter.drawLine(QPointF(mx, y), QPointF(mx + 0.8 * s, y));
        painter.setPen(QPen(QColor(255, 255, 255, 120), 1.0));
        painter.drawText(QPointF(mx - s / 30.0, y - s / 50.0 + 10.0), QString::fromLatin1(".%1").arg(i));
    }
    for (int i = 0; i <= 8; ++i) {
        const double x = mx + s * i / 10.0;
        painter.setPen(QPen(QColor(255, 255, 255, m_chart.m_nGridAlpha), 1.0));
        painter.drawLine(QPointF(x, b), QPointF(x, b - 0.9 * s));
        painter.setPen(QPen(QColor(255, 255, 255, 120), 1.0));
        painter.drawText(QPointF(x - s / 50.0, double(m_chart.m_nWndHeight) - 0.5 * my),
                         QString::fromLatin1(".%1").arg(i));
    }
}

void CPlainOverlays::DrawTipsString(QPainter& painter) const
{
    const int fs = int(m_chart.m_fScale / 40.0F);
    QPointF pt;
    if (m_chart.m_nHoverGroup < 0) {
        pt.setX((double(m_chart.m_ptMouse.x()) - double(m_chart.m_fMarginX)) / double(m_chart.m_fScale));
        pt.setY(
            ((double(m_chart.m_nWndHeight) - double(m_chart.m_fMarginY)) - double(m_chart.m_ptMouse.y())) /
            double(m_chart.m_fScale));
    } else if (m_chart.m_nHoverPoint >= 0 && m_chart.m_nHoverPoint <= 3) {
        const CPoint ptGroup =
            PointOfGroup(*m_chart.m_mapGroups[m_chart.m_nHoverGroup], m_chart.m_nHoverPoint);
        pt = QPointF(double(ptGroup.x), double(ptGroup.y));
    }
    if (pt.x() < 0.0)
        pt.setX(0.0);
    if (pt.y() < 0.0)
        pt.setY(0.0);
    if (!m_chart.m_pGamut->IsPointInCIEPolygon(pt))
        return;

    painter.setFont(QFont(GetFontFamily(), fs, 128, false));
    painter.setPen(QPen(QColor(Qt::yellow), 1.0));
    const int left = m_chart.m_rcChart.right() / 4 * 3;
    const int y = m_chart.m_rcChart.bottom() / 6 * 5;
    const double w = double(m_chart.m_fScale) / 5.0;
    const double h = 1.5 * fs;
    painter.drawText(QRectF(left, y, w, h), Qt::AlignCenter | Qt::TextDontClip,
                     QString::fromLatin1("x : %1").arg(pt.x(), 0, 'f', 4));
    painter.drawText(QRectF(left, y + 2 * fs, w, h), Qt::AlignCenter | Qt::TextDontClip,
                     QString::fromLatin1("y : %1").arg(pt.y(), 0, 'f', 4));
    if (!m_chart.m_bHitWhite || !m_chart.m_bShowCCT)
        return;
    painter.drawText(QRectF(left, y + 4 * fs, w, h), Qt::AlignCenter | Qt::TextDontClip,
                     QString::fromLatin1("CCT:"));
    QString strValue;
    float fTemperature = 0.0F;
    const double dPart = double(0.025F);
    if (std::fabs(pt.x() - m_chart.m_ptD65.x()) < dPart * m_chart.m_ptD65.x() &&
        std::fabs(pt.y() - m_chart.m_ptD65.y()) < dPart * m_chart.m_ptD65.y())
        strValue = QString::fromLatin1("6500K\n");
    else if (!m_chart.m_pCct->TriangAlgCalcRelativeCCT(pt, &fTemperature, false))
        strValue = QString::fromLatin1("- -!");
    else
        strValue =
            QString::fromLatin1("%1K").arg(QString::number(double(fTemperature), 'g', 6), 102, QChar(0x2));
    painter.drawText(QRectF(left + w + fs, y + 4 * fs, 0.125 * double(m_chart.m_fScale), h), strValue,
                     QTextOption());
}

void CPlainOverlays::DrawCrossLine(QPainter& painter) const
{
    const int n = int(m_chart.m_pGamut->GetQPointFData().size());
    if (n == 0)
        return;
    const CPoint* const v = m_chart.m_pBoundaryPxF;
    const CPoint p(float(m_chart.m_ptMouse.x()), float(m_chart.m_ptMouse.y()));
    bool bInside = false;
    for (int i = 0; i < n; ++i) {
        if (std::fabs(p.x - v[i].x) < 0.0001F && std::fabs(p.y - v[i].y) < 0.0001F)
            bInside = true;
    }
    if (!bInside) {
        int j = n - 1;
        for (int i = 0; i < n; j = i++) {
            if (((v[i].y < p.y && p.y <= v[j].y) || (p.y <= v[i].y && v[j].y < p.y)) &&
                (v[i].x <= p.x || v[j].x <= p.x) &&
                (v[j].x - v[i].x) * ((p.y - v[i].y) / (v[j].y - v[i].y)) + v[i].x < p.x)
                bInside = !bInside;
        }
    }
    if (!bInside)
        return;

    int x = m_chart.m_ptMouse.x();
    int y = m_chart.m_ptMouse.y();
    if (m_chart.m_nHoverGroup >= 0 && m_chart.m_bCanDrag &&
        m_chart.m_mapGroups.contains(m_chart.m_nHoverGroup)) {
        CPoint pt(0.0F, 0.0F);
        if (m_chart.m_nHoverPoint >= 0 && m_chart.m_nHoverPoint <= 3)
            pt = PointOfGroup(*m_chart.m_mapGroups[m_chart.m_nHoverGroup], m_chart.m_nHoverPoint);
        x = int(X(double(pt.x)));
        y = int(Y(double(pt.y)));
    }
    painter.setPen(QPen(QColor(255, 240, 240, 240), 1.0));
    painter.drawLine(0, y, m_chart.m_rcChart.right() - m_chart.m_rcChart.left() + 1, y);
    painter.drawLine(x, 0, x, m_chart.m_rcChart.bottom() - m_chart.m_rcChart.top() + 1);
}

void CPlainOverlays::DrawCCTLine(QPainter& painter) const
{
    QPainterPath path;
    for (int i = 0; i < 1101; ++i) {
        QPointF pt;
        m_chart.m_pCct->CCTtoColorCoord(float(4000 + 10 * i), &pt, false);
        const QPointF ptPixel(X(pt.x()), Y(pt.y()));
        if (i == 0)
            path.moveTo(ptPixel);
        else
            path.lineTo(ptPixel);
    }
    painter.setPen(QPen(QColor(Qt::black), 1.0));
    painter.drawPath(path);
    for (const int nTemperature : {4000, 6500, 12000}) {
        QPointF pt;
        QPointF pt2;
        m_chart.m_pCct->CCTtoColorCoord(float(nTemperature), &pt, false);
        m_chart.m_pCct->CCTtoColorCoord(float(nTemperature + 10), &pt2, false);
        const QPointF p(X(pt.x()), Y(pt.y()));
        const QPointF p2(X(pt2.x()), Y(pt2.y()));
        const float s = float(-(p.x() - p2.x()) / (p.y() - p2.y()));
        const float q = std::sqrt(s * s + 1.0F);
        painter.setPen(QPen(QColor(Qt::black), 1.0));
        painter.drawLine(p, QPointF(p.x() - double(5.0F / q / q), p.y() - double(5.0F / q)));
        DrawCCTLineString(painter, p.x(), p.y(), nTemperature);
    }
}

void CPlainOverlays::DrawCCTLineString(QPainter& painter, double x, double y, int nCCT) const
{
    const int fs = int(m_chart.m_fScale / 50.0F);
    painter.setFont(QFont(GetFontFamily(), fs, -1, false));
    painter.setPen(QColor(Qt::black));
    const int nHalf = fs / 2;
    painter.drawText(QRectF(x + nHalf, y, 4 * fs, 2 * fs), QString::number(nCCT), QTextOption());
}

void CPlainOverlays::DrawChromTriangle(QPainter& painter)
{
    static const int s_anRed[9] = {255, 0, 0, 255, 0, 165, 255, 255, 138};
    static const int s_anGreen[9] = {0, 255, 0, 255, 255, 42, 0, 153, 43};
    static const int s_anBlue[9] = {0, 0, 255, 0, 255, 42, 255, 0, 226};
    const float r = m_chart.m_fScale / 100.0F;
    if (!m_bHasRadii) {
        for (float& fRadius : m_afRadius)
            fRadius = r;
        m_bHasRadii = true;
    }
    int n = 0;
    for (auto it = m_chart.m_mapGroups.constBegin(); it != m_chart.m_mapGroups.constEnd(); ++it) {
        if (it.value() == nullptr)
            break;
        SChromaGroupInfo& group = *it.value();
        if (m_chart.m_bPressed && m_chart.m_bDragging && it.key() == m_chart.m_nHoverGroup) {
            if (m_chart.m_nHoverPoint >= 0 && m_chart.m_nHoverPoint <= 3)
                m_afRadius[m_chart.m_nHoverPoint] = 1.5F * r;
        } else {
            for (float& fRadius : m_afRadius)
                fRadius = r;
        }
        if (!group.bVisible)
            continue;
        if (!group.bMoveRed)
            m_afRadius[0] *= 0.8F;
        if (!group.bMoveGreen)
            m_afRadius[1] *= 0.8F;
        if (!group.bMoveBlue)
            m_afRadius[2] *= 0.8F;
        if (!group.bMoveWhite)
            m_afRadius[3] *= 0.8F;
        if (!group.bOwnColor) {
            group.nColorR = static_cast<unsigned char>(s_anRed[n % 9]);
            group.nColorG = static_cast<unsigned char>(s_anGreen[n % 9]);
            group.nColorB = static_cast<unsigned char>(s_anBlue[n % 9]);
        }
        const QColor color(group.nColorR, group.nColorG, group.nColorB, 255);
        painter.setPen(QPen(color, double(group.fPenWidth), static_cast<Qt::PenStyle>(group.nPenStyle)));
        const QPointF p0(X(double(group.ptRed.x)), Y(double(group.ptRed.y)));
        const QPointF p1(X(double(group.ptGreen.x)), Y(double(group.ptGreen.y)));
        const QPointF p2(X(double(group.ptBlue.x)), Y(double(group.ptBlue.y)));
        if (group.bRgbMode) {
            painter.drawLine(p0, p1);
            painter.drawLine(p1, p2);
            painter.drawLine(p2, p0);
        } else {
            const QPointF a = p1 + p2 - p0;
            const QPointF b = p2 + p0 - p1;
            const QPointF c = p1 + p0 - p2;
            painter.drawLine(a, b);
            painter.drawLine(b, c);
            painter.drawLine(c, a);
        }

        const QPen penWhite(QColor(Qt::white), 2.0);
        const QPen penGrey(QColor(Qt::lightGray), 2.0);
        if (group.bShowRedDot) {
            painter.setPen(group.bMoveRed ? penWhite : penGrey);
            painter.setBrush(QBrush(group.bRgbMode ? Qt::red : Qt::cyan));
            painter.drawEllipse(int(p0.x() - double(m_afRadius[0])), int(p0.y() - double(m_afRadius[0])),
                                int(2.0F * m_afRadius[0]), int(2.0F * m_afRadius[0]));
        }
        if (group.bShowGreenDot) {
            painter.setPen(group.bMoveGreen ? penWhite : penGrey);
            painter.setBrush(QBrush(group.bRgbMode ? Qt::green : Qt::magenta));
            painter.drawEllipse(int(p1.x() - double(m_afRadius[1])), int(p1.y() - double(m_afRadius[1])),
                                int(2.0F * m_afRadius[1]), int(2.0F * m_afRadius[1]));
        }
        if (group.bShowBlueDot) {
            painter.setPen(group.bMoveBlue ? penWhite : penGrey);
            painter.setBrush(QBrush(group.bRgbMode ? Qt::blue : Qt::yellow));
            painter.drawEllipse(int(p2.x() - double(m_afRadius[2])), int(p2.y() - double(m_afRadius[2])),
                                int(2.0F * m_afRadius[2]), int(2.0F * m_afRadius[2]));
        }
        if (group.bShowWhiteDot) {
            const float wx = float(X(double(group.ptWhite.x)));
            const float wy = float(Y(double(group.ptWhite.y)));
            const float r3 = m_afRadius[3];
            painter.setPen(QPen(QColor(Qt::white), 3.0));
            painter.setBrush(QBrush(color));
            painter.drawEllipse(int(wx - (r3 + 1.0F)), int(wy - (r3 + 1.0F)), int(2.0F * (r3 + 1.0F)),
                                int(2.0F * (r3 + 1.0F)));
            painter.setPen(QColor(Qt::white));
            painter.setBrush(QBrush(Qt::white));
            painter.drawEllipse(int(wx - (r3 - 1.0F) / 2.0F), int(wy - (r3 - 1.0F) / 2.0F), int(r3 - 1.0F),
                                int(r3 - 1.0F));
        }
        ++n;
    }
}

int CPlainOverlays::Ratio() const
{
    const SChromaGroupInfo* const pScreen = m_chart.m_mapGroups[0x300];
    const SChromaGroupInfo* const pOutput = m_chart.m_mapGroups[0x200];
    if (pScreen == nullptr || pOutput == nullptr)
        return -1;
    std::vector<CPoint> vecScreen{pScreen->ptRed, pScreen->ptGreen, pScreen->ptBlue};
    std::vector<CPoint> vecOutput{pOutput->ptRed, pOutput->ptGreen, pOutput->ptBlue};
    if (!pScreen->bVisible || !pOutput->bVisible)
        return -1;
    float fRatio = 0.0F;
    CCalcChromaRatio calculator;
    calculator.CalcChromaRatio(vecScreen, vecOutput, fRatio);
    return int(std::round(fRatio * 100.0F));
}

void CPlainOverlays::DrawChromNote(QPainter& painter) const
{
    const int fs = int(m_chart.m_fScale / 50.0F);
    const QFont font(GetFontFamily(), fs, 128, false);
    const QFontMetrics metrics(font);
    painter.setFont(font);
    const double t = double(m_chart.m_fTextRatio);
    int w = 0;
    double x = 0.0;
    double y = 0.0;
    for (int nWalk = 0; nWalk < 2; ++nWalk) {
        if (nWalk == 1) {
            x = 0.8 * double(m_chart.m_fScale) + double(m_chart.m_fMarginX) - w - 30.0 * t;
            const int nFirstRow = (m_chart.height() - 1) / 12;
            y = nFirstRow;
        }
        for (auto it = m_chart.m_mapGroups.constBegin(); it != m_chart.m_mapGroups.constEnd(); ++it) {
            const SChromaGroupInfo& group = *it.value();
            if (!group.bShowNote)
                continue;
            QString strText = group.strName;
            if (it.key() == 0x300)
                strText = CCustomDialog::tr("屏幕颜色空间（校正后）");
            if (it.key() == 0x200) {
                strText = nWalk == 0 ? CCustomDialog::tr("输出色彩空间") : CCustomDialog::tr("输出颜色空间");
                const int nRatio = Ratio();
                if (nRatio >= 0)
                    strText = strText + QString::fromLatin1(", ") + QString::number(nRatio) +
                              QString::fromLatin1("% ") + CCustomDialog::tr("被覆盖");
            }
            if (nWalk == 0) {
                w = std::max(w, metrics.boundingRect(strText).width());
                continue;
            }
            if (strText.isEmpty())
                continue;
            painter.setPen(QColor(Qt::white));
            painter.drawText(QPointF(x + 20.0 * t, y + 5.0 * t), strText);
            QPen pen(QColor(group.nColorR, group.nColorG, group.nColorB), 2.0);
            if (group.nColorR != 0 && group.nColorR != 255) {
                pen.setStyle(Qt::DashLine);
                pen.setDashPattern(QVector<qreal>{2.0, 2.0});
            }
            painter.setPen(pen);
            painter.drawLine(int(x - 15.0 * t), int(y), int(x + 15.0 * t), int(y));
            y += fs + 10.0 * t;
        }
    }
}

void CPlainOverlays::DrawCIEStandardShow(QPainter& painter) const
{
    static const char* const s_aszLabels[8] = {"sRGB",   "AdobeRGB", "PAL",     "NTSC",
                                               "Rec601", "Rec709",   "Rec2020", "DCIP3"};
    if (!m_chart.m_bShowStandard)
        return;
    const int fs = int(m_chart.m_fScale / 30.0F);
    m_chart.CalcCIEStandardValid();
    if (m_chart.m_nStandard < 0)
        return;
    const int x = (m_chart.width() - 1) / 3 * 2;
    const int nTop = (m_chart.height() - 1) / 9 * 2;
    const double y = nTop + 0.5 * fs;
    const double w = double(m_chart.m_fScale) / 5.0;
    painter.setFont(QFont(GetFontFamily(), fs, 128, false));
    painter.setPen(QColor(Qt::red));
    painter.drawText(QRectF(x, y, w, fs), Qt::TextDontClip,
                     QString::fromLatin1(s_aszLabels[m_chart.m_nStandard]));
    const SChromaGroupInfo& group = *m_chart.m_mapGroups.first();
    const QPointF p0(X(double(group.ptRed.x)), Y(double(group.ptRed.y)));
    const QPointF p1(X(double(group.ptGreen.x)), Y(double(group.ptGreen.y)));
    painter.setPen(QPen(QColor(Qt::blue), 1.5));
    painter.drawLine((p0 + p1) / 2.0, QPointF(x, y + fs / 2.0));
}
