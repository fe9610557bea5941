#include "workbench/tour/MouseHand.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

namespace {

/// Clicks what is at a place, which may be a part of the widget: the editor in a spin box.
void ClickAt(QWidget* pWidget, QPoint pos)
{
    QWidget* pChild = pWidget->childAt(pos);
    if (pChild == nullptr)
        QTest::mouseClick(pWidget, Qt::LeftButton, Qt::NoModifier, pos);
    else
        QTest::mouseClick(pChild, Qt::LeftButton, Qt::NoModifier, pChild->mapFrom(pWidget, pos));
}

void ClickMiddle(QWidget* pWidget)
{
    ClickAt(pWidget, pWidget->rect().center());
}

/// Clicks a row after it was scrolled into view.
/// @return where
QPoint ClickRow(QTreeView& tree, const QModelIndex& index)
{
    tree.scrollTo(index);
    const QPoint pos = tree.visualRect(index).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    return pos;
}

/// A wide check box takes clicks on its box and its text alone.
QPoint PlaceToPress(const QWidget& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool bBox = button.inherits("QCheckBox");
    return bBox ? button.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &button).center()
                : button.rect().center();
}

} // namespace

void CMouseHand::ChooseInMenu(const QStringList& listTexts)
{
    const QString& strMenu = listTexts.first();
    Note(QStringLiteral("the menu %1").arg(strMenu), Find::Only<QMenuBar>(), [strMenu](QWidget* pWidget) {
        auto* pBar = qobject_cast<QMenuBar*>(pWidget);
        QAction* pMenu = Find::Entry(*pBar, strMenu);
        if (pMenu == nullptr)
            return false;
        ClickAt(pBar, pBar->actionGeometry(pMenu).center());
        return true;
    });
    for (const QString& strEntry : listTexts.mid(1))
        ClickEntry(strEntry);
}

void CMouseHand::ClickEntry(const QString& strEntry)
{
    NoteInMenu(strEntry, [strEntry](QMenu& menu) {
        ClickAt(&menu, menu.actionGeometry(Find::Entry(menu, strEntry)).center());
        return true;
    });
}

void CMouseHand::ShowPage(int nPage)
{
    Note(QStringLiteral("the tab of page %1").arg(nPage + 1), Find::Only<QTabWidget>(),
         [nPage](QWidget* pWidget) {
             auto* pBar = qobject_cast<QTabWidget*>(pWidget)->tabBar();
             ClickAt(pBar, pBar->tabRect(nPage).center());
             return pBar->currentIndex() == nPage;
         });
}

void CMouseHand::SelectRow(const FuncFind& funcFind, const QVector<int>& vecPath)
{
    Note(QStringLiteral("a row"), funcFind, [vecPath](QWidget* pWidget) {
        auto* pTree = qobject_cast<QTreeView*>(pWidget);
        const QModelIndex index = RowAt(*pTree, vecPath);
        ClickRow(*pTree, index);
        return pTree->currentIndex().siblingAtColumn(0) == index;
    });
}

void CMouseHand::OpenRow(const FuncFind& funcFind, const QVector<int>& vecPath)
{
    Note(QStringLiteral("a row to open"), funcFind, [vecPath](QWidget* pWidget) {
        auto* pTree = qobject_cast<QTreeView*>(pWidget);
        const QPoint pos = ClickRow(*pTree, RowAt(*pTree, vecPath));
        QTest::mouseDClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
        return true;
    });
}

void CMouseHand::Press(const FuncFind& funcFind)
{
    Note(QStringLiteral("a button"), funcFind, [](QWidget* pWidget) {
        ClickAt(pWidget, PlaceToPress(*pWidget));
        return true;
    });
}

void CMouseHand::Confirm(const FuncFind& funcFind)
{
    Press(funcFind);
}

void CMouseHand::Type(const FuncFind& funcFind, const QString& strText)
{
    Note(QStringLiteral("the field for %1").arg(strText), funcFind, [strText](QWidget* pWidget) {
        ClickMiddle(pWidget);
        TypeOver(strText);
        return true;
    });
}

void CMouseHand::Choose(const FuncFind& funcFind, const QString& strEntry)
{
    Press(funcFind);
    ClickEntry(strEntry);
}
