// Roundings of known numbers, for float and double. What is left of a number after others is a tail.
// Written by tools/make_numbers.py from numbers.toml; do not edit, write it again by `./run generate`.
// clang-format off
#pragma once

#include "frame/literals.h"

namespace lum::inline LUM_LAYER::numbers {

// ln2
template <class T> inline constexpr T ln2;
template <> inline constexpr float ln2<float> = f32(0x3F317218, 0.6931471824645996);
template <> inline constexpr double ln2<double> = f64(0x3FE62E42FEFA39EF, 0.6931471805599453);

// ln2 - ln2<T>
template <class T> inline constexpr T ln2_tail;
template <> inline constexpr float ln2_tail<float> = f32(0xB102E308, -1.9046542121259336e-09);
template <> inline constexpr double ln2_tail<double> = f64(0x3C7ABC9E3B39803F, 2.3190468138462996e-17);

// ln2, 15 bits of 32f, 37 bits of 64f. Products with exponents are exact.
template <class T> inline constexpr T ln2_short;
template <> inline constexpr float ln2_short<float> = f32(0x3F317200, 0.693145751953125);
template <> inline constexpr double ln2_short<double> = f64(0x3FE62E42FEFA0000, 0.6931471805582987);

// ln2 - ln2_short<T>
template <class T> inline constexpr T ln2_short_tail;
template <> inline constexpr float ln2_short_tail<float> = f32(0x35BFBE8E, 1.428606765330187e-06);
template <> inline constexpr double ln2_short_tail<double> = f64(0x3D7CF79ABC9E3B3A, 1.6465949582897082e-12);

// ln2, 12 bits of 32f, 37 bits of 64f. Products with counts of rows are exact.
template <class T> inline constexpr T ln2_head;
template <> inline constexpr float ln2_head<float> = f32(0x3F317000, 0.693115234375);
template <> inline constexpr double ln2_head<double> = f64(0x3FE62E42FEFA0000, 0.6931471805582987);

// ln2 - ln2_head<T>, 37 bits of 64f
template <class T> inline constexpr T ln2_rest;
template <> inline constexpr float ln2_rest<float> = f32(0x3805FDF4, 3.194618329871446e-05);
template <> inline constexpr double ln2_rest<double> = f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12);

// 1 / ln2
template <class T> inline constexpr T log2_e;
template <> inline constexpr float log2_e<float> = f32(0x3FB8AA3B, 1.4426950216293335);
template <> inline constexpr double log2_e<double> = f64(0x3FF71547652B82FE, 1.4426950408889634);

// ln2 / ln10
template <class T> inline constexpr T log10_2;
template <> inline constexpr float log10_2<float> = f32(0x3E9A209B, 0.3010300099849701);
template <> inline constexpr double log10_2<double> = f64(0x3FD34413509F79FF, 0.3010299956639812);

// ln2 / ln10, 11 bits of 32f, 37 bits of 64f. Products with exponents are exact.
template <class T> inline constexpr T log10_2_short;
template <> inline constexpr float log10_2_short<float> = f32(0x3E9A2000, 0.301025390625);
template <> inline constexpr double log10_2_short<double> = f64(0x3FD34413509F0000, 0.30102999566224753);

// ln2 / ln10 - log10_2_short<T>
template <class T> inline constexpr T log10_2_short_tail;
template <> inline constexpr float log10_2_short_tail<float> = f32(0x369A84FC, 4.605039066518657e-06);
template <> inline constexpr double log10_2_short_tail<double> = f64(0x3D7E7FBCC47C4ACD, 1.7336659603752853e-12);

// 1 / ln10
template <class T> inline constexpr T log10_e;
template <> inline constexpr float log10_e<float> = f32(0x3EDE5BD9, 0.4342944920063019);
template <> inline constexpr double log10_e<double> = f64(0x3FDBCB7B1526E50E, 0.4342944819032518);

// 1 / ln10 - log10_e<T>
template <class T> inline constexpr T log10_e_tail;
template <> inline constexpr float log10_e_tail<float> = f32(0xB22D91AF, -1.0103049952192578e-08);
template <> inline constexpr double log10_e_tail<double> = f64(0x3C695355BAAAFAD3, 1.098319650216765e-17);

