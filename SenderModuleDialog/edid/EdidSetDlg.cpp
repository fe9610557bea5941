#include "SenderModuleDialog/edid/EdidSetDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "SenderModuleDialog/edid/EdidLimit.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "SenderModuleDialog/edid/EdidWindow.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HardwareSupport/VideoPortKey.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDesktopWidget>
#include <QMenu>
#include <QPushButton>

namespace {

/// Where the interface 132, which has no custom size, opens when its size is not listed.
constexpr int c_nIndexWithoutCustom = 4;

/// With and without rates above 50 Hz. The numbers are not rows of the rate table.
constexpr int c_nLowRateIndexMax = 2;
constexpr int c_nRateIndexMax = 4;

/// Lines that the error label holds.
constexpr int c_nErrorLines = 3;

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

} // namespace

CEdidSetDlg::CEdidSetDlg(QWidget* pParent, int nInterfaceId, bool bLowRateOnly)
    : CCustomDialog(pParent, false)
    , m_bLowRateOnly(bLowRateOnly)
    , m_nInterfaceId(nInterfaceId)
    , m_pEdidLimit(std::make_unique<CSenderEdidLimitData>())
{
    const int nSender = HostAccess::CurrentSenderIndex();
    m_nSenderType = HostAccess::SenderLogic().GetSenderType(nSender);
    FillNameLists();
    CVideoSourceLogic& logic = HostAccess::VideoSourceLogic();
    logic.GetEdidLimit(nSender, m_nInterfaceId, m_pEdidLimit.get());

    SVideoPortKey key;
    key.nInterfaceId = m_nInterfaceId;
    setWindowTitle(logic.GetVideoPortName(nSender, &key, 0) + QStringLiteral(" - ") +
                   CCustomDialog::tr("EDID设置"));
    SEdidSetting setting;
    if (!logic.GetEdidSetting(nSender, &key, &setting))
        setting = DefaultSetting();
    ReadSetting(setting);

    InitControl();
    InitComboBox();
    InitControlConnect();
    RefreshWindow();
}

CEdidSetDlg::~CEdidSetDlg() = default;

void CEdidSetDlg::FillNameLists()
{
    for (const EdidOptions::SDepth& depth : EdidOptions::c_arrDepths)
        m_listColorDepth.append(QString::fromLatin1(depth.szName));
    for (const EdidOptions::SFormat& format : EdidOptions::c_arrFormats)
        m_listColorFormat.append(QString::fromLatin1(format.szName));
    for (const char* szName : EdidOptions::c_arrTimingStandards)
        m_listTimingStandard.append(QString::fromLatin1(szName));
}

void CEdidSetDlg::ReadSetting(const SEdidSetting& setting)
{
    m_sizeCustom = QSize(setting.wWidth, setting.wHeight);
    m_byRate = setting.byRate;
    m_byFormatFlags = setting.byFormatFlags;
    m_byTimingStandard = setting.byTimingStandard;
    m_bConnectPC = setting.byConnectPC;

    if (!GetIndexByResolution(m_sizeCustom, m_nResolutionIndex) &&
        EdidOptions::IsInterface132(m_nInterfaceId))
        m_nResolutionIndex = c_nIndexWithoutCustom;
    m_nRateIndex = EdidOptions::c_nDefaultRateIndex;
    GetIndexByFrameRate(m_byRate, setting.byFractional != 0, m_nRateIndex);
    GetIndexByColorDepth(m_byFormatFlags, m_nColorDepthIndex);
    GetIndexByColorFormat(m_byFormatFlags, m_nColorFormatIndex);
}

bool CEdidSetDlg::IsSetSuccessed() const
{
    return m_bSetSuccessed;
}

bool CEdidSetDlg::GetIndexByResolution(QSize size, int& nIndex) const
{
    // Not found is -1, so the place plus one is 0 then: the custom size.
    nIndex = m_pEdidLimit->listResolution.indexOf(size) + 1;
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
    m_nColorDepthIndex = EdidOptions::DepthIndex(byFlags);
    return true;
}

bool CEdidSetDlg::GetIndexByColorFormat(unsigned char byFlags, int& nIndex) const
{
    nIndex = EdidOptions::FormatIndex(byFlags);
    return true;
}

