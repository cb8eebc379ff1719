// Written by tools/polynomials.py from src/pow/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::pow {

// log(1 + x) / ln2 = x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.54e-08 at most.
inline constexpr Polynomial<float, 4> log2_A11{{f32(0x3FB8AA3B, 1.4426950216293335), f32(0xBF38AA39, -0.7213473916053772),
    f32(0x3EF65D69, 0.48118141293525696), f32(0xBEB8D89E, -0.36102765798568726)}};

// log(1 + x) / ln2 = 0x1.715476p+0 * x + x * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative error 6.80e-11 at most.
// Beside P stands the binary32 number next to 1/ln 2.
inline constexpr Polynomial<float, 5> log2_A21{{f32(0x32A570CC, 1.9259822181538766e-08), f32(0xBF38AA3B, -0.7213475108146667),
    f32(0x3EF6384F, 0.48089835047721863), f32(0xBEB8B3ED, -0.36074772477149963), f32(0x3E93C705, 0.2886277735233307)}};

// log(1 + x) / ln2 = 0x1.715476p+0 * x - 0x1.715476p+0 / 2 * x^2 + x * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative
// error 1.24e-11 at most. Beside P stand the binary32 number next to 1/ln 2 and half of it.
inline constexpr Polynomial<float, 5> log2_A24{{f32(0x32A570CC, 1.9259822181538766e-08),
    f32(0xB1AE8807, -5.079531018026273e-09), f32(0x3EF6384F, 0.48089835047721863), f32(0xBEB8B3ED, -0.36074772477149963),
    f32(0x3E93C705, 0.2886277735233307)}};

// log(1 + x) / ln2 = x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 5.87e-14 at most.
inline constexpr Polynomial<double, 7> log2_A26{{f64(0x3FF71547652B82F4, 1.4426950408889612),
    f64(0xBFE71547652E11EC, -0.7213475204630959), f64(0x3FDEC709DC4A43C9, 0.48089834702210205),
    f64(0xBFD71546C21A4D60, -0.3606736083540536), f64(0x3FD2776B43A8C495, 0.2885387573943004),
    f64(0xBFCED12FE625DE19, -0.24075888383571067), f64(0x3FCA6D10104C2777, 0.20645333095336202)}};

// log(1 + x) / ln2 = 0x1.71547652b82fep+0 * x - 0x1.71547652b82fep+0 / 2 * x^2 + x * P(x) for x in [-1/64 - 2^-14, 1/64 +
// 2^-14]: relative error 2.33e-20 at most. Beside P stand the binary64 number next to 1/ln 2 and half of it.
inline constexpr Polynomial<double, 9> log2_A50{{f64(0x3C7777F3EE5E912F, 2.0355736058257225e-17),
    f64(0x3C636B5DDFFE5B67, 8.421822774076385e-18), f64(0x3FDEC709DC3A03FC, 0.4808983469629877),
    f64(0xBFD71547652BC9EA, -0.3606737602232487), f64(0x3FD2776C50F03272, 0.2885390081799307),
    f64(0xBFCEC709BC8FB8DF, -0.24044915873623204), f64(0x3FCA6175FCA19D03, 0.20609927020561977),
    f64(0xBFC717E59A559F5D, -0.18041677509176682), f64(0x3FC48799F5374B96, 0.16038822625577315)}};

// log(1 + 2 * x) / ln2 = 2 * 0x1.71547652b82fep+0 * x - 2 * 0x1.71547652b82fep+0 * x^2 + x * P(x) for x in [-1/128 - 2^-15,
// 1/128 + 2^-15]: relative error 2.44e-21 at most. Beside P stands twice the binary64 number next to 1/ln 2.
inline constexpr Polynomial<double, 10> log2_A53{{f64(0x3C8777DF70B75D10, 4.071092972869235e-17),
    f64(0xBC8778D9C7190437, -4.0717556105226066e-17), f64(0x400EC709DC3A03FD, 3.847186775703902),
    f64(0xC0171547652B82FC, -5.770780163555852), f64(0x4022776C50EFFBDE, 9.233248261732964),
    f64(0xC02EC709DC3B71A1, -15.388747102981883), f64(0x403A617607E55815, 26.380707257740216),
    f64(0xC04715473528EFC1, -46.16623558520178), f64(0x4054873CF87141D1, 82.1130963426615),
    f64(0xC0627A394386376F, -147.81949020589988)}};

