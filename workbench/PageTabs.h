#ifndef WORKBENCH_PAGETABS_H
#define WORKBENCH_PAGETABS_H

#include <QTabWidget>

/// The tabs of the pages. The tab bar frames its current tab while it has the focus: the style's own mark is
/// invisible on a dark theme.
class CPageTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit CPageTabs(QWidget* pParent = nullptr);
};

#endif // WORKBENCH_PAGETABS_H
