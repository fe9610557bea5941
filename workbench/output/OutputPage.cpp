#include "workbench/output/OutputPage.h"

#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/output/CanvasPreview.h"
#include "workbench/output/SenderOutput.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/// The label event that a picture was switched or replaced, not merely shown otherwise.
constexpr int c_nPictureEvent = 0x24000;

/// A coefficient: its decimals, and what it is before anything was reset.
constexpr int c_nCoefficientDecimals = 3;
constexpr double c_dCoefficientStep = 0.001;
constexpr double c_dFirstCoefficient = 1;

constexpr int c_nMaxAlpha = 255;

/// Shown where there is no value.
const QString c_strNone = QStringLiteral("—");

QString SizeText(QSize size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

QString DepthText(int nDepth)
{
    return QStringLiteral("%1 bit").arg(nDepth);
}

QString OnOffText(bool bOn)
{
    return bOn ? COutputPage::tr("开") : COutputPage::tr("关");
}

QString HardwareCanvasText(const SSimulatedSender& sender)
{
    if (!SenderOutput::KeepsCanvas(sender))
        return c_strNone;
    return sender.sizeHardwareCanvas == QSize(0, 0) ? COutputPage::tr("没有设置")
                                                    : SizeText(sender.sizeHardwareCanvas);
}

QString OpacityText(int nAlpha)
{
    return QStringLiteral("%1 / %2 (%3%)")
        .arg(nAlpha)
        .arg(c_nMaxAlpha)
        .arg(qRound(nAlpha * 100.0 / c_nMaxAlpha));
}

/// The file in a word, with the picture's size.
QString FileText(const SCanvasPicture& picture)
{
    switch (picture.state) {
    case enPictureState::Missing:
        return COutputPage::tr("没有文件");
    case enPictureState::Unreadable:
        return COutputPage::tr("无法读取");
    case enPictureState::TooLarge:
    case enPictureState::Good:
        break;
    }
    return SizeText(picture.size);
}

/// A path as it is read by people, which a line may be broken at.
QString PathText(const QString& strFile)
{
    constexpr QChar c_chBreakHere(0x200B); // zero width space
    const QChar chSeparator = QDir::separator();
    return QDir::toNativeSeparators(strFile).replace(chSeparator, QString(chSeparator) + c_chBreakHere);
}

/// Why a picture that is switched on cannot be shown, and what to do.
QString ProblemText(const SCanvasPicture& picture)
{
    const QString strFile = PathText(picture.strFile);
    switch (picture.state) {
    case enPictureState::Missing:
        return COutputPage::tr("背景图片已启用，但文件不存在：\n%1\n请重新选取图片。").arg(strFile);
    case enPictureState::Unreadable:
        return COutputPage::tr("无法读取背景图片：\n%1\n%2\n请选取另一张图片。")
            .arg(strFile, picture.strProblem);
    case enPictureState::TooLarge:
        return COutputPage::tr("背景图片太大（%1 像素），此处不显示。").arg(SizeText(picture.size));
    case enPictureState::Good:
        break;
    }
    return {};
}

} // namespace

COutputPage::COutputPage(QWidget* pParent)
    : CWorkbenchPage(pParent)
{
    m_pPreview = new CCanvasPreview(this);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->addWidget(m_pPreview, 1);
    pLayout->addWidget(CreateFacts());
    CSimulator& simulator = CSimulator::Instance();
    connect(&simulator.Document(), &CProjectDocument::OnProjectChanged, this, &COutputPage::Refresh);
    connect(&simulator.Document(), &CProjectDocument::OnFilePathChanged, this, &COutputPage::Refresh);
    connect(&simulator.Document(), &CProjectDocument::OnProjectReplaced, this,
            &COutputPage::ForgetCorrections);
    connect(&simulator, &CSimulator::OnLabelEvent, this, &COutputPage::LabelEvent);
    COutputPage::Retranslate();
}

COutputPage::~COutputPage() = default;

QWidget* COutputPage::CreateFacts()
{
    auto* pScroll = new QScrollArea(this);
    auto* pFacts = new QWidget(pScroll);
    auto* pLayout = new QVBoxLayout(pFacts);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(CreateOutputGroup(pFacts));
    pLayout->addWidget(CreatePictureGroup(pFacts));
    pLayout->addWidget(CreateCorrectionGroup(pFacts));
    pLayout->addStretch();
    pScroll->setWidget(pFacts);
    pScroll->setWidgetResizable(true);
    pScroll->setFrameShape(QFrame::NoFrame);
    pFacts->setAutoFillBackground(false);
    pScroll->viewport()->setAutoFillBackground(false);
    pScroll->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
    return pScroll;
}

