#include "workbench/SaveDialog.h"

#include <QFileDialog>
#include <QRegularExpression>

QString SaveDialog::SuffixOf(const QString& strFilter)
{
    static const QRegularExpression s_pattern(QStringLiteral("\\(\\*\\.(\\w+)"));
    return s_pattern.match(strFilter).captured(1);
}

QString SaveDialog::Ask(QWidget* pParent, const QString& strTitle, const QString& strName,
                        const QString& strFilters)
{
    QFileDialog dialog(pParent, strTitle, QString(), strFilters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(strName);
    dialog.setDefaultSuffix(SuffixOf(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& strFilter) { dialog.setDefaultSuffix(SuffixOf(strFilter)); });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
