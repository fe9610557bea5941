#include "host/HardwareSupport/CanvasLimit.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/TevraData/Sender.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/JournalCall.h"

namespace {

QString Null()
{
    return QStringLiteral("null");
}

} // namespace

QString JournalText::Of(bool bValue)
{
    return bValue ? QStringLiteral("true") : QStringLiteral("false");
}

QString JournalText::Of(int nValue)
{
    return QString::number(nValue);
}

QString JournalText::Of(qint64 nValue)
{
    return QString::number(nValue);
}

QString JournalText::Of(float fValue)
{
    return QString::number(double(fValue));
}

QString JournalText::Of(unsigned int nAddress)
{
    return AddressText(nAddress);
}

QString JournalText::Of(const unsigned int* pCode)
{
    return pCode == nullptr ? Null() : QStringLiteral("0x%1").arg(*pCode, 0, 16);
}

QString JournalText::Of(const bool* pValue)
{
    return pValue == nullptr ? Null() : Of(*pValue);
}

QString JournalText::Of(const QString& strValue)
{
    return QStringLiteral("\"%1\"").arg(strValue);
}

QString JournalText::Of(const QString* pValue)
{
    return pValue == nullptr ? Null() : Of(*pValue);
}

QString JournalText::Of(const QStringList& listValue)
{
    return QStringLiteral("[%1]").arg(listValue.join(QStringLiteral(", ")));
}

QString JournalText::Of(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString JournalText::Of(const CSender* pSender)
{
    if (pSender == nullptr)
        return Null();
    return QStringLiteral("{rate %1 depth %2 ports %3 canvas %4 picture %5 alpha %6 fit %7}")
        .arg(pSender->nFrameRate)
        .arg(pSender->nColorDepth)
        .arg(pSender->nOutputPortCount)
        .arg(Of(pSender->sizeCanvas), Of(pSender->BkImageEnable))
        .arg(pSender->BkImageAlpha)
        .arg(pSender->BkImageFit);
}

QString JournalText::Of(const CSenderEdidLimitData* pLimit)
{
    if (pLimit == nullptr)
        return Null();
    return QStringLiteral("{%1x%2 %3, %4 resolutions}")
        .arg(pLimit->nMaxWidth)
        .arg(pLimit->nMaxHeight)
        .arg(pLimit->bLimitByPixelClock ? QStringLiteral("by pixel clock")
                                        : QStringLiteral("area %1").arg(pLimit->nMaxArea))
        .arg(pLimit->listResolution.size());
}

QString JournalText::Of(const SCanvasLimit* pLimit)
{
    if (pLimit == nullptr)
        return Null();
    return QStringLiteral("{%1, %2, %3}")
        .arg(pLimit->nMaxWidth)
        .arg(pLimit->nMaxHeight)
        .arg(pLimit->nMaxArea);
}

QString JournalText::Of(const SEdidSetting* pSetting)
{
    if (pSetting == nullptr)
        return Null();
    return QStringLiteral("{%1x%2 rate %3 fractional %4 flags 0x%5 standard %6 pc %7}")
        .arg(pSetting->wWidth)
        .arg(pSetting->wHeight)
        .arg(pSetting->byRate)
        .arg(pSetting->byFractional)
        .arg(pSetting->byFormatFlags, 2, 16, QLatin1Char('0'))
        .arg(pSetting->byTimingStandard)
        .arg(pSetting->byConnectPC);
}

QString JournalText::Of(const SVideoPortKey* pKey)
{
    return pKey == nullptr ? Null() : Of(pKey->nInterfaceId);
}

QString JournalText::Of(const SHexCode& code)
{
    return QStringLiteral("0x%1").arg(code.nCode, 0, 16);
}
