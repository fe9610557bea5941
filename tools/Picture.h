#ifndef TOOLS_PICTURE_H
#define TOOLS_PICTURE_H

#include <QByteArray>
#include <QSize>
#include <QString>

#include <functional>

class QPainter;

/// Pictures in the formats that the tool writes.
namespace Picture {

enum class enFormat
{
    enPng,
    enSvg,
    enPdf,
};

/// The file names' endings, as a list to choose from.
QString Suffixes();

/// The format that a file's name asks for. Throws `CToolError` for any other.
enFormat FormatOf(const QString& strFile);

/// The format of a name, `png` for example, in any case. Throws `CToolError` for any other.
enFormat FormatNamed(const QString& strName);

/// The whole file of a picture.
/// @param size in pixels, of which all formats hold 96 to the inch
/// @param funcPaint paints it; throws `CToolError` when no painter can be had
QByteArray Paint(enFormat format, QSize size, const std::function<void(QPainter&)>& funcPaint);

} // namespace Picture

#endif // TOOLS_PICTURE_H
