#include "workbench/edid/BytePanes.h"

#include "workbench/edid/HexView.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include <numeric>

namespace {

/// Keeps the title of the other bytes clear of the handle beside it, pixels.
constexpr int c_nTitleIndent = 8;

QVector<int> Range(int nOffset, int nSize)
{
    QVector<int> vecOffsets(nSize);
    std::iota(vecOffsets.begin(), vecOffsets.end(), nOffset);
    return vecOffsets;
}

/// An area that is as wide as its bytes.
QScrollArea* ScrolledBytes(CHexView& view)
{
    auto* pArea = new QScrollArea(view.parentWidget());
    pArea->setWidget(&view);
    pArea->setWidgetResizable(true);
    pArea->setFrameShape(QFrame::NoFrame);
    pArea->setFocusPolicy(Qt::NoFocus);
    const int nBarWidth = pArea->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    pArea->setMinimumWidth(view.sizeHint().width() + nBarWidth);
    return pArea;
}

/// Shows the first of the marked bytes.
void Reveal(QScrollArea& area, const CHexView& view)
{
    const QVector<int> vecMarked = view.Marked();
    if (vecMarked.isEmpty())
        return;
    const QRect rcByte = view.ByteRect(vecMarked.constFirst());
    area.ensureVisible(rcByte.center().x(), rcByte.center().y(), rcByte.width(), rcByte.height());
}

void ShowIn(CHexView& view, const CBytePanes::SContent& content)
{
    view.SetBytes(content.bytes);
    view.SetChanged(content.vecColoured);
}

} // namespace

CBytePanes::CBytePanes(QWidget* pParent)
    : QWidget(pParent)
    , m_pBytes(new CHexView(this))
    , m_pOtherBytes(new CHexView(this))
    , m_pOtherTitle(new QLabel(this))
    , m_pArea(ScrolledBytes(*m_pBytes))
    , m_pOtherArea(ScrolledBytes(*m_pOtherBytes))
{
    m_pOtherBytes->setObjectName(QStringLiteral("edidOtherBytes"));
    m_pOtherTitle->setWordWrap(true);
    m_pOtherTitle->setIndent(c_nTitleIndent);
    const QScrollBar* pBar = m_pArea->verticalScrollBar();
    const QScrollBar* pOtherBar = m_pOtherArea->verticalScrollBar();
    connect(pBar, &QScrollBar::valueChanged, pOtherBar, &QScrollBar::setValue);
    connect(pOtherBar, &QScrollBar::valueChanged, pBar, &QScrollBar::setValue);
    connect(m_pBytes, &CHexView::ByteChosen, this, &CBytePanes::ByteChosen);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pArea, 1);
    pLayout->addWidget(m_pOtherTitle);
    pLayout->addWidget(m_pOtherArea, 1);
}

void CBytePanes::Retranslate()
{
    m_pBytes->setAccessibleName(tr("EDID 字节"));
    m_pOtherBytes->setAccessibleName(tr("另一个 EDID 的字节"));
}

void CBytePanes::Show(const SContent& content)
{
    ShowIn(*m_pBytes, content);
}

void CBytePanes::ShowOther(const SContent& content, bool bShown)
{
    ShowIn(*m_pOtherBytes, content);
    m_pOtherArea->setVisible(bShown);
    m_pOtherTitle->setVisible(bShown);
}

void CBytePanes::SetOtherTitle(const QString& strTitle)
{
    m_pOtherTitle->setText(strTitle);
}

void CBytePanes::Mark(const QVector<int>& vecOffsets, const QVector<int>& vecOtherOffsets)
{
    m_pBytes->SetMarked(vecOffsets);
    m_pOtherBytes->SetMarked(vecOtherOffsets);
    Reveal(*m_pArea, *m_pBytes);
}

void CBytePanes::MarkRange(int nOffset, int nSize)
{
    m_pBytes->SetMarked(Range(nOffset, nSize));
    Reveal(*m_pArea, *m_pBytes);
}

void CBytePanes::RevealMarked()
{
    Reveal(*m_pOtherArea, *m_pOtherBytes);
    Reveal(*m_pArea, *m_pBytes);
}
