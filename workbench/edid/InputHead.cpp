#include "workbench/edid/InputHead.h"

#include "instruments/edid/BlockCuts.h"
#include "simulator/CommonClass/SimulatedProject.h"
#include "workbench/ModeText.h"
#include "workbench/edid/EdidColours.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int c_nTitleSize = 16; ///< font size of the input's name, pixels

QString ModeLine(const SSimulatedInput& input)
{
    return input.setting ? ModeText::Of(*input.setting) : CInputHead::tr("没有设置：对话框以默认值打开");
}

} // namespace

CInputHead::CInputHead(QWidget* pParent)
    : QWidget(pParent)
    , m_pName(new QLabel(this))
    , m_pMode(new QLabel(this))
    , m_pCuts(new QLabel(this))
    , m_pLowRates(new QCheckBox(this))
    , m_pEdit(new QPushButton(this))
{
    QFont fontTitle = m_pName->font();
    fontTitle.setPixelSize(c_nTitleSize);
    fontTitle.setBold(true);
    m_pName->setFont(fontTitle);
    m_pCuts->setObjectName(QStringLiteral("edidCuts"));
    m_pCuts->setWordWrap(true);
    EdidColours::Set(*m_pCuts, EdidColours::c_clrChanged);
    auto* pRow = new QHBoxLayout;
    auto* pTexts = new QVBoxLayout;
    pTexts->addWidget(m_pName);
    pTexts->addWidget(m_pMode);
    pRow->addLayout(pTexts, 1);
    pRow->addWidget(m_pLowRates);
    pRow->addWidget(m_pEdit);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(pRow);
    pLayout->addWidget(m_pCuts);
    connect(m_pEdit, &QPushButton::clicked, this, &CInputHead::EditPressed);
}

void CInputHead::Retranslate()
{
    m_pLowRates->setText(tr("只提供低帧率"));
    m_pLowRates->setToolTip(tr("对话框不提供 50 Hz 以上的帧率"));
    m_pEdit->setText(tr("编辑 EDID..."));
}

bool CInputHead::IsLowRatesOnly() const
{
    return m_pLowRates->isChecked();
}

void CInputHead::Show(const SSimulatedInput* pInput)
{
    m_pEdit->setEnabled(pInput != nullptr);
    m_pLowRates->setEnabled(pInput != nullptr);
    m_pName->setText(pInput == nullptr ? tr("请选择一个输入") : pInput->strName);
    m_pMode->setText(pInput == nullptr ? QString() : ModeLine(*pInput));
    ShowCuts(pInput);
}

/// What the block of the input's mode does not hold.
void CInputHead::ShowCuts(const SSimulatedInput* pInput)
{
    QStringList listCuts;
    if (pInput != nullptr && pInput->setting)
        listCuts = Edid::BlockCuts(Edid::ReducedBlockMode(pInput->setting->wWidth, pInput->setting->wHeight,
                                                          ModeText::Rate(*pInput->setting)));
    m_pCuts->setVisible(!listCuts.isEmpty());
    m_pCuts->setText(tr("块不能如实保存这个模式：%1。").arg(listCuts.join(tr("；"))));
}
