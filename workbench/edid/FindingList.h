#ifndef WORKBENCH_EDID_FINDINGLIST_H
#define WORKBENCH_EDID_FINDINGLIST_H

#include "instruments/edid/Rules.h"

#include <QTreeWidget>

/// The findings on the bytes that are shown, one per row: severity, place, problem, remedy. Choosing a row,
/// by a click or the arrow keys, reports its bytes.
class CFindingList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CFindingList(QWidget* pParent = nullptr);

    /// Checks the bytes; without bytes there are no findings.
    void ShowFindingsOf(const QByteArray& edid);
    /// The findings in the order of the rows.
    const std::vector<Edid::SFinding>& Findings() const { return m_vecFindings; }
    /// Uses the texts of the current language.
    void Retranslate();

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The operator chose a finding at these bytes.
    void FindingChosen(int nOffset, int nSize);

private:
    void FillRows();

    std::vector<Edid::SFinding> m_vecFindings;
};

#endif // WORKBENCH_EDID_FINDINGLIST_H
