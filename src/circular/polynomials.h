// Written by tools/polynomials.py from src/circular/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::circular {

// sin(x) = x * P(x^2) for x in [-pi/2, pi/2]: relative error 1.53e-04 at most.
inline constexpr Polynomial<float, 3> sin_A11{{f32(0x3F7FF87C, 0.9998853206634521), f32(0xBE29E72F, -0.16592095792293549),
    f32(0x3BF84524, 0.007576601579785347)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 3.94e-08 at most.
inline constexpr Polynomial<float, 4> sin_A21{{f32(0xBE2AAAA6, -0.16666659712791443), f32(0x3C088766, 0.008333062753081322),
    f32(0xB94FB7FF, -0.00019809602235909551), f32(0x362EDEF8, 2.605780537123792e-06)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 6.06e-09 at most. Also of Cos.
inline constexpr Polynomial<double, 4> sin_A24{{f64(0xBFC55554BC836587, -0.1666665955042783),
    f64(0x3F8110ED3804CA96, 0.00833306624608569), f64(0xBF29F6FFEEA73463, -0.00019809602902257352),
    f64(0x3EC5DBDF0E4C7DEE, 2.605780638722852e-06)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 6.83e-09 at most. Also of SinCos and CIS.
inline constexpr Polynomial<double, 4> sin_A26{{f64(0xBFC55554AD3EAF1F, -0.16666658839437162),
    f64(0x3F8110EA968A0185, 0.008333046645248707), f64(0xBF29F67D9395D587, -0.0001980808536178708),
    f64(0x3EC5D4567512BBD5, 2.602272538419318e-06)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 1.85e-16 at most.
inline constexpr Polynomial<double, 7> sin_A50{{f64(0xBFC55555555554A8, -0.16666666666666186),
    f64(0x3F8111111110A573, 0.008333333333285542), f64(0xBF2A01A019A659DD, -0.00019841269825056256),
    f64(0x3EC71DE3806ADD1A, 2.7557316600552628e-06), f64(0xBE5AE6355AAA4A53, -2.505188027386288e-08),
    f64(0x3DE60E6BEE01D83E, 1.6048095404959637e-10), f64(0xBD69F1517E9F65F0, -7.373344533110665e-13)}};

// sin(x) = x * P(x^2) for x in [-pi/2, pi/2]: relative error 1.53e-04 at most.
inline constexpr Polynomial<float, 3> cos_A11{{f32(0x3F7FF87C, 0.9998853206634521), f32(0xBE29E73F, -0.1659211963415146),
    f32(0x3BF84524, 0.007576601579785347)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 4.30e-08 at most.
inline constexpr Polynomial<float, 4> cos_A21{{f32(0xBE2AAAA6, -0.16666659712791443), f32(0x3C088764, 0.008333060890436172),
    f32(0xB94FB6CF, -0.0001980915985768661), f32(0x362EC335, 2.604164592412417e-06)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 1.98e-16 at most.
inline constexpr Polynomial<double, 7> cos_A50{{f64(0xBFC55555555554A7, -0.16666666666666183),
    f64(0x3F8111111110A4A8, 0.00833333333328519), f64(0xBF2A01A019A5B87B, -0.00019841269824944275),
    f64(0x3EC71DE38030FEA0, 2.755731658449074e-06), f64(0xBE5AE63546002231, -2.505187912674299e-08),
    f64(0x3DE60E6857A2F220, 1.6048055576979365e-10), f64(0xBD69F0D60811AAC8, -7.37280909726507e-13)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/2, pi/2]: relative error 1.87e-16 at most.
inline constexpr Polynomial<double, 7> sincos_A50{{f64(0xBFC55555555554A7, -0.16666666666666183),
    f64(0x3F8111111110A4A6, 0.008333333333285186), f64(0xBF2A01A019A5B86D, -0.00019841269824944237),
    f64(0x3EC71DE38030FEA0, 2.755731658449074e-06), f64(0xBE5AE63546002231, -2.505187912674299e-08),
    f64(0x3DE60E6857A2F220, 1.6048055576979365e-10), f64(0xBD69F0D60811AAC8, -7.37280909726507e-13)}};

// sin(x) = x + x * P(x^2) for x in [-pi/4, pi/4]: relative error 6.82e-09 at most.
inline constexpr Polynomial<float, 4> quarter_sine_A21{{f32(0xB15E870D, -3.2382019288235142e-09),
    f32(0xBE2AAAA0, -0.16666650772094727), f32(0x3C088303, 0.008332016877830029), f32(0xB94C7DCE, -0.00019501821952871978)}};

// cos(x) = P(x^2) for x in [-pi/4, pi/4]: relative error 7.91e-08 at most.
inline constexpr Polynomial<float, 4> quarter_cosine_A21{{f32(0x3F800000, 1.0), f32(0xBEFFFFCB, -0.49999842047691345),
    f32(0x3D2A9DD3, 0.04165441915392876), f32(0xBAB1FCEB, -0.0013579403748735785)}};

// sin(x) = x + x * P(x^2) for x in [-pi/4, pi/4]: relative error 3.24e-09 at most.
inline constexpr Polynomial<double, 4> quarter_sine_A24{{f64(0xBE2BD0E1AA962554, -3.2382020022821637e-09),
    f64(0xBFC55553F43C228B, -0.16666650224239662), f64(0x3F8110605167BE08, 0.008332016453066707),
    f64(0xBF298FB9C157FF94, -0.0001950182201397836)}};

// cos(x) = P(x^2) for x in [-pi/4, pi/4]: relative error 6.71e-11 at most.
inline constexpr Polynomial<double, 5> quarter_cosine_A24{{f64(0x3FEFFFFFFFF97C47, 0.9999999999526005),
    f64(0xBFDFFFFFFBDEE95E, -0.49999999615433477), f64(0x3FA55553A875B0C5, 0.04166661673920794),
    f64(0xBF56C078624DF59A, -0.0013886619210262464), f64(0x3EF9906FFD58BF6D, 2.4379929376816047e-05)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/32, pi/32]: relative error 1.08e-19 at most.
inline constexpr Polynomial<double, 4> sixteenth_sine{{f64(0xBFC5555555555555, -0.16666666666666666),
    f64(0x3F8111111110E99D, 0.008333333333315813), f64(0xBF2A01A00ED01EDE, -0.00019841269332253932),
    f64(0x3EC71C97D22A73DD, 2.755128336430562e-06)}};

// cos(x) = 1 + x^2 * P(x^2) for x in [-pi/32, pi/32]: relative error 8.94e-20 at most.
inline constexpr Polynomial<double, 4> sixteenth_cosine{{f64(0xBFDFFFFFFFFFFFFC, -0.4999999999999998),
    f64(0x3FA555555554E8D6, 0.04166666666647394), f64(0xBF56C16C075D73F8, -0.0013888888328985587),
    f64(0x3EF9FFD7D9D749BC, 2.4794947980863574e-05)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/256, pi/256]: relative error 7.49e-13 at most.
inline constexpr Polynomial<float, 2> large_sine_32f{{f32(0xBE2AAAAB, -0.1666666716337204),
    f32(0x3C08885C, 0.008333291858434677)}};

// cos(x) = 1 + x^2 * P(x^2) for x in [-pi/256, pi/256]: relative error 8.02e-16 at most.
inline constexpr Polynomial<float, 2> large_cosine_32f{{f32(0xBF000000, -0.5), f32(0x3D2AAA7C, 0.04166649281978607)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/512, pi/512]: relative error 4.08e-19 at most.
inline constexpr Polynomial<double, 2> large_sine_64f{{f64(0xBFC5555555554448, -0.1666666666665455),
    f64(0x3F81110FABB3551C, 0.008333322932609515)}};

// cos(x) = 1 + x^2 * P(x^2) for x in [-pi/512, pi/512]: relative error 1.92e-24 at most.
inline constexpr Polynomial<double, 3> large_cosine_64f{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FA5555555554CCF, 0.041666666666651524), f64(0xBF56C16AB163B2D7, -0.0013888875887985619)}};

// sin(x) = x + x^3 * P(x^2) for x in [-pi/64, pi/64]: relative error 2.44e-20 at most.
inline constexpr Polynomial<double, 4> routine_sine{{f64(0xBFC5555555555555, -0.16666666666666666),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0xBF2A01A01A01A01A, -0.0001984126984126984),
    f64(0x3EC71DE3A556C734, 2.7557319223985893e-06)}};

// cos(x) = 1 + x^2 * P(x^2) for x in [-pi/64, pi/64]: relative error 2.24e-20 at most.
inline constexpr Polynomial<double, 4> routine_cosine{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FA5555555555555, 0.041666666666666664), f64(0xBF56C16C16C16C17, -0.001388888888888889),
    f64(0x3EFA01A01A01A01A, 2.48015873015873e-05)}};

// tan(x) = x + x^3 * P(x^2) for x in [-pi/64, pi/64]: relative error 7.75e-07 at most.
inline constexpr Polynomial<float, 1> tan_A11{{f32(0x3EAAAAA6, 0.33333319425582886)}};

// tan(x) = x + x^3 * P(x^2) for x in [-pi/64, pi/64]: relative error 3.06e-11 at most. Also of A24.
inline constexpr Polynomial<float, 2> tan_A21{{f32(0x3EAAAAA6, 0.33333319425582886), f32(0x3E08B888, 0.13351643085479736)}};

// tan(x) = x + x^3 * P(x^2) for x in [-pi/32, pi/32]: relative error 7.44e-13 at most.
inline constexpr Polynomial<double, 4> tan_A26{{f64(0x3FD55555555555DC, 0.3333333333333408),
    f64(0x3FC11111110B0802, 0.13333333332235503), f64(0x3FABA1BA489D25CA, 0.053968259204860994),
    f64(0x3F9664AB664EFBA9, 0.021868398780266727)}};

// tan(x) = x + x^3 * P(x^2) for x in [-pi/32, pi/32]: relative error 1.59e-18 at most. Also of A53.
inline constexpr Polynomial<double, 5> tan_A50{{f64(0x3FD55555555555DC, 0.3333333333333408),
    f64(0x3FC11111110B0802, 0.13333333332235503), f64(0x3FABA1BA489D25CA, 0.053968259204860994),
    f64(0x3F9664AB664EFBA9, 0.021868398780266727), f64(0x3F825CCCC7C9FA5D, 0.008966064307285021)}};

}  // namespace lum::inline LUM_LAYER::circular
