#include "workbench/output/CorrectionPanel.h"

#include "SenderModuleDialog/output/ResetCoefDlg.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

/// A coefficient: its decimals, and its value before any reset.
constexpr int c_nDecimals = 3;
constexpr double c_dStep = 0.001;
constexpr double c_dFirst = 1;

/// Shown when no value was accepted.
const QString c_strNone = QStringLiteral("—");

} // namespace

CCorrectionPanel::CCorrectionPanel(QWidget* pParent)
    : QGroupBox(pParent)
    , m_captions("CCorrectionPanel")
{
    m_captions.Add(this, "title", QT_TR_NOOP("校正"));
    auto* pGrid = new QGridLayout(this);
    AddCaption(pGrid, 0, 1, QT_TR_NOOP("预设值"));
    AddCaption(pGrid, 0, 2, QT_TR_NOOP("取得的值"));
    AddRow(pGrid, true, QT_TR_NOOP("校正系数"), QT_TR_NOOP("重置校正系数"));
    AddRow(pGrid, false, QT_TR_NOOP("修缝系数"), QT_TR_NOOP("重置修缝系数"));
    Forget();
}

void CCorrectionPanel::AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText)
{
    auto* pLabel = new QLabel(this);
    pGrid->addWidget(pLabel, nRow, nColumn);
    m_captions.Add(pLabel, "text", szText);
}

void CCorrectionPanel::AddRow(QGridLayout* pGrid, bool bCorrection, const char* szCaption,
                              const char* szAccessibleName)
{
    const int nRow = pGrid->rowCount();
    auto* pPreset = new QDoubleSpinBox(this);
    pPreset->setDecimals(c_nDecimals);
    pPreset->setRange(0, 1);
    pPreset->setSingleStep(c_dStep);
    AddCaption(pGrid, nRow, 0, szCaption);
    static_cast<QLabel*>(pGrid->itemAtPosition(nRow, 0)->widget())->setBuddy(pPreset);
    auto* pTaken = new QLabel(this);
    auto* pButton = new QPushButton(this);
    pGrid->addWidget(pPreset, nRow, 1);
    pGrid->addWidget(pTaken, nRow, 2);
    pGrid->addWidget(pButton, nRow, 3);
    m_captions.Add(pButton, "text", QT_TR_NOOP("重置..."));
    // The two buttons read alike: their accessible names distinguish them.
    m_captions.Add(pButton, "accessibleName", szAccessibleName);
    connect(pButton, &QPushButton::clicked, this, [this, bCorrection] { Reset(bCorrection); });
    m_vecCorrections.push_back({bCorrection, pPreset, pTaken, pButton});
}

const CCorrectionPanel::SCorrection& CCorrectionPanel::Correction(bool bCorrection) const
{
    return *std::find_if(
        m_vecCorrections.cbegin(), m_vecCorrections.cend(),
        [bCorrection](const SCorrection& correction) { return correction.bCorrection == bCorrection; });
}

void CCorrectionPanel::Retranslate()
{
    m_captions.Retranslate();
}

void CCorrectionPanel::EnableButtons(bool bEnabled)
{
    for (const SCorrection& correction : m_vecCorrections)
        correction.pButton->setEnabled(bEnabled);
}

void CCorrectionPanel::Forget()
{
    for (const SCorrection& correction : m_vecCorrections) {
        correction.pPreset->setValue(c_dFirst);
        correction.pTaken->setText(c_strNone);
    }
}

float CCorrectionPanel::Preset(bool bCorrection) const
{
    return float(Correction(bCorrection).pPreset->value());
}

void CCorrectionPanel::Reset(bool bCorrection)
{
    CResetCoefDlg dialog(bCorrection, this);
    dialog.SetValue(Preset(bCorrection));
    if (dialog.exec() == QDialog::Accepted)
        Take(bCorrection, dialog.GetValue());
}

void CCorrectionPanel::Take(bool bCorrection, float fValue)
{
    const QString strValue = QString::number(double(fValue), 'f', c_nDecimals);
    Correction(bCorrection).pTaken->setText(strValue);
    Q_EMIT Reported((bCorrection ? tr("校正系数：%1") : tr("修缝系数：%1")).arg(strValue));
}
