#include "workbench/output/CanvasPreview.h"

#include "simulator/OrviControl/Theme.h"

#include <QEvent>
#include <QPainter>

namespace {

// Pixels.
constexpr int c_nMargin = 10;
constexpr int c_nSizeTextGap = 6;
constexpr int c_nNoteMargin = 8;
constexpr QSize c_sizePreferred(560, 360);
constexpr QSize c_sizeSmallest(240, 160);

constexpr double c_dMaxAlpha = 255;

/// The part of a cached image that corresponds to a part of the full-size picture.
QRect KeptPart(const QRect& rectPart, QSize sizePicture, QSize sizeKept)
{
    const double dX = double(sizeKept.width()) / sizePicture.width();
    const double dY = double(sizeKept.height()) / sizePicture.height();
    const QSize size(qRound(rectPart.width() * dX), qRound(rectPart.height() * dY));
    return {QPoint(qRound(rectPart.x() * dX), qRound(rectPart.y() * dY)), size.expandedTo(QSize(1, 1))};
}

/// Enlarged wall pixels are squares; reduced ones blend.
Qt::TransformationMode ScalingTo(QSize sizeTarget, QSize sizeSource)
{
    return sizeTarget.boundedTo(sizeSource) == sizeSource ? Qt::FastTransformation : Qt::SmoothTransformation;
}

} // namespace

CCanvasPreview::CCanvasPreview(QWidget* pParent)
    : QWidget(pParent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CCanvasPreview::sizeHint() const
{
    return c_sizePreferred;
}

QSize CCanvasPreview::minimumSizeHint() const
{
    return c_sizeSmallest;
}

void CCanvasPreview::SetContent(const SCanvasContent& content)
{
    m_content = content;
    Compose();
}

QString CCanvasPreview::SizeText() const
{
    if (m_layout.rectCanvas.isEmpty())
        return {};
    return tr("%1 × %2 像素，显示为 %3%")
        .arg(m_content.sizeCanvas.width())
        .arg(m_content.sizeCanvas.height())
        .arg(QString::number(m_layout.dScale * 100, 'g', 3));
}

QRect CCanvasPreview::CanvasArea() const
{
    const int nSizeText = fontMetrics().height() + c_nSizeTextGap;
    return rect().adjusted(c_nMargin, c_nMargin, -c_nMargin, -c_nMargin - nSizeText);
}

/// Lays out and scales once for a content and a size, so that painting only copies.
void CCanvasPreview::Compose()
{
    m_layout = CanvasLayout::FitCanvas(m_content.sizeCanvas, CanvasArea());
    m_imgScaled = QImage();
    if (!m_content.imgPicture.isNull() && !m_layout.rectCanvas.isEmpty()) {
        const SPictureLayout place =
            CanvasLayout::PlacePicture(m_layout, m_content.sizeCanvas, m_content.sizePicture, m_content.fit);
        const QRect rectKept = KeptPart(place.rectSource, m_content.sizePicture, m_content.imgPicture.size());
        const QSize sizeScreen = place.rectTarget.size() * devicePixelRatioF();
        m_imgScaled = m_content.imgPicture.copy(rectKept).scaled(sizeScreen, Qt::IgnoreAspectRatio,
                                                                 ScalingTo(sizeScreen, rectKept.size()));
        m_rectPicture = place.rectTarget;
    }
    setAccessibleDescription(m_content.strNote.isEmpty() ? SizeText() : m_content.strNote);
    update();
}

void CCanvasPreview::resizeEvent(QResizeEvent* /*pEvent*/)
{
    Compose();
}

void CCanvasPreview::changeEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::LanguageChange)
        Compose();
    QWidget::changeEvent(pEvent);
}

void CCanvasPreview::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(Theme::c_rgbField));
    if (!m_layout.rectCanvas.isEmpty()) {
        DrawCanvas(painter);
        DrawSizeText(painter);
    }
    if (!m_content.strNote.isEmpty())
        DrawNote(painter);
}

void CCanvasPreview::DrawCanvas(QPainter& painter) const
{
    painter.fillRect(m_layout.rectCanvas, Qt::black);
    if (!m_imgScaled.isNull()) {
        painter.setOpacity(m_content.byAlpha / c_dMaxAlpha);
        painter.drawImage(m_rectPicture, m_imgScaled);
        painter.setOpacity(1);
    }
    // The frame lies around the canvas: the wall has no pixels for it.
    painter.setPen(QColor(Theme::c_rgbNote));
    painter.drawRect(m_layout.rectCanvas.adjusted(-1, -1, 0, 0));
}

void CCanvasPreview::DrawSizeText(QPainter& painter) const
{
    const QRect rectText(0, m_layout.rectCanvas.bottom() + c_nSizeTextGap, width(), fontMetrics().height());
    painter.setPen(QColor(Theme::c_rgbText));
    painter.drawText(rectText, Qt::AlignCenter, SizeText());
}

void CCanvasPreview::DrawNote(QPainter& painter) const
{
    constexpr int c_nFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect rectArea = CanvasArea().adjusted(c_nMargin, 0, -c_nMargin, 0);
    // With its own background: a narrow canvas would otherwise run through the text as a line.
    const QRect rectText = painter.boundingRect(rectArea, c_nFlags, m_content.strNote);
    painter.fillRect(rectText.adjusted(-c_nNoteMargin, -c_nNoteMargin, c_nNoteMargin, c_nNoteMargin),
                     QColor(Theme::c_rgbField));
    painter.setPen(QColor(m_content.bWarning ? Theme::c_rgbWarning : Theme::c_rgbText));
    painter.drawText(rectArea, c_nFlags, m_content.strNote);
}
