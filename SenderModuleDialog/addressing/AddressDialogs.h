#ifndef SENDERMODULEDIALOG_ADDRESSING_ADDRESSDIALOGS_H
#define SENDERMODULEDIALOG_ADDRESSING_ADDRESSDIALOGS_H

#include "SenderModuleDialog/addressing/IPAddressRules.h"

class CCustomIPEdit;
class QLayout;
class QWidget;

/// What the address dialogs share between the rules and the host.
namespace AddressDialogs {

/// Judges the fields' texts by the host's verdict and tells the operator.
/// @param pDialog parent of the messages
/// @return true when the addresses may enter the list
bool Confirm(QWidget* pDialog, const IPAddressRules::SPath& path, const QStringList& listTexts,
             const QString& strOldAddress);

/// Whether the host sees an error in an address; ignores the code.
bool HasError(unsigned int nIP);

/// Takes an address into the host's list, without a name.
void Store(unsigned int nIP);

/// An address field of the size that all address dialogs use.
CCustomIPEdit* CreateAddressField(QWidget* pDialog);

/// Puts a dialog's rows above its buttons, in the frame that the address dialogs share.
void LayOut(QWidget* pDialog, QLayout* pRows, QLayout* pButtons);

} // namespace AddressDialogs

#endif // SENDERMODULEDIALOG_ADDRESSING_ADDRESSDIALOGS_H
