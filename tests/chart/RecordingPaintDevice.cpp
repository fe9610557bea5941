#include "tests/chart/RecordingPaintDevice.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int c_nDotsPerInch = 96;
constexpr double c_dMillimetresPerInch = 25.4;
constexpr int c_nExactDigits = 17;

QString Number(double dValue)
{
    return QString::number(dValue, 'g', c_nExactDigits);
}

QString ColorText(const QColor& color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : QStringLiteral("invalid");
}

class CRecordingPaintEngine : public QPaintEngine
{
public:
    explicit CRecordingPaintEngine(CRecordingPaintDevice& device)
        : QPaintEngine(QPaintEngine::AllFeatures)
        , m_device(device)
    {}

    bool begin(QPaintDevice* /*pDevice*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState& newState) override
    {
        const QPaintEngine::DirtyFlags flags = newState.state();
        if (flags.testFlag(DirtyPen))
            m_pen = newState.pen();
        if (flags.testFlag(DirtyBrush))
            m_brush = newState.brush();
    }

    void drawLines(const QLineF* pLines, int nCount) override
    {
        for (int i = 0; i < nCount; ++i)
            Note("line", {pLines[i].p1(), pLines[i].p2()});
    }
    void drawLines(const QLine* pLines, int nCount) override
    {
        for (int i = 0; i < nCount; ++i)
            Note("line", {pLines[i].p1(), pLines[i].p2()});
    }
    void drawRects(const QRectF* pRects, int nCount) override
    {
        for (int i = 0; i < nCount; ++i)
            NoteBox("rect", pRects[i]);
    }
    void drawRects(const QRect* pRects, int nCount) override
    {
        for (int i = 0; i < nCount; ++i)
            NoteBox("rect", pRects[i]);
    }
    void drawEllipse(const QRectF& rc) override { NoteBox("ellipse", rc); }
    void drawEllipse(const QRect& rc) override { NoteBox("ellipse", rc); }
    void drawPolygon(const QPointF* pPoints, int nCount, PolygonDrawMode mode) override
    {
        QVector<QPointF> vecPoints;
        std::copy(pPoints, pPoints + nCount, std::back_inserter(vecPoints));
        Note(mode == OddEvenMode ? "polygon" : "polygon in another mode", vecPoints);
    }
    void drawPath(const QPainterPath& path) override
    {
        QVector<QPointF> vecPoints;
        for (int i = 0; i < path.elementCount(); ++i)
            vecPoints.append(path.elementAt(i));
        Note("path", vecPoints);
    }
    void drawImage(const QRectF& rc, const QImage& /*img*/, const QRectF& rcSource,
                   Qt::ImageConversionFlags /*flags*/) override
    {
        Note("image", {rc.topLeft(), QPointF(rc.width(), rc.height()), rcSource.topLeft(),
                       QPointF(rcSource.width(), rcSource.height())});
    }
    void drawPixmap(const QRectF& rc, const QPixmap& /*pixmap*/, const QRectF& /*rcSource*/) override
    {
        NoteBox("pixmap", rc);
    }
    void drawTextItem(const QPointF& pt, const QTextItem& item) override
    {
        m_device.Add({QStringLiteral("text"), {pt}, item.text(), m_pen, m_brush, item.font()});
    }

private:
    void Note(const char* szKind, const QVector<QPointF>& vecPoints)
    {
        m_device.Add({QString::fromLatin1(szKind), vecPoints, QString(), m_pen, m_brush, QFont()});
    }
    void NoteBox(const char* szKind, const QRectF& rc)
    {
        Note(szKind, {rc.topLeft(), QPointF(rc.width(), rc.height())});
    }

    CRecordingPaintDevice& m_device;
    QPen m_pen;
    QBrush m_brush;
};

} // namespace

QString SPaintCall::ToString() const
{
    QString strResult = strKind;
    for (const QPointF& pt : vecPoints)
        strResult += QStringLiteral(" (%1, %2)").arg(Number(pt.x()), Number(pt.y()));
    strResult += QStringLiteral(" pen %1 style %2 width %3 cap %4 join %5")
                     .arg(ColorText(pen.color()))
                     .arg(int(pen.style()))
                     .arg(Number(pen.widthF()))
                     .arg(int(pen.capStyle()))
                     .arg(int(pen.joinStyle()));
    if (pen.style() == Qt::CustomDashLine) {
        for (const qreal dDash : pen.dashPattern())
            strResult += QStringLiteral(" dash %1").arg(Number(dDash));
    }
    strResult += QStringLiteral(" brush %1 style %2").arg(ColorText(brush.color())).arg(int(brush.style()));
    if (strKind == QLatin1String("text"))
        strResult += QStringLiteral(" \"%1\" in %2").arg(strText, font.key());
    return strResult;
}

CRecordingPaintDevice::CRecordingPaintDevice(QSize size)
    : m_size(size)
    , m_pEngine(std::make_unique<CRecordingPaintEngine>(*this))
{}

CRecordingPaintDevice::~CRecordingPaintDevice() = default;

QPaintEngine* CRecordingPaintDevice::paintEngine() const
{
    return m_pEngine.get();
}

QVector<SPaintCall> CRecordingPaintDevice::Calls(const QString& strKind) const
{
    QVector<SPaintCall> vecCalls;
    std::copy_if(m_vecCalls.begin(), m_vecCalls.end(), std::back_inserter(vecCalls),
                 [&strKind](const SPaintCall& call) { return call.strKind == strKind; });
    return vecCalls;
}

QStringList CRecordingPaintDevice::Texts() const
{
    QStringList listTexts;
    for (const SPaintCall& call : m_vecCalls)
        listTexts.append(call.ToString());
    return listTexts;
}

int CRecordingPaintDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return int(m_size.width() * c_dMillimetresPerInch / c_nDotsPerInch);
    case PdmHeightMM:
        return int(m_size.height() * c_dMillimetresPerInch / c_nDotsPerInch);
    case PdmNumColors:
        return 1 << 24;
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return c_nDotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    }
    return 0;
}

QVector<SPaintCall> RecordPainting(const std::function<void(QPainter&)>& funcPaint)
{
    CRecordingPaintDevice device;
    QPainter painter(&device);
    funcPaint(painter);
    painter.end();
    return device.Calls();
}

QString PaintDifference(const QVector<SPaintCall>& vecActual, const QVector<SPaintCall>& vecExpected)
{
    const int nCommon = int(std::min(vecActual.size(), vecExpected.size()));
    for (int i = 0; i < nCommon; ++i) {
        const QString strActual = vecActual[i].ToString();
        const QString strExpected = vecExpected[i].ToString();
        if (strActual != strExpected)
            return QStringLiteral("call %1\n  is        %2\n  should be %3")
                .arg(i)
                .arg(strActual, strExpected);
    }
    if (vecActual.size() != vecExpected.size())
        return QStringLiteral("%1 calls instead of %2").arg(vecActual.size()).arg(vecExpected.size());
    return {};
}
