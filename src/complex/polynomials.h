// Written by tools/polynomials.py from src/complex/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::complex {

// exp(x) = P(x) / 6 for x in [-ln2/2048, ln2/2048]: relative error 4.38e-09 at most.
inline constexpr Polynomial<double, 4> exp_A24{{f64(0x4017FFFFFE3CA7AF, 5.999999973728264),
    f64(0x4017FFFFFE3CA7B0, 5.999999973728265), f64(0x4008000002503ECD, 3.0000000172366073), f64(0x3FF0000000000000, 1.0)}};

// exp(x) = 1 + x * P(x) for x in [0, ln2/16]: relative error 1.41e-17 at most.
inline constexpr Polynomial<double, 6> exp_A26{{f64(0x3FEFFFFFFFFFFF70, 0.999999999999984),
    f64(0x3FE000000000D008, 0.5000000000059126), f64(0x3FC5555553939732, 0.1666666658485894),
    f64(0x3FA55557242D68FE, 0.0416667205488057), f64(0x3F81101CBBC265C0, 0.008331512908898442),
    f64(0x3F57411836940C04, 0.0014193283516881214)}};

// atan(x) = x + x^3 * P(x^2) for x in [-1/256, 1/256]: relative error 2.83e-22 at most.
inline constexpr Polynomial<double, 4> pairs_atan{{f64(0xBFD5555555555555, -0.3333333333333333), f64(0x3FC999999999999A, 0.2),
    f64(0xBFC2492492492492, -0.14285714285714285), f64(0x3FBC71C71C71C71C, 0.1111111111111111)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/256, pi/256]: relative error 6.55e-22 at most.
inline constexpr Polynomial<double, 3> pairs_sine{{f64(0xBFC5555555555555, -0.16666666666666666),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0xBF2A01A01A01A01A, -0.0001984126984126984)}};

// cos(x) = 1 + x^2 * P(x^2) for x in [-pi/256, pi/256]: relative error 3.12e-26 at most.
inline constexpr Polynomial<double, 4> pairs_cosine{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FA5555555555555, 0.041666666666666664), f64(0xBF56C16C16C16C17, -0.001388888888888889),
    f64(0x3EFA01A01A01A01A, 2.48015873015873e-05)}};

// exp(x) = 1 + x + x^2 * P(x) for x in [-ln2/512, ln2/512]: relative error 1.68e-24 at most.
inline constexpr Polynomial<double, 5> pairs_exp{{f64(0x3FE0000000000000, 0.5), f64(0x3FC5555555555555, 0.16666666666666666),
    f64(0x3FA5555555555555, 0.041666666666666664), f64(0x3F81111111111111, 0.008333333333333333),
    f64(0x3F56C16C16C16C17, 0.001388888888888889)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-ln2/512, ln2/512]: relative error 1.70e-23 at most.
inline constexpr Polynomial<double, 3> pairs_sinh{{f64(0x3FC5555555555555, 0.16666666666666666),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0x3F2A01A01A01A01A, 0.0001984126984126984)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/512, ln2/512]: relative error 2.88e-28 at most.
inline constexpr Polynomial<double, 3> pairs_cosh{{f64(0x3FE0000000000000, 0.5), f64(0x3FA5555555555555, 0.041666666666666664),
    f64(0x3F56C16C16C16C17, 0.001388888888888889)}};

// log(1 + x) = x - x^2 / 2 + x^3 * P(x) for x in [-3/1024 - 2^-14, 3/1024 + 2^-14]: relative error 8.78e-22 at most.
inline constexpr Polynomial<double, 6> pairs_log{{f64(0x3FD5555555555555, 0.3333333333333333), f64(0xBFD0000000000000, -0.25),
    f64(0x3FC999999999999A, 0.2), f64(0xBFC5555555555555, -0.16666666666666666), f64(0x3FC2492492492492, 0.14285714285714285),
    f64(0xBFC0000000000000, -0.125)}};

}  // namespace lum::inline LUM_LAYER::complex
