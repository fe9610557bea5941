#ifndef WORKBENCH_SAVEDIALOG_H
#define WORKBENCH_SAVEDIALOG_H

#include <QString>

class QWidget;

/// Asking for a file to save to.
namespace SaveDialog {

/// The extension that a filter such as "PNG (*.png)" stands for, without the dot; empty for one of all files.
QString SuffixOf(const QString& strFilter);

/// Asks for a file. A name without an extension gets that of the chosen filter before the question about
/// overwriting a file.
/// @param strName name that is proposed
/// @param strFilters filters as in `QFileDialog`
/// @return empty when the operator cancelled
QString Ask(QWidget* pParent, const QString& strTitle, const QString& strName, const QString& strFilters);

} // namespace SaveDialog

#endif // WORKBENCH_SAVEDIALOG_H
