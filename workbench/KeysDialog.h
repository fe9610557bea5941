#ifndef WORKBENCH_KEYSDIALOG_H
#define WORKBENCH_KEYSDIALOG_H

#include <QDialog>

/// The help page: the first steps, and what each key does.
class CKeysDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CKeysDialog(QWidget* pParent = nullptr);

private:
    static QString Text();
};

#endif // WORKBENCH_KEYSDIALOG_H