// 2^x = 1 + x * P(x) for x in [0, 1/16]: relative error 3.36e-06 at most.
inline constexpr Polynomial<float, 2> exp2_A11{{f32(0x3F317CC0, 0.6933097839355469), f32(0x3E760A40, 0.24027347564697266)}};

// 2^x = 1 + x * P(x) for x in [0, 1/16]: relative error 2.33e-09 at most.
inline constexpr Polynomial<float, 3> exp2_A21{{f32(0x3F317222, 0.6931477785110474), f32(0x3E75F16C, 0.24017876386642456),
    f32(0x3D6854CB, 0.05672148987650871)}};

// 2^x = 1 + x * P(x) for x in [0, 1/32]: relative error 3.77e-10 at most.
inline constexpr Polynomial<float, 3> exp2_A24{{f32(0x3F317219, 0.6931472420692444), f32(0x3E75FAD6, 0.24021467566490173),
    f32(0x3D65D28E, 0.056109003722667694)}};

// 2^x = 1 + x * P(x) for x in [0, 1/16]: relative error 2.33e-09 at most.
inline constexpr Polynomial<double, 3> exp2_A26{{f64(0x3FE62E444056BF23, 0.6931477791422122),
    f64(0x3FCEBE2D518E7C49, 0.24017874223952365), f64(0x3FAD0A9942A3D753, 0.05672148645855537)}};

// 2^x = 1 + x * P(x) for x in [0, 1/16]: relative error 1.50e-17 at most. Also of A53.
inline constexpr Polynomial<double, 6> exp2_A50{{f64(0x3FE62E42FEFA398B, 0.6931471805599342),
    f64(0x3FCEBFBDFF84554D, 0.24022650696194106), f64(0x3FAC6B08D4AD8EB9, 0.0555041083923959),
    f64(0x3F83B2AD1B14EBAA, 0.009618141545265708), f64(0x3F55D7472783D279, 0.0013330645434141127),
    f64(0x3F24A1D7F58C2D59, 0.00015741120548571732)}};

// log(1 + x / 1.44140625) / ln2 = x + x * P(x) for x in [-0.00406, 0.00452]: relative error 5.37e-11 at most.
inline constexpr Polynomial<float, 4> routine_log2_32f{{f32(0x3A6A6369, 0.0008941204869188368),
    f32(0xBEB1C35D, -0.3471936285495758), f32(0x3E246F69, 0.16058124601840973), f32(0xBDAB1EA1, -0.08355451375246048)}};

// log(1 + x / 0x1.7154740000000p+0) / ln2 = x + x * P(x) for x in [-0.0000222, 0.0000222]: relative error 9.05e-21 at most.
inline constexpr Polynomial<double, 4> routine_log2_64f{{f64(0x3E79C3A6966457E8, 9.597935033233503e-08),
    f64(0xBFD62E4346694107, -0.3465736568077919), f64(0x3FC47FD462B6DEE1, 0.16015105075870564),
    f64(0xBFB550472A9012D8, -0.08325619496470027)}};

// 2^x = 1 + x * P(x) for x in [-1/256, 1/256]: relative error 9.71e-12 at most.
inline constexpr Polynomial<float, 3> routine_exp2_32f{{f32(0x3F317218, 0.6931471824645996),
    f32(0x3E75FDF0, 0.24022650718688965), f32(0x3D635847, 0.05550410971045494)}};