// 1 / ln10, 14 bits of 32f, 8 bits of 64f
template <class T> inline constexpr T log10_e_short;
template <> inline constexpr float log10_e_short<float> = f32(0x3EDE5C00, 0.434295654296875);
template <> inline constexpr double log10_e_short<double> = f64(0x3FDBC00000000000, 0.43359375);

// pi
template <class T> inline constexpr T pi;
template <> inline constexpr float pi<float> = f32(0x40490FDB, 3.1415927410125732);
template <> inline constexpr double pi<double> = f64(0x400921FB54442D18, 3.141592653589793);

// pi - pi<T>
template <class T> inline constexpr T pi_tail;
template <> inline constexpr float pi_tail<float> = f32(0xB3BBBD2E, -8.742277657347586e-08);
template <> inline constexpr double pi_tail<double> = f64(0x3CA1A62633145C07, 1.2246467991473532e-16);

// 1 / pi
template <class T> inline constexpr T inverse_pi;
template <> inline constexpr float inverse_pi<float> = f32(0x3EA2F983, 0.31830987334251404);
template <> inline constexpr double inverse_pi<double> = f64(0x3FD45F306DC9C883, 0.3183098861837907);

// pi, all, all, all bits of 32f, all, 52, all bits of 64f
template <class T> inline constexpr T pi_parts[3] = {};
template <> inline constexpr float pi_parts<float>[3] = {f32(0x40490FDB, 3.1415927410125732), f32(0xB3BBBD2E, -8.742277657347586e-08), f32(0xA7772CED, -3.4302490200117637e-15)};
template <> inline constexpr double pi_parts<double>[3] = {f64(0x400921FB54442D18, 3.141592653589793), f64(0x3CA1A62633145C06, 1.224646799147353e-16), f64(0x395C1CD129024E09, 2.165713347843828e-32)};

// pi, 38, all bits of 64f. Products of the first with a binary32 count are exact.
template <class T> inline constexpr T pi_exact_parts[2] = {};
template <> inline constexpr double pi_exact_parts<double>[2] = {f64(0x400921FB54440000, 3.1415926535846666), f64(0x3D968C234C4C6629, 5.126688303189038e-12)};

// pi / 16, all, 30, all bits of 64f. Products of the second with the count are exact.
template <class T> inline constexpr T sixteenth_pi_parts[3] = {};
template <> inline constexpr double sixteenth_pi_parts<double>[3] = {f64(0x3FC921FB54442D18, 0.19634954084936207), f64(0x3C61A62633000000, 7.654042492615175e-18), f64(0x3A645C06E0E68948, 2.0557821170405322e-27)};

// pi / 32, 23, 22, all bits of 32f, 32, 32, all bits of 64f. Products of the first, and of binary64 those of the second, with the count are exact.
template <class T> inline constexpr T thirty_second_pi_parts[3] = {};
template <> inline constexpr float thirty_second_pi_parts<float>[3] = {f32(0x3DC90FDA, 0.09817476570606232), f32(0x31A22168, 4.718618384913498e-09), f32(0x25C234C5, 3.368939345921399e-16)};
template <> inline constexpr double thirty_second_pi_parts<double>[3] = {f64(0x3FB921FB54400000, 0.09817477042088285), f64(0x3D90B4611A600000, 3.798187816439979e-12), f64(0x3B63198A2E037073, 1.2639164054974691e-22)};

// pi / 32, 23, 13, all bits of 32f. Products of the second with the count are exact as well.
template <class T> inline constexpr T thirty_second_pi_exact_parts[3] = {};
template <> inline constexpr float thirty_second_pi_exact_parts<float>[3] = {f32(0x3DC90FDA, 0.09817476570606232), f32(0x31A22000, 4.718458512797952e-09), f32(0x2A34611A, 1.602090042660681e-13)};

// pi / 4, 23, all bits of 64f
template <class T> inline constexpr T quarter_pi_parts[2] = {};
template <> inline constexpr double quarter_pi_parts<double>[2] = {f64(0x3FE921FB40000000, 0.7853981256484985), f64(0x3E64442D18469899, 3.774894977445941e-08)};

