#include "workbench/tour/Hand.h"

#include "workbench/tour/KeyHand.h"
#include "workbench/tour/MouseHand.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <utility>

CHand::~CHand() = default;

std::unique_ptr<CHand> CHand::Create(enHand hand)
{
    if (hand == enHand::enMouse)
        return std::make_unique<CMouseHand>();
    return std::make_unique<CKeyHand>();
}

QString CHand::Name(enHand hand)
{
    return hand == enHand::enMouse ? QStringLiteral("mouse") : QStringLiteral("keys");
}

std::vector<STouch> CHand::TakeTouches()
{
    return std::exchange(m_vecTouches, {});
}

void CHand::Note(const QString& strWhat, const FuncFind& funcFind,
                 const std::function<bool(QWidget*)>& funcDo)
{
    m_vecTouches.push_back({strWhat, funcFind, funcDo});
}

void CHand::NoteInMenu(const QString& strEntry, const std::function<bool(QMenu&)>& funcDo)
{
    const auto funcFind = [strEntry]() -> QWidget* {
        auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return pMenu != nullptr && Find::Entry(*pMenu, strEntry) != nullptr ? pMenu : nullptr;
    };
    Note(QStringLiteral("the entry %1").arg(strEntry), funcFind,
         [funcDo](QWidget* pMenu) { return funcDo(*qobject_cast<QMenu*>(pMenu)); });
}

QModelIndex CHand::RowAt(const QTreeView& tree, const QVector<int>& vecPath)
{
    QModelIndex index;
    for (const int nRow : vecPath)
        index = tree.model()->index(nRow, 0, index);
    return index;
}

void CHand::TypeOver(const QString& strText)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    // A field of several cells moves the focus while it is typed into.
    for (const QChar ch : strText)
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key(ch.toUpper().unicode()), ch,
                            Qt::NoModifier);
}

QAction* Find::Entry(const QWidget& menu, const QString& strText)
{
    const QList<QAction*> listActions = menu.actions();
    const auto itFound = std::find_if(listActions.cbegin(), listActions.cend(), [&](const QAction* pAction) {
        return pAction->text().startsWith(strText);
    });
    return itFound == listActions.cend() ? nullptr : *itFound;
}

QWidget* Find::InputWindow()
{
    if (QApplication::activePopupWidget() != nullptr)
        return QApplication::activePopupWidget();
    if (QApplication::activeModalWidget() != nullptr)
        return QApplication::activeModalWidget();
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(pWindow) != nullptr && pWindow->isVisible())
            return pWindow;
    }
    return nullptr;
}

CHand::FuncFind Find::Named(const char* szName)
{
    return [strName = QString::fromLatin1(szName)]() -> QWidget* {
        const QWidget* pWindow = InputWindow();
        if (pWindow == nullptr)
            return nullptr;
        for (QWidget* pWidget : pWindow->findChildren<QWidget*>(strName)) {
            if (pWidget->isVisible())
                return pWidget;
        }
        return nullptr;
    };
}

CHand::FuncFind Find::Captioned(const QString& strCaption)
{
    return [strCaption]() -> QWidget* {
        const QWidget* pWindow = InputWindow();
        if (pWindow == nullptr)
            return nullptr;
        for (const QLabel* pLabel : pWindow->findChildren<QLabel*>()) {
            if (pLabel->isVisible() && pLabel->text() == strCaption)
                return pLabel->buddy();
        }
        return nullptr;
    };
}
