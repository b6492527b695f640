#pragma once
// Whole numbers from fractions, as the drawing needs them by the million: a conversion and
// comparisons, without a call into the C library. Each takes every double: beyond the range of an
// int it gives the nearest int, for what is no number the lowest one.

namespace telva {

// Brought into the range of an int, fractions kept.
inline double NeiLimitiIntero(double v) {
    constexpr double kMinimo = -2147483648.0, kMassimo = 2147483647.0;
    const double v1 = v > kMinimo ? v : kMinimo; // so too what is no number
    return v1 < kMassimo ? v1 : kMassimo;
}

// Towards minus and plus infinity, of a number that is known to lie within those limits.
inline int BassoNeiLimiti(double v) {
    const int i = static_cast<int>(v);
    return i - (v < i ? 1 : 0);
}
inline int AltoNeiLimiti(double v) {
    const int i = static_cast<int>(v);
    return i + (v > i ? 1 : 0);
}

// Towards minus infinity.
inline int InteroBasso(double v) { return BassoNeiLimiti(NeiLimitiIntero(v)); }

// Towards plus infinity.
inline int InteroAlto(double v) { return AltoNeiLimiti(NeiLimitiIntero(v)); }

// The nearest one, halves upwards: the pixel that a place belongs to.
inline int InteroVicino(double v) { return InteroBasso(v + 0.5); }

} // namespace telva
