#include "workbench/AddSenderDialog.h"

#include "simulator/CommonClass/Catalogue.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <map>
#include <utility>

namespace {

enum enColumn
{
    enModel,
    enCode,
    enDepths,
    enInputs,
    enColumnCount
};

constexpr int c_nTypeRole = Qt::UserRole; ///< type code, in rows of types alone
constexpr int c_nMaxCount = 100;          ///< senders added at once
constexpr QSize c_sizeFirst(560, 480);

QString GroupText(const SSimulatedSender& sender)
{
    const QString strKind = sender.capability.bVideoProcessor
                                ? CAddSenderDialog::tr("视频处理器，%1 个输出口")
                                : CAddSenderDialog::tr("发送卡，%1 个输出口");
    return strKind.arg(sender.record.nOutputPortCount);
}

QString DepthsText(const SSenderCapability& capability)
{
    QStringList listDepths = {QStringLiteral("8")};
    if (capability.bSupport10Bit)
        listDepths.append(QStringLiteral("10"));
    if (capability.bSupport12Bit)
        listDepths.append(QStringLiteral("12"));
    return CAddSenderDialog::tr("%1 位").arg(listDepths.join(QLatin1Char('/')));
}

QTreeWidgetItem* NewRow(const SSimulatedSender& sender)
{
    const SSenderCapability& capability = sender.capability;
    auto* pRow = new QTreeWidgetItem({capability.strModel, QString::number(capability.nType),
                                      DepthsText(capability), QString::number(sender.listInputs.size())});
    pRow->setData(enModel, c_nTypeRole, capability.nType);
    return pRow;
}

bool IsType(const QTreeWidgetItem* pItem)
{
    return pItem != nullptr && pItem->data(enModel, c_nTypeRole).isValid();
}

bool Contains(const QTreeWidgetItem* pRow, const QString& strText)
{
    for (const int nColumn : {int(enModel), int(enCode)})
        if (pRow->text(nColumn).contains(strText, Qt::CaseInsensitive))
            return true;
    return pRow->parent()->text(enModel).contains(strText, Qt::CaseInsensitive);
}

} // namespace

CAddSenderDialog::CAddSenderDialog(QWidget* pParent)
    : QDialog(pParent)
    , m_pSearch(new QLineEdit(this))
    , m_pTypes(new QTreeWidget(this))
    , m_pCount(new QSpinBox(this))
{
    setWindowTitle(tr("添加发送器"));
    m_pSearch->setObjectName(QStringLiteral("search"));
    m_pSearch->setPlaceholderText(tr("型号、类型代码或输出口"));
    m_pSearch->setClearButtonEnabled(true);
    m_pSearch->installEventFilter(this);
    m_pTypes->setObjectName(QStringLiteral("types"));
    m_pTypes->setAccessibleName(tr("发送器类型"));
    m_pTypes->setHeaderLabels({tr("型号"), tr("类型"), tr("色深"), tr("输入")});
    m_pTypes->setAlternatingRowColors(true);
    m_pCount->setObjectName(QStringLiteral("count"));
    m_pCount->setRange(1, c_nMaxCount);
    FillTypes();
    LayOut();
    connect(m_pSearch, &QLineEdit::textChanged, this, &CAddSenderDialog::Filter);
    connect(m_pTypes, &QTreeWidget::currentItemChanged, this, [this] { m_pAdd->setEnabled(Type() >= 0); });
    connect(m_pTypes, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (Type() >= 0)
            accept();
    });
    Filter();
    m_pSearch->setFocus();
    resize(c_sizeFirst);
}

void CAddSenderDialog::FillTypes()
{
    // Cards before processors, few ports before many.
    std::map<std::pair<bool, int>, QTreeWidgetItem*> mapGroups;
    for (const int nType : CCatalogue::Instance().Types()) {
        const SSimulatedSender sender = *CCatalogue::Instance().NewSender(nType);
        QTreeWidgetItem*& pGroup =
            mapGroups[{sender.capability.bVideoProcessor, sender.record.nOutputPortCount}];
        if (pGroup == nullptr)
            pGroup = new QTreeWidgetItem({GroupText(sender)});
        pGroup->addChild(NewRow(sender));
    }
    for (const auto& [key, pGroup] : mapGroups) {
        pGroup->setFlags(Qt::ItemIsEnabled);
        m_pTypes->addTopLevelItem(pGroup);
        pGroup->setFirstColumnSpanned(true);
    }
    m_pTypes->expandAll();
    for (int nColumn = 0; nColumn < enColumnCount; ++nColumn)
        m_pTypes->resizeColumnToContents(nColumn);
}

void CAddSenderDialog::LayOut()
{
    auto* pButtons = new QDialogButtonBox(this);
    m_pAdd = pButtons->addButton(tr("添加"), QDialogButtonBox::AcceptRole);
    m_pAdd->setObjectName(QStringLiteral("ok"));
    m_pAdd->setDefault(true);
    pButtons->addButton(tr("取消"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("cancel"));
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pSearch = new QFormLayout;
    pSearch->addRow(tr("查找(&F)"), m_pSearch);
    auto* pCount = new QFormLayout;
    pCount->addRow(tr("数量(&N)"), m_pCount);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pSearch);
    pLayout->addWidget(m_pTypes, 1);
    pLayout->addLayout(pCount);
    pLayout->addWidget(pButtons);
}

void CAddSenderDialog::Filter()
{
    QTreeWidgetItem* pFirst = nullptr;
    for (int i = 0; i < m_pTypes->topLevelItemCount(); ++i) {
        QTreeWidgetItem* pGroup = m_pTypes->topLevelItem(i);
        bool bAny = false;
        for (int j = 0; j < pGroup->childCount(); ++j) {
            QTreeWidgetItem* pRow = pGroup->child(j);
            const bool bShown = Contains(pRow, m_pSearch->text().trimmed());
            pRow->setHidden(!bShown);
            bAny = bAny || bShown;
            if (bShown && pFirst == nullptr)
                pFirst = pRow;
        }
        pGroup->setHidden(!bAny);
    }
    m_pTypes->setCurrentItem(pFirst);
    m_pAdd->setEnabled(pFirst != nullptr);
}

int CAddSenderDialog::Type() const
{
    const QTreeWidgetItem* pItem = m_pTypes->currentItem();
    return IsType(pItem) ? pItem->data(enModel, c_nTypeRole).toInt() : -1;
}

int CAddSenderDialog::Count() const
{
    return m_pCount->value();
}

bool CAddSenderDialog::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == m_pSearch && pEvent->type() == QEvent::KeyPress) {
        const int nKey = static_cast<QKeyEvent*>(pEvent)->key();
        if (nKey == Qt::Key_Up || nKey == Qt::Key_Down) {
            QCoreApplication::sendEvent(m_pTypes, pEvent);
            return true;
        }
    }
    return QDialog::eventFilter(pWatched, pEvent);
}
