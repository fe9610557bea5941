#ifndef WORKBENCH_ADDSENDERDIALOG_H
#define WORKBENCH_ADDSENDERDIALOG_H

#include <QDialog>

class QLineEdit;
class QPushButton;
class QSpinBox;
class QTreeWidget;

/// Asks for the type of new senders and their number. The types stand in groups by what they are and how many
/// output ports they have; what is typed leaves those that contain it.
class CAddSenderDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CAddSenderDialog(QWidget* pParent = nullptr);

    /// Type code of the chosen row, -1 for none.
    int Type() const;
    int Count() const;

    /// Up and down in the search field move through the list.
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void FillTypes();
    void LayOut();
    void Filter();

    QLineEdit* m_pSearch = nullptr;
    QTreeWidget* m_pTypes = nullptr;
    QSpinBox* m_pCount = nullptr;
    QPushButton* m_pAdd = nullptr;
};

#endif // WORKBENCH_ADDSENDERDIALOG_H
