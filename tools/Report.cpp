#include "tools/Report.h"

#include <algorithm>
#include <cstdio>

namespace Report {

namespace {

QString& Speaker()
{
    static QString s_strSpeaker = QStringLiteral("sender-tool");
    return s_strSpeaker;
}

int& StatusValue()
{
    static int s_nStatus = 0;
    return s_nStatus;
}

QString OneLine(QString strText)
{
    const auto IsUnprintable = [](QChar ch) { return !ch.isPrint() && !ch.isSurrogate(); };
    std::replace_if(strText.begin(), strText.end(), IsUnprintable, QLatin1Char('?'));
    return strText;
}

} // namespace

void SetSpeaker(const QString& strSpeaker)
{
    Speaker() = strSpeaker;
}

void SetStatus(int nStatus)
{
    StatusValue() = nStatus;
}

int Status()
{
    return StatusValue();
}

void Error(const QString& strText)
{
    std::fprintf(stderr, "%s: %s\n", Speaker().toLocal8Bit().constData(),
                 OneLine(strText).toLocal8Bit().constData());
}

void Warning(const QString& strText)
{
    Error(QStringLiteral("warning: ") + strText);
}

} // namespace Report
