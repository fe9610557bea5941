#include "SenderModuleDialog/output/BackgroundRules.h"

#include <QFileInfo>

#include <cmath>

namespace BackgroundRules {

int PercentOfAlpha(int nAlpha)
{
    const float fScaled = float(nAlpha) * float(c_nMaxPercent);
    const float fOpacity = fScaled / float(c_nMaxAlpha);
    return c_nMaxPercent - int(std::lround(fOpacity));
}

int AlphaOfPercent(int nPercent)
{
    return (c_nMaxPercent - nPercent) * c_nMaxAlpha / c_nMaxPercent;
}

quint8 AlphaByte(int nAlpha)
{
    return quint8(unsigned(nAlpha) & 0xFFU);
}

int FitOfText(const QString& strText)
{
    return strText == QLatin1String(c_szOneToOne) ? 0 : 1;
}

bool IsSameFile(const QString& strPath, const QString& strOther)
{
    if (strPath == strOther)
        return true;
    const QString strCanonical = QFileInfo(strPath).canonicalFilePath();
    return !strCanonical.isEmpty() && strCanonical == QFileInfo(strOther).canonicalFilePath();
}

} // namespace BackgroundRules
