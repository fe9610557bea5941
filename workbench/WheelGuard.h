#ifndef WORKBENCH_WHEELGUARD_H
#define WORKBENCH_WHEELGUARD_H

#include <QObject>

/// Keeps the mouse wheel from changing fields that the operator only scrolls past: a field without the focus
/// leaves the wheel to the page that it stands on, and the wheel gives no field the focus. It guards every
/// window of the program for as long as it lives.
class CWheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit CWheelGuard(QObject* pParent = nullptr);
    ~CWheelGuard() override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

#endif // WORKBENCH_WHEELGUARD_H
