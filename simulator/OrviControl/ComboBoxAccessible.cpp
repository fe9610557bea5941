#include "simulator/OrviControl/ComboBoxAccessible.h"

#include "host/OrviControl/CustomComboBox.h"

namespace {

QAccessibleInterface* Create(const QString&, QObject* pObject)
{
    auto* pComboBox = qobject_cast<CCustomComboBox*>(pObject);
    return pComboBox == nullptr ? nullptr : new CComboBoxAccessible(pComboBox);
}

} // namespace

CComboBoxAccessible::CComboBoxAccessible(CCustomComboBox* pComboBox)
    : QAccessibleWidget(pComboBox, QAccessible::ComboBox)
{}

void CComboBoxAccessible::Install()
{
    static const bool s_bInstalled = [] {
        QAccessible::installFactory(Create);
        return true;
    }();
    Q_UNUSED(s_bInstalled)
}

CCustomComboBox* CComboBoxAccessible::ComboBox() const
{
    return qobject_cast<CCustomComboBox*>(object());
}

QString CComboBoxAccessible::text(QAccessible::Text text) const
{
    return text == QAccessible::Value ? ComboBox()->text() : QAccessibleWidget::text(text);
}

QStringList CComboBoxAccessible::actionNames() const
{
    return QAccessibleWidget::actionNames() << showMenuAction();
}

void CComboBoxAccessible::doAction(const QString& strAction)
{
    if (strAction == showMenuAction())
        ComboBox()->showMenu();
    else
        QAccessibleWidget::doAction(strAction);
}
