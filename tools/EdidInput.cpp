#include "tools/EdidInput.h"

#include "tools/Arguments.h"
#include "tools/Report.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace EdidInput {

namespace {

const QString c_strStandardInput = QStringLiteral("-");
const QString c_strMakerList = QStringLiteral("/usr/share/hwdata/pnp.ids");

[[noreturn]] void ThrowUnreadable(const QString& strFile, const QString& strWhy)
{
    throw CToolError(QStringLiteral("cannot read '%1': %2").arg(strFile, strWhy));
}

/// One byte more than can be an EDID tells that there is more.
QByteArray ContentOf(const QString& strFile)
{
    QFile file(strFile);
    const bool bOpen = strFile == c_strStandardInput ? file.open(stdin, QIODevice::ReadOnly)
                                                     : file.open(QIODevice::ReadOnly);
    if (!bOpen)
        ThrowUnreadable(strFile, file.errorString());
    QByteArray content = file.read(Edid::c_nMaxText + 1);
    if (file.error() != QFileDevice::NoError)
        ThrowUnreadable(strFile, file.errorString());
    return content;
}

QStringList NamesOf(const QVector<SSource>& vecSources)
{
    QStringList listNames;
    for (const SSource& source : vecSources)
        listNames += source.edid.strName;
    return listNames;
}

QVector<SSource> Named(const QVector<SSource>& vecSources, const QString& strDisplay)
{
    QVector<SSource> vecNamed;
    std::copy_if(vecSources.begin(), vecSources.end(), std::back_inserter(vecNamed),
                 [&](const SSource& source) { return source.edid.strName == strDisplay; });
    return vecNamed;
}

} // namespace

QString SSource::Title() const
{
    return edid.strName.isEmpty() ? strFile : QStringLiteral("%1, %2").arg(strFile, edid.strName);
}

QVector<SSource> ReadFile(const QString& strFile)
{
    const Edid::SReading reading = Edid::Read(ContentOf(strFile));
    if (!reading.IsRead())
        ThrowUnreadable(strFile, reading.ErrorText());
    QVector<SSource> vecSources;
    for (const Edid::SNamedEdid& edid : reading.vecEdids)
        vecSources.append({strFile, edid});
    return vecSources;
}

SSource ReadOne(const QString& strFile, const QString& strDisplay)
{
    const QVector<SSource> vecAll = ReadFile(strFile);
    const QVector<SSource> vecSources = strDisplay.isEmpty() ? vecAll : Named(vecAll, strDisplay);
    if (vecSources.size() != 1)
        throw CToolError(QStringLiteral("'%1' holds the EDIDs of several displays, or not the one asked for; "
                                        "give --display with one of: %2")
                             .arg(strFile, NamesOf(vecAll).join(QStringLiteral(", "))));
    return vecSources.constFirst();
}

QVector<SSource> ReadAll(const CArguments& arguments)
{
    QVector<SSource> vecSources;
    for (const QString& strFile : arguments.Positional())
        vecSources += ReadFile(strFile);
    if (!arguments.Has("display"))
        return vecSources;
    const QVector<SSource> vecNamed = Named(vecSources, arguments.Value("display"));
    if (vecNamed.isEmpty())
        throw CToolError(
            QStringLiteral("no EDID of the display '%1'; give one of: %2")
                .arg(arguments.Value("display"), NamesOf(vecSources).join(QStringLiteral(", "))));
    return vecNamed;
}

Edid::MakerNames LoadMakerNames()
{
    QFile file(c_strMakerList);
    return file.open(QIODevice::ReadOnly) ? Edid::ReadMakerNames(file.readAll()) : Edid::MakerNames();
}

} // namespace EdidInput
