#ifndef SENDERMODULEDIALOG_COLOUR_CIE1931ROW_H
#define SENDERMODULEDIALOG_COLOUR_CIE1931ROW_H

/// One row of the colour temperature table: a point of the CIE daylight locus.
struct sCIE1931
{
    float fUrd = 0.0F; ///< reciprocal temperature in mired, 1000000 / nCCT
    int nCCT = 0;      ///< temperature in kelvin
    double dX = 0.0;   ///< CIE 1931 x, the widening of a float
    double dY = 0.0;   ///< CIE 1931 y, the widening of a float
    double dU = 0.0;   ///< CIE 1960 u
    double dV = 0.0;   ///< CIE 1960 v
};

/// An open interval of the ratio n = (x - 0.332) / (0.1858 - y).
struct SFloatArea
{
    float fMin = 0.0F; ///< lower end, not in the interval; no unit
    float fMax = 0.0F; ///< upper end, not in the interval
};

#endif // SENDERMODULEDIALOG_COLOUR_CIE1931ROW_H
