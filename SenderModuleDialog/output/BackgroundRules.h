#ifndef SENDERMODULEDIALOG_OUTPUT_BACKGROUNDRULES_H
#define SENDERMODULEDIALOG_OUTPUT_BACKGROUNDRULES_H

#include <QString>
#include <QtGlobal>

/// What the background picture dialog decides, over plain values. The operator sees transparency in per cent,
/// the sender stores opacity. The two conversions are not exact inverses: an opacity that is shown and
/// written back can fall by one.
namespace BackgroundRules {

constexpr int c_nMaxAlpha = 255;
constexpr int c_nMaxPercent = 100;

/// The text of the fit "one to one", the same in every language: the dialog recognises the choice by it.
constexpr const char* c_szOneToOne = "1:1";

/// Transparency of an opacity, rounded half away from zero in single precision.
/// @param nAlpha 0 to 255
/// @return 100 to 0
int PercentOfAlpha(int nAlpha);

/// Opacity of a transparency, truncated.
/// @param nPercent 0 to 100
/// @return 255 to 0
int AlphaOfPercent(int nPercent);

/// The byte that is stored of an opacity: its lowest.
quint8 AlphaByte(int nAlpha);

/// The fit that a text stands for: 0 one to one, 1 stretched.
int FitOfText(const QString& strText);

/// True when two paths name one file, however they are spelt: a stored picture must not be removed to make
/// room for itself. Paths of files that are missing are compared as texts.
bool IsSameFile(const QString& strPath, const QString& strOther);

} // namespace BackgroundRules

#endif // SENDERMODULEDIALOG_OUTPUT_BACKGROUNDRULES_H
