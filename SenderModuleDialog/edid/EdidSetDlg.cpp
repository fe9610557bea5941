#include "SenderModuleDialog/edid/EdidSetDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EdidControls.h"
#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "SenderModuleDialog/edid/EdidLimit.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "SenderModuleDialog/edid/EdidWindow.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/QtCompat.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>

namespace {

/// With and without rates above 50 Hz. The numbers are not rows of the rate table.
constexpr int c_nLowRateIndexMax = 2;
constexpr int c_nRateIndexMax = 4;

/// What the dialog starts from when the host has no setting.
SEdidSetting DefaultSetting()
{
    SEdidSetting setting;
    setting.wWidth = 1920;
    setting.wHeight = 1080;
    setting.byRate = 60;
    setting.byFormatFlags = EdidOptions::c_arrDepths[0].byFlag;
    return setting;
}

/// What the resolution's combo box shows.
QString ResolutionText(bool bCustom, QSize size)
{
    if (bCustom)
        return CCustomDialog::tr("自定义：%1×%2").arg(size.width()).arg(size.height());
    QString strText = QStringLiteral("%1×%2").arg(size.width()).arg(size.height());
    if (size != QtCompat::DesktopSize())
        return strText;
    return strText + QLatin1Char('(') + CCustomDialog::tr("电脑") + QLatin1Char(')');
}

} // namespace

CEdidSetDlg::CEdidSetDlg(QWidget* pParent, int nInterfaceId, bool bLowRateOnly)
    : CCustomDialog(pParent, false)
    , m_pModel(std::make_unique<SEdidModel>(nInterfaceId, bLowRateOnly))
{
    const int nSender = HostAccess::CurrentSenderIndex();
    m_pModel->nSenderType = HostAccess::SenderLogic().GetSenderType(nSender);
    CVideoSourceLogic& logic = HostAccess::VideoSourceLogic();
    logic.GetEdidLimit(nSender, nInterfaceId, &m_pModel->limit);

    SVideoPortKey key;
    key.nInterfaceId = nInterfaceId;
    setWindowTitle(logic.GetVideoPortName(nSender, &key, 0) + QStringLiteral(" - ") +
                   CCustomDialog::tr("EDID设置"));
    SEdidSetting setting;
    if (!logic.GetEdidSetting(nSender, &key, &setting))
        setting = DefaultSetting();
    m_pModel->Read(setting);

    InitControl();
    InitComboBox();
    InitControlConnect();
    RefreshWindow();
}

CEdidSetDlg::~CEdidSetDlg() = default;

bool CEdidSetDlg::IsSetSuccessed() const
{
    return m_pModel->bSetSuccessed;
}

bool CEdidSetDlg::GetIndexByResolution(QSize size, int& nIndex) const
{
    nIndex = m_pModel->ResolutionIndexOf(size);
    return nIndex != 0;
}

bool CEdidSetDlg::GetIndexByFrameRate(unsigned char byRate, bool bFractional, int& nIndex) const
{
    const std::optional<int> index = EdidOptions::RateIndex(byRate, bFractional);
    nIndex = index.value_or(nIndex);
    return index.has_value();
}

bool CEdidSetDlg::GetIndexByColorDepth(unsigned char byFlags, int& nIndex)
{
    // Stored in the member, not in the argument, intentionally: GetColorDepthByIndex reads the member too.
    Q_UNUSED(nIndex)
    m_pModel->nDepthIndex = EdidOptions::DepthIndex(byFlags);
    return true;
}

bool CEdidSetDlg::GetIndexByColorFormat(unsigned char byFlags, int& nIndex) const
{
    nIndex = EdidOptions::FormatIndex(byFlags);
    return true;
}

bool CEdidSetDlg::GetResolutionByIndex(int nIndex, QSize& size) const
{
    const std::optional<QSize> found = m_pModel->ResolutionAt(nIndex);
    size = found.value_or(size);
    return found.has_value();
}

bool CEdidSetDlg::GetFrameRateByIndex(int nIndex, unsigned char& byRate, bool& bFractional) const
{
    const EdidOptions::SRate* pRate = EdidOptions::RateAt(nIndex);
    byRate = pRate == nullptr ? 0 : pRate->byRate;
    bFractional = pRate != nullptr && pRate->bFractional;
    return pRate != nullptr;
}

bool CEdidSetDlg::GetColorDepthByIndex(int nIndex, unsigned char& byFlags) const
{
    if (nIndex >= int(EdidOptions::c_arrDepths.size()))
        return false;
    // The member's depth, not the argument's: intentional.
    return EdidOptions::StoreDepth(m_pModel->nDepthIndex, byFlags);
}

bool CEdidSetDlg::GetColorFormatByIndex(int nIndex, unsigned char& byFlags) const
{
    return EdidOptions::StoreFormat(nIndex, byFlags);
}

bool CEdidSetDlg::IsShowConnectPC() const
{
    return EdidOptions::ShowsConnectPC(m_pModel->nSenderType) &&
           EdidOptions::IsInterface16To19(m_pModel->nInterfaceId);
}

bool CEdidSetDlg::IsSenderConnectPC() const
{
    return EdidOptions::IsInterface16To19(m_pModel->nInterfaceId) &&
           EdidOptions::AlwaysWritesConnectByte(m_pModel->nSenderType);
}

int CEdidSetDlg::GetRateIndexMax() const
{
    return m_pModel->bLowRateOnly ? c_nLowRateIndexMax : c_nRateIndexMax;
}

