#include "host/OrviControl/CustomComboBox.h"

#include "host/OrviControl/Style.h"

#include <QMenu>
#include <QPointer>

class CCustomComboBox::CPrivate
{
public:
    QPointer<QMenu> pMenu;
    bool bMarkChosen = false;
    bool bShowText = false;
};

CCustomComboBox::CCustomComboBox(QWidget* pParent)
    : QPushButton(pParent)
    , m_pPrivate(std::make_unique<CPrivate>())
{
    setStyleSheet(GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
}

CCustomComboBox::~CCustomComboBox() = default;

void CCustomComboBox::SetMenu(QMenu* pMenu, bool bMarkChosen, bool bMatchWidth, bool bShowText)
{
    m_pPrivate->pMenu = pMenu;
    m_pPrivate->bMarkChosen = bMarkChosen;
    m_pPrivate->bShowText = bShowText;
    setMenu(pMenu);
    if (bMatchWidth)
        connect(pMenu, &QMenu::aboutToShow, this, [this, pMenu] { pMenu->setMinimumWidth(width()); });
    connect(pMenu, &QMenu::triggered, this, [this](QAction* pAction) {
        const int nIndex = m_pPrivate->pMenu->actions().indexOf(pAction);
        if (m_pPrivate->bShowText)
            setText(pAction->text());
        if (m_pPrivate->bMarkChosen)
            SetItemChecked(nIndex);
        Q_EMIT Activated(nIndex);
    });
}

void CCustomComboBox::SetItemChecked(int nIndex)
{
    if (m_pPrivate->pMenu == nullptr)
        return;
    const QList<QAction*> listActions = m_pPrivate->pMenu->actions();
    for (int i = 0; i < listActions.size(); ++i) {
        listActions.at(i)->setCheckable(true);
        listActions.at(i)->setChecked(i == nIndex);
    }
}
