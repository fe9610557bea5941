#ifndef TESTS_CHART_RECORDINGPAINTDEVICE_H
#define TESTS_CHART_RECORDINGPAINTDEVICE_H

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class QPainter;

/// One thing that a painter was told to draw.
struct SPaintCall
{
    QString strKind; ///< "line", "ellipse", "rect", "polygon", "path", "image", "text"
    QVector<QPointF>
        vecPoints;   ///< ends, vertices, path elements; of a box the upper left corner and the size
    QString strText; ///< of a text
    QPen pen;
    QBrush brush;
    QFont font; ///< of a text

    /// Everything, in digits that tell any two doubles apart.
    QString ToString() const;
};

/// A device that paints nothing and notes what it is told, in order, with pens, brushes and fonts.
class CRecordingPaintDevice : public QPaintDevice
{
public:
    explicit CRecordingPaintDevice(QSize size = QSize(1000, 1000));
    ~CRecordingPaintDevice() override;
    QPaintEngine* paintEngine() const override;

    const QVector<SPaintCall>& Calls() const { return m_vecCalls; }
    /// The calls of one kind.
    QVector<SPaintCall> Calls(const QString& strKind) const;
    /// Each call as text, for comparisons.
    QStringList Texts() const;

    void Add(const SPaintCall& call) { m_vecCalls.append(call); }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    QVector<SPaintCall> m_vecCalls;
    std::unique_ptr<QPaintEngine> m_pEngine;
};

/// What a painter of a recording device is told by an action.
QVector<SPaintCall> RecordPainting(const std::function<void(QPainter&)>& funcPaint);

/// The first place where two recordings differ; empty if nowhere.
QString PaintDifference(const QVector<SPaintCall>& vecActual, const QVector<SPaintCall>& vecExpected);

#endif // TESTS_CHART_RECORDINGPAINTDEVICE_H