int CEdidSetDlg::GetMaxAreaByRate() const
{
    return EdidLimit::MaxAreaByRate(m_pModel->limit.nMaxArea, m_pModel->nRateIndex);
}

void CEdidSetDlg::OnWidthSpinBoxValueChanged()
{
    HoldToLimit(m_pControls->pWidth, m_pModel->limit.nMaxWidth);
}

void CEdidSetDlg::OnHeightSpinBoxValueChanged()
{
    HoldToLimit(m_pControls->pHeight, m_pModel->limit.nMaxHeight);
}

void CEdidSetDlg::HoldToLimit(CCustomSpinBox* pSpinBox, int nMaximum)
{
    const int nValue = SaturateTo<int>(pSpinBox->value());
    if (nValue > nMaximum)
        pSpinBox->setValue(nMaximum);
    else if (nValue < 0)
        pSpinBox->setValue(0);
    RefreshWindow();
}

void CEdidSetDlg::OnResolutionComboBoxSelect(int index)
{
    if (index < 0)
        return;
    m_pModel->nResolutionIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnRateComboBoxSelect(QAction* action)
{
    const int nIndex = Deref(action, "action != nullptr").data().toInt();
    if (nIndex < 0)
        return;
    m_pModel->nRateIndex = nIndex;
    RefreshWindow();
}

void CEdidSetDlg::OnColorDepthComboBoxSelect(int index)
{
    if (index < 0 || index >= int(EdidOptions::c_arrDepths.size()))
        return;
    m_pModel->nDepthIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnColorFormatComboBoxSelect(int index)
{
    if (index < 0 || index >= int(EdidOptions::c_arrFormats.size()))
        return;
    m_pModel->nFormatIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnTimingStandardComboBoxSelect(int index)
{
    // Bounded by the number of colour formats, not of timing standards: intentional.
    if (index < 0 || index >= int(EdidOptions::c_arrFormats.size()))
        return;
    m_pModel->byTimingStandard = static_cast<unsigned char>(index);
    RefreshWindow();
}

void CEdidSetDlg::OnCancelPushButtonClicked()
{
    done(DialogFrame::enCancelled);
}

void CEdidSetDlg::RefreshWindow()
{
    RefreshResolution();
    RefreshFrameRate();
    RefreshColorDepth();
    RefreshColorFormat();
    RefreshEdidStandard();
    RefreshConnectPC();
    RefreshErrorInfo();
    RefreshSize();
}

void CEdidSetDlg::RefreshResolution()
{
    QSize size;
    if (!GetResolutionByIndex(m_pModel->nResolutionIndex, size))
        return;
    const bool bCustom = m_pModel->nResolutionIndex == 0;
    m_pControls->pResolution->setText(ResolutionText(bCustom, size));
    if (!bCustom)
        ShowVerdict(QString());
    DialogFrame::CheckEntry(m_listResolutionActions, m_pModel->nResolutionIndex);
    m_pModel->rows.bCustomSize = bCustom;
    m_pControls->ShowSize(bCustom);
}

void CEdidSetDlg::RefreshFrameRate()
{
    m_pControls->rowRate.Show(m_pModel->RateRow());
    m_pModel->rows.bFrameRate = true;
}

void CEdidSetDlg::RefreshColorDepth()
{
    m_pControls->rowDepth.pComboBox->setText(EdidOptions::DepthName(m_pModel->nDepthIndex));
    m_pControls->rowDepth.pComboBox->SetItemChecked(m_pModel->nDepthIndex);
}

void CEdidSetDlg::RefreshColorFormat()
{
    m_pControls->rowFormat.Show(m_pModel->FormatRow());
}

void CEdidSetDlg::RefreshEdidStandard()
{
    const SEdidRow row = m_pModel->StandardRow();
    m_pControls->rowStandard.Show(row);
    m_pModel->rows.bTimingStandard = row.bVisible;
}

void CEdidSetDlg::RefreshConnectPC()
{
    m_pModel->rows.bConnectPC = IsShowConnectPC();
    m_pControls->pConnectPC->setCheckState(m_pModel->byConnectPC == 1 ? Qt::Checked : Qt::Unchecked);
    m_pControls->pConnectPC->setVisible(m_pModel->rows.bConnectPC);
}

void CEdidSetDlg::RefreshErrorInfo()
{
    const QSize size = m_pModel->JudgedSize(m_pControls->TypedSize());
    const int nLimit = m_pModel->LimitOf(size);
    QString strVerdict;
    HostAccess::VideoSourceLogic().CheckEdidLimit(size.width(), size.height(), nLimit, &strVerdict);
    ShowVerdict(strVerdict);
}

void CEdidSetDlg::ShowVerdict(const QString& strVerdict)
{
    m_pControls->ShowError(strVerdict);
    m_pModel->rows.bError = !strVerdict.isEmpty();
    m_pControls->buttons.pOk->setEnabled(strVerdict.isEmpty() || EdidLimit::IsNotice(strVerdict));
}

void CEdidSetDlg::RefreshSize()
{
    const SEdidEnvironment& environment = EdidEnvironment();
    const bool bKeepsCustomRow =
        EdidWindow::KeepsCustomRow(environment.funcProductType(), environment.funcProductVersion());
    DialogFrame::FixSize(this, EdidWindow::Size(m_pModel->rows, bKeepsCustomRow));
}
