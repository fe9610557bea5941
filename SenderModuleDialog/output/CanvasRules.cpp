#include "SenderModuleDialog/output/CanvasRules.h"

#include <QtGlobal>

#include <algorithm>

namespace CanvasRules {

namespace {

/// The one sender type without the last preset.
constexpr int c_nTypeWithout4096 = 17;

/// What the hardware's answer "none" is taken for.
constexpr QSize c_sizeDefault(1920, 1080);

} // namespace

int PresetCount(int nSenderType)
{
    const int nAll = int(c_arrPresets.size());
    return nSenderType == c_nTypeWithout4096 ? nAll - 1 : nAll;
}

int PresetOf(QSize size)
{
    const auto itFound = std::find_if(c_arrPresets.cbegin(), c_arrPresets.cend(),
                                      [size](const SPreset& preset) { return preset.size == size; });
    return itFound == c_arrPresets.cend() ? -1 : int(itFound - c_arrPresets.cbegin());
}

std::optional<SProblem> CheckMinimum(QSize size)
{
    if (size.width() >= c_nMinSide && size.height() >= c_nMinSide)
        return std::nullopt;
    return SProblem{QT_TRANSLATE_NOOP("CCustomDialog", "画布的宽或高不能小于%1。"), c_nMinSide};
}

std::optional<SProblem> CheckLimit(QSize size, const SCanvasLimit& limit)
{
    if (qint64(size.width()) * size.height() > limit.nMaxArea)
        return SProblem{QT_TRANSLATE_NOOP("CCustomDialog", "画布的面积不能大于%1。"), limit.nMaxArea};
    if (size.height() > limit.nMaxHeight)
        return SProblem{QT_TRANSLATE_NOOP("CCustomDialog", "画布的高不能大于%1。"), limit.nMaxHeight};
    if (size.width() > limit.nMaxWidth)
        return SProblem{QT_TRANSLATE_NOOP("CCustomDialog", "画布的宽不能大于%1。"), limit.nMaxWidth};
    return std::nullopt;
}

QSize OpeningSize(QSize sizeHardware)
{
    return sizeHardware == QSize(0, 0) ? c_sizeDefault : sizeHardware;
}

} // namespace CanvasRules
