#ifndef TESTS_SUPPORT_LAYOUTTEXT_H
#define TESTS_SUPPORT_LAYOUTTEXT_H

#include <QBoxLayout>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

/// Layouts as texts, so that a test reads like the row that it checks.
namespace LayoutText {

/// A widget by its text, or by its class when it has none.
inline QString Name(const QWidget& widget)
{
    const QString strText = widget.property("text").toString();
    return strText.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : strText;
}

/// One item of a box: a stretch is "~", a fixed space its pixels, a layout its class.
inline QString Item(QLayoutItem* pItem)
{
    if (const QWidget* pWidget = pItem->widget())
        return Name(*pWidget);
    if (const QLayout* pLayout = pItem->layout())
        return QString::fromLatin1(pLayout->metaObject()->className());
    const QSize size = pItem->sizeHint();
    const int nSpace = size.width() + size.height();
    return nSpace == 0 ? QStringLiteral("~") : QStringLiteral("%1px").arg(nSpace);
}

/// The items of a box with their stretch factors, in order: "~:2 OK:3 ~:2".
inline QString Box(const QBoxLayout& box)
{
    QStringList listItems;
    for (int i = 0; i < box.count(); ++i)
        listItems.append(QStringLiteral("%1:%2").arg(Item(box.itemAt(i))).arg(box.stretch(i)));
    return listItems.join(QLatin1Char(' '));
}

/// The box that holds a widget, null when none among the dialog's layouts does.
inline const QBoxLayout* BoxOf(const QWidget& dialog, QWidget* pWidget)
{
    for (const QBoxLayout* pBox : dialog.findChildren<QBoxLayout*>()) {
        if (pBox->indexOf(pWidget) >= 0)
            return pBox;
    }
    return nullptr;
}

/// The stretch factors of the first columns of a grid: "1 2 1".
template <class TGrid>
QString Columns(const TGrid& grid, int nColumns)
{
    QStringList listStretches;
    for (int i = 0; i < nColumns; ++i)
        listStretches.append(QString::number(grid.columnStretch(i)));
    return listStretches.join(QLatin1Char(' '));
}

} // namespace LayoutText

#endif // TESTS_SUPPORT_LAYOUTTEXT_H
