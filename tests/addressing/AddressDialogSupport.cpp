#include "tests/addressing/AddressDialogSupport.h"

#include "SenderModuleDialog/addressing/LocalAddresses.h"
#include "host/OrviControl/CustomLabel.h"

#include <QPushButton>

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

QPushButton* Button(const QWidget& dialog, const char* szText)
{
    for (QPushButton* pButton : dialog.findChildren<QPushButton*>())
        if (pButton->text() == QString::fromUtf8(szText))
            return pButton;
    return nullptr;
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
    return dialog.findChildren<CCustomIPEdit*>();
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