// 2^x = 1 + x * P(x) for x in [-1/256, 1/256]: relative error 6.37e-19 at most.
inline constexpr Polynomial<double, 5> routine_exp2_64f{{f64(0x3FE62E42FEFA39EF, 0.6931471805599453),
    f64(0x3FCEBFBDFF82C58F, 0.24022650695910072), f64(0x3FAC6B08D704A0C0, 0.05550410866482158),
    f64(0x3F83B2AB6FBA4E77, 0.009618129107628477), f64(0x3F55D87FE78A6731, 0.0013333558146428443)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/3, 1/3]: relative error 1.78e-06 at most.
inline constexpr Polynomial<float, 6> powx_ln_A11{{f32(0xBF000000, -0.5), f32(0x3EAAAD03, 0.3333512246608734),
    f32(0xBE7F0F0F, -0.24908088147640228), f32(0x3E4B62C0, 0.19861888885498047), f32(0xBE424B46, -0.18974027037620544),
    f32(0x3E2B350C, 0.16719454526901245)}};

// exp(x) = P(x) for x in [-ln2/2, ln2/2]: relative error 1.50e-04 at most.
inline constexpr Polynomial<float, 4> powx_exp_A11{{f32(0x3F800000, 1.0), f32(0x3F8003DE, 1.0001180171966553),
    f32(0x3F00F2D6, 0.5037053823471069), f32(0x3E2963AC, 0.16541928052902222)}};

// log(1 + x) = x + x^2 * P(x) for x in [-0.0094, 0.0094]: relative error 1.57e-09 at most.
inline constexpr Polynomial<float, 3> powx_ln_A21{{f32(0xBF000000, -0.5), f32(0x3EAAAAAB, 0.3333333432674408),
    f32(0xBE800000, -0.25)}};

// exp(x) = P(x) for x in [-ln2/2, ln2/2]: relative error 1.53e-07 at most.
inline constexpr Polynomial<float, 6> powx_exp_A21{{f32(0x3F800000, 1.0), f32(0x3F7FFFFE, 0.9999998807907104),
    f32(0x3EFFFF34, 0.4999939203262329), f32(0x3E2AACAC, 0.16667431592941284), f32(0x3D2B8392, 0.041873522102832794),
    f32(0x3C07D9FE, 0.008291719481348991)}};

// log(1 + x) = x + x^2 * P(x) for x in [-2^-10 - 2^-14, 2^-10 + 2^-14]: relative error 2.80e-10 at most.
inline constexpr Polynomial<double, 2> powx_ln_A24{{f64(0xBFDFFFFFFFFFF81F, -0.49999999999988803),
    f64(0x3FD55555555543C5, 0.33333333333308374)}};

// log(1 + x) = x + x^2 * P(x) for x in [-2^-10 - 2^-14, 2^-10 + 2^-14]: relative error 2.32e-13 at most.
inline constexpr Polynomial<double, 3> powx_ln_A26{{f64(0xBFDFFFFFFFFFF81F, -0.49999999999988803),
    f64(0x3FD55555555543C5, 0.33333333333308374), f64(0xBFD0000148058EE1, -0.2500003054940248)}};

// 2^(x / 2048) = 0.9999999928394805 * (1 + x * P(x)) for x in [0, 1]: relative error 7.17e-09 at most. The table of 2^(i/2048)
// has the factor in front.
inline constexpr Polynomial<double, 1> powx_exp2_linear{{f64(0x3F362F3904051FA1, 0.00033850805268231294)}};

// log(1 + x / 0x1.7154740000000p+0) / ln2 = x + x * P(x) for x in [-0.000705, 0.000705]: relative error 2.00e-20 at most. Also
// of A53.
inline constexpr Polynomial<double, 6> powx_log2_A50{{f64(0x3E79C3A6966457EE, 9.597935033233511e-08),
    f64(0xBFD62E4346694107, -0.3465736568077919), f64(0x3FC47FD462B3B816, 0.16015105075297303),
    f64(0xBFB550472A8BB463, -0.08325619496072671), f64(0x3FA7A334DDFC9F86, 0.04616704187202374),
    f64(0xBF9B4EA0E9419F52, -0.026667131649815552)}};

// 2^x = 1 + x * P(x) for x in [-1/256, 1/256]: relative error 6.37e-19 at most. Also of A53.
inline constexpr Polynomial<double, 5> powx_exp2_A50{{f64(0x3FE62E42FEFA39EF, 0.6931471805599453),
    f64(0x3FCEBFBDFF82C58E, 0.2402265069591007), f64(0x3FAC6B08D704A0BF, 0.055504108664821576),
    f64(0x3F83B2AB6FBA4E77, 0.009618129107628477), f64(0x3F55D87FE78A6731, 0.0013333558146428443)}};

}  // namespace lum::inline LUM_LAYER::pow
