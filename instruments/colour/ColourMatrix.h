#ifndef INSTRUMENTS_COLOUR_COLOURMATRIX_H
#define INSTRUMENTS_COLOUR_COLOURMATRIX_H

#include <array>
#include <cstddef>

/// Three numbers: red, green and blue in linear light, or X, Y and Z.
using Vector3 = std::array<double, 3>;

/// A 3x3 matrix in double precision, by rows. (`QGenericMatrix` has no inverse, and `QMatrix4x4`
/// is single precision.)
class CColourMatrix
{
public:
    /// All zeros.
    constexpr CColourMatrix() = default;
    /// The matrix with these rows.
    constexpr CColourMatrix(const Vector3& first, const Vector3& second, const Vector3& third)
        : m_arrRows{first, second, third}
    {}

    /// The matrix with these columns.
    static CColourMatrix OfColumns(const Vector3& first, const Vector3& second, const Vector3& third);
    /// Ones on the diagonal.
    static CColourMatrix Identity();

    /// An element.
    /// @param nRow, nColumn 0 to 2, not checked
    double At(std::size_t nRow, std::size_t nColumn) const { return m_arrRows[nRow][nColumn]; }
    /// A row, valid as long as the matrix.
    /// @param nRow 0 to 2, not checked
    const Vector3& Row(std::size_t nRow) const { return m_arrRows[nRow]; }

    /// The determinant, by the first row; 0 for linearly dependent rows, up to rounding.
    double Determinant() const;
    /// The inverse by cofactors; not finite where the determinant is 0.
    CColourMatrix Inverse() const;
    /// The matrix with each column multiplied by one number.
    CColourMatrix ColumnsTimes(const Vector3& factors) const;
    /// The matrix with every element multiplied by a number.
    CColourMatrix Times(double dFactor) const { return ColumnsTimes({dFactor, dFactor, dFactor}); }

    /// The matrix applied to a column vector.
    Vector3 operator*(const Vector3& vector) const;
    /// The product: applied to a vector, `other` comes first.
    CColourMatrix operator*(const CColourMatrix& other) const;

private:
    Vector3 Column(std::size_t nColumn) const;

    std::array<Vector3, 3> m_arrRows = {};
};

#endif // INSTRUMENTS_COLOUR_COLOURMATRIX_H
