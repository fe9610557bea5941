#include "simulator/CommonClass/FileProblem.h"

#include <QDir>
#include <QStringList>

QString SFileProblem::Text() const
{
    QStringList listLines;
    if (!strFile.isEmpty())
        listLines.append(QDir::toNativeSeparators(strFile));
    listLines.append(strPlace.isEmpty() ? strWhat : QStringLiteral("%1: %2").arg(strPlace, strWhat));
    if (!strAdvice.isEmpty())
        listLines.append(strAdvice);
    return listLines.join(QLatin1Char('\n'));
}
