#ifndef WORKBENCH_COLOUR_PICTURESIZEDIALOG_H
#define WORKBENCH_COLOUR_PICTURESIZEDIALOG_H

#include "workbench/colour/PictureSize.h"

#include <QDialog>

#include <optional>

class QFormLayout;
class QSpinBox;

/// Asks how large an exported picture becomes. The least size follows the resolution: a smaller chart cannot
/// be read.
class CPictureSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// What a picture is made of.
    enum enPictureKind
    {
        enPixels, ///< has a resolution
        enLines,  ///< stays sharp at every size
    };

    CPictureSizeDialog(const SPictureSize& proposal, enPictureKind kind, const QString& strTitle,
                       QWidget* pParent);

    SPictureSize Size() const;

    /// Asks.
    /// @return empty when the operator cancelled
    static std::optional<SPictureSize> Ask(const SPictureSize& proposal, enPictureKind kind,
                                           const QString& strTitle, QWidget* pParent);

private:
    QSpinBox* AddField(QFormLayout& form, const char* szName, const QString& strCaption,
                       const QString& strUnit);
    void SetLimits();

    QSpinBox* m_pWidth = nullptr;
    QSpinBox* m_pHeight = nullptr;
    QSpinBox* m_pResolution = nullptr;
};

#endif // WORKBENCH_COLOUR_PICTURESIZEDIALOG_H