QGroupBox* COutputPage::CreateOutputGroup(QWidget* pParent)
{
    enum enColumn
    {
        enName,
        enProject,
        enHardware
    };
    auto* pGroup = new QGroupBox(pParent);
    m_vecCaptions.push_back({pGroup, "title", QT_TR_NOOP("画布、帧率和色深")});
    auto* pGrid = new QGridLayout(pGroup);
    AddCaption(pGrid, 0, enProject, QT_TR_NOOP("工程"));
    AddCaption(pGrid, 0, enHardware, QT_TR_NOOP("硬件"));
    AddCaption(pGrid, 1, enName, QT_TR_NOOP("画布"));
    AddFact(pGrid, 1, enProject, enCanvasProject);
    AddFact(pGrid, 1, enHardware, enCanvasHardware);
    AddCaption(pGrid, 2, enName, QT_TR_NOOP("最大帧率"));
    AddFact(pGrid, 2, enProject, enRateProject);
    AddFact(pGrid, 2, enHardware, enRateHardware);
    AddCaption(pGrid, 3, enName, QT_TR_NOOP("输入的最大帧率"));
    AddFact(pGrid, 3, enHardware, enInputRate);
    AddCaption(pGrid, 4, enName, QT_TR_NOOP("输出色深"));
    AddFact(pGrid, 4, enProject, enDepthProject);
    AddFact(pGrid, 4, enHardware, enDepthHardware);
    auto* pButtons = new QHBoxLayout;
    pButtons->addWidget(CreateButton(pGroup, QT_TR_NOOP("画布大小..."), &COutputPage::SetCanvas));
    pButtons->addWidget(CreateButton(pGroup, QT_TR_NOOP("帧率和色深..."), &COutputPage::SetRateAndDepth));
    pGrid->addLayout(pButtons, pGrid->rowCount(), 0, 1, -1);
    return pGroup;
}

QGroupBox* COutputPage::CreatePictureGroup(QWidget* pParent)
{
    struct SRow
    {
        const char* szCaption;
        enFact fact;
    };
    constexpr SRow c_arrRows[] = {{QT_TR_NOOP("启用"), enPictureSwitch},
                                  {QT_TR_NOOP("不透明度"), enPictureOpacity},
                                  {QT_TR_NOOP("契合度"), enPictureFitting},
                                  {QT_TR_NOOP("图片"), enPictureFile}};
    auto* pGroup = new QGroupBox(pParent);
    m_vecCaptions.push_back({pGroup, "title", QT_TR_NOOP("背景图片")});
    auto* pGrid = new QGridLayout(pGroup);
    int nRow = 0;
    for (const SRow& row : c_arrRows) {
        AddCaption(pGrid, nRow, 0, row.szCaption);
        AddFact(pGrid, nRow, 1, row.fact);
        ++nRow;
    }
    pGrid->addWidget(CreateButton(pGroup, QT_TR_NOOP("设置背景图片..."), &COutputPage::SetBackground), nRow,
                     0, 1, -1);
    return pGroup;
}

QGroupBox* COutputPage::CreateCorrectionGroup(QWidget* pParent)
{
    auto* pGroup = new QGroupBox(pParent);
    m_vecCaptions.push_back({pGroup, "title", QT_TR_NOOP("校正")});
    auto* pGrid = new QGridLayout(pGroup);
    AddCaption(pGrid, 0, 1, QT_TR_NOOP("预设值"));
    AddCaption(pGrid, 0, 2, QT_TR_NOOP("取得的值"));
    AddCorrectionRow(pGrid, true, QT_TR_NOOP("校正系数"), QT_TR_NOOP("重置校正系数"),
                     &COutputPage::ResetCorrection);
    AddCorrectionRow(pGrid, false, QT_TR_NOOP("修缝系数"), QT_TR_NOOP("重置修缝系数"),
                     &COutputPage::ResetSeamRepair);
    return pGroup;
}

