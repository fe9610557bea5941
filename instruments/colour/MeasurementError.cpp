#include "instruments/colour/MeasurementCsv.h"

namespace {

struct SErrorText
{
    enMeasurementFault fault;
    const char* szText; ///< %1 is the value, %2 why it is no colour
};

constexpr SErrorText c_arrTexts[] = {
    {enMeasurementFault::enNotText, "the file is no text; export it as CSV in UTF-8"},
    {enMeasurementFault::enEmpty,
     "there is nothing; begin with a heading such as module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY"},
    {enMeasurementFault::enNoHeading,
     "'%1' begins no heading; begin with one such as module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY"},
    {enMeasurementFault::enMissingColumn, "the heading has no column %1; add it"},
    {enMeasurementFault::enRepeatedColumn, "the heading has column '%1' twice; remove one"},
    {enMeasurementFault::enOpenQuote, "the quoted field does not end; add the closing quote"},
    {enMeasurementFault::enNoLines, "nothing follows the heading; add a line for each module"},
    {enMeasurementFault::enNotNumber, "'%1' is not a number; write one such as 0.3127"},
    {enMeasurementFault::enNotReading, "'%1' is not possible: %2"},
    {enMeasurementFault::enUnknownPrimary, "'%1' is no primary; write R, G, B or W"},
    {enMeasurementFault::enRepeatedModule, "module '%1' is there twice; remove one or rename it"},
    {enMeasurementFault::enRepeatedReading, "module '%1' has this primary twice; remove one"},
    {enMeasurementFault::enMissingReading, "module '%1' lacks a primary; it needs red, green and blue"},
    {enMeasurementFault::enNotModule, "module '%1' is not possible: %2"},
};

QString FaultText(enMeasurementFault fault)
{
    for (const SErrorText& row : c_arrTexts)
        if (row.fault == fault)
            return QString::fromLatin1(row.szText);
    return QString();
}

} // namespace

QString SMeasurementError::Text() const
{
    QString strText = FaultText(fault);
    if (strText.contains(QLatin1String("%2")))
        strText = strText.arg(strValue, QString::fromLatin1(ColourFaultText(colourFault)));
    else if (strText.contains(QLatin1String("%1")))
        strText = strText.arg(strValue);
    if (nLine == 0)
        return strText;
    return QStringLiteral("line %1, column %2: ").arg(nLine).arg(nColumn) + strText;
}
