#include "workbench/output/OutputPage.h"

#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/KelvaroLabel.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/output/CanvasPreview.h"
#include "workbench/output/CorrectionPanel.h"
#include "workbench/output/OutputFacts.h"
#include "workbench/output/SenderOutput.h"

#include <QDir>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/// A path for display, with possible line breaks.
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
    case enPictureState::enMissing:
        return COutputPage::tr("背景图片已启用，但文件不存在：\n%1\n请重新选取图片。").arg(strFile);
    case enPictureState::enUnreadable:
        return COutputPage::tr("无法读取背景图片：\n%1\n%2\n请选取另一张图片。")
            .arg(strFile, picture.strProblem);
    case enPictureState::enTooLarge:
        return COutputPage::tr("背景图片太大（%1 像素），此处不显示。")
            .arg(SenderOutput::SizeText(picture.size));
    case enPictureState::enGood:
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
    connect(&simulator.Document(), &CProjectDocument::OnProjectReplaced, m_pCorrections,
            &CCorrectionPanel::Forget);
    connect(&simulator, &CSimulator::OnLabelEvent, this, &COutputPage::LabelEvent);
    COutputPage::Retranslate();
}

COutputPage::~COutputPage() = default;

QWidget* COutputPage::CreateFacts()
{
    m_pFacts = new COutputFacts(this);
    m_pCorrections = new CCorrectionPanel(this);
    auto* pScroll = new QScrollArea(this);
    auto* pColumn = new QWidget(pScroll);
    auto* pLayout = new QVBoxLayout(pColumn);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pFacts);
    pLayout->addWidget(m_pCorrections);
    pLayout->addStretch();
    pScroll->setWidget(pColumn);
    pScroll->setWidgetResizable(true);
    pScroll->setFrameShape(QFrame::NoFrame);
    pScroll->setFocusPolicy(Qt::NoFocus);
    pColumn->setAutoFillBackground(false);
    pScroll->viewport()->setAutoFillBackground(false);
    pScroll->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
    connect(m_pFacts, &COutputFacts::CanvasWanted, this, &COutputPage::SetCanvas);
    connect(m_pFacts, &COutputFacts::RateAndDepthWanted, this, &COutputPage::SetRateAndDepth);
    connect(m_pFacts, &COutputFacts::BackgroundWanted, this, &COutputPage::SetBackground);
    connect(m_pCorrections, &CCorrectionPanel::Reported, this, &COutputPage::Reported);
    return pScroll;
}

QString COutputPage::Title() const
{
    return tr("输出");
}

void COutputPage::Retranslate()
{
    m_pFacts->Retranslate();
    m_pCorrections->Retranslate();
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
        m_pCorrections->Forget();
    m_selection = selection;
    Refresh();
}

void COutputPage::Refresh()
{
    const SSimulatedSender* pSender = Sender();
    m_pCorrections->EnableButtons(pSender != nullptr);
    if (pSender != nullptr) {
        const SCanvasPicture& picture = m_pictureReader.Read(PictureFile());
        m_pFacts->Show(*pSender, picture);
        m_pPreview->SetContent(Content(*pSender, picture));
        return;
    }
    m_pFacts->ShowNothing();
    SCanvasContent content;
    content.strNote = tr("请选择一个发送器");
    m_pPreview->SetContent(content);
}

QString COutputPage::PictureFile() const
{
    CProjectDocument& document = CSimulator::Instance().Document();
    return QDir(document.PictureFolder()).filePath(document.PictureName(m_selection.nSender));
}

SCanvasContent COutputPage::Content(const SSimulatedSender& sender, const SCanvasPicture& picture) const
{
    SCanvasContent content;
    content.sizeCanvas = SenderOutput::Canvas(sender);
    if (content.sizeCanvas.isEmpty()) {
        content.strNote = tr("画布没有面积：%1").arg(SenderOutput::SizeText(content.sizeCanvas));
        content.bWarning = true;
    } else if (!sender.record.BkImageEnable) {
        content.strNote =
            picture.state == enPictureState::enMissing ? tr("没有背景图片") : tr("背景图片已关闭");
    } else if (picture.state != enPictureState::enGood) {
        content.strNote = ProblemText(picture);
        content.bWarning = true;
    } else {
        content.imgPicture = picture.image;
        content.sizePicture = picture.size;
        content.byAlpha = sender.record.BkImageAlpha;
        content.fit = sender.record.BkImageFit == 0 ? enPictureFit::enOneToOne : enPictureFit::enStretched;
        if (content.byAlpha == 0)
            content.strNote = tr("背景图片完全透明");
    }
    return content;
}

/// The record announces its own changes, but the picture file can change without it.
void COutputPage::LabelEvent(int nCode)
{
    if (nCode != enPictureChanged)
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

/// The dialog only asks; the host stores the choice.
void COutputPage::TakeCanvas(QSize size)
{
    const SSimulatedSender* pSender = Sender();
    if (pSender == nullptr)
        return;
    CSimulator& simulator = CSimulator::Instance();
    const int nSender = m_selection.nSender;
    if (SenderOutput::KeepsCanvas(*pSender))
        simulator.Hardware().SpendWriteDelay(nSender);
    DoAsStep(tr("设置画布"), [&simulator, nSender, size] {
        simulator.Document().Change([nSender, size](SSimulatedProject& project) {
            SenderOutput::StoreCanvas(*project.FindSender(nSender), size);
        });
    });
    Q_EMIT Reported(tr("画布大小已设为 %1。").arg(SenderOutput::SizeText(size)));
}

void COutputPage::SetRateAndDepth()
{
    CSetDepthRateDlg dialog(this);
    int nResult = QDialog::Rejected;
    // Merely opening the dialog can have set the depth.
    DoAsStep(tr("设置帧率和色深"), [&dialog, &nResult] { nResult = dialog.exec(); });
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
    DoAsStep(tr("设置背景图片"), [&dialog] { dialog.exec(); });
}
