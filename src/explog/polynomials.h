// Written by tools/polynomials.py from src/explog/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::explog {

// exp(x) = P(x) for x in [0, ln2/16]: relative error 2.33e-04 at most.
inline constexpr Polynomial<float, 2> exp_A11{{f32(0x3F800000, 1.0), f32(0x3F82CC37, 1.0218571424484253)}};

// exp(x) = 1 + x + x^2 * P(x) for x in [0, ln2/16]: relative error 8.92e-09 at most. Also of A24.
inline constexpr Polynomial<float, 2> exp_A21{{f32(0x3EFFFA27, 0.4999553859233856), f32(0x3E2D77F1, 0.1694028526544571)}};

// exp(x) = 1 + x * P(x) for x in [0, ln2/8]: relative error 1.59e-10 at most.
inline constexpr Polynomial<double, 4> exp_A26{{f64(0x3FEFFFFFE7109A30, 0.9999999535546689),
    f64(0x3FE000090EE70BF8, 0.5000043192925423), f64(0x3FC550BF0B8C5804, 0.16652668060186226),
    f64(0x3FA646AE66C82C5D, 0.04350800518667406)}};

// exp(x) = 1 + x * P(x) for x in [0, ln2/8]: relative error 4.71e-18 at most. Also of A53.
inline constexpr Polynomial<double, 7> exp_A50{{f64(0x3FF0000000000010, 1.0000000000000036),
    f64(0x3FDFFFFFFFFFC27C, 0.4999999999991258), f64(0x3FC555555581ECF0, 0.1666666667477794),
    f64(0x3FA5555535A28874, 0.04166666297648272), f64(0x3F81111D488F67BE, 0.008333424355374205),
    f64(0x3F56BC377AFAB2E0, 0.0013876478005087553), f64(0x3F2B28056EA3D8B9, 0.00020718637762912553)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/64, ln2/64]: relative error 1.99e-05 at most.
inline constexpr Polynomial<float, 1> expm1_A11{{f32(0x3F000148, 0.5000195503234863)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/64, ln2/64]: relative error 1.06e-07 at most.
inline constexpr Polynomial<float, 2> expm1_A21{{f32(0x3F0000F6, 0.5000146627426147), f32(0x3E2AABF3, 0.16667155921459198)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/32, ln2/32]: relative error 5.53e-09 at most.
inline constexpr Polynomial<float, 3> expm1_A24{{f32(0x3F000000, 0.5), f32(0x3E2AAEC4, 0.16668230295181274),
    f32(0x3D2AAEC4, 0.041670575737953186)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/32, ln2/32]: relative error 1.33e-11 at most.
inline constexpr Polynomial<double, 4> expm1_A26{{f64(0x3FDFFFFFFE5BC214, 0.49999999847116894),
    f64(0x3FC55555541D276C, 0.16666666609881575), f64(0x3FA555C2AABA6423, 0.04166992506106506),
    f64(0x3F811168888FAD60, 0.008333985011595046)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/32, ln2/32]: relative error 1.12e-16 at most.
inline constexpr Polynomial<double, 6> expm1_A50{{f64(0x3FE00000000000A2, 0.500000000000018),
    f64(0x3FC5555555555656, 0.1666666666666738), f64(0x3FA5555554AD3D06, 0.04166666659022593),
    f64(0x3F81111110865214, 0.008333333317559734), f64(0x3F56C1C38E164A2F, 0.001388970348078399),
    f64(0x3F2A020410303D8A, 0.00019842433548021245)}};

// exp(x) - 1 = x + x^2 * P(x) for x in [-ln2/32, ln2/32]: relative error 5.32e-19 at most.
inline constexpr Polynomial<double, 7> expm1_A53{{f64(0x3FE0000000000000, 0.5), f64(0x3FC55555555555F9, 0.1666666666666712),
    f64(0x3FA555555555560A, 0.04166666666666792), f64(0x3F81111110A65711, 0.008333333321199928),
    f64(0x3F56C16C16304601, 0.0013888888868262008), f64(0x3F2A01F8F4B129C3, 0.00019842304240775933),
    f64(0x3EFA01F8F4BE0BB2, 2.4802880303830418e-05)}};

// exp(x) = P(x) for x in [-ln2/2, ln2/2]: relative error 1.41e-07 at most.
inline constexpr Polynomial<float, 6> exp_routine_32f{{f32(0x3F800001, 1.0000001192092896), f32(0x3F800001, 1.0000001192092896),
    f32(0x3EFFFE85, 0.49998870491981506), f32(0x3E2AA9C6, 0.166663259267807), f32(0x3D2BB1B6, 0.041917525231838226),
    f32(0x3C0950EF, 0.008381112478673458)}};

// exp(x) = 1 + x + x^2 * P(x) for x in [-ln2/128, ln2/128]: relative error 7.39e-22 at most.
inline constexpr Polynomial<double, 5> exp_routine_64f{{f64(0x3FE0000000000000, 0.5),
    f64(0x3FC55555555548F8, 0.1666666666665788), f64(0x3FA5555555558FCC, 0.04166666666677052),
    f64(0x3F8111123AAF20D3, 0.008333341995140497), f64(0x3F56C16A1C2A3FFD, 0.0013888870459233254)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.04e-08 at most.
inline constexpr Polynomial<float, 4> ln_A24{{f32(0xBEFFFFE5, -0.49999919533729553), f32(0x3EAAAA84, 0.3333321809768677),
    f32(0xBE806B6A, -0.25081950426101685), f32(0x3E4DA3BA, 0.20081987977027893)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 5.46e-10 at most.
inline constexpr Polynomial<double, 5> ln_A26{{f64(0xBFE00000006661EF, -0.5000000007449311),
    f64(0x3FD555502024AAB1, 0.3333320917032934), f64(0xBFCFFFF289B15435, -0.2499983951881021),
    f64(0x3FC9B53BE7EAD47D, 0.2008433229836192), f64(0xBFC570FAD80A4B64, -0.16751037167395133)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 3.37e-16 at most.
inline constexpr Polynomial<double, 9> ln_A50{{f64(0xBFE0000000000007, -0.5000000000000008),
    f64(0x3FD555555554C04A, 0.3333333333312153), f64(0xBFCFFFFFFFFDC42C, -0.24999999999593692),
    f64(0x3FC99999A2DFBB47, 0.20000000431852014), f64(0xBFC5555562046F41, -0.16666667257310944),
    f64(0x3FC2490ABAA89CDE, 0.14285406221572478), f64(0xBFBFFFC5826CF903, -0.12499651369305202),
    f64(0x3FBCAC8227F9F69E, 0.11200726963030624), f64(0xBFB9D45BAFA806C9, -0.10089657820210642)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/16 - 2^-14, 1/16 + 2^-14]: relative error 7.80e-18 at most.
inline constexpr Polynomial<double, 10> ln_A53{{f64(0xBFE0000000000008, -0.5000000000000009),
    f64(0x3FD5555555555580, 0.3333333333333357), f64(0xBFCFFFFFFFFDA662, -0.24999999999572525),
    f64(0x3FC9999999959EA2, 0.1999999999927598), f64(0xBFC55555626F41E5, -0.166666672767419),
    f64(0x3FC24924A36E51FF, 0.1428571508410101), f64(0xBFBFFFC466AF551D, -0.12499644762950309),
    f64(0x3FBC718497BDD31F, 0.1111071463072446), f64(0xBFB9D4D94C6A34BD, -0.10090406528088898),
    f64(0x3FB7811843796ACA, 0.09181358001061848)}};

// log(1 + x) / ln10 = 0x1.bcb7b2p-2 * x + x * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative error 1.79e-09 at most.
// Beside P stands the binary32 number next to 1/ln 10.
inline constexpr Polynomial<float, 4> log10_A24{{f32(0xB238DD40, -1.0760516033769818e-08),
    f32(0xBE5E5BD9, -0.21714724600315094), f32(0x3E1442D6, 0.14478620886802673), f32(0xBDDE69DB, -0.10860034078359604)}};

// log(1 + x) / ln10 = x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.19e-10 at most.
inline constexpr Polynomial<double, 5> log10_A26{{f64(0x3FDBCB7B1527E690, 0.4342944819069112),
    f64(0xBFCBCB7AE66A7F64, -0.21714721918851432), f64(0x3FC287A6FB3F50D4, 0.1447647787850942),
    f64(0xBFBBD14C6BF32947, -0.10866239200109816), f64(0x3FB6435E178FB651, 0.08696544718960665)}};

// log(1 + x) / ln10 = x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.70e-17 at most.
inline constexpr Polynomial<double, 9> log10_A50{{f64(0x3FDBCB7B1526E50E, 0.4342944819032518),
    f64(0xBFCBCB7B1526E4DB, -0.2171472409516245), f64(0x3FC287A7636F428C, 0.1447648273010781),
    f64(0xBFBBCB7B153C06A3, -0.10857362049503165), f64(0x3FB63C62777F27D9, 0.08685889642143198),
    f64(0xBFB287A63464DC80, -0.07238234309339653), f64(0x3FAFC3F6F38B58A2, 0.06204196665719165),
    f64(0xBFABD80D96029814, -0.054382729112418954), f64(0x3FA8C2D828480370, 0.04836154453005903)}};

// log(1 + x) / ln10 = 0x1.bcb7b1526e50ep-2 * x + x * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.21e-17 at
// most. Beside P stands the binary64 number next to 1/ln 10.
inline constexpr Polynomial<double, 9> log10_A53{{f64(0x3C69A5FDAAF11825, 1.112322122975008e-17),
    f64(0xBFCBCB7B1526E4DB, -0.2171472409516245), f64(0x3FC287A7636F428C, 0.1447648273010781),
    f64(0xBFBBCB7B153C06A3, -0.10857362049503165), f64(0x3FB63C62777F27D9, 0.08685889642143198),
    f64(0xBFB287A63464DC80, -0.07238234309339653), f64(0x3FAFC3F6F38B58A2, 0.06204196665719165),
    f64(0xBFABD80D96029814, -0.054382729112418954), f64(0x3FA8C2D828480370, 0.04836154453005903)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/3, 1/3]: relative error 1.01e-04 at most.
inline constexpr Polynomial<float, 4> log1p_A11{{f32(0xBF000000, -0.5), f32(0x3EAA7160, 0.33289623260498047),
    f32(0xBE88E8FE, -0.2674025893211365), f32(0x3E612933, 0.2198837250471115)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/3, 1/3]: relative error 3.75e-08 at most.
inline constexpr Polynomial<float, 8> log1p_A21{{f32(0xBF000000, -0.5), f32(0x3EAAAA94, 0.3333326578140259),
    f32(0xBE80058E, -0.2500423789024353), f32(0x3E4CE190, 0.20007920265197754), f32(0xBE28AD37, -0.1647232621908188),
    f32(0x3E0FCB12, 0.14042308926582336), f32(0xBE1AD9E3, -0.15122179687023163), f32(0x3E0D84ED, 0.13820238411426544)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/64 - 2^-14, 1/64 + 2^-14]: relative error 3.07e-09 at most.
inline constexpr Polynomial<float, 3> log1p_A24{{f32(0xBF000000, -0.5), f32(0x3EAAB11E, 0.3333825469017029),
    f32(0xBE800810, -0.2500615119934082)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 3.30e-10 at most.
inline constexpr Polynomial<double, 4> log1p_A26{{f64(0xBFDFFFFFCA9C9FAF, -0.4999999502783749),
    f64(0x3FD55554DE51032A, 0.33333322249022734), f64(0xBFD00355FDA0C953, -0.2502036072575226),
    f64(0x3FC9A19BA80F61AB, 0.20024438577708045)}};

// log(1 + x) = x + x^2 * P(x) for x in [-1/32 - 2^-14, 1/32 + 2^-14]: relative error 1.36e-17 at most. Also of A53.
inline constexpr Polynomial<double, 8> log1p_A50{{f64(0xBFDFFFFFFFFFFFC6, -0.4999999999999968),
    f64(0x3FD5555555555466, 0.33333333333332005), f64(0xBFD00000000C05BD, -0.2500000000437373),
    f64(0x3FC9999999CC9F5C, 0.20000000009280938), f64(0xBFC55553FB28DB06, -0.16666650546695666),
    f64(0x3FC249229CEE81EF, 0.14285690939597326), f64(0xBFC007357E93AF62, -0.125220000081181),
    f64(0x3FBC81CD309D7C70, 0.11135561406034511)}};

// log(1 + x) = x + x^2 * P(x) for x in [-5/512, 5/512]: relative error 1.47e-19 at most.
inline constexpr Polynomial<double, 7> ln_routine{{f64(0xBFE0000000000000, -0.5), f64(0x3FD5555555555613, 0.33333333333334386),
    f64(0xBFD0000000000262, -0.25000000000003386), f64(0x3FC9999997B36C81, 0.19999999911565072),
    f64(0xBFC555555228B38F, -0.1666666651884978), f64(0x3FC249C02481059D, 0.1428756883852146),
    f64(0xBFC000B405A2836D, -0.1250214602960357)}};

// log(1 + x) / ln10 = 0x1.bcb8p-2 * x + x * P(x) for x in [-65/8192, 65/8192]: relative error 8.76e-11 at most. Beside P stands
// 1/ln 10 in ten bits, by which products with short numbers are exact.
inline constexpr Polynomial<float, 5> log10_routine_32f{{f32(0xB59D5B23, -1.172393581327924e-06),
    f32(0xBE5E5BD9, -0.21714724600315094), f32(0x3E143D3B, 0.14476482570171356), f32(0xBDDE5BD9, -0.10857362300157547),
    f32(0x3DB1E314, 0.08685889840126038)}};

// log(1 + x) / ln10 = 0x1.bcp-2 * x + x * P(x) for x in [-65/8192, 65/8192]: relative error 1.93e-18 at most. Beside P stands
// 1/ln 10 in eight bits, by which products with short numbers are exact.
inline constexpr Polynomial<double, 8> log10_routine_64f{{f64(0x3F46F62A4DCA1C65, 0.0007007319032518276),
    f64(0xBFCBCB7B1526E50E, -0.2171472409516259), f64(0x3FC287A7636F435F, 0.14476482730108395),
    f64(0xBFBBCB7B1526E50E, -0.10857362047581295), f64(0x3FB63C62775250D8, 0.08685889638065036),
    f64(0xBFB287A7636F435F, -0.07238241365054197), f64(0x3FAFC3FA615105C7, 0.06204206884332169),
    f64(0xBFABCB7B1526E50E, -0.05428681023790648)}};

}  // namespace lum::inline LUM_LAYER::explog
