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

}  // namespace lum::inline LUM_LAYER::numbers
