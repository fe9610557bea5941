#ifndef TOOLS_COLOURJSON_H
#define TOOLS_COLOURJSON_H

#include "instruments/colour/ColourMatrix.h"
#include "instruments/colour/Primaries.h"

#include <QJsonArray>
#include <QJsonObject>

/// Colours as JSON.
namespace ColourJson {

inline QJsonArray Of(const CColourMatrix& matrix)
{
    QJsonArray arrRows;
    for (std::size_t nRow = 0; nRow < 3; ++nRow)
        arrRows.append(QJsonArray{matrix.At(nRow, 0), matrix.At(nRow, 1), matrix.At(nRow, 2)});
    return arrRows;
}

inline QJsonArray Of(SChromaticity xy)
{
    return {xy.dX, xy.dY};
}

inline QJsonObject Of(const SReading& reading)
{
    return {{QStringLiteral("x"), reading.xy.dX},
            {QStringLiteral("y"), reading.xy.dY},
            {QStringLiteral("luminance"), reading.dLuminance}};
}

} // namespace ColourJson

#endif // TOOLS_COLOURJSON_H
