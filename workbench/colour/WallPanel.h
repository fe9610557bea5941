#ifndef WORKBENCH_COLOUR_WALLPANEL_H
#define WORKBENCH_COLOUR_WALLPANEL_H

#include "workbench/colour/MeasuredWall.h"

#include <QWidget>

class CModuleModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

/// The measured wall: import and export, the modules with the odd ones marked, and what the wall can show.
class CWallPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CWallPanel(CMeasuredWall& wall, QWidget* pParent = nullptr);

    void Retranslate();
    CModuleModel& Model() { return *m_pModel; }

    /// @name What the buttons do
    /// @return false when it could not be done; a message or the panel says why
    /// @{
    bool ImportFile(const QString& strFile);
    bool Paste();
    bool ExportFile(const QString& strFile);
    /// Writes the two-page PDF report.
    bool SaveReport(const QString& strFile);
    void Clear();
    /// @}

    /// The panel's message about the wall, or about the last import that failed.
    QString Summary() const;

Q_SIGNALS:
    /// One line for the status bar.
    void Reported(const QString& strText);
    /// A file could not be read or written: what, why and what to do.
    void Failed(const QString& strText);
    /// Whether the modules are shown on the chart.
    void ShownOnChart(bool bShown);

private:
    void CreateButtons();
    QWidget* CreateBar();
    QWidget* CreateChoices();
    void CreateTable();
    /// Says in the panel what is wrong.
    /// @return the same
    QString Show(const SMeasurementError& error);
    bool Report(const std::optional<SMeasurementError>& error);
    void Refresh();
    QString Describe(const SWallAnalysis& analysis) const;
    QString DescribeCommon(const SWallAnalysis& analysis) const;
    QString DescribeFit(const SWallAnalysis& analysis) const;
    void ChooseImport();
    void ChooseExport();
    void ChooseReport();
    bool Save(const QString& strFile, const QByteArray& content);

    CMeasuredWall& m_wall;
    CModuleModel* m_pModel = nullptr;
    QPushButton* m_pImport = nullptr;
    QPushButton* m_pPaste = nullptr;
    QPushButton* m_pExport = nullptr;
    QPushButton* m_pReport = nullptr;
    QPushButton* m_pClear = nullptr;
    QLabel* m_pStandardCaption = nullptr;
    QComboBox* m_pStandard = nullptr;
    QCheckBox* m_pShown = nullptr;
    QTableView* m_pTable = nullptr;
    QLabel* m_pSummary = nullptr;
};

#endif // WORKBENCH_COLOUR_WALLPANEL_H
