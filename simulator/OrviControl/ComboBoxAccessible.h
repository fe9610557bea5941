#ifndef SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H
#define SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H

#include <QAccessibleWidget>

class CCustomComboBox;

/// What assistive tools are told of a combo box: its name and its value. A push button would tell its text
/// as its name, and a box that is named for its caption would then tell no value.
class CComboBoxAccessible : public QAccessibleWidget
{
public:
    explicit CComboBoxAccessible(CCustomComboBox* pComboBox);

    /// From now on each combo box has such an interface. Further calls do nothing.
    static void Install();

    QString text(QAccessible::Text text) const override;
    QStringList actionNames() const override;
    void doAction(const QString& strAction) override;

private:
    CCustomComboBox* ComboBox() const;
};

#endif // SIMULATOR_ORVICONTROL_COMBOBOXACCESSIBLE_H
