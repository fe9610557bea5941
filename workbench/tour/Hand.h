#ifndef WORKBENCH_TOUR_HAND_H
#define WORKBENCH_TOUR_HAND_H

#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QMenu;
class QModelIndex;
class QTreeView;

/// What an operator uses.
enum class enHand
{
    enMouse, ///< the mouse, and the keyboard to type values
    enKeys   ///< the keyboard alone
};

/// One click, or some keys, on one widget.
struct STouch
{
    QString strWhat;                      ///< for the report when it cannot be done
    std::function<QWidget*()> funcFind;   ///< null as long as there is no such widget
    std::function<bool(QWidget*)> funcDo; ///< false when the widget did not take it
};

/// Operates windows by mouse or by keys. Each operation only notes its touches: a dialog that one of them
/// opens keeps it waiting until the dialog is closed, which takes the touches that follow.
class CHand
{
public:
    using FuncFind = std::function<QWidget*()>;

    virtual ~CHand();
    Q_DISABLE_COPY(CHand)

    static std::unique_ptr<CHand> Create(enHand hand);
    /// "mouse" or "keys".
    static QString Name(enHand hand);

    /// The noted touches in their order; none is noted any more.
    std::vector<STouch> TakeTouches();

    /// Chooses an entry of the menu bar's menus.
    /// @param listTexts the texts from the menu bar down, with their mnemonics
    virtual void ChooseInMenu(const QStringList& listTexts) = 0;
    /// Brings a page to the front.
    virtual void ShowPage(int nPage) = 0;
    /// Makes a row of a tree the current one.
    /// @param vecPath row at the top, row below it, ...
    virtual void SelectRow(const FuncFind& funcFind, const QVector<int>& vecPath) = 0;
    /// Does what a tree's row is for: its double click or its Enter.
    virtual void OpenRow(const FuncFind& funcFind, const QVector<int>& vecPath) = 0;
    /// Presses a button or ticks a box.
    virtual void Press(const FuncFind& funcFind) = 0;
    /// Confirms a dialog whose fields are filled in.
    /// @param funcFind finds the button
    virtual void Confirm(const FuncFind& funcFind) = 0;
    /// Replaces the content of a field.
    virtual void Type(const FuncFind& funcFind, const QString& strText) = 0;
    /// Chooses an entry of a combo box of the control kit.
    virtual void Choose(const FuncFind& funcFind, const QString& strEntry) = 0;

protected:
    CHand() = default;

    void Note(const QString& strWhat, const FuncFind& funcFind, const std::function<bool(QWidget*)>& funcDo);
    /// Notes a touch of an open menu that has the entry.
    void NoteInMenu(const QString& strEntry, const std::function<bool(QMenu&)>& funcDo);

    static QModelIndex RowAt(const QTreeView& tree, const QVector<int>& vecPath);
    /// Types in place of what the widget with the focus holds.
    static void TypeOver(const QString& strText);

private:
    std::vector<STouch> m_vecTouches;
};

/// Where journeys find what they operate.
namespace Find {

/// The entry of a menu or menu bar that begins with a text, or null. The dialogs add a note to some entries.
QAction* Entry(const QWidget& menu, const QString& strText);
/// The window that takes input: the open menu, the modal dialog or the workbench.
QWidget* InputWindow();
/// A visible widget of that name in the window that takes input.
CHand::FuncFind Named(const char* szName);
/// The control that a caption of that text belongs to.
CHand::FuncFind Captioned(const QString& strCaption);
/// A visible widget of a class.
template <class TWidget>
CHand::FuncFind Only()
{
    return [] {
        QWidget* pWindow = InputWindow();
        return pWindow == nullptr ? nullptr : static_cast<QWidget*>(pWindow->findChild<TWidget*>());
    };
}

} // namespace Find

#endif // WORKBENCH_TOUR_HAND_H
