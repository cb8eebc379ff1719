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

// 1 / ln2, 9 bits of 32f, 23 toward zero bits of 64f
template <class T> inline constexpr T log2_e_short;
template <> inline constexpr float log2_e_short<float> = f32(0x3FB88000, 1.44140625);
template <> inline constexpr double log2_e_short<double> = f64(0x3FF7154740000000, 1.442694902420044);

// sqrt(pi) / 2, all, all bits of 32f, all, all bits of 64f
template <class T> inline constexpr T half_root_pi_parts[2] = {};
template <> inline constexpr float half_root_pi_parts<float>[2] = {f32(0x3F62DFC5, 0.8862269520759583), f32(0xB2E4B109, -2.6623199644859596e-08)};
template <> inline constexpr double half_root_pi_parts<double>[2] = {f64(0x3FEC5BF891B4EF6B, 0.886226925452758), f64(0xBC8618F13EB7CA89, -3.8332932499128993e-17)};

// sqrt(2 * pi), all, all bits of 32f
template <class T> inline constexpr T root_two_pi_parts[2] = {};
template <> inline constexpr float root_two_pi_parts<float>[2] = {f32(0x40206C99, 2.5066282749176025), f32(0xAF9D8FA7, -2.866020476499642e-10)};

// sqrt(2), 53 toward zero, all bits of 64f
template <class T> inline constexpr T root_two_parts[2] = {};
template <> inline constexpr double root_two_parts<double>[2] = {f64(0x3FF6A09E667F3BCC, 1.414213562373095), f64(0x3CA21165F626CDD5, 1.2537167179050217e-16)};

// pi / 4
template <class T> inline constexpr T quarter_pi;
template <> inline constexpr double quarter_pi<double> = f64(0x3FE921FB54442D18, 0.7853981633974483);

// sqrt(2 * pi). The coefficients of d^k for the quantile of the normal distribution; those of erfinv times sqrt(2) (-2)^k and -1.
template <class T> inline constexpr T quantile_series_1;
template <> inline constexpr double quantile_series_1<double> = f64(0x40040D931FF62706, 2.5066282746310007);

// -sqrt(2) * pi
template <class T> inline constexpr T quantile_series_2;
template <> inline constexpr double quantile_series_2<double> = f64(0xC011C5831ADD62E4, -4.442882938158366);

// 1/24 * pi^(3/2), 1/6 * pi^(3/2). The coefficients of d^k in the expansion of erfinv at y, as polynomials in y^2, times y for even k.
template <class T> inline constexpr T erfinv_series_3[2] = {};
template <> inline constexpr double erfinv_series_3<double>[2] = {f64(0x3FCDB29FB2FEE5E4, 0.2320136665346545), f64(0x3FEDB29FB2FEE5E4, 0.928054666138618)};

// sqrt(2) * 8 * 1/24 * pi^(3/2), sqrt(2) * 8 * 1/6 * pi^(3/2)
template <class T> inline constexpr T quantile_series_3[2] = {};
template <> inline constexpr double quantile_series_3<double>[2] = {f64(0x4004FFDDEAA22DC8, 2.6249349909537365), f64(0x4024FFDDEAA22DC8, 10.499739963814946)};

// 7/96 * pi^(4/2), 1/8 * pi^(4/2)
template <class T> inline constexpr T erfinv_series_4[2] = {};
template <> inline constexpr double erfinv_series_4<double>[2] = {f64(0x3FE707719608A6D9, 0.7196586542460991), f64(0x3FF3BD3CC9BE45DE, 1.2337005501361697)};

// -sqrt(2) * 16 * 7/96 * pi^(4/2), -sqrt(2) * 16 * 1/8 * pi^(4/2)
template <class T> inline constexpr T quantile_series_4[2] = {};
template <> inline constexpr double quantile_series_4<double>[2] = {f64(0xC03048B54D983D64, -16.284016465824052), f64(0xC03BEA5B6072B262, -27.915456798555518)};

// 7/960 * pi^(5/2), 23/240 * pi^(5/2), 1/10 * pi^(5/2)
template <class T> inline constexpr T erfinv_series_5[3] = {};
template <> inline constexpr double erfinv_series_5<double>[3] = {f64(0x3FC053C2C0AB91C5, 0.12755617530559796), f64(0x3FFAD2BFF36301C4, 1.676452589730716), f64(0x3FFBFD4DDC93D552, 1.7493418327624863)};

// sqrt(2) * 32 * 7/960 * pi^(5/2), sqrt(2) * 32 * 23/240 * pi^(5/2), sqrt(2) * 32 * 1/10 * pi^(5/2)
template <class T> inline constexpr T quantile_series_5[3] = {};
template <> inline constexpr double quantile_series_5<double>[3] = {f64(0x40171713082D9A2B, 5.772533538611735), f64(0x4052F7867D932C5A, 75.86758365032566), f64(0x4053CAA2994BA8B7, 79.16617424381808)};

// 127/5760 * pi^(6/2), 163/1440 * pi^(6/2), 1/12 * pi^(6/2)
template <class T> inline constexpr T erfinv_series_6[3] = {};
template <> inline constexpr double erfinv_series_6<double>[3] = {f64(0x3FE5E06C2F4E585C, 0.683645336527444), f64(0x400C13F1A78CDE41, 3.509738263117271), f64(0x4004ABBCE625BE53, 2.583856390024985)};

