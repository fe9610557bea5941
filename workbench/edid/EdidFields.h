#ifndef WORKBENCH_EDID_EDIDFIELDS_H
#define WORKBENCH_EDID_EDIDFIELDS_H

#include <QByteArray>
#include <QString>
#include <QVector>

/// One field of a decoded block.
struct SEdidField
{
    QString strGroup;      ///< part of the block that the field belongs to
    QString strName;       ///< what the field is
    QString strValue;      ///< its decoded value
    QVector<int> vecBytes; ///< offsets of its bytes
};

/// Reads a 128-byte EDID 1.3 base block into fields for people, in the order of the block.
/// Source: VESA Enhanced Extended Display Identification Data Standard, release A, section 3.
namespace EdidFields {

/// The fields of the block, in the current language; empty unless the block has 128 bytes.
QVector<SEdidField> Decode(const QByteArray& block);

/// Offsets at which two blocks differ. A missing byte differs from any.
QVector<int> ChangedBytes(const QByteArray& blockBefore, const QByteArray& blockAfter);

} // namespace EdidFields

#endif // WORKBENCH_EDID_EDIDFIELDS_H
