#include "workbench/addresses/AdditionReport.h"

#include "simulator/CommonClass/AddressText.h"
#include "workbench/addresses/VerdictText.h"

#include <QCoreApplication>
#include <QMap>

namespace AdditionReport {

namespace {

class CAdditionReportText
{
    Q_DECLARE_TR_FUNCTIONS(CAdditionReportText)
};

/// Addresses that are listed one by one; more are shortened.
constexpr int c_nMostListed = 4;

/// A wider gap is a leap to another network, where the dialogs tried nothing in between.
constexpr unsigned int c_nWidestGap = 256;

unsigned int ValueOf(const QString& strEntry)
{
    return AddressValue(EntryAddress(strEntry)).value_or(0);
}

QString ListText(const QStringList& listAddresses)
{
    if (listAddresses.size() <= c_nMostListed)
        return listAddresses.join(CAdditionReportText::tr("、"));
    return CAdditionReportText::tr("%1 至 %2").arg(listAddresses.first(), listAddresses.last());
}

/// The refused addresses between consecutive added ones, by the reason.
QMap<enAddressVerdict, QStringList> LeftOut(const QStringList& listAdded, const FuncVerdict& funcVerdict)
{
    QMap<enAddressVerdict, QStringList> mapLeftOut;
    for (int i = 1; i < listAdded.size(); ++i) {
        const unsigned int nBegin = ValueOf(listAdded[i - 1]);
        const unsigned int nEnd = ValueOf(listAdded[i]);
        if (nEnd <= nBegin || nEnd - nBegin > c_nWidestGap)
            continue;
        for (unsigned int nAddress = nBegin + 1; nAddress < nEnd; ++nAddress) {
            const enAddressVerdict verdict = funcVerdict(nAddress);
            if (verdict != enAddressGood)
                mapLeftOut[verdict].append(AddressText(nAddress));
        }
    }
    return mapLeftOut;
}

} // namespace

QString Of(const QStringList& listBefore, const QStringList& listAfter, const FuncVerdict& funcVerdict)
{
    const QStringList listAdded = listAfter.mid(listBefore.size());
    if (listAdded.isEmpty())
        return {};
    QStringList listAddresses;
    for (const QString& strEntry : listAdded)
        listAddresses.append(EntryAddress(strEntry));
    QStringList listSentences = {
        CAdditionReportText::tr("已添加 %1 个地址：%2。").arg(listAdded.size()).arg(ListText(listAddresses))};
    const QMap<enAddressVerdict, QStringList> mapLeftOut = LeftOut(listAdded, funcVerdict);
    for (auto it = mapLeftOut.cbegin(); it != mapLeftOut.cend(); ++it)
        listSentences.append(CAdditionReportText::tr("略过 %1 个：%2（%3）。")
                                 .arg(it.value().size())
                                 .arg(ListText(it.value()), VerdictText::Of(it.key())));
    return listSentences.join(QLatin1Char(' '));
}

} // namespace AdditionReport
