#include "tools/Picture.h"

#include "tools/Report.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QStringList>
#include <QSvgGenerator>

#include <algorithm>

namespace Picture {

namespace {

/// Pixels to the inch of screens, so that fonts come out alike in all formats.
constexpr int c_nDotsPerInch = 96;
constexpr double c_dInchesPerMetre = 100.0 / 2.54;
constexpr double c_dPointsPerInch = 72.0;

using FuncPaint = std::function<void(QPainter&)>;

void PaintOn(QPaintDevice& device, const FuncPaint& funcPaint)
{
    QPainter painter;
    if (!painter.begin(&device))
        throw CToolError(QStringLiteral("the picture cannot be painted; try a smaller --size"));
    // Otherwise images in a PDF would be squeezed with losses.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    funcPaint(painter);
}

void PaintPng(QBuffer& buffer, QSize size, const FuncPaint& funcPaint)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDotsPerMeterX(qRound(c_nDotsPerInch * c_dInchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    PaintOn(image, funcPaint);
    image.save(&buffer, "PNG");
}

void PaintSvg(QBuffer& buffer, QSize size, const FuncPaint& funcPaint)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(c_nDotsPerInch);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    PaintOn(generator, funcPaint);
}

void PaintPdf(QBuffer& buffer, QSize size, const FuncPaint& funcPaint)
{
    QPdfWriter writer(&buffer);
    writer.setResolution(c_nDotsPerInch);
    writer.setPageSize(QPageSize(QSizeF(size) * (c_dPointsPerInch / c_nDotsPerInch), QPageSize::Point,
                                 QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    PaintOn(writer, funcPaint);
}

struct SFormat
{
    const char* szSuffix;
    enFormat format;
    void (*pPaint)(QBuffer& buffer, QSize size, const FuncPaint& funcPaint);
};

constexpr SFormat c_arrFormats[] = {
    {"png", enFormat::enPng, &PaintPng},
    {"svg", enFormat::enSvg, &PaintSvg},
    {"pdf", enFormat::enPdf, &PaintPdf},
};

/// Null for an unknown suffix.
const SFormat* Find(const QString& strSuffix)
{
    const auto HasSuffix = [&strSuffix](const SFormat& row) {
        return strSuffix.compare(QLatin1String(row.szSuffix), Qt::CaseInsensitive) == 0;
    };
    const auto* const pFormat = std::find_if(std::begin(c_arrFormats), std::end(c_arrFormats), HasSuffix);
    return pFormat == std::end(c_arrFormats) ? nullptr : pFormat;
}

} // namespace

QString Suffixes()
{
    QStringList listSuffixes;
    for (const SFormat& row : c_arrFormats)
        listSuffixes += QLatin1Char('.') + QString::fromLatin1(row.szSuffix);
    return listSuffixes.join(QStringLiteral(", "));
}

enFormat FormatOf(const QString& strFile)
{
    const SFormat* const pFormat = Find(QFileInfo(strFile).suffix());
    if (pFormat == nullptr)
        throw CToolError(
            QStringLiteral("'%1' has no supported suffix; give a name that ends in one of: %2, or --format")
                .arg(strFile, Suffixes()));
    return pFormat->format;
}

enFormat FormatNamed(const QString& strName)
{
    const SFormat* const pFormat = Find(strName);
    if (pFormat == nullptr)
        throw CToolError(QStringLiteral("unknown format '%1'; give one of: png, svg, pdf").arg(strName));
    return pFormat->format;
}

QByteArray Paint(enFormat format, QSize size, const FuncPaint& funcPaint)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const auto it = std::find_if(std::begin(c_arrFormats), std::end(c_arrFormats),
                                 [format](const SFormat& row) { return row.format == format; });
    it->pPaint(buffer, size, funcPaint);
    return buffer.data();
}

} // namespace Picture
