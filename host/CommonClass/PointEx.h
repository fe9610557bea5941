#ifndef HOST_COMMONCLASS_POINTEX_H
#define HOST_COMMONCLASS_POINTEX_H

/// A point of two coordinates. The library uses `CPointEx<float>` for CIE 1931 chromaticities.
///
/// The two fields stand in this order and are all that the point holds: arrays of points are arrays of
/// coordinate pairs.
template <class T>
class CPointEx
{
public:
    /// The point (0, 0): a vector of points that grows is filled with it.
    constexpr CPointEx() = default;

    /// The point (fX, fY).
    constexpr CPointEx(T fX, T fY)
        : x(fX)
        , y(fY)
    {}

    T x = T(); ///< first coordinate: CIE 1931 x, or pixels to the right
    T y = T(); ///< second coordinate: CIE 1931 y, or pixels downwards
};

#endif // HOST_COMMONCLASS_POINTEX_H
