#include "tools/LocusCommand.h"

#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tools/Arguments.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace {

constexpr int c_nDecimals = 7;

/// All digits that it takes to read the same number back.
QString Exact(double dValue)
{
    return QString::number(dValue, 'g', QLocale::FloatingPointShortest);
}

QByteArray Text(const QVector<QPointF>& vecOutline)
{
    QString strText;
    for (const QPointF& pt : vecOutline)
        strText +=
            QStringLiteral("%1 %2\n").arg(pt.x(), 0, 'f', c_nDecimals).arg(pt.y(), 0, 'f', c_nDecimals);
    return strText.toLatin1();
}

QByteArray Csv(const QVector<QPointF>& vecOutline)
{
    QString strText = QStringLiteral("x,y\n");
    for (const QPointF& pt : vecOutline)
        strText += QStringLiteral("%1,%2\n").arg(Exact(pt.x()), Exact(pt.y()));
    return strText.toLatin1();
}

QByteArray Json(const QVector<QPointF>& vecOutline)
{
    QJsonArray arrPoints;
    for (const QPointF& pt : vecOutline)
        arrPoints.append(QJsonArray{pt.x(), pt.y()});
    return QJsonDocument(arrPoints).toJson();
}

void Run(const CArguments& arguments)
{
    if (arguments.Has("csv") && arguments.Has("json"))
        throw CToolError(QStringLiteral("--csv and --json exclude each other; give one of them"));
    CChromaGamutInterpolation gamut;
    const QVector<QPointF> vecOutline = gamut.GetQPointFData();
    if (arguments.Has("csv"))
        Output::ToStandardOutput(Csv(vecOutline));
    else
        Output::ToStandardOutput(arguments.Has("json") ? Json(vecOutline) : Text(vecOutline));
}

} // namespace

SSubcommand LocusSubcommand()
{
    return {
        "locus",
        "",
        0,
        0,
        "print the outline of the CIE 1931 diagram",
        "The outline is the convex hull of the spectral locus of the 2 degree standard observer: 156\n"
        "chromaticities x y, counter-clockwise from the lowest, with the purple line as the longest edge.\n"
        "CSV and JSON hold every digit.\n",
        {
            {"csv", 0, nullptr, "print comma-separated values with a heading"},
            {"json", 0, nullptr, "print a JSON array of pairs"},
        },
        enApplication::enCore,
        &Run,
    };
}
