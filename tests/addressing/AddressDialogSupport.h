#ifndef TESTS_ADDRESSING_ADDRESSDIALOGSUPPORT_H
#define TESTS_ADDRESSING_ADDRESSDIALOGSUPPORT_H

#include "host/OrviControl/CustomIPEdit.h"

#include <QLabel>
#include <QList>
#include <QStringList>

/// What the tests of the address dialogs share.
namespace AddressDialogSupport {

/// The local addresses that the dialogs see while this object lives.
class CLocalAddressScript
{
public:
    explicit CLocalAddressScript(std::initializer_list<const char*> listAddresses);
    ~CLocalAddressScript();
    CLocalAddressScript(const CLocalAddressScript&) = delete;
    CLocalAddressScript& operator=(const CLocalAddressScript&) = delete;
};

/// The texts of the captions in the order of their creation.
QStringList Captions(const QWidget& dialog);

/// The texts of the address fields, row by row.
QStringList Addresses(const QWidget& dialog);

/// The address fields, row by row.
QList<CCustomIPEdit*> AddressFields(const QWidget& dialog);

/// A list of that many entries, far from the addresses that tests use.
QStringList FilledList(int nCount);

/// Texts given as source literals.
QStringList List(std::initializer_list<const char*> listTexts);

} // namespace AddressDialogSupport

#endif // TESTS_ADDRESSING_ADDRESSDIALOGSUPPORT_H
