#ifndef SENDERMODULEDIALOG_DIALOGFRAME_H
#define SENDERMODULEDIALOG_DIALOGFRAME_H

#include <QList>
#include <QSize>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class CCustomLabel;
class QAction;
class QDialog;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;

/// What the eight settings dialogs share: styles, messages, menus and the button row.
///
/// Texts of the library have one translation context, `CCustomDialog`: they are written as
/// `CCustomDialog::tr("...")`, in tables as `QT_TRANSLATE_NOOP("CCustomDialog", "...")`.
namespace DialogFrame {

/// Font size of every style sheet, pixels.
constexpr int c_nFontSize = 12;

/// Common sizes of controls, pixels.
constexpr QSize c_sizeButton(80, 24);
constexpr QSize c_sizeSmallField(60, 24);
constexpr QSize c_sizeAddressField(180, 25);

/// @name Styles
/// The host's style text of each kind of control, completed with the host's font.
/// @{
void StyleCaption(CCustomLabel* pLabel);
void StyleCaption(QWidget* pLabel);
void StyleWarning(CCustomLabel* pLabel);
void StyleButton(QPushButton* pButton);
void StyleMenu(QMenu* pMenu);
void StyleCheckBox(QWidget* pCheckBox);
/// @param szSelector "QDoubleSpinBox", or the selector that a dialog is required to use instead
void StyleSpinBox(QWidget* pSpinBox, const char* szSelector);
/// A style text of the dialog's own.
void StyleWith(QWidget* pWidget, const char* szStyle, const char* szSelector);
/// @}

/// Shows a message with one button and waits.
/// @param pParent the dialog, or null where a message is to stand on its own
void ShowMessage(QWidget* pParent, const QString& strText);

/// Asks whether to go on.
/// @return true when the operator agreed
bool Ask(QWidget* pParent, const QString& strText);

/// One entry of a menu. The text is shown as it stands: translate it before.
struct SMenuEntry
{
    QString strText;
    int nData; ///< what the entry stands for, kept as the action's data
};

/// A styled menu with one action for each entry; the parent owns the menu and the actions.
QMenu* CreateMenu(QWidget* pParent, const std::vector<SMenuEntry>& vecEntries);

/// Adds one action to a menu, owned by the menu's parent: a dialog owns its actions as it owns its menus.
QAction* AddEntry(QMenu* pMenu, const SMenuEntry& entry);

/// Checks the first action with that data and no other. Data that no action has checks none.
void CheckEntry(const QList<QAction*>& listActions, int nData);

/// @name Names
/// Each control has an object name, by which tests find it, and an accessible name, which assistive tools
/// read out. Neither can be seen.
/// @{
void NameControl(QWidget* pControl, const char* szName, const QString& strAccessibleName);
/// Names a control by the caption beside it: the caption's buddy becomes the control.
void NameControl(QWidget* pControl, const char* szName, QLabel* pCaption);
/// @}

/// A label with a text, not styled yet.
CCustomLabel* CreateLabel(QWidget* pParent, const QString& strText,
                          Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);

/// A styled caption label.
/// @param strText the translated caption
/// @param alignment as most captions stand in a grid: to the right, vertically centred
CCustomLabel* CreateCaption(QWidget* pParent, const QString& strText,
                            Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter);

/// The result that `exec` returns. One dialog has another result for Cancel.
enum enResult
{
    enCancelled = 0,
    enAccepted = 1
};

/// What the two buttons of most dialogs pass to their slot.
enum enAction
{
    enOk = 0,
    enCancel = 1
};

/// The buttons OK and Cancel of a dialog. Each step is one that the dialogs take in stages of their own.
struct SOkCancel
{
    QPushButton* pOk = nullptr;
    QPushButton* pCancel = nullptr;

    /// Creates both.
    /// @param szOk source text of the first in the context `CCustomDialog`: dialogs differ in it
    static SOkCancel Create(QWidget* pParent, const char* szOk);

    void Style() const;
    void SetFixedSize(QSize size) const;
    void SetFixedHeight(int nHeight) const;
    /// Connects `clicked` of each.
    /// @param funcAction run with the number of the button
    void Connect(const std::function<void(int nID)>& funcAction, int nOk = enOk,
                 int nCancel = enCancel) const;
};

/// The buttons of most dialogs, in a row: created, styled, of the common size and connected.
/// @param funcAction run with `enOk` or `enCancel`
QHBoxLayout* CreateOkCancelRow(QWidget* pParent, const std::function<void(int nID)>& funcAction);

/// Ends a dialog with a result and sends it a close event. `QDialog::done` alone sends none, and hosts watch
/// for it in the dialogs that end this way.
void Finish(QDialog* pDialog, enResult result);

/// Shows a text in a label of fixed size that wraps words. A text with more lines than the label holds ends
/// in an ellipsis, and the tooltip is the whole text; a text that fits has no tooltip.
/// @param nLines lines that the label holds, at least 1
void ShowWrapped(CCustomLabel* pLabel, const QString& strText, int nLines);

/// The fixed size, set only where it differs, so that an unchanged window sees no layout pass.
void FixSize(QWidget* pWidget, QSize size);

} // namespace DialogFrame

#endif // SENDERMODULEDIALOG_DIALOGFRAME_H