void COutputPage::AddCorrectionRow(QGridLayout* pGrid, bool bCorrection, const char* szCaption,
                                   const char* szAccessibleName, void (COutputPage::*pAction)())
{
    const int nRow = pGrid->rowCount();
    auto* pPreset = new QDoubleSpinBox(pGrid->parentWidget());
    pPreset->setDecimals(c_nCoefficientDecimals);
    pPreset->setRange(0, 1);
    pPreset->setSingleStep(c_dCoefficientStep);
    pPreset->setValue(c_dFirstCoefficient);
    AddCaption(pGrid, nRow, 0, szCaption)->setBuddy(pPreset);
    auto* pTaken = new QLabel(pGrid->parentWidget());
    pGrid->addWidget(pPreset, nRow, 1);
    pGrid->addWidget(pTaken, nRow, 2);
    // The two buttons read alike: their accessible names tell which is which.
    QPushButton* pButton = CreateButton(pGrid->parentWidget(), QT_TR_NOOP("重置..."), pAction);
    m_vecCaptions.push_back({pButton, "accessibleName", szAccessibleName});
    pGrid->addWidget(pButton, nRow, 3);
    m_vecCorrections.push_back({bCorrection, pPreset, pTaken, 0, false});
}

QLabel* COutputPage::AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText)
{
    auto* pLabel = new QLabel(pGrid->parentWidget());
    pGrid->addWidget(pLabel, nRow, nColumn);
    m_vecCaptions.push_back({pLabel, "text", szText});
    return pLabel;
}

void COutputPage::AddFact(QGridLayout* pGrid, int nRow, int nColumn, enFact fact)
{
    auto* pLabel = new QLabel(pGrid->parentWidget());
    pGrid->addWidget(pLabel, nRow, nColumn);
    m_arrFacts[fact] = pLabel;
}

QPushButton* COutputPage::CreateButton(QWidget* pParent, const char* szText, void (COutputPage::*pAction)())
{
    auto* pButton = new QPushButton(pParent);
    connect(pButton, &QPushButton::clicked, this, pAction);
    m_vecCaptions.push_back({pButton, "text", szText});
    m_vecButtons.push_back(pButton);
    return pButton;
}

QString COutputPage::Title() const
{
    return tr("输出");
}

void COutputPage::Retranslate()
{
    for (const SCaption& caption : m_vecCaptions)
        caption.pWidget->setProperty(caption.szProperty, tr(caption.szText));
    m_pPreview->setAccessibleName(tr("画布"));
    Refresh();
}

const SSimulatedSender* COutputPage::Sender() const
{
    return CSimulator::Instance().Project().FindSender(m_selection.nSender);
}

void COutputPage::ShowSelection(const SSelection& selection)
{
    if (selection.nSender != m_selection.nSender)
        ForgetCorrections();
    m_selection = selection;
    Refresh();
}

void COutputPage::Refresh()
{
    const SSimulatedSender* pSender = Sender();
    for (QPushButton* pButton : m_vecButtons)
        pButton->setEnabled(pSender != nullptr);
    ShowCorrections();
    if (pSender != nullptr) {
        ShowOutput(*pSender);
        ShowPicture(*pSender);
        return;
    }
    for (QLabel* pFact : m_arrFacts)
        pFact->setText(c_strNone);
    SCanvasContent content;
    content.strNote = tr("请选择一个发送器");
    m_pPreview->SetContent(content);
}

void COutputPage::Set(enFact fact, const QString& strText)
{
    m_arrFacts[fact]->setText(strText);
}

void COutputPage::ShowOutput(const SSimulatedSender& sender)
{
    // A sender that is no video processor has no hardware that keeps rate and depth.
    const bool bHardware = sender.capability.bVideoProcessor;
    Set(enCanvasProject, SizeText(sender.record.sizeCanvas));
    Set(enCanvasHardware, HardwareCanvasText(sender));
    Set(enRateProject, QStringLiteral("%1 Hz").arg(sender.record.nFrameRate));
    Set(enRateHardware, bHardware ? tr("50 Hz：%1").arg(OnOffText(sender.b50Hz)) : c_strNone);
    Set(enInputRate, sender.fMaxInputFrameRate > 0
                         ? QStringLiteral("%1 Hz").arg(double(sender.fMaxInputFrameRate), 0, 'f', 2)
                         : tr("未知"));
    Set(enDepthProject, DepthText(sender.record.nColorDepth));
    Set(enDepthHardware, bHardware ? DepthText(SenderOutput::HardwareDepth(sender)) : c_strNone);
}

void COutputPage::ShowPicture(const SSimulatedSender& sender)
{
    CSimulator& simulator = CSimulator::Instance();
    const QString strFile = QDir(simulator.Document().PictureFolder())
                                .filePath(simulator.Document().PictureName(m_selection.nSender));
    const SCanvasPicture& picture = m_pictureReader.Read(strFile);
    Set(enPictureSwitch, OnOffText(sender.record.BkImageEnable));
    Set(enPictureOpacity, OpacityText(sender.record.BkImageAlpha));
    Set(enPictureFitting, sender.record.BkImageFit == 0 ? QStringLiteral("1:1") : tr("拉伸"));
    Set(enPictureFile, FileText(picture));
    m_arrFacts[enPictureFile]->setToolTip(QDir::toNativeSeparators(strFile));
    m_pPreview->SetContent(Content(sender, picture));
}

