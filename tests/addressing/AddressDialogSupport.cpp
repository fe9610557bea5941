#include "tests/addressing/AddressDialogSupport.h"

#include "SenderModuleDialog/addressing/LocalAddresses.h"
#include "host/OrviControl/CustomLabel.h"

namespace AddressDialogSupport {

CLocalAddressScript::CLocalAddressScript(std::initializer_list<const char*> listAddresses)
{
    QList<QHostAddress> listLocal;
    for (const char* szAddress : listAddresses)
        listLocal.append(QHostAddress(QString::fromLatin1(szAddress)));
    LocalAddresses::SetSource([listLocal] { return listLocal; });
}

CLocalAddressScript::~CLocalAddressScript()
{
    LocalAddresses::SetSource({});
}

QStringList Captions(const QWidget& dialog)
{
    QStringList listTexts;
    for (const CCustomLabel* pLabel : dialog.findChildren<CCustomLabel*>())
        listTexts.append(pLabel->text());
    return listTexts;
}

QList<CCustomIPEdit*> AddressFields(const QWidget& dialog)
{
    if (auto* pOnly = dialog.findChild<CCustomIPEdit*>(QStringLiteral("address")))
        return {pOnly};
    QList<CCustomIPEdit*> listFields;
    while (auto* pField =
               dialog.findChild<CCustomIPEdit*>(QStringLiteral("address%1").arg(listFields.size())))
        listFields.append(pField);
    return listFields;
}

QStringList Addresses(const QWidget& dialog)
{
    QStringList listTexts;
    for (const CCustomIPEdit* pField : AddressFields(dialog))
        listTexts.append(pField->text());
    return listTexts;
}

QStringList FilledList(int nCount)
{
    QStringList listEntries;
    for (int i = 0; i < nCount; ++i)
        listEntries.append(QStringLiteral("172.20.0.%1()").arg(i));
    return listEntries;
}

QStringList List(std::initializer_list<const char*> listTexts)
{
    QStringList list;
    for (const char* szText : listTexts)
        list.append(QString::fromUtf8(szText));
    return list;
}

} // namespace AddressDialogSupport
