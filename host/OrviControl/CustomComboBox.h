#ifndef HOST_ORVICONTROL_CUSTOMCOMBOBOX_H
#define HOST_ORVICONTROL_CUSTOMCOMBOBOX_H

#include "host/HostExport.h"

#include <QPushButton>

#include <memory>

class QAction;
class QMenu;

/// A drop-down button: a push button that shows the chosen text and opens a menu, with the entry of that text
/// picked out. Space, Down, Up and F4 open it too. The menu comes from `SetMenu`, or from
/// `QPushButton::setMenu`, which leaves the text to the caller.
class ORVICONTROL_EXPORT CCustomComboBox : public QPushButton
{
    Q_OBJECT

public:
    /// A box without text and menu.
    explicit CCustomComboBox(QWidget* pParent = nullptr);
    ~CCustomComboBox() override;

    /// Installs the menu. From then on choosing an action makes its text the button's text and emits
    /// `Activated`. The text has changed before any slot connected to the menu's signals after this call
    /// runs. A second call replaces the menu.
    /// @param pMenu the menu, not owned; null takes the menu away
    /// @param bMarkChosen the box itself marks the chosen action as the current one
    /// @param bMatchWidth the menu is at least as wide as the button
    /// @param bShowText the button takes the chosen action's text
    void SetMenu(QMenu* pMenu, bool bMarkChosen, bool bMatchWidth, bool bShowText);
    /// Marks the menu item with that index as the current one, and no other. An index that the menu lacks
    /// marks none.
    void SetItemChecked(int nIndex);

    /// Picks out the entry of the shown text when the menu opens.
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

Q_SIGNALS:
    /// The operator chose the item with that index.
    void Activated(int nIndex);

protected:
    /// Opens the menu on Down, Up and F4. Enter goes to the dialog's default button.
    void keyPressEvent(QKeyEvent* pEvent) override;
    /// Paints the text from the left, shortened at its end where it is too long.
    void paintEvent(QPaintEvent* pEvent) override;
    /// Watches the menu from the press that opens it, whoever set it.
    bool event(QEvent* pEvent) override;

private:
    void ActionChosen(QAction* pAction);
    void PickOutCurrentItem();

    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMCOMBOBOX_H