SCanvasContent COutputPage::Content(const SSimulatedSender& sender, const SCanvasPicture& picture) const
{
    SCanvasContent content;
    content.sizeCanvas = SenderOutput::Canvas(sender);
    if (content.sizeCanvas.isEmpty()) {
        content.strNote = tr("画布没有面积：%1").arg(SizeText(content.sizeCanvas));
        content.bWarning = true;
    } else if (!sender.record.BkImageEnable) {
        content.strNote =
            picture.state == enPictureState::Missing ? tr("没有背景图片") : tr("背景图片已关闭");
    } else if (picture.state != enPictureState::Good) {
        content.strNote = ProblemText(picture);
        content.bWarning = true;
    } else {
        content.imgPicture = picture.image;
        content.sizePicture = picture.size;
        content.byAlpha = sender.record.BkImageAlpha;
        content.fit = sender.record.BkImageFit == 0 ? enPictureFit::OneToOne : enPictureFit::Stretched;
        if (content.byAlpha == 0)
            content.strNote = tr("背景图片完全透明");
    }
    return content;
}

void COutputPage::ShowCorrections()
{
    for (const SCorrection& correction : m_vecCorrections)
        correction.pTaken->setText(
            correction.bTaken ? QString::number(double(correction.fTaken), 'f', c_nCoefficientDecimals)
                              : c_strNone);
}

void COutputPage::ForgetCorrections()
{
    for (SCorrection& correction : m_vecCorrections) {
        correction.bTaken = false;
        correction.pPreset->setValue(c_dFirstCoefficient);
    }
    ShowCorrections();
}

/// The record's changes are announced for themselves; a picture can be another one under the same record.
void COutputPage::LabelEvent(int nCode)
{
    if (nCode != c_nPictureEvent)
        return;
    m_pictureReader.Forget();
    Refresh();
}

void COutputPage::SetCanvas()
{
    CSetCanvasDlg dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        TakeCanvas(dialog.GetCanvasSize());
}

/// The dialog only asks; storing what was chosen is the host's part.
void COutputPage::TakeCanvas(QSize size)
{
    const SSimulatedSender* pSender = Sender();
    if (pSender == nullptr)
        return;
    CSimulator& simulator = CSimulator::Instance();
    const int nSender = m_selection.nSender;
    if (SenderOutput::KeepsCanvas(*pSender))
        simulator.Hardware().SpendWriteDelay(nSender);
    simulator.Document().Change([nSender, size](SSimulatedProject& project) {
        SenderOutput::StoreCanvas(*project.FindSender(nSender), size);
    });
    Q_EMIT Reported(tr("画布大小已设为 %1。").arg(SizeText(size)));
}

void COutputPage::SetRateAndDepth()
{
    CSetDepthRateDlg dialog(this);
    const int nResult = dialog.exec();
    // Opening alone can have set the depth.
    CSimulator::Instance().Document().NoticeChanges();
    if (nResult == QDialog::Accepted)
        ReportRateAndDepth();
}

void COutputPage::ReportRateAndDepth()
{
    if (const SSimulatedSender* pSender = Sender())
        Q_EMIT Reported(tr("最大帧率已设为 %1 Hz，输出色深已设为 %2 bit。")
                            .arg(pSender->record.nFrameRate)
                            .arg(pSender->record.nColorDepth));
}

void COutputPage::SetBackground()
{
    CBackgroundImageDlg dialog(this);
    dialog.exec();
}

void COutputPage::ResetCorrection()
{
    ResetCoefficient(m_vecCorrections[0]);
}

void COutputPage::ResetSeamRepair()
{
    ResetCoefficient(m_vecCorrections[1]);
}

void COutputPage::ResetCoefficient(SCorrection& correction)
{
    CResetCoefDlg dialog(correction.bCorrection, this);
    dialog.SetValue(float(correction.pPreset->value()));
    if (dialog.exec() == QDialog::Accepted)
        TakeCoefficient(correction, dialog.GetValue());
}

void COutputPage::TakeCoefficient(SCorrection& correction, float fValue)
{
    correction.fTaken = fValue;
    correction.bTaken = true;
    ShowCorrections();
    Q_EMIT Reported(
        (correction.bCorrection ? tr("校正系数：%1") : tr("修缝系数：%1")).arg(correction.pTaken->text()));
}
