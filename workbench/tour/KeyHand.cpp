#include "workbench/tour/KeyHand.h"

#include <QApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QTreeView>

namespace {

/// Presses of a key before its target counts as out of reach: more than a window has controls or a list rows.
constexpr int c_nMostPresses = 200;

void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Presses a key until a condition holds.
/// @return false when it never does
template <class TCondition>
bool KeyUntil(Qt::Key key, TCondition condition)
{
    for (int i = 0; i < c_nMostPresses && !condition(); ++i)
        Key(key);
    return condition();
}

bool HasFocus(const QWidget& widget)
{
    const QWidget* pFocus = QApplication::focusWidget();
    return pFocus == &widget || widget.isAncestorOf(pFocus);
}

bool Reach(const QWidget& widget)
{
    return QApplication::focusWidget() != nullptr &&
           KeyUntil(Qt::Key_Tab, [&widget] { return HasFocus(widget); });
}

/// The key that a text marks with an ampersand.
Qt::Key Mnemonic(const QString& strText)
{
    const QString strKeys = QKeySequence::mnemonic(strText).toString();
    return strKeys.isEmpty() ? Qt::Key(0) : Qt::Key(strKeys.back().unicode());
}

bool IsCurrent(const QTreeView& tree, const QModelIndex& index)
{
    return tree.currentIndex().siblingAtColumn(0) == index;
}

bool ReachRow(const QTreeView& tree, const QModelIndex& index)
{
    if (!Reach(tree))
        return false;
    if (!IsCurrent(tree, index))
        Key(Qt::Key_Home);
    if (!KeyUntil(Qt::Key_Down, [&] { return IsCurrent(tree, index); }))
        return false;
    // A list that gets the focus makes its first row the current one without selecting it.
    if (!tree.selectionModel()->isSelected(index))
        Key(Qt::Key_Space);
    return tree.selectionModel()->isSelected(index);
}

} // namespace

void CKeyHand::ChooseInMenu(const QStringList& listTexts)
{
    const Qt::Key keyMenu = Mnemonic(listTexts.first());
    Note(QStringLiteral("the menu %1").arg(listTexts.first()), Find::InputWindow, [keyMenu](QWidget*) {
        Key(keyMenu, Qt::AltModifier);
        return QApplication::activePopupWidget() != nullptr;
    });
    for (const QString& strEntry : listTexts.mid(1))
        NoteInMenu(strEntry, [key = Mnemonic(strEntry)](QMenu& menu) {
            QTest::keyClick(&menu, key);
            return true;
        });
}

void CKeyHand::ShowPage(int nPage)
{
    Note(QStringLiteral("the key of page %1").arg(nPage + 1), Find::InputWindow, [nPage](QWidget*) {
        Key(Qt::Key(Qt::Key_1 + nPage), Qt::ControlModifier);
        return true;
    });
}

void CKeyHand::SelectRow(const FuncFind& funcFind, const QVector<int>& vecPath)
{
    Note(QStringLiteral("a row"), funcFind, [vecPath](QWidget* pWidget) {
        auto* pTree = qobject_cast<QTreeView*>(pWidget);
        return ReachRow(*pTree, RowAt(*pTree, vecPath));
    });
}

void CKeyHand::OpenRow(const FuncFind& funcFind, const QVector<int>& vecPath)
{
    Note(QStringLiteral("a row to open"), funcFind, [vecPath](QWidget* pWidget) {
        auto* pTree = qobject_cast<QTreeView*>(pWidget);
        if (!ReachRow(*pTree, RowAt(*pTree, vecPath)))
            return false;
        Key(Qt::Key_Return);
        return true;
    });
}

void CKeyHand::Press(const FuncFind& funcFind)
{
    Note(QStringLiteral("a button"), funcFind, [](QWidget* pWidget) {
        if (!Reach(*pWidget))
            return false;
        Key(Qt::Key_Space);
        return true;
    });
}

void CKeyHand::Confirm(const FuncFind& funcFind)
{
    Note(QStringLiteral("the Enter of a dialog"), funcFind, [](QWidget*) {
        Key(Qt::Key_Return);
        return true;
    });
}

void CKeyHand::Type(const FuncFind& funcFind, const QString& strText)
{
    Note(QStringLiteral("the field for %1").arg(strText), funcFind, [strText](QWidget* pWidget) {
        if (!Reach(*pWidget))
            return false;
        TypeOver(strText);
        return true;
    });
}

void CKeyHand::Choose(const FuncFind& funcFind, const QString& strEntry)
{
    Press(funcFind);
    NoteInMenu(strEntry, [strEntry](QMenu& menu) {
        const QAction* pEntry = Find::Entry(menu, strEntry);
        for (int i = 0; i < c_nMostPresses && menu.activeAction() != pEntry; ++i)
            QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
        return true;
    });
}
