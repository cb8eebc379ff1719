// Written by tools/polynomials.py from src/roots/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::roots {

// (1 + x)^(1/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.11e-04 at most.
inline constexpr Polynomial<float, 1> cbrt_A11{{f32(0x3EAAB29A, 0.3333938717842102)}};

// (1 + x)^(1/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 9.95e-09 at most. Also of A24.
inline constexpr Polynomial<float, 3> cbrt_A21{{f32(0x3EAAAAAA, 0.3333333134651184), f32(0xBDE3A363, -0.11115147918462753),
    f32(0x3D7D057C, 0.06177280843257904)}};

// (1 + x)^(1/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 1.95e-09 at most.
inline constexpr Polynomial<double, 4> cbrt_A26{{f64(0x3FD55554B9AD3FAD, 0.33333318836684606),
    f64(0xBFBC71C22FD7918A, -0.1111108176042476), f64(0x3FAFAE4431211E62, 0.061876421925771266),
    f64(0xBFA5270E22838B58, -0.04131359263717255)}};

// (1 + x)^(1/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 1.22e-18 at most. Also of A53.
inline constexpr Polynomial<double, 10> cbrt_A50{{f64(0x3FD5555555555557, 0.3333333333333334),
    f64(0xBFBC71C71C71C741, -0.11111111111111162), f64(0x3FAF9ADD3C0B7E31, 0.06172839506120587),
    f64(0xBFA511E8D2B0363E, -0.041152263373174666), f64(0x3F9EE71141DCF569, 0.030178327221837806),
    f64(0xBF98090D77F2468E, -0.02347203297228489), f64(0x3F9374ED9398B914, 0.019000732549266777),
    f64(0xBF9036B87C71D55F, -0.015833742709636108), f64(0x3F8BDA24BAE48875, 0.013599669412148277),
    f64(0xBF882E3B6ADECA62, -0.011806930731698976)}};

// (1 + x)^(-1/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 2.20e-04 at most.
inline constexpr Polynomial<float, 1> invcbrt_A11{{f32(0xBEAABC10, -0.3334660530090332)}};

// (1 + x)^(-1/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 2.40e-08 at most.
inline constexpr Polynomial<float, 3> invcbrt_A21{{f32(0xBEAAAAAA, -0.3333333134651184), f32(0x3E63ACF8, 0.22233951091766357),
    f32(0xBE311F14, -0.17297011613845825)}};

// (1 + x)^(-1/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.47e-10 at most.
inline constexpr Polynomial<float, 4> invcbrt_A24{{f32(0xBEAAAAA9, -0.333333283662796), f32(0x3E638E35, 0.22222216427326202),
    f32(0xBE3128D2, -0.1730072796344757), f32(0x3E13A8E2, 0.1441989243030548)}};

// (1 + x)^(-1/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 4.28e-10 at most.
inline constexpr Polynomial<double, 5> invcbrt_A26{{f64(0xBFD55555562C7918, -0.33333333411600696),
    f64(0x3FCC71BF14DA34A3, 0.22222126501256864), f64(0xBFC61F8E7DB62D5E, -0.17283803118003055),
    f64(0x3FC2850E4D89FDF4, 0.14468554292760383), f64(0xBFC011D13CBC14C3, -0.12554374185143588)}};

// (1 + x)^(-1/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 4.68e-18 at most. Also of A53.
inline constexpr Polynomial<double, 10> invcbrt_A50{{f64(0xBFD5555555555563, -0.3333333333333341),
    f64(0x3FCC71C71C71C762, 0.22222222222222415), f64(0xBFC61F9ADD39F21E, -0.17283950616901306),
    f64(0x3FC26FABB859141C, 0.144032921804098), f64(0xBFBFF4C356F55A30, -0.12482853768356317),
    f64(0x3FBC67CA1F92050A, 0.11095870276223621), f64(0xBFB9B3079EB28FF6, -0.10038802742434413),
    f64(0x3FB78EB9CF4988CD, 0.09202157316898081), f64(0xBFB6053C464E0B59, -0.08601738659312498),
    f64(0x3FB492CBDC40DCD9, 0.08036493422774828)}};

// (1 + x)^(2/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.11e-04 at most.
inline constexpr Polynomial<float, 1> pow2o3_A11{{f32(0x3F2AB034, 0.6667511463165283)}};

// (1 + x)^(2/3) = 1 + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 5.03e-09 at most. Also of A24.
inline constexpr Polynomial<float, 3> pow2o3_A21{{f32(0x3F2AAAAA, 0.6666666269302368), f32(0xBDE39A85, -0.11113456636667252),
    f32(0x3D4A8C3C, 0.04945014417171478)}};

// (1 + x)^(2/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 1.29e-09 at most.
inline constexpr Polynomial<double, 4> pow2o3_A26{{f64(0x3FE55555240E2736, 0.6666665748791505),
    f64(0xBFBC71C290BAB632, -0.11111084016257491), f64(0x3FA95501D69A974A, 0.049476678320657344),
    f64(0xBF9D9F0034CCC20F, -0.02892685243858933)}};

// (1 + x)^(2/3) = 1 + x * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 4.88e-19 at most. Also of A53.
inline constexpr Polynomial<double, 10> pow2o3_A50{{f64(0x3FE5555555555556, 0.6666666666666667),
    f64(0xBFBC71C71C71C72B, -0.11111111111111131), f64(0x3FA948B0FCD63C5B, 0.04938271604907448),
    f64(0xBF9D7F7926F812D4, -0.02880658436153534), f64(0x3F93AA50CB7F1091, 0.019204389973098094),
    f64(0xBF8C67CA14562A8A, -0.013869837518332834), f64(0x3F85A44BC5AFF4FC, 0.01056727597278461),
    f64(0xBF812204B061F118, -0.008365666039246863), f64(0x3F7C240D84C33054, 0.006870320136112513),
    f64(0xBF777D9A85E1D9DA, -0.005735019307499612)}};

// (1 - x)^(-1/2) = 1 + x * P(x) for x in [-2^-13, 2^-13]: relative error 1.52e-17 at most.
inline constexpr Polynomial<double, 3> invsqrt_A50{{f64(0x3FE0000000000000, 0.5), f64(0x3FD8000004600001, 0.3750000040745363),
    f64(0x3FD4000005E80001, 0.312500005500624)}};

// (1 + x)^(3/2) = 1 + x * P(x) for x in [-1/65, 1/65]: relative error 2.90e-12 at most.
inline constexpr Polynomial<double, 5> pow3o2_32f{{f64(0x3FF8000000000000, 1.5), f64(0x3FD8000000000000, 0.375),
    f64(0xBFB0000000000000, -0.0625), f64(0x3F98006CC0000000, 0.02343912050127983),
    f64(0xBF8EB905EB851EB8, -0.015001341104507446)}};

}  // namespace lum::inline LUM_LAYER::roots
