#include "workbench/KeysDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

/// A line of the table: keys as they are written on the keyboard, and what they do.
struct SKeyRow
{
    const char* szKeys;
    const char* szText; ///< source text in the context `CKeysDialog`
};

constexpr SKeyRow c_arrKeys[] = {
    {"Ctrl+N, Ctrl+O", QT_TRANSLATE_NOOP("CKeysDialog", "新建、打开工程")},
    {"Ctrl+S, Ctrl+Shift+S", QT_TRANSLATE_NOOP("CKeysDialog", "保存、另存为")},
    {"Ctrl+Z, Ctrl+Shift+Z",
     QT_TRANSLATE_NOOP("CKeysDialog", "撤销、重做工程的任何更改；在 EDID 页先是块的更改")},
    {"Ctrl+1, Ctrl+2, Ctrl+3, Ctrl+4, Ctrl+5", QT_TRANSLATE_NOOP("CKeysDialog", "显示页面")},
    {"Ctrl+J", QT_TRANSLATE_NOOP("CKeysDialog", "显示或收起主机调用记录")},
    {"Ctrl+C", QT_TRANSLATE_NOOP("CKeysDialog", "主机调用记录：复制所选的行")},
    {"Insert", QT_TRANSLATE_NOOP("CKeysDialog", "发送器列表：添加发送器")},
    {"Enter, F2", QT_TRANSLATE_NOOP("CKeysDialog", "发送器列表：编辑输入的 EDID，重命名发送器")},
    {"Delete", QT_TRANSLATE_NOOP("CKeysDialog", "发送器列表、地址列表：删除所选的行")},
    {"Enter", QT_TRANSLATE_NOOP("CKeysDialog", "地址列表：修改地址；EDID 页：编辑字段")},
    {"Ctrl+Shift+O, Ctrl+V, F5",
     QT_TRANSLATE_NOOP("CKeysDialog", "EDID 页：打开文件、粘贴 EDID、显示发送器的存储器")},
    {"Ctrl+Shift+D, Ctrl+Shift+V, Shift+F5",
     QT_TRANSLATE_NOOP("CKeysDialog", "EDID 页：与文件、粘贴的文本、发送器的存储器比较")},
    {"F8, Shift+F8", QT_TRANSLATE_NOOP("CKeysDialog", "EDID 页：下一处、上一处不同")},
    {"Tab", QT_TRANSLATE_NOOP("CKeysDialog", "从列表到标签、页面、主机调用记录；在色度图上从点到点")},
    {"Enter, Backspace, Esc", QT_TRANSLATE_NOOP("CKeysDialog", "绘制可行区域时：闭合、去掉一个角、放弃")},
    {"Shift+F10", QT_TRANSLATE_NOOP("CKeysDialog", "所选行的菜单")},
    {"F1, Ctrl+Q", QT_TRANSLATE_NOOP("CKeysDialog", "本页、退出")},
};

/// The first steps, in order.
constexpr const char* c_arrSteps[] = {
    QT_TRANSLATE_NOOP("CKeysDialog", "在左边选择一个输入，双击它，设置它的 EDID。"),
    QT_TRANSLATE_NOOP("CKeysDialog", "在“输出”页设置画布、帧率和色深。"),
    QT_TRANSLATE_NOOP("CKeysDialog", "在“地址”页给主控分配地址。"),
    QT_TRANSLATE_NOOP("CKeysDialog", "保存工程。没有画面时，看下面的主机调用记录：失败的写入有红色标记。"),
};

constexpr QSize c_sizeFirst(760, 640);

} // namespace

CKeysDialog::CKeysDialog(QWidget* pParent)
    : QDialog(pParent)
{
    setWindowTitle(tr("按键和步骤"));
    auto* pText = new QTextBrowser(this);
    pText->setObjectName(QStringLiteral("text"));
    pText->setAccessibleName(windowTitle());
    pText->setHtml(Text());
    auto* pButtons = new QDialogButtonBox(this);
    pButtons->addButton(tr("关闭"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("ok"));
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pText);
    pLayout->addWidget(pButtons);
    resize(c_sizeFirst);
}

QString CKeysDialog::Text()
{
    QString strSteps;
    for (const char* szStep : c_arrSteps)
        strSteps += QStringLiteral("<li>%1</li>").arg(tr(szStep));
    QString strKeys;
    for (const SKeyRow& row : c_arrKeys)
        strKeys += QStringLiteral(
                       "<tr><td style='padding-right:24px; white-space:pre'><b>%1</b></td><td>%2</td></tr>")
                       .arg(QString::fromLatin1(row.szKeys), tr(row.szText));
    return QStringLiteral("<h3>%1</h3><ol>%2</ol><h3>%3</h3><table cellpadding='2'>%4</table>")
        .arg(tr("步骤"), strSteps, tr("按键"), strKeys);
}
