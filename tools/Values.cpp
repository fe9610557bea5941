#include "tools/Values.h"

#include "host/QtCompat.h"
#include "tools/Arguments.h"
#include "tools/Report.h"

#include <QFile>
#include <QJsonDocument>
#include <QTextStream>

#include <cstdio>

namespace {

const QString c_strStandardInput = QStringLiteral("-");

QVector<SValue> ReadStandardInput()
{
    QFile file;
    if (!file.open(stdin, QIODevice::ReadOnly))
        throw CToolError(QStringLiteral("cannot read standard input: %1").arg(file.errorString()));
    QTextStream stream(&file);
    QtCompat::ReadUtf8(stream);
    QVector<SValue> vecValues;
    QString strLine;
    for (int nLine = 1; stream.readLineInto(&strLine); ++nLine) {
        if (!strLine.trimmed().isEmpty())
            vecValues.append({strLine.trimmed(), QStringLiteral("line %1: ").arg(nLine)});
    }
    if (file.error() != QFileDevice::NoError)
        throw CToolError(QStringLiteral("cannot read standard input: %1").arg(file.errorString()));
    if (vecValues.isEmpty())
        throw CToolError(QStringLiteral("standard input holds no values; write one a line"));
    return vecValues;
}

} // namespace

QByteArray Values::CompactJson(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).toJson(QJsonDocument::Compact);
}

bool Values::AreMany(const CArguments& arguments)
{
    return arguments.Positional().size() > 1 || arguments.Positional().contains(c_strStandardInput);
}

QVector<SValue> Values::Of(const CArguments& arguments)
{
    QVector<SValue> vecValues;
    for (const QString& strText : arguments.Positional()) {
        if (strText == c_strStandardInput)
            vecValues += ReadStandardInput();
        else
            vecValues.append({strText, QString()});
    }
    return vecValues;
}

QByteArray Values::Lines(const QVector<SValue>& vecValues,
                         const std::function<QByteArray(const QString&)>& funcLine)
{
    QByteArray lines;
    for (const SValue& value : vecValues) {
        try {
            lines += funcLine(value.strText) + '\n';
        } catch (const CToolError& error) {
            throw CToolError(value.strPlace + error.Text());
        }
    }
    return lines;
}
