#ifndef SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H
#define SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H

#include <QAccessibleWidget>

class CCustomComboBox;

/// The name and value of a combo box for assistive tools. A push button reports its text as its name, so a
/// box named after its caption would otherwise report no value.
class CComboBoxAccessible : public QAccessibleWidget
{
public:
    explicit CComboBoxAccessible(CCustomComboBox* pComboBox);

    /// Gives every combo box such an interface. Further calls do nothing.
    static void Install();

    QString text(QAccessible::Text text) const override;
    QStringList actionNames() const override;
    void doAction(const QString& strAction) override;

private:
    CCustomComboBox* ComboBox() const;
};

#endif // SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H
