#include "workbench/ElidedTips.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace {

/// The view whose cells a widget shows; null for any other widget.
QAbstractItemView* ViewOf(const QObject* pViewport)
{
    auto* pView = qobject_cast<QAbstractItemView*>(pViewport->parent());
    return pView != nullptr && pView->viewport() == pViewport ? pView : nullptr;
}

/// The whole text of a cell; empty when all of it shows or the model has a tip of its own.
QString TipOf(const QAbstractItemView& view, const QModelIndex& index)
{
    const bool bCut = view.visualRect(index).width() < view.sizeHintForIndex(index).width();
    return bCut && !index.data(Qt::ToolTipRole).isValid() ? index.data().toString() : QString();
}

} // namespace

CElidedTips::CElidedTips(QObject* pParent)
    : QObject(pParent)
{
    qApp->installEventFilter(this);
}

CElidedTips::~CElidedTips()
{
    qApp->removeEventFilter(this);
}

bool CElidedTips::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    QAbstractItemView* pView = pEvent->type() == QEvent::ToolTip ? ViewOf(pWatched) : nullptr;
    if (pView == nullptr)
        return false;
    const auto* pHelp = static_cast<const QHelpEvent*>(pEvent);
    const QModelIndex index = pView->indexAt(pHelp->pos());
    const QString strTip = index.isValid() ? TipOf(*pView, index) : QString();
    if (strTip.isEmpty())
        return false;
    QToolTip::showText(pHelp->globalPos(), strTip, pView);
    return true;
}
