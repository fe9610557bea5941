#include "host/OrviControl/CustomComboBox.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/ComboBoxAccessible.h"
#include "simulator/OrviControl/Theme.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
#include <functional>

namespace {

/// Room right of the text for the arrow, pixels.
constexpr int c_nArrowRoom = 18;

/// Room left of the text, pixels.
constexpr int c_nTextMargin = 7;

const QString& ComboStyle()
{
    static const QString s_strStyle = Theme::Resolve(
        "QPushButton{background:@field@; color:@text@; border:1px solid @edge@; border-radius:4px; "
        "outline:none;}"
        "QPushButton:hover{background:@button-pressed@;}"
        "QPushButton:focus{border:2px solid @focus@;}"
        "QPushButton:disabled{color:@text-disabled@; background:@field-disabled@;}"
        "QPushButton::menu-indicator{image:url(:/OrviControl/icons/arrow-down.svg); width:10px; height:6px;"
        " subcontrol-origin:border; subcontrol-position:right center; right:6px;}"
        "QPushButton::menu-indicator:disabled{image:url(:/OrviControl/icons/arrow-down-disabled.svg);}");
    return s_strStyle;
}

/// The first action that a predicate is true for, or null.
template <class TPredicate>
QAction* FindAction(const QList<QAction*>& listActions, TPredicate predicate)
{
    const auto itFound = std::find_if(listActions.cbegin(), listActions.cend(), predicate);
    return itFound == listActions.cend() ? nullptr : *itFound;
}

} // namespace

class CCustomComboBox::CPrivate
{
public:
    QPointer<QMenu> pMenu; ///< the menu passed to `SetMenu`
    bool bMarkChosen = false;
    bool bShowText = false;
};

CCustomComboBox::CCustomComboBox(QWidget* pParent)
    : QPushButton(pParent)
    , m_pPrivate(std::make_unique<CPrivate>())
{
    CComboBoxAccessible::Install();
    setAutoDefault(false);
    setStyleSheet(GetFontStyleSheet(ComboStyle(), QStringLiteral("QPushButton"), Theme::c_nFontSize));
}

CCustomComboBox::~CCustomComboBox() = default;

void CCustomComboBox::SetMenu(QMenu* pMenu, bool bMarkChosen, bool bMatchWidth, bool bShowText)
{
    if (m_pPrivate->pMenu != nullptr)
        disconnect(m_pPrivate->pMenu, nullptr, this, nullptr);
    m_pPrivate->pMenu = pMenu;
    m_pPrivate->bMarkChosen = bMarkChosen;
    m_pPrivate->bShowText = bShowText;
    setMenu(pMenu);
    if (pMenu == nullptr)
        return;
    connect(pMenu, &QMenu::triggered, this, &CCustomComboBox::ActionChosen);
    if (bMatchWidth)
        connect(pMenu, &QMenu::aboutToShow, this, [this, pMenu] { pMenu->setMinimumWidth(width()); });
}

void CCustomComboBox::ActionChosen(QAction* pAction)
{
    const int nIndex = int(m_pPrivate->pMenu->actions().indexOf(pAction));
    if (nIndex < 0) // an entry of a menu below the menu
        return;
    if (m_pPrivate->bShowText)
        setText(pAction->text());
    if (m_pPrivate->bMarkChosen)
        SetItemChecked(nIndex);
    Q_EMIT Activated(nIndex);
}

void CCustomComboBox::SetItemChecked(int nIndex)
{
    const QMenu* pMenu = menu();
    if (pMenu == nullptr)
        return;
    const QList<QAction*> listActions = pMenu->actions();
    for (int i = 0; i < listActions.size(); ++i) {
        listActions.at(i)->setCheckable(true);
        listActions.at(i)->setChecked(i == nIndex);
    }
}

bool CCustomComboBox::event(QEvent* pEvent)
{
    // `setMenu` is not virtual: the menu is watched from the moment before it opens.
    if (pEvent->type() == QEvent::MouseButtonPress || pEvent->type() == QEvent::KeyPress) {
        if (menu() != nullptr)
            menu()->installEventFilter(this);
    }
    return QPushButton::event(pEvent);
}

bool CCustomComboBox::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == menu() && pEvent->type() == QEvent::Show)
        PickOutCurrentItem();
    return QPushButton::eventFilter(pWatched, pEvent);
}

/// Arrow keys start from the entry that the box shows, or from the marked one where the box words it
/// otherwise than the menu.
void CCustomComboBox::PickOutCurrentItem()
{
    const QList<QAction*> listActions = menu()->actions();
    QAction* pShown = FindAction(listActions, [this](const QAction* p) { return p->text() == text(); });
    QAction* pCurrent =
        pShown == nullptr ? FindAction(listActions, std::mem_fn(&QAction::isChecked)) : pShown;
    if (pCurrent != nullptr)
        menu()->setActiveAction(pCurrent);
}

void CCustomComboBox::keyPressEvent(QKeyEvent* pEvent)
{
    switch (pEvent->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_F4:
        if (menu() != nullptr) {
            showMenu();
            return;
        }
        break;
    default:
        break;
    }
    QPushButton::keyPressEvent(pEvent);
}

void CCustomComboBox::paintEvent(QPaintEvent* pEvent)
{
    Q_UNUSED(pEvent)
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    // A push button of the style would clip a long text on both sides.
    const QRect rcText = rect().adjusted(c_nTextMargin, 0, -c_nArrowRoom, 0);
    const QString strShown = fontMetrics().elidedText(text(), Qt::ElideRight, rcText.width());
    painter.setPen(QColor(isEnabled() ? Theme::c_rgbText : Theme::c_rgbTextDisabled));
    painter.drawText(rcText, Qt::AlignLeft | Qt::AlignVCenter, strShown);
}