bool CEdidSetDlg::GetResolutionByIndex(int nIndex, QSize& size) const
{
    if (nIndex < 0 || nIndex > m_pEdidLimit->listResolution.size())
        return false;
    size = nIndex == 0 ? m_sizeCustom : m_pEdidLimit->listResolution.at(nIndex - 1);
    return true;
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
    if (nIndex >= m_listColorDepth.size())
        return false;
    // The member's depth, not the argument's: intentional.
    return EdidOptions::StoreDepth(m_nColorDepthIndex, byFlags);
}

bool CEdidSetDlg::GetColorFormatByIndex(int nIndex, unsigned char& byFlags) const
{
    return EdidOptions::StoreFormat(nIndex, byFlags);
}

bool CEdidSetDlg::IsShowConnectPC() const
{
    return EdidOptions::ShowsConnectPC(m_nSenderType) && EdidOptions::IsInterface16To19(m_nInterfaceId);
}

bool CEdidSetDlg::IsSenderConnectPC() const
{
    return EdidOptions::IsInterface16To19(m_nInterfaceId) &&
           EdidOptions::AlwaysWritesConnectByte(m_nSenderType);
}

int CEdidSetDlg::GetRateIndexMax() const
{
    return m_bLowRateOnly ? c_nLowRateIndexMax : c_nRateIndexMax;
}

int CEdidSetDlg::GetMaxAreaByRate() const
{
    return EdidLimit::MaxAreaByRate(m_pEdidLimit->nMaxArea, m_nRateIndex);
}

void CEdidSetDlg::OnWidthSpinBoxValueChanged()
{
    HoldToLimit(m_pWidthSpinBox, m_pEdidLimit->nMaxWidth);
}

