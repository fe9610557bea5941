#include "workbench/edid/HexView.h"

#include "workbench/edid/EdidColours.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int c_nColumns = 16;
constexpr int c_nPadding = 3; ///< around the two digits of a byte, pixels

const QColor c_clrText(230, 230, 230);
const QColor c_clrOffset(140, 140, 140);
const QColor c_clrMarked(40, 90, 150);
const QColor c_clrCurrent(74, 144, 226);

QString HexByte(int nValue)
{
    return QStringLiteral("%1").arg(nValue, 2, 16, QLatin1Char('0')).toUpper();
}

} // namespace

CHexView::CHexView(QWidget* pParent)
    : QWidget(pParent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
}

void CHexView::SetBytes(const QByteArray& bytes)
{
    if (m_bytes == bytes)
        return;
    m_bytes = bytes;
    updateGeometry();
    update();
}

void CHexView::SetMarked(const QVector<int>& vecOffsets)
{
    if (m_vecMarked == vecOffsets)
        return;
    m_vecMarked = vecOffsets;
    update();
}

void CHexView::SetChanged(const QVector<int>& vecOffsets)
{
    if (m_vecChanged == vecOffsets)
        return;
    m_vecChanged = vecOffsets;
    update();
}

QSize CHexView::CellSize() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(QStringLiteral("00")) + 2 * c_nPadding + 2,
            metrics.height() + 2 * c_nPadding};
}

int CHexView::RowCount() const
{
    return (int(m_bytes.size()) + c_nColumns - 1) / c_nColumns;
}

QRect CHexView::ByteRect(int nOffset) const
{
    // Column 0 and row 0 hold the offsets.
    const QSize sizeCell = CellSize();
    return {{(nOffset % c_nColumns + 1) * sizeCell.width(), (nOffset / c_nColumns + 1) * sizeCell.height()},
            sizeCell};
}

int CHexView::ByteAt(QPoint pt) const
{
    const QSize sizeCell = CellSize();
    const int nColumn = pt.x() / sizeCell.width() - 1;
    const int nRow = pt.y() / sizeCell.height() - 1;
    if (pt.x() < 0 || pt.y() < 0 || nColumn < 0 || nRow < 0 || nColumn >= c_nColumns)
        return -1;
    const int nOffset = nRow * c_nColumns + nColumn;
    return nOffset < m_bytes.size() ? nOffset : -1;
}

QSize CHexView::sizeHint() const
{
    constexpr int c_nBlockRows = 8;
    const QSize sizeCell = CellSize();
    return {sizeCell.width() * (c_nColumns + 1), sizeCell.height() * (qMax(RowCount(), c_nBlockRows) + 1)};
}

void CHexView::PaintHeader(QPainter& painter) const
{
    painter.setPen(c_clrOffset);
    for (int nColumn = 0; nColumn < c_nColumns; ++nColumn) {
        const QRect rcTop = ByteRect(nColumn).translated(0, -CellSize().height());
        painter.drawText(rcTop, Qt::AlignCenter, QString::number(nColumn, 16).toUpper());
    }
    for (int nRow = 0; nRow < RowCount(); ++nRow) {
        const QRect rcLeft = ByteRect(nRow * c_nColumns).translated(-CellSize().width(), 0);
        painter.drawText(rcLeft, Qt::AlignCenter, HexByte(nRow * c_nColumns));
    }
}

void CHexView::PaintByte(QPainter& painter, int nOffset) const
{
    const QRect rcByte = ByteRect(nOffset);
    if (m_vecMarked.contains(nOffset))
        painter.fillRect(rcByte, c_clrMarked);
    if (hasFocus() && nOffset == m_nCurrent) {
        painter.setPen(c_clrCurrent);
        painter.drawRect(rcByte.adjusted(0, 0, -1, -1));
    }
    painter.setPen(m_vecChanged.contains(nOffset) ? EdidColours::c_clrChanged : c_clrText);
    painter.drawText(rcByte, Qt::AlignCenter, HexByte(quint8(m_bytes.at(nOffset))));
}

void CHexView::paintEvent(QPaintEvent* pEvent)
{
    Q_UNUSED(pEvent)
    QPainter painter(this);
    PaintHeader(painter);
    for (int i = 0; i < m_bytes.size(); ++i)
        PaintByte(painter, i);
}

void CHexView::Choose(int nOffset)
{
    if (nOffset < 0 || nOffset >= m_bytes.size())
        return;
    m_nCurrent = nOffset;
    update();
    Q_EMIT ByteChosen(nOffset);
}

void CHexView::mousePressEvent(QMouseEvent* pEvent)
{
    Choose(ByteAt(pEvent->pos()));
}

void CHexView::keyPressEvent(QKeyEvent* pEvent)
{
    struct SStep
    {
        int nKey;
        int nStep;
    };
    static constexpr SStep c_arrSteps[] = {
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -c_nColumns}, {Qt::Key_Down, c_nColumns}};
    for (const SStep& step : c_arrSteps) {
        if (pEvent->key() != step.nKey)
            continue;
        Choose(m_nCurrent < 0 ? 0 : m_nCurrent + step.nStep);
        return;
    }
    QWidget::keyPressEvent(pEvent);
}
