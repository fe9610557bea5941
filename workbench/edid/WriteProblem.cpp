#include "workbench/edid/WriteProblem.h"

#include <QCoreApplication>

namespace {

class CWriteProblem
{
    Q_DECLARE_TR_FUNCTIONS(CWriteProblem)
};

QString Reason(const std::optional<SJournalEntry>& failedCall)
{
    // A call without a result tells by an argument that the mode did not take.
    if (!failedCall || failedCall->strResult.isEmpty())
        return CWriteProblem::tr("发送器没有采用新的模式");
    return CWriteProblem::tr("发送器返回错误 %1").arg(failedCall->strResult);
}

} // namespace

QString WriteProblem::Text(const QString& strInput, const std::optional<SJournalEntry>& failedCall)
{
    return CWriteProblem::tr("没有写入 %1 的 EDID：%2。原来的模式仍然有效。\n"
                             "请检查发送器，然后重试。模拟的故障在“模拟”页关闭。")
        .arg(strInput, Reason(failedCall));
}
