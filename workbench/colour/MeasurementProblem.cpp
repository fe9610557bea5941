#include "workbench/colour/MeasurementProblem.h"

#include <QCoreApplication>

namespace {

/// Context of the texts below.
class CMeasurementProblem
{
    Q_DECLARE_TR_FUNCTIONS(CMeasurementProblem)
};

struct SFaultText
{
    enMeasurementFault fault;
    const char* szText; ///< %1 is the value, %2 why it is not a colour
};

constexpr SFaultText c_arrTexts[] = {
    {enMeasurementFault::enNotText,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "不是文本文件；请导出为 UTF-8 的 CSV")},
    {enMeasurementFault::enEmpty, QT_TRANSLATE_NOOP("CMeasurementProblem", "没有内容；第一行应为表头")},
    {enMeasurementFault::enNoHeading,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "“%1”不是表头；例如 module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY")},
    {enMeasurementFault::enMissingColumn, QT_TRANSLATE_NOOP("CMeasurementProblem", "表头缺少列 %1；请补上")},
    {enMeasurementFault::enRepeatedColumn,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "表头有两个“%1”；请删去一个")},
    {enMeasurementFault::enOpenQuote, QT_TRANSLATE_NOOP("CMeasurementProblem", "引号没有结束；请补上")},
    {enMeasurementFault::enNoLines,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "表头之后没有数据；每个模组一行")},
    {enMeasurementFault::enNotNumber, QT_TRANSLATE_NOOP("CMeasurementProblem", "“%1”不是数字；例如 0.3127")},
    {enMeasurementFault::enNotReading, QT_TRANSLATE_NOOP("CMeasurementProblem", "“%1”不可能：%2")},
    {enMeasurementFault::enUnknownPrimary,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "“%1”不是基色；请写 R、G、B 或 W")},
    {enMeasurementFault::enRepeatedModule,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "模组“%1”出现两次；请删去一个或改名")},
    {enMeasurementFault::enRepeatedReading,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "模组“%1”的这个基色出现两次；请删去一个")},
    {enMeasurementFault::enMissingReading,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "模组“%1”缺少基色；需要红、绿、蓝")},
    {enMeasurementFault::enNotModule, QT_TRANSLATE_NOOP("CMeasurementProblem", "模组“%1”不可能：%2")},
};

struct SColourText
{
    enColourFault fault;
    const char* szText;
};

constexpr SColourText c_arrColourTexts[] = {
    {enColourFault::enNotFinite, QT_TRANSLATE_NOOP("CMeasurementProblem", "数字不是有限的")},
    {enColourFault::enNotChromaticity,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "x 和 y 必须大于 0，且和不大于 1")},
    {enColourFault::enNotPositive, QT_TRANSLATE_NOOP("CMeasurementProblem", "亮度必须大于 0")},
    {enColourFault::enDegenerateGamut, QT_TRANSLATE_NOOP("CMeasurementProblem", "三个基色在一条直线上")},
    {enColourFault::enNoTemperature,
     QT_TRANSLATE_NOOP("CMeasurementProblem", "色温不在 1000 K 到 20000 K 之间")},
    {enColourFault::enAtWhite, QT_TRANSLATE_NOOP("CMeasurementProblem", "该点就是白点")},
    {enColourFault::enWhiteOutsideGamut, QT_TRANSLATE_NOOP("CMeasurementProblem", "白点在色域之外")},
    {enColourFault::enNoCommonGamut, QT_TRANSLATE_NOOP("CMeasurementProblem", "各模组没有公共色域")},
    {enColourFault::enNoModules, QT_TRANSLATE_NOOP("CMeasurementProblem", "没有模组")},
};

template <class TRow, std::size_t nCount, class TFault>
QString TextOf(const TRow (&arrRows)[nCount], TFault fault)
{
    for (const TRow& row : arrRows)
        if (row.fault == fault)
            return CMeasurementProblem::tr(row.szText);
    return QString();
}

} // namespace

QString MeasurementProblem::Text(enColourFault fault)
{
    return TextOf(c_arrColourTexts, fault);
}

QString MeasurementProblem::Text(const SMeasurementError& error)
{
    QString strText = TextOf(c_arrTexts, error.fault);
    if (strText.contains(QLatin1String("%2")))
        strText = strText.arg(error.strValue, Text(error.colourFault));
    else if (strText.contains(QLatin1String("%1")))
        strText = strText.arg(error.strValue);
    if (error.nLine == 0)
        return strText;
    return CMeasurementProblem::tr("第 %1 行第 %2 列：%3").arg(error.nLine).arg(error.nColumn).arg(strText);
}