// pi / 4, 28, 28, 27, all bits of 64f. Products of all but the last with counts of arguments below 2^23 are exact.
template <class T> inline constexpr T quarter_pi_parts_to_2p23[4] = {};
template <> inline constexpr double quarter_pi_parts_to_2p23<double>[4] = {f64(0x3FE921FB54000000, 0.7853981629014015), f64(0x3E010B4612000000, 4.960467904491228e-10), f64(0xBC2676733C000000, -6.088525906594782e-19), f64(0x3A61701B839A2520, 1.7607799325916e-27)};

// pi / 4, 20 toward zero, 21, 20 toward zero, 20, all bits of 64f. Products of all but the last with counts of arguments below 2^30 are exact.
template <class T> inline constexpr T quarter_pi_parts_to_2p30[5] = {};
template <> inline constexpr double quarter_pi_parts_to_2p30<double>[5] = {f64(0x3FE921FA00000000, 0.7853975296020508), f64(0x3EA5444300000000, 6.337954800983425e-07), f64(0xBD373DCA00000000, -8.256991011063031e-14), f64(0xBBF3B39A00000000, -6.675151087907452e-20), f64(0x3A845C06E0E68948, 8.223128468162129e-27)};

// atan(1/2), 21, 21 bits of 32f, all, all bits of 64f. The parts of these angles of binary32 are so short that their differences from pi are exact.
template <class T> inline constexpr T arctangent_half_parts[2] = {};
template <> inline constexpr float arctangent_half_parts<float>[2] = {f32(0x3EED6338, 0.46364760398864746), f32(0x31AC3768, 5.01215779991071e-09)};
template <> inline constexpr double arctangent_half_parts<double>[2] = {f64(0x3FDDAC670561BB4F, 0.4636476090008061), f64(0x3C7A2B7F222F65E2, 2.2698777452961687e-17)};

// pi / 4, 21, 21 bits of 32f, all, all bits of 64f
template <class T> inline constexpr T arctangent_one_parts[2] = {};
template <> inline constexpr float arctangent_one_parts<float>[2] = {f32(0x3F490FD8, 0.785398006439209), f32(0x34288858, 1.569582082083798e-07)};
template <> inline constexpr double arctangent_one_parts<double>[2] = {f64(0x3FE921FB54442D18, 0.7853981633974483), f64(0x3C81A62633145C07, 3.061616997868383e-17)};

// atan(3/2), all, all bits of 64f
template <class T> inline constexpr T arctangent_three_halves_parts[2] = {};
template <> inline constexpr double arctangent_three_halves_parts<double>[2] = {f64(0x3FEF730BD281F69B, 0.982793723247329), f64(0x3C7007887AF0CBBD, 1.3903311031230998e-17)};

// atan(2), 21, 21 bits of 32f
template <class T> inline constexpr T arctangent_two_parts[2] = {};
template <> inline constexpr float arctangent_two_parts<float>[2] = {f32(0x3F8DB710, 1.1071491241455078), f32(0xB4DA2880, -4.0635131881572306e-07)};

// pi / 2, 21, 21 bits of 32f, all, all bits of 64f
template <class T> inline constexpr T half_pi_parts[2] = {};
template <> inline constexpr float half_pi_parts<float>[2] = {f32(0x3FC90FD8, 1.570796012878418), f32(0x34A88858, 3.139164164167596e-07)};
template <> inline constexpr double half_pi_parts<double>[2] = {f64(0x3FF921FB54442D18, 1.5707963267948966), f64(0x3C91A62633145C07, 6.123233995736766e-17)};

// pi, 20, all bits of 32f, all, all bits of 64f
template <class T> inline constexpr T pi_beside_angles_parts[2] = {};
template <> inline constexpr float pi_beside_angles_parts<float>[2] = {f32(0x40490FE0, 3.1415939331054688), f32(0xB5ABBBD3, -1.279515686292143e-06)};
template <> inline constexpr double pi_beside_angles_parts<double>[2] = {f64(0x400921FB54442D18, 3.141592653589793), f64(0x3CA1A62633145C07, 1.2246467991473532e-16)};

}  // namespace lum::inline LUM_LAYER::numbers
