#include "workbench/edid/FindingList.h"

#include "workbench/edid/FindingText.h"

#include <QDate>
#include <QHeaderView>

namespace {

enum enColumn
{
    enSeverityColumn,
    enPlaceColumn,
    enWrongColumn,
    enRemedyColumn,
    enColumnCount
};

constexpr int c_nRowsShown = 3; ///< without scrolling, below the header

QString SeverityText(Edid::enRule rule)
{
    const bool bError = Edid::RuleOf(rule).severity == Edid::enSeverity::enError;
    return bError ? CFindingList::tr("错误") : CFindingList::tr("警告");
}

QString PlaceText(const Edid::SFinding& finding)
{
    return QStringLiteral("%1").arg(finding.nOffset, 2, 16, QLatin1Char('0')).toUpper();
}

} // namespace

CFindingList::CFindingList(QWidget* pParent)
    : QTreeWidget(pParent)
{
    setColumnCount(enColumnCount);
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* pItem) {
        const int nRow = pItem == nullptr ? -1 : indexOfTopLevelItem(pItem);
        if (nRow < 0)
            return;
        const Edid::SFinding& finding = m_vecFindings[std::size_t(nRow)];
        Q_EMIT FindingChosen(finding.nOffset, finding.nSize);
    });
    CFindingList::Retranslate();
}

void CFindingList::ShowFindingsOf(const QByteArray& edid)
{
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), int(edid.size()),
                {QDate::currentDate().year()}, m_vecFindings);
    FillRows();
}

void CFindingList::Retranslate()
{
    setHeaderLabels({tr("级别"), tr("字节"), tr("问题"), tr("处理方法")});
    setAccessibleName(tr("EDID 检查结果"));
    FillRows();
}

void CFindingList::FillRows()
{
    const QSignalBlocker blocker(this);
    clear();
    for (const Edid::SFinding& finding : m_vecFindings)
        new QTreeWidgetItem(this, {SeverityText(finding.rule), PlaceText(finding),
                                   FindingText::Wrong(finding), FindingText::Remedy(finding)});
}

QSize CFindingList::sizeHint() const
{
    const int nRow = fontMetrics().height() + fontMetrics().leading() + fontMetrics().descent();
    return {QTreeWidget::sizeHint().width(),
            header()->sizeHint().height() + c_nRowsShown * nRow + 2 * frameWidth()};
}
