#ifndef WORKBENCH_EDID_HEXVIEW_H
#define WORKBENCH_EDID_HEXVIEW_H

#include <QByteArray>
#include <QVector>
#include <QWidget>

/// Bytes in rows of sixteen with their offsets. Some bytes are marked (the field that is selected) and some
/// are shown as changed. A click or the arrow keys choose a byte.
class CHexView : public QWidget
{
    Q_OBJECT

public:
    explicit CHexView(QWidget* pParent = nullptr);

    void SetBytes(const QByteArray& bytes);
    QByteArray Bytes() const { return m_bytes; }
    /// Offsets of the bytes that are marked.
    void SetMarked(const QVector<int>& vecOffsets);
    QVector<int> Marked() const { return m_vecMarked; }
    /// Offsets of the bytes that are shown as changed.
    void SetChanged(const QVector<int>& vecOffsets);
    QVector<int> Changed() const { return m_vecChanged; }

    /// The rectangle of a byte, widget pixels.
    QRect ByteRect(int nOffset) const;
    /// The byte at a place, -1 for none.
    int ByteAt(QPoint pt) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The operator chose a byte.
    void ByteChosen(int nOffset);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    QSize CellSize() const;
    int RowCount() const;
    void Choose(int nOffset);
    void PaintHeader(QPainter& painter) const;
    void PaintByte(QPainter& painter, int nOffset) const;

    QByteArray m_bytes;
    QVector<int> m_vecMarked;
    QVector<int> m_vecChanged;
    int m_nCurrent = -1;
};

#endif // WORKBENCH_EDID_HEXVIEW_H
