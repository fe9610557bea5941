#ifndef WORKBENCH_WHEELGUARD_H
#define WORKBENCH_WHEELGUARD_H

#include <QObject>

/// Keeps the mouse wheel from changing fields that the operator only scrolls past: a field without the focus
/// leaves the wheel to its page, and the wheel never gives a field the focus. It guards every window of the
/// program as long as it exists.
class CWheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit CWheelGuard(QObject* pParent = nullptr);
    ~CWheelGuard() override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

#endif // WORKBENCH_WHEELGUARD_H
