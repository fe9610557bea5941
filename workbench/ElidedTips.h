#ifndef WORKBENCH_ELIDEDTIPS_H
#define WORKBENCH_ELIDEDTIPS_H

#include <QObject>

/// Shows the whole text of a cell that is too narrow for it while the mouse rests there, in every list, table
/// and tree of the program, as long as it exists. A tip that a model gives itself stays.
class CElidedTips : public QObject
{
    Q_OBJECT

public:
    explicit CElidedTips(QObject* pParent = nullptr);
    ~CElidedTips() override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

#endif // WORKBENCH_ELIDEDTIPS_H
