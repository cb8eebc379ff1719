// Written by tools/polynomials.py from src/hyperbolic/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/64, ln2/64]: relative error 1.33e-09 at most. Also of A21.
inline constexpr Polynomial<float, 1> cosh_A24{{f32(0x3F00010F, 0.5000161528587341)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-ln2/64, ln2/64]: relative error 5.47e-11 at most. Also of A21.
inline constexpr Polynomial<float, 1> cosh_sinh_A24{{f32(0x3E2AAACD, 0.166667178273201)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/32, ln2/32]: relative error 1.16e-20 at most. Also of A50; its first two
// coefficients are those of A26.
inline constexpr Polynomial<double, 3> cosh_A53{{f64(0x3FE0000000000004, 0.5000000000000004),
    f64(0x3FA5555555484F37, 0.04166666666074408), f64(0x3F56C183DA08F116, 0.001388911019730326)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-ln2/32, ln2/32]: relative error 2.72e-20 at most. Also of A50; its first two
// coefficients are those of A26.
inline constexpr Polynomial<double, 3> cosh_sinh_A53{{f64(0x3FC5555555555543, 0.16666666666666616),
    f64(0x3F81111111286A0C, 0.008333333335987646), f64(0x3F2A018D76DA03DA, 0.00019841052874272521)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/32, ln2/32]: relative error 1.44e-13 at most.
inline constexpr Polynomial<double, 2> cosh_A26{{f64(0x3FE0000000000004, 0.5000000000000004),
    f64(0x3FA5555555484F37, 0.04166666666074408)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-ln2/32, ln2/32]: relative error 2.05e-14 at most.
inline constexpr Polynomial<double, 2> cosh_sinh_A26{{f64(0x3FC5555555555543, 0.16666666666666616),
    f64(0x3F81111111286A0C, 0.008333333335987646)}};

// sinh(x) = x * P(x^2) for x in [-ln2/2, ln2/2]: relative error 6.44e-05 at most.
inline constexpr Polynomial<float, 2> sinh_A11{{f32(0x3F7FFBC9, 0.9999356865882874), f32(0x3E2CCD2E, 0.16875144839286804)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/2, ln2/2]: relative error 7.90e-07 at most.
inline constexpr Polynomial<float, 2> sinh_cosh_A11{{f32(0x3EFFFB2F, 0.49996325373649597),
    f32(0x3D2CA395, 0.04214819148182869)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-ln2/2, ln2/2]: relative error 1.35e-08 at most.
inline constexpr Polynomial<float, 2> sinh_A21{{f32(0x3E2AAA57, 0.16666541993618011), f32(0x3C091461, 0.008366675116121769)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-ln2/2, ln2/2]: relative error 1.01e-10 at most.
inline constexpr Polynomial<float, 3> sinh_cosh_A21{{f32(0x3F000000, 0.5), f32(0x3D2AAA72, 0.04166645556688309),
    f32(0x3AB6A8A3, 0.0013935755705460906)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-3 * ln2/64, 3 * ln2/64]: relative error 9.13e-09 at most.
inline constexpr Polynomial<float, 1> sinh_A24{{f32(0x3E2AAAB5, 0.16666682064533234)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-3 * ln2/64, 3 * ln2/64]: relative error 4.22e-08 at most.
inline constexpr Polynomial<float, 1> sinh_cosh_A24{{f32(0x3F000044, 0.5000040531158447)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-3 * ln2/256, 3 * ln2/256]: relative error 4.85e-17 at most.
inline constexpr Polynomial<double, 2> sinh_A50{{f64(0x3FC55555555554AD, 0.166666666666662),
    f64(0x3F8111115712F425, 0.008333335370815995)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-3 * ln2/256, 3 * ln2/256]: relative error 3.40e-16 at most.
inline constexpr Polynomial<double, 2> sinh_cosh_A50{{f64(0x3FDFFFFFFFFFFDBD, 0.49999999999996786),
    f64(0x3FA55555CF16D299, 0.04166668084090936)}};

// sinh(x) = x + x^3 * P(x^2) for x in [-3 * ln2/32, 3 * ln2/32]: relative error 1.29e-17 at most.
inline constexpr Polynomial<double, 3> sinh_A53{{f64(0x3FC5555555555CA6, 0.16666666666671864),
    f64(0x3F8111110EDC6EDA, 0.008333333269141919), f64(0x3F2A026D06015EC6, 0.0001984365544582726)}};

// cosh(x) = 1 + x^2 * P(x^2) for x in [-3 * ln2/32, 3 * ln2/32]: relative error 1.51e-20 at most.
inline constexpr Polynomial<double, 4> sinh_cosh_A53{{f64(0x3FE0000000000000, 0.5),
    f64(0x3FA5555555554B4C, 0.04166666666664884), f64(0x3F56C16C1902580B, 0.0013888888970874393),
    f64(0x3EFA01AC1B806259, 2.4801762009559563e-05)}};

// sinh(x) = x + x^3 * P(x^2) for x in [0, 0x1.bdb8cdadbe12p-6]: relative error 6.86e-21 at most.
inline constexpr Polynomial<double, 4> sinh_routine{{f64(0x3FC5555555555555, 0.16666666666666666),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0x3F2A01A01A01A01A, 0.0001984126984126984),
    f64(0x3EC71DE3A556C734, 2.7557319223985893e-06)}};

// tanh(x) = x * (1 + P(x^2)) / tanh_A11_denominator(x^2) for x in [0, 5]: relative error 5.20e-05 at most.
inline constexpr Polynomial<float, 3> tanh_A11_numerator{{f32(0xB859E195, -5.19469213031698e-05),
    f32(0x3DD1C060, 0.1024177074432373), f32(0x3A2FC8E6, 0.0006705656414851546)}};

// tanh(x) = x * (1 + tanh_A11_numerator(x^2)) / P(x^2) for x in [0, 5]: relative error 5.20e-05 at most.
inline constexpr Polynomial<float, 3> tanh_A11_denominator{{f32(0x3F800000, 1.0), f32(0x3EDEF102, 0.435432493686676),
    f32(0x3C520A84, 0.012819889932870865)}};

// (1 - x)^(-1/2) = 1 + x * P(x) for x in [-2^-13, 2^-13]: relative error 5.69e-13 at most.
inline constexpr Polynomial<float, 2> root_32f{{f32(0x3F000000, 0.5), f32(0x3EC00000, 0.375)}};

// (1 - x)^(-1/2) = 1 + x * P(x) for x in [-2^-13, 2^-13]: relative error 4.59e-21 at most.
inline constexpr Polynomial<double, 4> root_64f{{f64(0x3FE0000000000000, 0.5), f64(0x3FD8000000000000, 0.375),
    f64(0x3FD40000013B0000, 0.3125000011459633), f64(0x3FD1800001943612, 0.2734375014705118)}};

// (1 - x)^(-1/2) = 1 + x * P(x) for x in [-2^-13, 2^-13]: relative error 4.56e-17 at most.
inline constexpr Polynomial<double, 3> root_A26{{f64(0x3FE0000000000000, 0.5), f64(0x3FD8000001180000, 0.37500000101863407),
    f64(0x3FD40000017A0000, 0.312500001375156)}};

// asinh(x) = x + x^3 * P(x^2) for x in [0, 1/64]: relative error 1.12e-09 at most.
inline constexpr Polynomial<float, 1> asinh_32f{{f32(0xBE2AA5DE, -0.16664835810661316)}};

// asinh(x) = x + x^3 * P(x^2) for x in [0, 1/256]: relative error 5.77e-12 at most.
inline constexpr Polynomial<double, 2> asinh_A26{{f64(0xBFC55552221BC89D, -0.1666662851853901),
    f64(0x3FB3221CAE352644, 0.07473925831904987)}};

// asinh(x) = x + x^3 * P(x^2) for x in [0, 1/256]: relative error 9.92e-18 at most.
inline constexpr Polynomial<double, 2> asinh_A50{{f64(0xBFC5555555521E7E, -0.16666666666082003),
    f64(0x3FB333220EAF02E7, 0.07499897821891076)}};

// asinh(x) = x + x^3 * P(x^2) for x in [0, 0x1.6ap-6]: relative error 2.70e-17 at most.
inline constexpr Polynomial<double, 3> asinh_A53{{f64(0xBFC555555554D8FD, -0.16666666666578314),
    f64(0x3FB333330C569EEA, 0.07499999095181989), f64(0xBFA6D78AAC4CA025, -0.04461320260298888)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative error 8.27e-05 at most. Of Asinh and Acosh.
inline constexpr Polynomial<float, 1> log1p_A11{{f32(0xBF000408, -0.5000615119934082)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.27e-10 at most.
inline constexpr Polynomial<double, 4> log1p_A26{{f64(0xBFDFFFFFCA317A90, -0.49999994988858365),
    f64(0x3FD55554DD621E7A, 0.33333322162113854), f64(0xBFD00359551D29C9, -0.25020440399080407),
    f64(0x3FC9A1A3AE2FCF04, 0.2002453423043492)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.77e-19 at most. Also of Asinh and Acosh
// A50.
inline constexpr Polynomial<double, 9> log1p_A53{{f64(0xBFE0000000000000, -0.5), f64(0x3FD55555555554C1, 0.3333333333333251),
    f64(0xBFCFFFFFFFFFFC65, -0.24999999999997438), f64(0x3FC9999999BE77AF, 0.20000000006706162),
    f64(0xBFC55555559BA736, -0.1666666667945777), f64(0x3FC24922F71256F1, 0.14285695137066726),
    f64(0xBFBFFFFB8A054BC9, -0.12499973411222166), f64(0x3FBC80666E249778, 0.11133423031841783),
    f64(0xBFB9A9B040214368, -0.10024549070045696)}};

// log(1 + x) = x * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative error 4.14e-05 at most.
inline constexpr Polynomial<float, 2> atanh_A11{{f32(0x3F800158, 1.0000410079956055), f32(0xBF000408, -0.5000615119934082)}};

// log(1 + x) = x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.22e-17 at most.
inline constexpr Polynomial<double, 9> atanh_A50{{f64(0x3FF0000000000000, 1.0), f64(0xBFDFFFFFFFFFFFC5, -0.4999999999999967),
    f64(0x3FD5555555555462, 0.3333333333333198), f64(0xBFD00000000C2A01, -0.25000000004425266),
    f64(0x3FC9999999CD394A, 0.20000000009390312), f64(0xBFC55553F871E5C5, -0.16666650420283538),
    f64(0x3FC2492298FFDAE8, 0.14285690756488312), f64(0xBFC0073CB82E8B70, -0.1252208613705892),
    f64(0x3FBC81DD40D38142, 0.11135657150908165)}};

}  // namespace lum::inline LUM_LAYER::hyperbolic
