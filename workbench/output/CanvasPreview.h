#ifndef WORKBENCH_OUTPUT_CANVASPREVIEW_H
#define WORKBENCH_OUTPUT_CANVASPREVIEW_H

#include "workbench/output/CanvasLayout.h"

#include <QImage>
#include <QWidget>

/// What a canvas view shows.
struct SCanvasContent
{
    QSize sizeCanvas;   ///< pixels; without an area only the note is shown
    QImage imgPicture;  ///< the background picture; null: none is shown
    QSize sizePicture;  ///< the picture's own size, pixels: the image may have been made smaller
    quint8 byAlpha = 0; ///< opacity of the picture
    enPictureFit fit = enPictureFit::enOneToOne;
    QString strNote;       ///< shown in the middle
    bool bWarning = false; ///< the note is a warning
};

/// The canvas of a sender to scale, as the LED wall would show it: black, with the background picture at its
/// opacity and fit over it, and the size below.
class CCanvasPreview : public QWidget
{
    Q_OBJECT

public:
    explicit CCanvasPreview(QWidget* pParent = nullptr);

    void SetContent(const SCanvasContent& content);
    const SCanvasContent& Content() const { return m_content; }
    /// Where the canvas is, pixels of this widget; empty when none is shown.
    QRect CanvasRect() const { return m_layout.rectCanvas; }
    /// The line below the canvas; empty when none is shown.
    QString SizeText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void Compose();
    void DrawCanvas(QPainter& painter) const;
    void DrawSizeText(QPainter& painter) const;
    void DrawNote(QPainter& painter) const;
    QRect CanvasArea() const;

    SCanvasContent m_content;
    SCanvasLayout m_layout;
    QImage m_imgScaled; ///< the visible part of the picture, in screen pixels
    QRect m_rectPicture;
};

#endif // WORKBENCH_OUTPUT_CANVASPREVIEW_H
