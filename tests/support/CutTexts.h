#ifndef TESTS_SUPPORT_CUTTEXTS_H
#define TESTS_SUPPORT_CUTTEXTS_H

#include "host/OrviControl/CustomComboBox.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

/// Finds texts of a window that an operator cannot read to their end.
namespace CutTexts {

/// Room that a combo box keeps for its arrow, a button for its frame, and a check box for its mark, pixels.
inline constexpr int c_nArrowRoom = 25;
inline constexpr int c_nFrameRoom = 10;
inline constexpr int c_nMarkRoom = 20;

/// An ampersand marks the letter behind it and takes no room.
inline int TextWidth(const QWidget& widget, const QString& strText)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, strText).width();
}

inline bool LabelFits(const QLabel& label)
{
    if (label.wordWrap())
        return label.heightForWidth(label.width()) <= label.height();
    return TextWidth(label, label.text()) <= label.width();
}

inline int RoomBesideText(const QAbstractButton& button)
{
    if (qobject_cast<const QCheckBox*>(&button) != nullptr)
        return c_nMarkRoom;
    return qobject_cast<const CCustomComboBox*>(&button) == nullptr ? c_nFrameRoom : c_nArrowRoom;
}

inline bool ButtonFits(const QAbstractButton& button)
{
    const int nNeeded = TextWidth(button, button.text()) + RoomBesideText(button);
    // Without a style sheet the style knows better what it needs.
    return button.text().isEmpty() || nNeeded <= button.width() ||
           (button.styleSheet().isEmpty() && button.sizeHint().width() <= button.width());
}

/// Whether all of a widget lies in the window, or in the area that scrolls it.
inline bool IsInside(const QWidget& widget, const QWidget& window)
{
    for (const QWidget* pWidget = &widget; pWidget != &window; pWidget = pWidget->parentWidget()) {
        const QWidget* pParent = pWidget->parentWidget();
        if (qobject_cast<const QAbstractScrollArea*>(pParent->parentWidget()) != nullptr)
            return true;
        if (!pParent->rect().contains(pWidget->geometry()))
            return false;
    }
    return true;
}

/// The texts that are cut, or that lie outside the window.
inline QStringList Of(const QWidget& window)
{
    QStringList listCut;
    for (const QLabel* pLabel : window.findChildren<QLabel*>()) {
        if (pLabel->isVisible() && !(LabelFits(*pLabel) && IsInside(*pLabel, window)))
            listCut.append(pLabel->text());
    }
    for (const QAbstractButton* pButton : window.findChildren<QAbstractButton*>()) {
        if (pButton->isVisible() && !(ButtonFits(*pButton) && IsInside(*pButton, window)))
            listCut.append(pButton->text());
    }
    return listCut;
}

} // namespace CutTexts

#endif // TESTS_SUPPORT_CUTTEXTS_H
