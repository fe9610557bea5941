#include "workbench/simulation/SimulationPage.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/simulation/SenderProperties.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSpinBox>

#include <algorithm>

namespace {

constexpr int c_nMaxWidth = 800; ///< of the forms, pixels: a value stays near its caption

/// Shows a value in the editor of its property.
void ShowValue(const SSenderProperty& property, QWidget* pEditor, const QVariant& value)
{
    switch (property.editor) {
    case enEditor::enText:
        if (static_cast<QLineEdit*>(pEditor)->text() != value.toString())
            static_cast<QLineEdit*>(pEditor)->setText(value.toString());
        break;
    case enEditor::enSwitch:
        static_cast<QCheckBox*>(pEditor)->setChecked(value.toBool());
        break;
    case enEditor::enNumber:
        static_cast<QSpinBox*>(pEditor)->setValue(value.toInt());
        break;
    case enEditor::enDecimal:
        static_cast<QDoubleSpinBox*>(pEditor)->setValue(value.toDouble());
        break;
    case enEditor::enChoice:
        static_cast<QComboBox*>(pEditor)->setCurrentIndex(static_cast<QComboBox*>(pEditor)->findData(value));
        break;
    }
}

void TranslateChoices(const SSenderProperty& property, QWidget* pEditor)
{
    auto* pComboBox = qobject_cast<QComboBox*>(pEditor);
    if (pComboBox == nullptr)
        return;
    for (int i = 0; i < pComboBox->count(); ++i)
        pComboBox->setItemText(i, SenderProperties::Text(property.vecChoices[std::size_t(i)].szText));
}

/// Text that stands for the lowest number of a property.
QString LowestText(const SSenderProperty& property)
{
    return property.szLowest == nullptr ? QString() : SenderProperties::Text(property.szLowest);
}

void TranslateLowest(const SSenderProperty& property, QWidget* pEditor)
{
    if (auto* pField = qobject_cast<QAbstractSpinBox*>(pEditor))
        pField->setSpecialValueText(LowestText(property));
}

} // namespace

CSimulationPage::CSimulationPage(QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_pForms(new QWidget(this))
{
    auto* pColumn = new QVBoxLayout(m_pForms);
    for (const SSenderProperty& property : SenderProperties::All()) {
        QFormLayout* pForm = FormOf(property.szGroup, pColumn);
        QWidget* pEditor = CreateEditor(property);
        auto* pCaption = new QLabel(m_pForms);
        pCaption->setBuddy(pEditor);
        pForm->addRow(pCaption, pEditor);
        m_vecRows.push_back({&property, pCaption, pEditor});
    }
    pColumn->addStretch();
    auto* pScroll = new QScrollArea(this);
    m_pForms->setMaximumWidth(c_nMaxWidth);
    pScroll->setWidget(m_pForms);
    pScroll->setWidgetResizable(true);
    pScroll->setFrameShape(QFrame::NoFrame);
    // It follows the focus; a stop of its own would show nothing.
    pScroll->setFocusPolicy(Qt::NoFocus);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pScroll);
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged, this,
            &CSimulationPage::Refresh);
    CSimulationPage::Retranslate();
    Refresh();
}

CSimulationPage::~CSimulationPage() = default;

QFormLayout* CSimulationPage::FormOf(const char* szGroup, QVBoxLayout* pLayout)
{
    if (!m_vecGroups.empty() && m_vecGroups.back().szName == szGroup)
        return m_vecGroups.back().pForm;
    auto* pBox = new QGroupBox(m_pForms);
    auto* pForm = new QFormLayout(pBox);
    pLayout->addWidget(pBox);
    m_vecGroups.push_back({szGroup, pBox, pForm});
    return pForm;
}

QWidget* CSimulationPage::CreateEditor(const SSenderProperty& property)
{
    switch (property.editor) {
    case enEditor::enText: {
        auto* pEdit = new QLineEdit(m_pForms);
        connect(pEdit, &QLineEdit::textEdited, this,
                [this, &property](const QString& strText) { Write(property, strText); });
        return pEdit;
    }
    case enEditor::enSwitch: {
        auto* pCheckBox = new QCheckBox(m_pForms);
        connect(pCheckBox, &QCheckBox::toggled, this, [this, &property](bool bOn) { Write(property, bOn); });
        return pCheckBox;
    }
    case enEditor::enDecimal: {
        auto* pSpinBox = new QDoubleSpinBox(m_pForms);
        pSpinBox->setRange(property.nMin, property.nMax);
        connect(pSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, &property](double dValue) { Write(property, dValue); });
        return pSpinBox;
    }
    case enEditor::enChoice: {
        auto* pComboBox = new QComboBox(m_pForms);
        for (const SPropertyChoice& choice : property.vecChoices)
            pComboBox->addItem(SenderProperties::Text(choice.szText), choice.nValue);
        connect(pComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this, &property, pComboBox] { Write(property, pComboBox->currentData()); });
        return pComboBox;
    }
    case enEditor::enNumber:
        break;
    }
    auto* pSpinBox = new QSpinBox(m_pForms);
    pSpinBox->setRange(property.nMin, property.nMax);
    connect(pSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this, &property](int nValue) { Write(property, nValue); });
    return pSpinBox;
}

QString CSimulationPage::Title() const
{
    return tr("模拟");
}

void CSimulationPage::Retranslate()
{
    for (const SGroup& group : m_vecGroups)
        group.pBox->setTitle(SenderProperties::Text(group.szName));
    const QScopedValueRollback<bool> refreshing(m_bRefreshing, true);
    for (const SRow& row : m_vecRows) {
        row.pCaption->setText(SenderProperties::Text(row.pProperty->szName));
        row.pEditor->setAccessibleName(SenderProperties::Text(row.pProperty->szName));
        TranslateChoices(*row.pProperty, row.pEditor);
        TranslateLowest(*row.pProperty, row.pEditor);
    }
    AlignGroups();
}

/// The groups are separate forms; captions of equal width align them as one grid.
void CSimulationPage::AlignGroups()
{
    int nWidth = 0;
    for (const SRow& row : m_vecRows)
        nWidth = std::max(nWidth, row.pCaption->sizeHint().width());
    for (const SRow& row : m_vecRows)
        row.pCaption->setMinimumWidth(nWidth);
}

void CSimulationPage::ShowSelection(const SSelection& selection)
{
    m_selection = selection;
    Refresh();
}

void CSimulationPage::Refresh()
{
    const SSimulatedProject& project = CSimulator::Instance().Project();
    const bool bSender = project.FindSender(m_selection.nSender) != nullptr;
    m_pForms->setEnabled(bSender);
    if (!bSender)
        return;
    const QScopedValueRollback<bool> refreshing(m_bRefreshing, true);
    for (const SRow& row : m_vecRows)
        ShowValue(*row.pProperty, row.pEditor, row.pProperty->funcRead(project, m_selection.nSender));
}

void CSimulationPage::Write(const SSenderProperty& property, const QVariant& value)
{
    const int nSender = m_selection.nSender;
    CSimulator& simulator = CSimulator::Instance();
    if (m_bRefreshing || simulator.Project().FindSender(nSender) == nullptr)
        return;
    const QString strName = SenderProperties::Text(property.szName);
    const auto funcChange = [&] {
        simulator.Document().Change(
            [&](SSimulatedProject& project) { property.funcWrite(project, nSender, value); });
    };
    // What is typed into a field is one step, however many letters it takes.
    DoAsStep(tr("更改“%1”").arg(strName), funcChange, QStringLiteral("%1 %2").arg(nSender).arg(strName));
}
