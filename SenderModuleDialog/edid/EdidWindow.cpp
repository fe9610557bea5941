#include "SenderModuleDialog/edid/EdidWindow.h"

#include "SenderModuleDialog/Constants.h"

#include <QLatin1String>

namespace EdidWindow {

namespace {

constexpr int c_nWidth = 300;
constexpr int c_nRowHeight = 32;
/// Margins and title area beside the rows.
constexpr int c_nHeightBesideRows = 39;
/// Resolution, depth and the buttons are always there.
constexpr int c_nFixedRows = 3;

} // namespace

bool KeepsCustomRow(const QString& strProductType, const QString& strProductVersion)
{
    return strProductType == QLatin1String("kylin") && strProductVersion == QLatin1String("4.0.2");
}

QSize Size(const SShownRows& rows, bool bKeepsCustomRow)
{
    const int nRows = c_nFixedRows + int(rows.bCustomSize || bKeepsCustomRow) + int(rows.bConnectPC) +
                      int(rows.bTimingStandard) + int(rows.bError) + int(rows.bFrameRate);
    return {c_nWidth, c_nRowHeight * nRows + c_nHeightBesideRows};
}

} // namespace EdidWindow