// -sqrt(2) * 64 * 127/5760 * pi^(6/2), -sqrt(2) * 64 * 163/1440 * pi^(6/2), -sqrt(2) * 64 * 1/12 * pi^(6/2)
template <class T> inline constexpr T quantile_series_6[3] = {};
template <> inline constexpr double quantile_series_6<double>[3] = {f64(0xC04EF0318F35C4E3, -61.876512433294714), f64(0xC073DAA4D7DEFA51, -317.66524493313506), f64(0xC06D3BA5C1C5F47E, -233.86398399985404)};

// 127/80640 * pi^(7/2), 29/672 * pi^(7/2), 71/560 * pi^(7/2), 1/14 * pi^(7/2)
template <class T> inline constexpr T erfinv_series_7[4] = {};
template <> inline constexpr double erfinv_series_7<double>[4] = {f64(0x3FB62847C47DDA48, 0.08655212924154754), f64(0x4002F92B50110F12, 2.371664643784137), f64(0x401BDF0398ECEBC4, 6.967787160358913), f64(0x400F6773D3F8ECCE, 3.925513893159951)};

// sqrt(2) * 128 * 127/80640 * pi^(7/2), sqrt(2) * 128 * 29/672 * pi^(7/2), sqrt(2) * 128 * 71/560 * pi^(7/2), sqrt(2) * 128 * 1/14 * pi^(7/2)
template <class T> inline constexpr T quantile_series_7[4] = {};
template <> inline constexpr double quantile_series_7<double>[4] = {f64(0x402F55D0D78FA712, 15.66760896328518), f64(0x407AD513154F2AC8, 429.3171589939561), f64(0x4093B5378186F266, 1261.3042050443123), f64(0x408634C058418482, 710.5939183348239)};

// ln2 / 128, 11, all bits of 32f, 31, all bits of 64f. Products of the first with the count are exact.
template <class T> inline constexpr T ln2_128th_parts[2] = {};
template <> inline constexpr float ln2_128th_parts<float>[2] = {f32(0x3BB18000, 0.0054168701171875), f32(0xB5DE8083, -1.6577690757912933e-06)};
template <> inline constexpr double ln2_128th_parts<double>[2] = {f64(0x3F762E42FF000000, 0.005415212348452769), f64(0xBD5718432A1B0E26, -3.2819649005320973e-13)};

// ln2 / 1024, 31 toward zero, all bits of 64f. Products of the first with the count are exact.
template <class T> inline constexpr T ln2_1024th_parts[2] = {};
template <> inline constexpr double ln2_1024th_parts<double>[2] = {f64(0x3F462E42FEC00000, 0.0006769015431018488), f64(0x3D5D1CF79ABC9E3B, 4.137227896298129e-13)};

// ln2 / 256, 34, all bits of 64f. Products of the first with the count are exact.
template <class T> inline constexpr T ln2_256th_parts[2] = {};
template <> inline constexpr double ln2_256th_parts<double>[2] = {f64(0x3F662E42FEF80000, 0.002707606173999011), f64(0x3D31CF79ABC9E3B4, 6.327543041662719e-14)};

// pi / 128, 34, 34, all bits of 64f. Products of the first two with the count are exact.
template <class T> inline constexpr T pi_128th_parts[3] = {};
template <> inline constexpr double pi_128th_parts<double>[3] = {f64(0x3F9921FB54480000, 0.024543692607039702), f64(0xBD6E973DCB380000, -8.694424493829222e-13), f64(0xBB39CCEBA3F91F19, -2.134164906595704e-23)};

// ln2, 40, all bits of 64f. The first is a multiple of 2^-40.
template <class T> inline constexpr T ln2_by_2p40_parts[2] = {};
template <> inline constexpr double ln2_by_2p40_parts<double>[2] = {f64(0x3FE62E42FEFA4000, 0.6931471805601177), f64(0xBD48432A1B0E2634, -1.7239444525614835e-13)};

// ln2, 33, all bits of 64f. Products of the first with exponents are exact, with room for more terms in numbers of 64 bits.
template <class T> inline constexpr T ln2_33_parts[2] = {};
template <> inline constexpr double ln2_33_parts<double>[2] = {f64(0x3FE62E42FF000000, 0.6931471806019545), f64(0xBDC718432A1B0E26, -4.2009150726810846e-11)};

// pi / 4, 47, 48, all bits of 64f. For a reduction in numbers of 64 bits.
template <class T> inline constexpr T quarter_pi_parts_3[3] = {};
template <> inline constexpr double quarter_pi_parts_3<double>[3] = {f64(0x3FE921FB54442D00, 0.7853981633974456), f64(0x3CE8469898CC5180, 2.6951514290790658e-15), f64(0xB9DFC8F8CBB5BF6C, -6.2684951034662496e-30)};

// pi / 4, 33, 34, 34, 37, all bits of 64f. For a reduction in numbers of 64 bits.
template <class T> inline constexpr T quarter_pi_parts_5[5] = {};
template <> inline constexpr double quarter_pi_parts_5<double>[5] = {f64(0x3FE921FB54400000, 0.7853981633670628), f64(0x3DC0B4611A600000, 3.038550253151983e-11), f64(0x3B93198A2E000000, 1.0111331243555832e-21), f64(0x396B839A25200000, 4.2392138301741147e-32), f64(0x37027044533E63A0, 1.0335160549131994e-43)};

// pi / 4, 33, all bits of 64f
template <class T> inline constexpr T quarter_pi_pair[2] = {};
template <> inline constexpr double quarter_pi_pair<double>[2] = {f64(0x3FE921FB54400000, 0.7853981633670628), f64(0x3DC0B4611A626331, 3.038550253253096e-11)};

}  // namespace lum::inline LUM_LAYER::numbers
