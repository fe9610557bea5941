#ifndef TOOLS_REPORT_H
#define TOOLS_REPORT_H

#include <QString>

/// @file
/// What the tool tells the person who runs it, always one line on standard error.

/// Something wrong with the input or the output. The text says what is wrong, with which value or file, and
/// what to do; the frame prints it and ends with status 2.
class CToolError
{
public:
    explicit CToolError(const QString& strText)
        : m_strText(strText)
    {}
    const QString& Text() const { return m_strText; }

private:
    QString m_strText;
};

namespace Report {

/// Sets what every line begins with: the tool's and the subcommand's name.
void SetSpeaker(const QString& strSpeaker);

/// Sets what the program ends with when the subcommand has done its work: 0 unless this is called.
void SetStatus(int nStatus);
/// What the program ends with.
int Status();

/// Prints one line. What cannot be printed, a newline in a file name for example, becomes a question mark.
void Error(const QString& strText);
/// As `Error`, marked as a warning: the result stands.
void Warning(const QString& strText);

} // namespace Report

#endif // TOOLS_REPORT_H
