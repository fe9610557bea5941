#ifndef SENDERMODULEDIALOG_SATURATE_H
#define SENDERMODULEDIALOG_SATURATE_H

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

/// The nearest value of an integer type. Fractions are cut towards zero, values beyond the range give its
/// end, and NaN gives 0: a conversion to an integer is never undefined.
template <class TTo, class TFrom>
constexpr TTo SaturateTo(TFrom value)
{
    static_assert(std::is_integral_v<TTo> && std::is_arithmetic_v<TFrom>, "numbers to integers");
    using limits = std::numeric_limits<TTo>;
    if constexpr (std::is_floating_point_v<TFrom> && std::is_unsigned_v<TTo> &&
                  limits::digits <= std::numeric_limits<TFrom>::digits) {
        // Both ends are exact, and NaN is not above 0: no branch is needed.
        return TTo(std::min(TFrom(limits::max()), std::max(TFrom(0), value)));
    } else if constexpr (std::is_floating_point_v<TFrom>) {
        // One above the largest value is a power of two, which floating point holds exactly; the largest
        // value itself may be rounded up to it.
        constexpr TTo c_halfRange = limits::max() / 2 + 1;
        constexpr TFrom c_aboveMax = TFrom(c_halfRange) * 2;
        if (value >= c_aboveMax)
            return limits::max();
        if (value > TFrom(limits::min()))
            return TTo(value);
        // NaN compares false with everything.
        return value <= TFrom(limits::min()) ? limits::min() : TTo(0);
    } else {
        if (value < 0)
            return std::intmax_t(value) < std::intmax_t(limits::min()) ? limits::min() : TTo(value);
        return std::uintmax_t(value) > std::uintmax_t(limits::max()) ? limits::max() : TTo(value);
    }
}

#endif // SENDERMODULEDIALOG_SATURATE_H
