// Written by tools/polynomials.py from src/erf/polynomials.toml; do not edit, write it again by `./run generate`.
// The errors are those of exact arithmetic; tests compute them anew.
// clang-format off
#pragma once

#include "frame/literals.h"
#include "frame/polynomial.h"

namespace lum::inline LUM_LAYER::erf {

// erf(x) = x * P(x^2)^2 for x in [0, sqrt(6.728320121765137)]: relative error 1.57e-04 at most.
inline constexpr Polynomial<float, 6> erf_A11{{f32(0x3F87F527, 1.0621689558029175), f32(0xBE34718D, -0.17621441185474396),
    f32(0x3D175FFF, 0.0369567833840847), f32(0xBBAF8D5D, -0.00535742798820138), f32(0x39F00702, 0.0004578158841468394),
    f32(0xB78F18F8, -1.7058555386029184e-05)}};

// erf(x) = x * P(x^2)^2 for x in [0, sqrt(13.346765518188477)]: relative error 6.01e-08 at most.
inline constexpr Polynomial<double, 13> erf_A21{{f64(0x3FF0FEFBD933B903, 1.062251900144077),
    f64(0xBFC6A948101E6367, -0.17704106127782923), f64(0x3FA3A334CE602C6B, 0.038354540054648854),
    f64(0xBF799309EA0C81DC, -0.006243742682983524), f64(0x3F476DF64A40E392, 0.0007150127971789924),
    f64(0xBF0A5216B9508EDE, -5.020267341418275e-05), f64(0x3EA5794B95C8E8A0, 6.399693962052303e-07),
    f64(0x3E94B6C0B485F30F, 3.0866083424573534e-07), f64(0xBE65806CE17F0523, -4.0049965288188286e-08),
    f64(0x3E2715640470DB47, 2.687279762886615e-09), f64(0xBDDDCB2653D80F03, -1.0838831651735732e-10),
    f64(0x3D85EADFC762D3EB, 2.4917286616863963e-12), f64(0xBD1C668A2871F0F1, -2.5224751730595164e-14)}};

// erf(x) = x * P(x^2) for x in [0, sqrt(14.688109397888184)]: relative error 2.98e-09 at most.
inline constexpr Polynomial<double, 17> erf_A24{{f64(0x3FF20DD74F5BC259, 1.1283791637362326),
    f64(0xBFD81273EA9280EF, -0.3761262694115563), f64(0x3FBCE2E5D8C9E959, 0.11283718626683505),
    f64(0xBF9B8254CEC9607A, -0.02686436187863748), f64(0x3F75633728782213, 0.0052215723621960195),
    f64(0xBF4BF24742AC5608, -0.0008528564406755099), f64(0x3F1F51077325B817, 0.00011946304292617702),
    f64(0xBEEE683AC21BA632, -1.44992573640367e-05), f64(0x3EB98F32F5CC465A, 1.5234572494120914e-06),
    f64(0xBE826046742B0352, -1.369124281360798e-07), f64(0x3E461E396F7C7E2B, 1.0299526106602457e-08),
    f64(0xBE05A63B2335F935, -6.300787169976373e-10), f64(0x3DC09FC73009ABB4, 3.023912197440591e-11),
    f64(0xBD731E5D8F72439C, -1.0867674471598547e-12), f64(0x3D1EC4F20CD1A8A2, 2.7328644583789552e-14),
    f64(0xBCBEC22B47D823A1, -4.268595603399329e-16), f64(0x3C4CA6F11938C219, 3.1064686816282615e-18)}};

// mean_exp(c * x, x^2) - 1 = c * x * P(c * x) + x^2 * erf_A26_v(c * x) for c in [0, 5.9921875] and x in [-1/256, 1/256]: error
// over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 4.95e-11 at most.
inline constexpr Polynomial<double, 2> erf_A26_w{{f64(0xBFF0000180001429, -1.0000014305126206),
    f64(0x3FE55557BBBBDCA6, 0.6666678110767819)}};

// mean_exp(c * x, x^2) - 1 = c * x * erf_A26_w(c * x) + x^2 * P(c * x) for c in [0, 5.9921875] and x in [-1/256, 1/256]: error
// over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 4.95e-11 at most.
inline constexpr Polynomial<double, 2> erf_A26_v{{f64(0xBFD5555C88892F64, -0.33333504994947405),
    f64(0x3FE0000400005666, 0.5000019073510884)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * P(c * x) + x^2 * (erf_A50_v(c * x) + x^2 * erf_A50_v2(c * x)) for c in [0,
// 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.49e-16 at most.
inline constexpr Polynomial<double, 4> erf_A50_w{{f64(0x3FE5555555554B0C, 0.6666666666663743),
    f64(0xBFD55555555547F6, -0.3333333333331433), f64(0x3FC1111235A363B1, 0.13333346957258876),
    f64(0xBFA6C16DB05BDEA5, -0.044444492128545655)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erf_A50_w(c * x) + x^2 * (P(c * x) + x^2 * erf_A50_v2(c * x)) for c in [0,
// 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.49e-16 at most.
inline constexpr Polynomial<double, 4> erf_A50_v{{f64(0xBFD5555555555555, -0.3333333333333333),
    f64(0x3FDFFFFFFFFFD4CD, 0.4999999999993861), f64(0xBFD9999C2BE2DDA8, -0.4000006130767937),
    f64(0x3FCC71CA1C71EB57, 0.2222225798503483)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erf_A50_w(c * x) + x^2 * (erf_A50_v(c * x) + x^2 * P(c * x)) for c in [0,
// 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.49e-16 at most.
inline constexpr Polynomial<double, 2> erf_A50_v2{{f64(0x3FB9999E2BE2F122, 0.10000027247855717),
    f64(0xBFC5555800001B4F, -0.1666669845582995)}};

// 2 / sqrt(pi) * mean_exp(c * x, x^2) - 1 = P(c * x) + x^2 * (erf_A53_v(c * x) + x^2 * (erf_A53_v2(c * x) + x^2 *
// erf_A53_v3(x^2))) for c in [0, 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x)
// 1.25e-17 at most.
inline constexpr Polynomial<double, 6> erf_A53_w{{f64(0x3FC06EBA8214DB69, 0.1283791670955126),
    f64(0xBFF20DD750429B6D, -1.1283791670955126), f64(0x3FE812746B036E4C, 0.7522527780633452),
    f64(0xBFD812746B036AD0, -0.3761263890316231), f64(0x3FC341F806247CEC, 0.15045070934227256),
    f64(0xBFA9AD4AC8DE7654, -0.05015023900999141)}};

// 2 / sqrt(pi) * mean_exp(c * x, x^2) - 1 = erf_A53_w(c * x) + x^2 * (P(c * x) + x^2 * (erf_A53_v2(c * x) + x^2 *
// erf_A53_v3(x^2))) for c in [0, 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x)
// 1.25e-17 at most.
inline constexpr Polynomial<double, 4> erf_A53_v{{f64(0xBFD812746B0379E7, -0.37612638903183754),
    f64(0x3FE20DD75042830E, 0.5641895835470636), f64(0xBFDCE2F500D00E98, -0.45135235862128686),
    f64(0x3FD00C4F4DF93FE6, 0.25075132956135204)}};

// 2 / sqrt(pi) * mean_exp(c * x, x^2) - 1 = erf_A53_w(c * x) + x^2 * (erf_A53_v(c * x) + x^2 * (P(c * x) + x^2 *
// erf_A53_v3(x^2))) for c in [0, 5.9921875] and x in [-1/256, 1/256]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x)
// 1.25e-17 at most.
inline constexpr Polynomial<double, 3> erf_A53_v2{{f64(0x3FBCE2F21A042BE2, 0.11283791670955126),
    f64(0xBFC81277CD9C0EDF, -0.18806359805613845), f64(0x3FC4A21DA72D2522, 0.16119738257320032)}};

// 2 / sqrt(pi) * mean_exp(c * x, x^2) - 1 = erf_A53_w(c * x) + x^2 * (erf_A53_v(c * x) + x^2 * (erf_A53_v2(c * x) + x^2 *
// P(x^2))) for c in [0, 0] and x in [-0.02734375, 0.02734375]: error over erf(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.27e-17
// at most. Small arguments are expanded about c = 0.
inline constexpr Polynomial<double, 2> erf_A53_v3{{f64(0xBF9B82CE31288B51, -0.026866170645131252),
    f64(0x3F7565BCD0E6A53F, 0.005223977625442188)}};

// mean_exp(c * x, x^2) - 1 = c * x * P(c * x) + x^2 * erfc_A21_v(c * x) for c in [0, 10.0625] and x in [-1/128, 1/128]: error
// over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.69e-08 at most.
inline constexpr Polynomial<float, 4> erfc_A21_w{{f32(0xBF7FFFFC, -0.9999997615814209), f32(0x3F2AAAA6, 0.6666663885116577),
    f32(0xBEAACF22, -0.33361154794692993), f32(0x3E08A7CA, 0.13345256447792053)}};

// mean_exp(c * x, x^2) - 1 = c * x * erfc_A21_w(c * x) + x^2 * P(c * x) for c in [0, 10.0625] and x in [-1/128, 1/128]: error
// over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.69e-08 at most.
inline constexpr Polynomial<float, 2> erfc_A21_v{{f32(0xBEAB4EDB, -0.3345859944820404), f32(0x3F005B36, 0.5013917684555054)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * P(c * x) + x^2 * erfc_A24_v(c * x) for c in [0, 10.046875] and x in [-1/128,
// 1/128]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 3.82e-10 at most.
inline constexpr Polynomial<float, 4> erfc_A24_w{{f32(0x3F2AAAA8, 0.6666665077209473), f32(0xBEAAAAA7, -0.33333322405815125),
    f32(0x3E08A294, 0.13343268632888794), f32(0xBD362FD7, -0.04447921738028526)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erfc_A24_w(c * x) + x^2 * P(c * x) for c in [0, 10.046875] and x in [-1/128,
// 1/128]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 3.82e-10 at most.
inline constexpr Polynomial<float, 3> erfc_A24_v{{f32(0xBEAAAA8B, -0.3333323895931244), f32(0x3F004465, 0.5010436177253723),
    f32(0xBECD2E81, -0.4007454216480255)}};

// mean_exp(c * x, x^2) - 1 = c * x * P(c * x) + x^2 * erfc_A26_v(c * x) for c in [0, 27.234375] and x in [-1/128, 1/128]: error
// over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 7.73e-10 at most.
inline constexpr Polynomial<double, 7> erfc_A26_w{{f64(0xBFEFFFFFFFFEB794, -0.9999999999906657),
    f64(0x3FE555555933BC54, 0.666666673872792), f64(0xBFD555555ADC4EA0, -0.333333338480978),
    f64(0x3FC111066671A484, 0.13333206178802837), f64(0xBFA6C15C3DA087D4, -0.044443972132526405),
    f64(0x3F8A1F05F5094FB6, 0.012754484692017214), f64(0xBF6A1FDD30652EA1, -0.003189022073604012)}};

// mean_exp(c * x, x^2) - 1 = c * x * erfc_A26_w(c * x) + x^2 * P(c * x) for c in [0, 27.234375] and x in [-1/128, 1/128]: error
// over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 7.73e-10 at most.
inline constexpr Polynomial<double, 4> erfc_A26_v{{f64(0xBFD554EE2F28F34D, -0.33330874066796384),
    f64(0x3FDFFF6F976A22C5, 0.4999655703218589), f64(0xBFD9E0A0FBE743D2, -0.40433525657595937),
    f64(0x3FCCBC5887DF9127, 0.22449785837592026)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * P(c * x) + x^2 * (erfc_A50_v(c * x) + x^2 * erfc_A50_v2(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 4.72e-17 at most.
inline constexpr Polynomial<double, 8> erfc_A50_w{{f64(0x3FE55555555554CF, 0.6666666666666518),
    f64(0xBFD555555555548A, -0.33333333333332205), f64(0x3FC11111111AB082, 0.13333333335083714),
    f64(0xBFA6C16C16D06420, -0.04444444445125151), f64(0x3F8A019F5AEED25F, 0.012698407137443355),
    f64(0xBF6A019F4F234617, -0.0031746016985401237), f64(0x3F472360BAC04E70, 0.0007061216651913071),
    f64(0xBF2282C89A04C65F, -0.00014122675657683972)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erfc_A50_w(c * x) + x^2 * (P(c * x) + x^2 * erfc_A50_v2(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 4.72e-17 at most.
inline constexpr Polynomial<double, 7> erfc_A50_v{{f64(0xBFD5555555554ADD, -0.33333333333318454),
    f64(0x3FE0000000379730, 0.5000000004044747), f64(0xBFD9999999F3D838, -0.40000000032830796),
    f64(0x3FCC71C4B73B20B6, 0.22222193667244533), f64(0xBFB8618412BC79EC, -0.0952379747145426),
    f64(0x3FA117ABF1FEA28C, 0.033383725443234175), f64(0xBF8441DF86900A46, -0.009891268056894675)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erfc_A50_w(c * x) + x^2 * (erfc_A50_v(c * x) + x^2 * P(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 4.72e-17 at most.
inline constexpr Polynomial<double, 4> erfc_A50_v2{{f64(0x3FB9998F9D0729DA, 0.09999940475169158),
    f64(0xBFC5554E249FF4A7, -0.16666580951997398), f64(0x3FC256E8E6045CDF, 0.1432772753839577),
    f64(0xBFB56433674BA5C2, -0.08356019279349083)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * P(c * x) + x^2 * (erfc_A53_v(c * x) + x^2 * erfc_A53_v2(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.95e-17 at most.
inline constexpr Polynomial<double, 9> erfc_A53_w{{f64(0x3FE5555555555555, 0.6666666666666666),
    f64(0xBFD55555555554D9, -0.33333333333332643), f64(0x3FC111111111108F, 0.13333333333332972),
    f64(0xBFA6C16C16CC1D1D, -0.044444444449306376), f64(0x3F8A01A01A0F4F8C, 0.01269841269996854),
    f64(0xBF6A019F74E36970, -0.003174601973211448), f64(0x3F471DE30B781626, 0.000705467092246341),
    f64(0xBF2282607C399DBF, -0.0001412146358348142), f64(0x3EFAEC468D02A083, 2.5675727386570868e-05)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erfc_A53_w(c * x) + x^2 * (P(c * x) + x^2 * erfc_A53_v2(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.95e-17 at most.
inline constexpr Polynomial<double, 8> erfc_A53_v{{f64(0xBFD5555555555019, -0.33333333333325893),
    f64(0x3FDFFFFFFFFFF778, 0.49999999999987876), f64(0xBFD9999999D359A6, -0.40000000021009396),
    f64(0x3FCC71C71CB27AB6, 0.22222222233991368), f64(0xBFB861848A3AC063, -0.09523800253623586),
    f64(0x3FA1110FFD4FA97F, 0.033333301231169614), f64(0xBF844103D0FA9378, -0.009889631094958537),
    f64(0x3F64D516D3DB4588, 0.002543015084349679)}};

// mean_exp(c * x, x^2) - 1 = -c * x + (c * x)^2 * erfc_A53_w(c * x) + x^2 * (erfc_A53_v(c * x) + x^2 * P(c * x)) for c in [0,
// 27.2421875] and x in [-1/256, 1/256]: error over erfc(c + x) * exp(c^2) * sqrt(pi) / (2 * x) 1.95e-17 at most.
inline constexpr Polynomial<double, 5> erfc_A53_v2{{f64(0x3FB999999B2E0D33, 0.10000000036784655),
    f64(0xBFC55550D7299C73, -0.16666613107665604), f64(0x3FC24921081BABF0, 0.14285672088530488),
    f64(0xBFB561B8921C8BC7, -0.08352235381293759), f64(0x3FA30107685FC1EF, 0.03711722516152693)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) for c in [0, 14.171875] and x in [-1/128, 1/128]: error over ncdf(-c - x)
// * exp(c^2 / 2) * sqrt(2 * pi) / x 8.05e-06 at most.
inline constexpr Polynomial<float, 2> cdfnorm_A11_w{{f32(0xBF000000, -0.5), f32(0x3E2AAAAB, 0.1666666716337204)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) + x^2 * cdfnorm_A21_v(c * x) for c in [0, 14.171875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 7.62e-09 at most.
inline constexpr Polynomial<float, 4> cdfnorm_A21_w{{f32(0xBF000000, -0.5), f32(0x3E2AAAA8, 0.16666662693023682),
    f32(0xBD2AAAA7, -0.041666653007268906), f32(0x3C08A294, 0.008339542895555496)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A21_w(c * x) + x^2 * P(c * x) for c in [0, 14.171875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 7.62e-09 at most.
inline constexpr Polynomial<float, 2> cdfnorm_A21_v{{f32(0xBE2AAA8B, -0.1666661947965622),
    f32(0x3E004465, 0.12526090443134308)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) + x^2 * cdfnorm_A24_v(c * x) for c in [0, 14.171875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 7.60e-11 at most.
inline constexpr Polynomial<float, 5> cdfnorm_A24_w{{f32(0xBF000000, -0.5), f32(0x3E2AAAA8, 0.16666662693023682),
    f32(0xBD2AAAA7, -0.041666653007268906), f32(0x3C08A294, 0.008339542895555496), f32(0xBAB62FD7, -0.0013899755431339145)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A24_w(c * x) + x^2 * P(c * x) for c in [0, 14.171875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 7.60e-11 at most.
inline constexpr Polynomial<float, 3> cdfnorm_A24_v{{f32(0xBE2AAA8B, -0.1666661947965622), f32(0x3E004465, 0.12526090443134308),
    f32(0xBD4D2E81, -0.05009317770600319)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) + x^2 * cdfnorm_A26_v(c * x) for c in [0, 38.4921875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 2.72e-09 at most.
inline constexpr Polynomial<double, 6> cdfnorm_A26_w{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FC5555555555555, 0.16666666666666666), f64(0xBFA5555555555555, -0.041666666666666664),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0xBF56C16C16C16C17, -0.001388888888888889),
    f64(0x3F2A01A01A01A01A, 0.0001984126984126984)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A26_w(c * x) + x^2 * P(c * x) for c in [0, 38.4921875] and x in [-1/128,
// 1/128]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 2.72e-09 at most.
inline constexpr Polynomial<double, 4> cdfnorm_A26_v{{f64(0xBFC5555555555555, -0.16666666666666666),
    f64(0x3FC0000000000000, 0.125), f64(0xBFA999999999999A, -0.05), f64(0x3F8C71C71C71C71C, 0.013888888888888888)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) + x^2 * (cdfnorm_A50_v(c * x) + x^2 * cdfnorm_A50_v2(c * x)) for c in [0,
// 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 8.10e-17 at most.
inline constexpr Polynomial<double, 9> cdfnorm_A50_w{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FC5555555555555, 0.16666666666666666), f64(0xBFA5555555555555, -0.041666666666666664),
    f64(0x3F81111111111111, 0.008333333333333333), f64(0xBF56C16C16C16C17, -0.001388888888888889),
    f64(0x3F2A01A01A01A01A, 0.0001984126984126984), f64(0xBEFA01A01A01A01A, -2.48015873015873e-05),
    f64(0x3EC71DE3A556C734, 2.7557319223985893e-06), f64(0xBE927E4FB7789F5C, -2.755731922398589e-07)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A50_w(c * x) + x^2 * (P(c * x) + x^2 * cdfnorm_A50_v2(c * x)) for c in [0,
// 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 8.10e-17 at most.
inline constexpr Polynomial<double, 7> cdfnorm_A50_v{{f64(0xBFC5555555555555, -0.16666666666666666),
    f64(0x3FC0000000000000, 0.125), f64(0xBFA999999999999A, -0.05), f64(0x3F8C71C71C71C71C, 0.013888888888888888),
    f64(0xBF68618618618618, -0.002976190476190476), f64(0x3F41111111111111, 0.0005208333333333333),
    f64(0xBF143A2730ABEE4D, -7.716049382716049e-05)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A50_w(c * x) + x^2 * (cdfnorm_A50_v(c * x) + x^2 * P(c * x)) for c in [0,
// 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) / x 8.10e-17 at most.
inline constexpr Polynomial<double, 4> cdfnorm_A50_v2{{f64(0x3F9999999999999A, 0.025),
    f64(0xBF95555555555555, -0.020833333333333332), f64(0x3F82492492492492, 0.008928571428571428),
    f64(0xBF65555555555555, -0.0026041666666666665)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * P(c * x) + x^2 * (cdfnorm_A53_v(c * x) + x^2 * (cdfnorm_A53_v2(c * x) + x^2 *
// cdfnorm_A53_v3(c * x))) for c in [0, 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 *
// pi) / x 1.01e-19 at most.
inline constexpr Polynomial<double, 10> cdfnorm_A53_w{{f64(0xBFE0000000000000, -0.5),
    f64(0x3FC5555555555555, 0.16666666666666666), f64(0xBFA55555555554D9, -0.041666666666665804),
    f64(0x3F8111111111108F, 0.008333333333333108), f64(0xBF56C16C16CC1D1D, -0.0013888888890408243),
    f64(0x3F2A01A01A0F4F8C, 0.00019841269843700845), f64(0xBEFA019F74E36970, -2.4801577915714438e-05),
    f64(0x3EC71DE30B781626, 2.7557308290872694e-06), f64(0xBE9282607C399DBF, -2.758098356148715e-07),
    f64(0x3E5AEC468D02A083, 2.5073952525948113e-08)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A53_w(c * x) + x^2 * (P(c * x) + x^2 * (cdfnorm_A53_v2(c * x) + x^2 *
// cdfnorm_A53_v3(c * x))) for c in [0, 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 *
// pi) / x 1.01e-19 at most.
inline constexpr Polynomial<double, 8> cdfnorm_A53_v{{f64(0xBFC5555555555019, -0.16666666666662946),
    f64(0x3FBFFFFFFFFFF778, 0.12499999999996969), f64(0xBFA9999999D359A6, -0.050000000026261746),
    f64(0x3F8C71C71CB27AB6, 0.013888888896244605), f64(0xBF6861848A3AC063, -0.0029761875792573707),
    f64(0x3F41110FFD4FA97F, 0.0005208328317370252), f64(0xBF144103D0FA9378, -7.726274292936357e-05),
    f64(0x3EE4D516D3DB4588, 9.933652673240934e-06)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A53_w(c * x) + x^2 * (cdfnorm_A53_v(c * x) + x^2 * (P(c * x) + x^2 *
// cdfnorm_A53_v3(c * x))) for c in [0, 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 *
// pi) / x 1.01e-19 at most.
inline constexpr Polynomial<double, 5> cdfnorm_A53_v2{{f64(0x3F9999999B2E0D33, 0.025000000091961638),
    f64(0xBF955550D7299C73, -0.020833266384582005), f64(0x3F824921081BABF0, 0.008928545055331555),
    f64(0xBF6561B8921C8BC7, -0.0026100735566542996), f64(0x3F430107685FC1EF, 0.0005799566431488582)}};

// mean_exp(c * x / 2, x^2 / 2) - 1 = c * x * cdfnorm_A53_w(c * x) + x^2 * (cdfnorm_A53_v(c * x) + x^2 * (cdfnorm_A53_v2(c * x)
// + x^2 * P(c * x))) for c in [0, 38.4921875] and x in [-1/256, 1/256]: error over ncdf(-c - x) * exp(c^2 / 2) * sqrt(2 * pi) /
// x 1.01e-19 at most.
inline constexpr Polynomial<double, 2> cdfnorm_A53_v3{{f64(0xBF6898A47706CFA8, -0.0030024730878838897),
    f64(0x3F65766603986421, 0.0026199333631322795)}};

}  // namespace lum::inline LUM_LAYER::erf
