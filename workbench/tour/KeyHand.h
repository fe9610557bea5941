#ifndef WORKBENCH_TOUR_KEYHAND_H
#define WORKBENCH_TOUR_KEYHAND_H

#include "workbench/tour/Hand.h"

/// Keys only, each to the widget that has the focus; Tab carries the focus on.
class CKeyHand : public CHand
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
};

#endif // WORKBENCH_TOUR_KEYHAND_H
