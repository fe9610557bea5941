// The menus behind the combo boxes of the EDID dialog, and what its controls are connected to.

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/edid/EdidControls.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "SenderModuleDialog/edid/EdidOptions.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/QtCompat.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>

#include <cstddef>

namespace {

QString PresetText(QSize size)
{
    QString strText = QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
    if (size != QtCompat::DesktopSize())
        return strText;
    return QStringLiteral("%1 (%2)").arg(strText, CCustomDialog::tr("电脑"));
}

QMenu* CreateRateMenu(QWidget* pDialog, const SEdidModel& model)
{
    const bool bExtendedEdid = HostAccess::SenderLogic().IsExtendedEdidSupported();
    QMenu* pMenu = DialogFrame::CreateMenu(pDialog, {});
    for (const int nIndex : EdidOptions::OfferedRates(
             {model.nSenderType, model.nInterfaceId, model.bLowRateOnly, bExtendedEdid}))
        DialogFrame::AddEntry(pMenu, {QString::fromLatin1(EdidOptions::RateAt(nIndex)->szText), nIndex});
    return pMenu;
}

/// The depths that the current sender can put out.
EdidOptions::SDepthSupport DepthSupport()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    CSenderLogic& logic = HostAccess::SenderLogic();
    EdidOptions::SDepthSupport support;
    support.bVideoProcessor = logic.IsVideoProcessor(nSender);
    if (support.bVideoProcessor) {
        support.b10Bit = logic.IsSupport10Bit(nSender);
        support.b12Bit = logic.IsSupport12Bit(nSender);
    }
    return support;
}

QMenu* CreateDepthMenu(QWidget* pDialog, const SEdidModel& model)
{
    const EdidOptions::SDepthSupport support = DepthSupport();
    // Written as soon as the dialog opens, intentionally: hosts expect the record to follow the hardware.
    if (EdidOptions::HasOnly8Bit(support))
        HostAccess::CurrentSender().nColorDepth = 8;

    QMenu* pMenu = DialogFrame::CreateMenu(pDialog, {});
    const int nDepths = EdidOptions::OfferedDepthCount(
        support, {model.nSenderType, model.nInterfaceId, model.bLowRateOnly, false});
    for (int i = 0; i < nDepths; ++i)
        DialogFrame::AddEntry(pMenu,
                              {QString::fromLatin1(EdidOptions::c_arrDepths[std::size_t(i)].szMenuText), i});
    return pMenu;
}

/// A menu of a table's rows.
/// @param funcName the text of a row
QMenu* CreateTableMenu(QWidget* pDialog, std::size_t nRows, QString (*funcName)(int nIndex))
{
    QMenu* pMenu = DialogFrame::CreateMenu(pDialog, {});
    for (int i = 0; i < int(nRows); ++i)
        DialogFrame::AddEntry(pMenu, {funcName(i), i});
    return pMenu;
}

} // namespace

void CEdidSetDlg::InitControl()
{
    m_pControls = std::make_unique<SEdidControls>(this, m_pModel->sizeCustom);
}

void CEdidSetDlg::InitComboBox()
{
    InitResolutionMenu();

    QMenu* pRates = CreateRateMenu(this, *m_pModel);
    m_pControls->rowRate.pComboBox->SetMenu(pRates, false, true, true);
    connect(pRates, &QMenu::triggered, this, &CEdidSetDlg::OnRateComboBoxSelect);

    m_pControls->rowDepth.pComboBox->SetMenu(CreateDepthMenu(this, *m_pModel), true, true, true);

    QMenu* pFormats = CreateTableMenu(this, EdidOptions::c_arrFormats.size(), EdidOptions::FormatName);
    m_pControls->rowFormat.pComboBox->SetMenu(pFormats, false, true, true);
    connect(pFormats, &QMenu::triggered, this,
            [this](QAction* pAction) { OnColorFormatComboBoxSelect(pAction->data().toInt()); });

    QMenu* pStandards =
        CreateTableMenu(this, EdidOptions::c_arrTimingStandards.size(), EdidOptions::TimingStandardName);
    m_pControls->rowStandard.pComboBox->SetMenu(pStandards, false, true, true);
    connect(pStandards, &QMenu::triggered, this,
            [this](QAction* pAction) { OnTimingStandardComboBoxSelect(pAction->data().toInt()); });
}

void CEdidSetDlg::InitResolutionMenu()
{
    const QList<QSize>& listResolution = m_pModel->limit.listResolution;
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    // The interface 132 does not offer the custom size, yet the action is there and works.
    const bool bOffersCustom = !EdidOptions::IsInterface132(m_pModel->nInterfaceId);
    QAction* pCustom = AddResolution(bOffersCustom ? pMenu : nullptr, 0, CCustomDialog::tr("自定义"));
    if (m_pModel->nResolutionIndex > listResolution.size())
        return;
    for (int i = 0; i < listResolution.size(); ++i) {
        QAction* pAction = AddResolution(pMenu, i + 1, PresetText(listResolution.at(i)));
        pAction->setChecked(listResolution.at(i) == m_pModel->sizeCustom);
    }
    pCustom->setChecked(m_pModel->nResolutionIndex == 0);
    m_pControls->pResolution->SetMenu(pMenu, false, true, true);
}

QAction* CEdidSetDlg::AddResolution(QMenu* pMenu, int nIndex, const QString& strText)
{
    auto* pAction = new QAction(strText, this);
    pAction->setData(nIndex);
    pAction->setCheckable(true);
    m_listResolutionActions.append(pAction);
    if (pMenu != nullptr)
        pMenu->addAction(pAction);
    // After the menu has connected itself, so that the refresh has the last word on the combo box's text.
    connect(pAction, &QAction::triggered, this, [this, nIndex] { OnResolutionComboBoxSelect(nIndex); });
    return pAction;
}

void CEdidSetDlg::InitControlConnect()
{
    connect(m_pControls->rowDepth.pComboBox, &CCustomComboBox::Activated, this,
            &CEdidSetDlg::OnColorDepthComboBoxSelect);
    connect(m_pControls->pConnectPC, &QCheckBox::clicked, this,
            [this] { m_pModel->byConnectPC = m_pModel->byConnectPC == 1 ? 0 : 1; });
    connect(m_pControls->pWidth, &QDoubleSpinBox::textChanged, this,
            &CEdidSetDlg::OnWidthSpinBoxValueChanged);
    connect(m_pControls->pHeight, &QDoubleSpinBox::textChanged, this,
            &CEdidSetDlg::OnHeightSpinBoxValueChanged);
    connect(m_pControls->buttons.pOk, &QPushButton::clicked, this, &CEdidSetDlg::OnOKPushButtonClicked);
    connect(m_pControls->buttons.pCancel, &QPushButton::clicked, this,
            &CEdidSetDlg::OnCancelPushButtonClicked);
}
