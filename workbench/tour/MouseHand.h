#ifndef WORKBENCH_TOUR_MOUSEHAND_H
#define WORKBENCH_TOUR_MOUSEHAND_H

#include "workbench/tour/Hand.h"

/// Clicks, and types values into fields that it has clicked.
class CMouseHand : public CHand
{
public:
    void ChooseInMenu(const QStringList& listTexts) override;
    void ShowPage(int nPage) override;
    void SelectRow(const FuncFind& funcFind, const QVector<int>& vecPath) override;
    void OpenRow(const FuncFind& funcFind, const QVector<int>& vecPath) override;
    void Press(const FuncFind& funcFind) override;
    void Confirm(const FuncFind& funcFind) override;
    void Type(const FuncFind& funcFind, const QString& strText) override;
    void Choose(const FuncFind& funcFind, const QString& strEntry) override;

private:
    void ClickEntry(const QString& strEntry);
};

#endif // WORKBENCH_TOUR_MOUSEHAND_H
