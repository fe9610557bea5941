#ifndef WORKBENCH_COLOUR_READINGSMODELS_H
#define WORKBENCH_COLOUR_READINGSMODELS_H

#include "workbench/colour/GroupReadings.h"

#include <QAbstractTableModel>

/// @file
/// The tables of the panel of readings. Their shape is fixed, so new readings only repaint cells.

/// A table over the readings of one group; empty cells while there is no group.
class CReadingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetReadings(const std::optional<SGroupReadings>& readings);
    /// Uses the headings and words of the current language.
    void Retranslate();

    QVariant data(const QModelIndex& index, int nRole) const override;

protected:
    virtual QString CellText(const SGroupReadings& readings, int nRow, int nColumn) const = 0;

private:
    std::optional<SGroupReadings> m_readings;
};

/// Red, green, blue and white: u'v', wavelength, purity, share of the white's luminance, temperatures.
class CPointReadingsModel final : public CReadingsModel
{
    Q_OBJECT

public:
    enum enRow
    {
        enU,
        enV,
        enWavelength,
        enPurity,
        enShare,
        enCorrelated,
        enDuv,
        enDaylight,
        enRowCount,
    };
    using CReadingsModel::CReadingsModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

protected:
    QString CellText(const SGroupReadings& readings, int nRow, int nColumn) const override;
};

/// Coverage of the standards in both diagrams, and the ratio of the areas.
class CCoverageModel final : public CReadingsModel
{
    Q_OBJECT

public:
    enum enColumn
    {
        enCoveredXy,
        enCoveredUcs,
        enAreaXy,
        enAreaUcs,
        enColumnCount,
    };
    using CReadingsModel::CReadingsModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

protected:
    QString CellText(const SGroupReadings& readings, int nRow, int nColumn) const override;
};

#endif // WORKBENCH_COLOUR_READINGSMODELS_H