void CEdidSetDlg::OnHeightSpinBoxValueChanged()
{
    HoldToLimit(m_pHeightSpinBox, m_pEdidLimit->nMaxHeight);
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
    m_nResolutionIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnRateComboBoxSelect(QAction* action)
{
    const int nIndex = Deref(action, "action != nullptr").data().toInt();
    if (nIndex < 0)
        return;
    m_nRateIndex = nIndex;
    RefreshWindow();
}

void CEdidSetDlg::OnColorDepthComboBoxSelect(int index)
{
    if (index < 0 || index >= m_listColorDepth.size())
        return;
    m_nColorDepthIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnColorFormatComboBoxSelect(int index)
{
    if (index < 0 || index >= m_listColorFormat.size())
        return;
    m_nColorFormatIndex = index;
    RefreshWindow();
}

void CEdidSetDlg::OnTimingStandardComboBoxSelect(int index)
{
    // Bounded by the number of colour formats, not of timing standards: intentional.
    if (index < 0 || index >= m_listColorFormat.size())
        return;
    m_byTimingStandard = static_cast<unsigned char>(index);
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

QString CEdidSetDlg::ResolutionText(QSize size) const
{
    if (m_nResolutionIndex == 0)
        return CCustomDialog::tr("自定义：%1×%2").arg(size.width()).arg(size.height());
    QString strText = QStringLiteral("%1×%2").arg(size.width()).arg(size.height());
    if (size != QApplication::desktop()->size())
        return strText;
    return strText + QLatin1Char('(') + CCustomDialog::tr("电脑") + QLatin1Char(')');
}

void CEdidSetDlg::RefreshResolution()
{
    QSize size;
    if (!GetResolutionByIndex(m_nResolutionIndex, size))
        return;
    const bool bCustom = m_nResolutionIndex == 0;
    m_pResolutionComboBox->setText(ResolutionText(size));
    if (!bCustom)
        ClearError();
    DialogFrame::CheckEntry(m_listResolutionActions, m_nResolutionIndex);
    m_byShowCustomSize = bCustom ? 1 : 0;
    for (QWidget* pWidget : {static_cast<QWidget*>(m_pSizeLabel), static_cast<QWidget*>(m_pWidthSpinBox),
                             static_cast<QWidget*>(m_pTimesLabel), static_cast<QWidget*>(m_pHeightSpinBox)})
        pWidget->setVisible(bCustom);
}

void CEdidSetDlg::RefreshFrameRate()
{
    m_byShowFrameRate = 1;
    if (const EdidOptions::SRate* pRate = EdidOptions::RateAt(m_nRateIndex))
        m_rowRate.pComboBox->setText(QString::fromLatin1(pRate->szText));
    DialogFrame::CheckEntry(m_pRateMenu->actions(), m_nRateIndex);
    m_rowRate.SetVisible(true);
}

void CEdidSetDlg::RefreshColorDepth()
{
    m_rowDepth.pComboBox->setText(m_listColorDepth.value(m_nColorDepthIndex));
    m_rowDepth.pComboBox->SetItemChecked(m_nColorDepthIndex);
}

void CEdidSetDlg::RefreshColorFormat()
{
    m_rowFormat.pComboBox->setText(m_listColorFormat.value(m_nColorFormatIndex));
    DialogFrame::CheckEntry(m_pFormatMenu->actions(), m_nColorFormatIndex);
    // The format is kept and written as it was read: the operator does not see it.
    m_rowFormat.SetVisible(false);
}

void CEdidSetDlg::RefreshEdidStandard()
{
    m_byShowTimingStandard = EdidOptions::ShowsTimingStandard(m_nSenderType) ? 1 : 0;
    m_rowStandard.pComboBox->setText(m_listTimingStandard.value(m_byTimingStandard));
    DialogFrame::CheckEntry(m_pStandardMenu->actions(), m_byTimingStandard);
    m_rowStandard.SetVisible(m_byShowTimingStandard != 0);
}

void CEdidSetDlg::RefreshConnectPC()
{
    m_byShowConnectPC = IsShowConnectPC() ? 1 : 0;
    m_pConnectPCCheckBox->setCheckState(m_bConnectPC == 1 ? Qt::Checked : Qt::Unchecked);
    m_pConnectPCCheckBox->setVisible(m_byShowConnectPC != 0);
}

QSize CEdidSetDlg::JudgedSize() const
{
    const QSize sizeTyped(m_pWidthSpinBox->text().toInt(), m_pHeightSpinBox->text().toInt());
    if (m_nResolutionIndex == 0)
        return sizeTyped;
    // An index beyond the list has no entry to judge, so what is typed stays.
    return m_pEdidLimit->listResolution.value(m_nResolutionIndex - 1, sizeTyped);
}

void CEdidSetDlg::RefreshErrorInfo()
{
    const QSize size = JudgedSize();
    const int nLimit = m_pEdidLimit->bLimitByPixelClock
                           ? EdidLimit::PixelClockMHz(size, m_nRateIndex, m_byTimingStandard)
                           : GetMaxAreaByRate();
    QString strVerdict;
    HostAccess::VideoSourceLogic().CheckEdidLimit(size.width(), size.height(), nLimit, &strVerdict);
    ShowVerdict(strVerdict);
}

void CEdidSetDlg::ClearError()
{
    DialogFrame::ShowWrapped(m_pErrorLabel, QString(), c_nErrorLines);
    m_byShowError = 0;
    m_pErrorLabel->hide();
    m_pOkButton->setEnabled(true);
}

void CEdidSetDlg::ShowVerdict(const QString& strVerdict)
{
    if (strVerdict.isEmpty()) {
        ClearError();
        return;
    }
    DialogFrame::ShowWrapped(m_pErrorLabel, strVerdict, c_nErrorLines);
    m_byShowError = 1;
    m_pErrorLabel->show();
    m_pOkButton->setEnabled(EdidLimit::IsNotice(strVerdict));
}

void CEdidSetDlg::RefreshSize()
{
    const EdidWindow::SShownRows rows = {m_byShowConnectPC != 0, m_byShowTimingStandard != 0,
                                         m_byShowError != 0, m_byShowFrameRate != 0, m_byShowCustomSize != 0};
    const SEdidEnvironment& environment = EdidEnvironment();
    const bool bKeepsCustomRow =
        EdidWindow::KeepsCustomRow(environment.funcProductType(), environment.funcProductVersion());
    DialogFrame::FixSize(this, EdidWindow::Size(rows, bKeepsCustomRow));
}
