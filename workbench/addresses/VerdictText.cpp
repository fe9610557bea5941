#include "workbench/addresses/VerdictText.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"

#include <QCoreApplication>

namespace VerdictText {

namespace {

class CVerdictText
{
    Q_DECLARE_TR_FUNCTIONS(CVerdictText)
};

struct SVerdictRow
{
    enAddressVerdict verdict;
    const char* szText;
};

constexpr SVerdictRow c_arrVerdicts[] = {
    {enAddressGood, QT_TRANSLATE_NOOP("CVerdictText", "可以使用")},
    {enAddressOfThisComputer, QT_TRANSLATE_NOOP("CVerdictText", "本机的地址：需要确认")},
    {enAddressInUse, QT_TRANSLATE_NOOP("CVerdictText", "已在列表中")},
    {enAddressStartsWithZero, QT_TRANSLATE_NOOP("CVerdictText", "以 0 开头")},
    {enAddressOfGateway, QT_TRANSLATE_NOOP("CVerdictText", "默认网关的地址")},
    {enAddressBroadcast, QT_TRANSLATE_NOOP("CVerdictText", "广播地址")},
    {enAddressUnreasonable, QT_TRANSLATE_NOOP("CVerdictText", "主机不能使用的地址：组播、保留或网络地址")},
};

} // namespace

QString Of(enAddressVerdict verdict)
{
    for (const SVerdictRow& row : c_arrVerdicts)
        if (row.verdict == verdict)
            return CVerdictText::tr(row.szText);
    return {};
}

QString OfText(const QString& strAddress)
{
    const std::optional<unsigned int> address = AddressValue(strAddress);
    return address ? Of(CSimulator::Instance().Addresses().Judge(*address))
                   : CVerdictText::tr("不是完整的地址");
}

} // namespace VerdictText
