#include "instruments/colour/ColourMatrix.h"

namespace {

Vector3 Cross(const Vector3& a, const Vector3& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double Dot(const Vector3& a, const Vector3& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector3 Scaled(const Vector3& a, double dFactor)
{
    return {a[0] * dFactor, a[1] * dFactor, a[2] * dFactor};
}

} // namespace

CColourMatrix CColourMatrix::OfColumns(const Vector3& first, const Vector3& second, const Vector3& third)
{
    return {
        {first[0], second[0], third[0]}, {first[1], second[1], third[1]}, {first[2], second[2], third[2]}};
}

CColourMatrix CColourMatrix::Identity()
{
    return {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
}

Vector3 CColourMatrix::Column(std::size_t nColumn) const
{
    return {At(0, nColumn), At(1, nColumn), At(2, nColumn)};
}

double CColourMatrix::Determinant() const
{
    return Dot(m_arrRows[0], Cross(m_arrRows[1], m_arrRows[2]));
}

CColourMatrix CColourMatrix::Inverse() const
{
    // The cross products of the rows are the cofactors: the columns of the adjugate.
    const double dFactor = 1.0 / Determinant();
    return OfColumns(Scaled(Cross(m_arrRows[1], m_arrRows[2]), dFactor),
                     Scaled(Cross(m_arrRows[2], m_arrRows[0]), dFactor),
                     Scaled(Cross(m_arrRows[0], m_arrRows[1]), dFactor));
}

CColourMatrix CColourMatrix::ColumnsTimes(const Vector3& factors) const
{
    return OfColumns(Scaled(Column(0), factors[0]), Scaled(Column(1), factors[1]),
                     Scaled(Column(2), factors[2]));
}

Vector3 CColourMatrix::operator*(const Vector3& vector) const
{
    return {Dot(m_arrRows[0], vector), Dot(m_arrRows[1], vector), Dot(m_arrRows[2], vector)};
}

CColourMatrix CColourMatrix::operator*(const CColourMatrix& other) const
{
    return OfColumns(*this * other.Column(0), *this * other.Column(1), *this * other.Column(2));
}
