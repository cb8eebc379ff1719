/* Written by tools/make_header.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
 * The array functions. Include lumvm.h, which says what holds for all of them. */
#ifndef LUMVM_FUNCTIONS_H
#define LUMVM_FUNCTIONS_H

#include "lumvm_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Abs: |x|, the magnitude.
 * Domain: all numbers
 * Special values: |-0| = +0; |-inf| = +inf; a signalling NaN comes out quiet, with its payload and the sign cleared
 * Status: always lumStsOk
 * Relative cost: 32f A24 0.168; 64f A53 0.663 */
LUM_API LumStatus lumsAbs_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAbs_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Abs (complex): The modulus |z|, into an array of real numbers.
 * Domain: all numbers; neither squares nor their sum overflow or underflow on the way
 * Special values: |z| = inf with an infinite part, also beside a NaN; |+-0 +- 0 i| = +0; |z| = NaN with a NaN part
 *   otherwise
 * Status: always lumStsOk
 * Relative cost: 32fc A11 0.381, A21 0.622, A24 0.958; 64fc A26 1.34, A50 1.53, A53 2.12 */
LUM_API LumStatus lumsAbs_32fc_A11(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAbs_32fc_A21(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAbs_32fc_A24(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAbs_64fc_A26(const Lum64fc* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAbs_64fc_A50(const Lum64fc* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAbs_64fc_A53(const Lum64fc* src, Lum64f* dst, int32_t len);

/* Acos: The angle in [0, pi] whose cosine is x.
 * Domain: -1 <= x <= 1
 * Special values: acos(1) = +0; acos(-1) = pi; acos(+-0) = pi/2; acos(NaN) = NaN
 * Status: lumStsDomain: |x| > 1, infinities included; the result is NaN
 * Relative cost: 32f A11 0.889, A21 1.07, A24 1.48; 64f A26 2.37, A50 2.99, A53 3.68 */
LUM_API LumStatus lumsAcos_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcos_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcos_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcos_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAcos_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAcos_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Acos (complex): The principal arc cosine of z, its real part in [0, pi]. All tags are one function, right in each
 *   part nearly always to the last bit.
 * Domain: all numbers; branch cuts along the real axis beyond -1 and 1, where the sign of a zero imaginary part
 *   chooses the side
 * Special values: acos(conj z) = conj acos(z); acos(+-0 + y i) = pi/2 - asinh(y) i; acos(inf +- y i) = 0 -+ inf i;
 *   acos(-inf +- y i) = pi -+ inf i; acos(x +- inf i) = pi/2 -+ inf i; acos(inf +- inf i) = pi/4 -+ inf i;
 *   acos(-inf +- inf i) = 3pi/4 -+ inf i; acos(+-inf + NaN i) = NaN + inf i; acos(NaN +- inf i) = NaN -+ inf i; NaN
 *   in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 791.84, A21 791.84, A24 791.84; 64fc A26 90, A50 90, A53 90 */
LUM_API LumStatus lumsAcos_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcos_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcos_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcos_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAcos_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAcos_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Acosh: The number that is not negative and whose hyperbolic cosine is x.
 * Domain: x >= 1
 * Special values: acosh(1) = +0; acosh(+inf) = +inf; acosh(x < 1) = NaN: with the sign set in 32f, positive in 64f;
 *   acosh(NaN) = NaN
 * Status: lumStsDomain: x < 1, -inf included
 * Relative cost: 32f A11 1.23, A21 2.02, A24 2.21; 64f A26 2.99, A50 5.21, A53 5.33 */
LUM_API LumStatus lumsAcosh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcosh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcosh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Acosh (complex): The principal inverse hyperbolic cosine of z, its real part not negative. All tags are one
 *   function, right in each part nearly always to the last bit.
 * Domain: all numbers; branch cut along the real axis below 1, where the sign of a zero imaginary part chooses the
 *   side
 * Special values: acosh(conj z) = conj acosh(z); acosh(+-0 +- 0 i) = 0 +- pi/2 i; acosh(+-0 + y i) = asinh(|y|) +
 *   atan2(y, +-0) i; acosh(inf +- y i) = inf +- 0 i; acosh(-inf +- y i) = inf +- pi i; acosh(x +- inf i) = inf +-
 *   pi/2 i; acosh(inf +- inf i) = inf +- pi/4 i; acosh(-inf +- inf i) = inf +- 3pi/4 i; acosh = inf + NaN i for an
 *   infinity beside a NaN; NaN in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 48.3, A21 48.3, A24 48.3; 64fc A26 75.7, A50 75.7, A53 75.7 */
LUM_API LumStatus lumsAcosh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcosh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcosh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAcosh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Add: src1 + src2; complex numbers part by part.
 * Domain: all numbers
 * Special values: as IEEE 754 addition in each part
 * Status: lumStsOverflow (complex types): a part became infinite, and no part of the inputs was
 * Relative cost: 32f A24 0.23; 32fc A24 1.936; 64f A53 0.832; 64fc A53 1.71 */
LUM_API LumStatus lumsAdd_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAdd_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAdd_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAdd_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* Arg (complex): The angle of z in [-pi, pi], into an array of real numbers.
 * Domain: all numbers; branch cut along the negative real axis, where the sign of a zero imaginary part chooses the
 *   side
 * Special values: arg(z) = atan2(im, re), with the special values of atan2
 * Status: always lumStsOk
 * Relative cost: 32fc A11 1.23, A21 1.75, A24 2.65; 64fc A26 2.94, A50 3.99, A53 6.64 */
LUM_API LumStatus lumsArg_32fc_A11(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsArg_32fc_A21(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsArg_32fc_A24(const Lum32fc* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsArg_64fc_A26(const Lum64fc* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsArg_64fc_A50(const Lum64fc* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsArg_64fc_A53(const Lum64fc* src, Lum64f* dst, int32_t len);

/* Asin: The angle in [-pi/2, pi/2] whose sine is x.
 * Domain: -1 <= x <= 1
 * Special values: asin(+-0) = +-0; asin(+-1) = +-pi/2; asin(NaN) = NaN
 * Status: lumStsDomain: |x| > 1, infinities included; the result is NaN
 * Relative cost: 32f A11 0.968, A21 0.882, A24 1.35; 64f A26 2.24, A50 2.88, A53 3.42 */
LUM_API LumStatus lumsAsin_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsin_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsin_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsin_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAsin_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAsin_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Asin (complex): The principal arc sine of z, its real part in [-pi/2, pi/2]. All tags are one function, right in
 *   each part nearly always to the last bit.
 * Domain: all numbers; branch cuts along the real axis beyond -1 and 1, where the sign of a zero imaginary part
 *   chooses the side
 * Special values: asin(z) = asinh(i z) / i, with the special values of asinh
 * Status: always lumStsOk
 * Relative cost: 32fc A11 50.9, A21 50.9, A24 50.9; 64fc A26 69.2, A50 69.2, A53 69.2 */
LUM_API LumStatus lumsAsin_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsin_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsin_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsin_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAsin_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAsin_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Asinh: The number whose hyperbolic sine is x.
 * Domain: all numbers
 * Special values: asinh(+-0) = +-0; asinh(+-inf) = +-inf; asinh(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 1.29, A21 2.05, A24 2.18; 64f A26 3.21, A50 5.46, A53 5.74 */
LUM_API LumStatus lumsAsinh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsinh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsinh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Asinh (complex): The principal inverse hyperbolic sine of z, its imaginary part in [-pi/2, pi/2]. All tags are
 *   one function, right in each part nearly always to the last bit.
 * Domain: all numbers; branch cuts along the imaginary axis beyond -i and i, where the sign of a zero real part
 *   chooses the side
 * Special values: asinh(conj z) = conj asinh(z), asinh(-z) = -asinh(z); asinh(x +- 0 i) = asinh(x) +- 0 i, also of
 *   a NaN; asinh(inf + y i) = inf +- 0 i; asinh(x +- inf i) = inf +- pi/2 i; asinh(inf +- inf i) = inf +- pi/4 i;
 *   asinh(+-inf + NaN i) = +-inf + NaN i; asinh(NaN +- inf i) = inf + NaN i; NaN in both parts for other NaN
 *   arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 44.6, A21 44.6, A24 44.6; 64fc A26 68, A50 68, A53 68 */
LUM_API LumStatus lumsAsinh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsinh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsinh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAsinh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Atan2: The angle in [-pi, pi] of the point with ordinate src1 and abscissa src2.
 * Domain: all pairs of numbers
 * Special values: atan2(+-0, x) = +-0 for x > 0 or +0; atan2(+-0, x) = +-pi for x < 0 or -0; atan2(y, +-0) = +-pi/2
 *   for y != 0; atan2(+-y, +inf) = +-0, atan2(+-y, -inf) = +-pi for finite y; atan2(+-inf, x) = +-pi/2 for finite
 *   x; atan2(+-inf, +inf) = +-pi/4, atan2(+-inf, -inf) = +-3 pi/4; NaN where either is NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 1.45, A21 1.5, A24 2.29; 64f A26 2.9, A50 4.17, A53 6.66 */
LUM_API LumStatus lumsAtan2_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan2_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan2_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan2_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtan2_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtan2_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);

/* Atan: The angle in [-pi/2, pi/2] whose tangent is x.
 * Domain: all numbers
 * Special values: atan(+-0) = +-0; atan(+-inf) = +-pi/2; atan(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.653, A21 1.21, A24 2.11; 64f A26 1.96, A50 3.32, A53 4.53 */
LUM_API LumStatus lumsAtan_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtan_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtan_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtan_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Atan (complex): The principal arc tangent of z, its real part in [-pi/2, pi/2]. All tags are one function, right
 *   in each part nearly always to the last bit.
 * Domain: all numbers; branch cuts along the imaginary axis beyond -i and i, where the sign of a zero real part
 *   chooses the side
 * Special values: atan(z) = atanh(i z) / i, with the special values of atanh; atan(-z) = -atan(z) and atan(conj z)
 *   = conj atan(z) but for the last bit of the imaginary part, now and then
 * Status: always lumStsOk
 * Relative cost: 32fc A11 23.9, A21 23.9, A24 23.9; 64fc A26 60.6, A50 60.6, A53 60.6 */
LUM_API LumStatus lumsAtan_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtan_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtan_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtan_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAtan_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAtan_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Atanh: The number whose hyperbolic tangent is x.
 * Domain: -1 < x < 1
 * Special values: atanh(+-0) = +-0; atanh(+-1) = +-inf; atanh(|x| > 1) = NaN, infinities included: with the sign
 *   set in 32f, positive in 64f; atanh(NaN) = NaN
 * Status: lumStsSingularity: x = +-1; lumStsDomain: |x| > 1, infinities included
 * Relative cost: 32f A11 1.36, A21 1.71, A24 2.31; 64f A26 3.22, A50 4.16, A53 5.39 */
LUM_API LumStatus lumsAtanh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtanh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtanh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Atanh (complex): The principal inverse hyperbolic tangent of z, its imaginary part in [-pi/2, pi/2]. All tags are
 *   one function, right in each part nearly always to the last bit.
 * Domain: all numbers; branch cuts along the real axis beyond -1 and 1, where the sign of a zero imaginary part
 *   chooses the side
 * Special values: atanh(conj z) = conj atanh(z); atanh(-z) = -atanh(z) but for the last bit of the real part, now
 *   and then; atanh(+-1 +- 0 i) = +-inf +- 0 i; atanh(+-0 + y i) = +-0 + atan(y) i, also of a NaN; atanh(+-inf + y
 *   i) = +-0 +- pi/2 i; atanh(x +- inf i) = 0 +- pi/2 i, of a NaN +0; atanh(+-inf + NaN i) = +-0 + NaN i; NaN in
 *   both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 23.8, A21 23.8, A24 23.8; 64fc A26 38.2, A50 38.2, A53 38.2 */
LUM_API LumStatus lumsAtanh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtanh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtanh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsAtanh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* CIS: cos x + i sin x, the complex exponential of i x, of a real x in radians; exact reduction of arguments of any
 *   size.
 * Domain: all finite numbers
 * Special values: cis(+-0) = 1 +- 0 i; cis(+-inf) = cis(NaN) = NaN + NaN i
 * Status: always lumStsOk
 * Relative cost: 32fc A11 1.03, A21 1.03, A24 2.26; 64fc A26 2.61, A50 3.37, A53 4.22 */
LUM_API LumStatus lumsCIS_32fc_A11(const Lum32f* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCIS_32fc_A21(const Lum32f* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCIS_32fc_A24(const Lum32f* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCIS_64fc_A26(const Lum64f* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCIS_64fc_A50(const Lum64f* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCIS_64fc_A53(const Lum64f* src, Lum64fc* dst, int32_t len);

/* Cbrt: The cube root of x.
 * Domain: all numbers; denormal x included
 * Special values: cbrt(+-0) = +-0; cbrt(+-inf) = +-inf; cbrt(-x) = -cbrt(x); cbrt(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.763, A21 0.955, A24 1.09; 64f A26 1.92, A50 2.64, A53 3.02 */
LUM_API LumStatus lumsCbrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCbrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCbrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCbrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCbrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCbrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* CdfNormInv: The quantile of the standard normal distribution: the x with cdfnorm(x) = p.
 * Domain: 0 < p < 1
 * Special values: cdfnorminv(0.5) = +0; cdfnorminv(+-0) = -inf; cdfnorminv(1) = +inf; cdfnorminv(p < 0 or p > 1) =
 *   the positive NaN; cdfnorminv(NaN) = NaN
 * Status: lumStsSingularity: p = +-0 or 1; lumStsDomain: p < 0 or p > 1, infinities included
 * Relative cost: 32f A11 0.785, A21 1.18, A24 1.45; 64f A26 3.3, A50 4.36, A53 5.61 */
LUM_API LumStatus lumsCdfNormInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNormInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNormInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNormInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCdfNormInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCdfNormInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* CdfNorm: The distribution function of the standard normal distribution, erfc(-x/sqrt(2))/2.
 * Domain: all numbers; positive results from x = -14.17 (32f), -38.48 (64f) on
 * Special values: cdfnorm(+-0) = 0.5; cdfnorm(-inf) = +0; cdfnorm(+inf) = 1; cdfnorm(NaN) = NaN
 * Status: lumStsUnderflow: finite x so far left that the result is +0; denormal results do not report
 * Relative cost: 32f A11 1.12, A21 1.34, A24 2.01; 64f A26 2.68, A50 3.86, A53 5.35 */
LUM_API LumStatus lumsCdfNorm_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNorm_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNorm_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCdfNorm_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCdfNorm_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCdfNorm_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Ceil: The smallest integer not below x.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; ceil(x) = -0 for -1 < x < 0; ceil(NaN) = NaN of the same payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.177; 64f 0.755 */
LUM_API LumStatus lumsCeil_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCeil_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* Conj: The complex conjugate (re, -im).
 * Domain: all numbers; bits other than the sign of im are untouched
 * Special values: a NaN part keeps its payload and stays signalling if it was
 * Status: always lumStsOk
 * Relative cost: 32fc A24 0.619; 64fc A53 1.23 */
LUM_API LumStatus lumsConj_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsConj_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Cos: The cosine of x, in radians; exact reduction of arguments of any size.
 * Domain: all finite numbers
 * Special values: cos(+-0) = 1; cos(+-inf) = NaN; cos(NaN) = NaN
 * Status: lumStsDomain: x = +-inf
 * Relative cost: 32f A11 0.646, A21 0.958, A24 1.46; 64f A26 1.98, A50 1.98, A53 2.87 */
LUM_API LumStatus lumsCos_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCos_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCos_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCos_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCos_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCos_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Cos (complex): The cosine of z. All tags are one function, right in each part nearly always to the last bit.
 * Domain: all numbers
 * Special values: cos(z) = cosh(i z), with the special values of cosh
 * Status: lumStsOverflow: a part is infinite and both parts of z are finite and not zero
 * Relative cost: 32fc A11 15.4, A21 15.4, A24 15.4; 64fc A26 21, A50 21, A53 21 */
LUM_API LumStatus lumsCos_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCos_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCos_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCos_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCos_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCos_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Cosh: The hyperbolic cosine of x.
 * Domain: all numbers; finite results for |x| up to 89.41 (32f), 710.47 (64f)
 * Special values: cosh(+-0) = 1; cosh(+-inf) = +inf; cosh(NaN) = NaN
 * Status: lumStsOverflow: finite x with |x| too large, the result is +inf
 * Relative cost: 32f A11 0.557, A21 0.768, A24 0.962; 64f A26 1.83, A50 2.01, A53 2.22 */
LUM_API LumStatus lumsCosh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCosh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCosh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsCosh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCosh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsCosh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Cosh (complex): The hyperbolic cosine of z. All tags are one function, right in each part nearly always to the
 *   last bit.
 * Domain: all numbers
 * Special values: cosh(+-0 +- 0 i) = 1, the sign of the imaginary zero being the product of both signs; cosh(inf +
 *   0 i) = inf + 0 i; cosh(inf + y i) = inf cos(y) + inf sin(y) i; cosh(+-0 +- inf i) = NaN + 0 i, the sign of the
 *   zero the product of both signs; cosh(x +- inf i) = NaN + NaN i; cosh(inf +- inf i) = cosh(inf + NaN i) = inf +
 *   NaN i; cosh(NaN +- 0 i) = NaN +- 0 i; NaN in both parts for other NaN arguments
 * Status: lumStsOverflow: a part is infinite and both parts of z are finite and not zero
 * Relative cost: 32fc A11 16.1, A21 16.1, A24 16.1; 64fc A26 20.6, A50 20.6, A53 20.6 */
LUM_API LumStatus lumsCosh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCosh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCosh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsCosh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCosh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsCosh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Div: src1 / src2.
 * Domain: all numbers; the low and mid tags scale by a rounded reciprocal, so that a quotient next to the ends of
 *   the range may overflow or underflow early
 * Special values: x / +-0 = an infinity, or a NaN where x is a zero or a NaN; x / +-inf = the zero of the sign; inf
 *   / inf = NaN
 * Status: lumStsSingularity: src2 = +-0, whatever src1
 * Relative cost: 32f A11 0.274, A21 0.341, A24 0.462; 64f A26 1.05, A50 0.949, A53 1.15 */
LUM_API LumStatus lumsDiv_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsDiv_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsDiv_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsDiv_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsDiv_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsDiv_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);

/* Div (complex): src1 / src2. The low tags multiply by an estimate of a reciprocal.
 * Domain: all numbers
 * Special values: a quotient by zero has the infinities that src1 * inf gives, or NaN; a finite number by an
 *   infinite one is a zero, an infinite one by a finite one an infinity, in the direction of the quotient; NaN
 *   otherwise for infinite and NaN parts
 * Status: lumStsOverflow: a part is infinite, all parts of both arguments are finite and src2 is not zero
 * Relative cost: 32fc A11 1.36, A21 2.67, A24 2.67; 64fc A26 2.86, A50 7.68, A53 7.68 */
LUM_API LumStatus lumsDiv_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsDiv_32fc_A21(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsDiv_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsDiv_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsDiv_64fc_A50(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsDiv_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* ErfInv: The inverse of the error function: the y with erf(y) = x.
 * Domain: -1 < x < 1
 * Special values: erfinv(+-0) = +-0; erfinv(+-1) = +-inf; erfinv(|x| > 1) = the positive NaN; erfinv(NaN) = NaN
 * Status: lumStsSingularity: x = +-1; lumStsDomain: |x| > 1, infinities included
 * Relative cost: 32f A11 0.711, A21 1.04, A24 1.44; 64f A26 3.1, A50 4.1, A53 5.12 */
LUM_API LumStatus lumsErfInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Erf: The error function, 2/sqrt(pi) times the integral of exp(-t^2) over t from 0 to x.
 * Domain: all numbers
 * Special values: erf(+-0) = +-0; erf(+-inf) = +-1; erf(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.378, A21 1.72, A24 2.05; 64f A26 2.32, A50 2.81, A53 3.48 */
LUM_API LumStatus lumsErf_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErf_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErf_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErf_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErf_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErf_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* ErfcInv: The inverse of the complementary error function: the y with erfc(y) = x.
 * Domain: 0 < x < 2
 * Special values: erfcinv(1) = +0; erfcinv(+-0) = +inf; erfcinv(2) = -inf; erfcinv(x < 0 or x > 2) = the positive
 *   NaN; erfcinv(NaN) = NaN
 * Status: lumStsSingularity: x = +-0 or 2; lumStsDomain: x < 0 or x > 2, infinities included
 * Relative cost: 32f A11 0.783, A21 1.15, A24 1.47; 64f A26 3.24, A50 4.5, A53 5.66 */
LUM_API LumStatus lumsErfcInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfcInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfcInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfcInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfcInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfcInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Erfc: The complementary error function, 1 - erf(x), accurate also where it is tiny.
 * Domain: all numbers; positive results for x up to 10.05 (32f), 27.22 (64f)
 * Special values: erfc(+-0) = 1; erfc(-inf) = 2; erfc(+inf) = +0; erfc(NaN) = NaN
 * Status: lumStsUnderflow: finite x so large that the result is +0; denormal results do not report
 * Relative cost: 32f A11 1.28, A21 1.28, A24 1.96; 64f A26 2.83, A50 3.69, A53 4.99 */
LUM_API LumStatus lumsErfc_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfc_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfc_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsErfc_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfc_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsErfc_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Exp: e to the power of x.
 * Domain: all numbers; finite positive results for x up to 88.72 (32f), 709.78 (64f)
 * Special values: exp(+-0) = 1; exp(-inf) = +0; exp(+inf) = +inf; exp(NaN) = NaN of the same payload
 * Status: lumStsOverflow: finite x too large, the result is +inf; lumStsUnderflow: the result is denormal or +0
 *   (32f from x = -87.34 down, 64f from -708.4)
 * Relative cost: 32f A11 0.495, A21 0.577, A24 0.611; 64f A26 0.912, A50 1.295, A53 1.368 */
LUM_API LumStatus lumsExp_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExp_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExp_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExp_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsExp_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsExp_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Exp (complex): e to the power z. A21 is A11 and A50 is A26.
 * Domain: all numbers
 * Special values: exp(x +- 0 i) = exp(x) +- 0 i, also of a NaN; exp(inf + y i) = inf cos(y) + inf sin(y) i;
 *   exp(-inf + y i) = 0 cos(y) + 0 sin(y) i; exp(-inf +- inf i) = 0 +- 0 i; exp(-inf + NaN i) = 0 + 0 i; exp(inf +-
 *   inf i) = exp(inf + NaN i) = inf + NaN i; NaN in both parts for other infinite or NaN arguments
 * Status: lumStsOverflow: a part is infinite and both parts of z are finite and not zero; at 32fc A24 only beyond
 *   re = 708.39, at 64fc A53 beyond 512
 * Relative cost: 32fc A11 2, A21 2, A24 3; 64fc A26 2, A50 2, A53 39.379 */
LUM_API LumStatus lumsExp_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsExp_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsExp_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsExp_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsExp_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsExp_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Expm1: e to the power of x, minus 1, accurate also next to x = 0.
 * Domain: all numbers; finite results for x up to 88.72 (32f), 709.78 (64f)
 * Special values: expm1(+-0) = +-0; expm1(-inf) = -1; expm1(+inf) = +inf; expm1(NaN) = NaN
 * Status: lumStsOverflow: finite x too large, the result is +inf
 * Relative cost: 32f A11 0.464, A21 0.597, A24 1.12; 64f A26 1.18, A50 1.56, A53 2.6 */
LUM_API LumStatus lumsExpm1_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExpm1_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExpm1_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsExpm1_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsExpm1_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsExpm1_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Floor: The largest integer not above x.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; floor(x) = +0 for 0 < x < 1; floor(NaN) = NaN of the same payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.196; 64f 0.825 */
LUM_API LumStatus lumsFloor_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsFloor_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* Frac: The fractional part x - trunc(x), with the sign of x.
 * Domain: all numbers
 * Special values: frac(integer) = the zero of its sign; frac(+-inf) = +-0; frac(NaN) = NaN of the same payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.283; 64f 0.762 */
LUM_API LumStatus lumsFrac_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsFrac_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* Hypot: sqrt(src1^2 + src2^2), without overflow or underflow on the way.
 * Domain: all numbers
 * Special values: hypot(+-inf, anything) = +inf, NaN included; hypot(+-0, +-0) = +0; hypot(NaN, x) = NaN; too large
 *   a result: +inf, without a status
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.314, A21 0.51, A24 0.881; 64f A26 1.13, A50 1.4, A53 2.06 */
LUM_API LumStatus lumsHypot_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsHypot_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsHypot_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsHypot_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsHypot_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsHypot_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);

/* InvCbrt: 1 / cbrt(x), the reciprocal of the cube root.
 * Domain: all numbers other than zero; denormal x included
 * Special values: invcbrt(+-0) = +-inf; invcbrt(+-inf) = +-0; invcbrt(-x) = -invcbrt(x); invcbrt(NaN) = NaN
 * Status: lumStsSingularity: x = +-0
 * Relative cost: 32f A11 0.835, A21 0.979, A24 1.22; 64f A26 2.12, A50 2.74, A53 3.35 */
LUM_API LumStatus lumsInvCbrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvCbrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvCbrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvCbrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInvCbrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInvCbrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* InvSqrt: 1 / sqrt(x).
 * Domain: x > 0; denormal x included
 * Special values: invsqrt(+-0) = +-inf; invsqrt(+inf) = +0; invsqrt(x < 0) = NaN, of negative sign for -inf;
 *   invsqrt(NaN) = NaN
 * Status: lumStsSingularity: x = +-0; lumStsDomain: x < 0, -inf included
 * Relative cost: 32f A11 0.278, A21 0.312, A24 0.404; 64f A26 1.11, A50 1.29, A53 1.32 */
LUM_API LumStatus lumsInvSqrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvSqrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvSqrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInvSqrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInvSqrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInvSqrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Inv: 1 / x.
 * Domain: all numbers; at A11 the result for |x| below 2^-128 is an infinity
 * Special values: 1 / +-0 = +-inf; 1 / +-inf = +-0; 1 / NaN = NaN
 * Status: lumStsSingularity: x = +-0
 * Relative cost: 32f A11 0.257, A21 0.253, A24 0.253; 64f A26 0.531, A50 0.739, A53 0.739 */
LUM_API LumStatus lumsInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Ln: The natural logarithm of x.
 * Domain: x >= 0; denormal x included
 * Special values: ln(1) = +0; ln(+-0) = -inf; ln(+inf) = +inf; ln(x < 0) = the positive NaN; ln(NaN) = NaN
 * Status: lumStsSingularity: x = +-0; lumStsDomain: x < 0, -inf included
 * Relative cost: 32f A11 0.598, A21 0.58, A24 0.898; 64f A26 1.58, A50 1.95, A53 2.52 */
LUM_API LumStatus lumsLn_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLn_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLn_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLn_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLn_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLn_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Ln (complex): The principal natural logarithm, the imaginary part in [-pi, pi].
 * Domain: all numbers; branch cut along the negative real axis, where the sign of a zero imaginary part chooses the
 *   side
 * Special values: ln(+0 +- 0 i) = -inf +- 0 i, ln(-0 +- 0 i) = -inf +- pi i; ln = inf + atan2(im, re) i for an
 *   infinite part; ln = inf + NaN i for an infinity beside a NaN; NaN in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 1, A21 2, A24 3; 64fc A26 1, A50 2, A53 3 */
LUM_API LumStatus lumsLn_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLn_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLn_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLn_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsLn_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsLn_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Log10: The decimal logarithm of x.
 * Domain: x >= 0; denormal x included
 * Special values: log10(1) = +0; log10(+-0) = -inf; log10(+inf) = +inf; log10(x < 0) = the positive NaN; log10(NaN)
 *   = NaN
 * Status: lumStsSingularity: x = +-0; lumStsDomain: x < 0, -inf included
 * Relative cost: 32f A11 0.501, A21 0.561, A24 0.884; 64f A26 1.4, A50 1.74, A53 2.36 */
LUM_API LumStatus lumsLog10_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog10_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog10_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog10_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLog10_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLog10_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Log10 (complex): The principal logarithm of z to the base 10, the imaginary part in [-pi, pi] / ln 10. All tags
 *   are one function, right in each part nearly always to the last bit.
 * Domain: all numbers; branch cut along the negative real axis, where the sign of a zero imaginary part chooses the
 *   side
 * Special values: log10(+0 +- 0 i) = -inf +- 0 i; log10(-0 +- 0 i) = -inf +- pi/ln 10 i; log10(inf +- y i) = inf +-
 *   0 i; log10(-inf +- y i) = inf +- pi/ln 10 i; log10(x +- inf i) = inf +- pi/(2 ln 10) i; log10(inf +- inf i) =
 *   inf +- pi/(4 ln 10) i; log10(-inf +- inf i) = inf +- 3pi/(4 ln 10) i; log10 = inf + NaN i for an infinity
 *   beside a NaN; NaN in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 16.5, A21 16.5, A24 16.5; 64fc A26 21.5, A50 21.5, A53 21.5 */
LUM_API LumStatus lumsLog10_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLog10_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLog10_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsLog10_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsLog10_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsLog10_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Log1p: The natural logarithm of 1 + x, accurate also next to x = 0.
 * Domain: x >= -1
 * Special values: log1p(+-0) = +-0; log1p(-1) = -inf; log1p(+inf) = +inf; log1p(x < -1) = the positive NaN;
 *   log1p(NaN) = NaN
 * Status: lumStsSingularity: x = -1; lumStsDomain: x < -1, -inf included
 * Relative cost: 32f A11 0.788, A21 1.01, A24 1.42; 64f A26 2.58, A50 3.02, A53 3.66 */
LUM_API LumStatus lumsLog1p_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog1p_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog1p_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsLog1p_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLog1p_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsLog1p_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Modf: dst1 = trunc(x), dst2 = x - trunc(x), both with the sign of x.
 * Domain: all numbers; dst1 and dst2 must be different arrays
 * Special values: modf(integer) = the integer and the zero of its sign; modf(+-inf) = +-inf and +-0; modf(NaN) =
 *   NaN of the same payload, twice
 * Status: always lumStsOk
 * Relative cost: 32f 0.726; 64f 3.65 */
LUM_API LumStatus lumsModf_32f(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len);
LUM_API LumStatus lumsModf_64f(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len);

/* MulByConj (complex): src1 times the conjugate of src2. A50 is A53.
 * Domain: all numbers
 * Special values: infinite and NaN parts as the plain sums of products give them
 * Status: lumStsOverflow: a part is infinite and all parts of both arguments are finite
 * Relative cost: 32fc A11 1.31, A21 2.06, A24 2.05; 64fc A26 1.99, A50 3.79, A53 3.79 */
LUM_API LumStatus lumsMulByConj_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMulByConj_32fc_A21(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMulByConj_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMulByConj_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsMulByConj_64fc_A50(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsMulByConj_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* Mul: src1 * src2.
 * Domain: all numbers
 * Special values: as IEEE 754 multiplication
 * Status: always lumStsOk
 * Relative cost: 32f A24 0.204; 64f A53 0.779 */
LUM_API LumStatus lumsMul_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsMul_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);

/* Mul (complex): src1 * src2. A21 is A24 and A50 is A53.
 * Domain: all numbers
 * Special values: infinite and NaN parts as the plain sums of products give them
 * Status: lumStsOverflow: a part is infinite and all parts of both arguments are finite
 * Relative cost: 32fc A11 1.14, A21 1.99, A24 1.99; 64fc A26 2.68, A50 3.54, A53 3.54 */
LUM_API LumStatus lumsMul_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMul_32fc_A21(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMul_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsMul_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsMul_64fc_A50(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsMul_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* NearbyInt: The integer nearest to x, ties to even, whatever the caller's rounding mode: the same as Rint.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; a zero result has the sign of x; nearbyint(NaN) = NaN of the same
 *   payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.175; 64f 0.631 */
LUM_API LumStatus lumsNearbyInt_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsNearbyInt_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* Pow2o3: x^(2/3), the square of the cube root; positive for negative x.
 * Domain: all numbers; denormal x included
 * Special values: pow2o3(+-0) = +0; pow2o3(+-inf) = +inf; pow2o3(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.718, A21 0.9, A24 1; 64f A26 1.89, A50 2.51, A53 3.07 */
LUM_API LumStatus lumsPow2o3_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow2o3_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow2o3_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow2o3_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow2o3_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow2o3_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Pow3o2: x^(3/2) = x sqrt(x).
 * Domain: x >= 0; finite results for x up to 4.9e25 (32f), 3.2e205 (64f)
 * Special values: pow3o2(+-0) = +0; pow3o2(+inf) = +inf; pow3o2(x < 0) = the positive NaN; pow3o2(NaN) = NaN; too
 *   large or too small x: +inf or +0, without a status
 * Status: lumStsDomain: x < 0, -inf included
 * Relative cost: 32f A11 0.256, A21 0.371, A24 0.496; 64f A26 0.869, A50 1.02, A53 1.29 */
LUM_API LumStatus lumsPow3o2_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow3o2_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow3o2_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow3o2_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow3o2_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow3o2_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Pow: src1 to the power src2.
 * Domain: src1 >= 0 with any src2; src1 < 0 with integer src2; denormal arguments and results included
 * Special values: pow(x, +-0) = 1 and pow(1, y) = 1, NaN included; pow(x, NaN) = pow(NaN, y) = NaN otherwise;
 *   pow(+-0, y < 0) = +inf, -inf for -0 and an odd integer y; pow(+-0, y > 0) = +0, -0 for -0 and an odd integer y;
 *   pow(-1, +-inf) = 1; pow(x < 0, y not an integer) = NaN with the sign set; pow(x, +-inf) = +0 or +inf as |x| and
 *   the sign of y say; pow(-inf, y) = -inf or -0 for an odd integer y; too large or too small a result: an
 *   infinity, a denormal or a zero, without a status
 * Status: lumStsDomain: src1 = +-0 and src2 < 0; finite src1 < 0 and finite src2 not an integer
 * Relative cost: 32f A11 1.49, A21 1.98, A24 2.29; 64f A26 3.32, A50 5.79, A53 6.02 */
LUM_API LumStatus lumsPow_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPow_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPow_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);

/* Pow (complex): src1 to the power src2, as exp(src2 ln(src1)) with the principal logarithm. All tags are one
 *   function; the error of the rounded product grows with its size and takes digits from large and small results.
 * Domain: all numbers; branch cut of the logarithm along the negative real axis of src1
 * Special values: 0 to the power 0 = NaN + NaN i; other special values as they come out of the logarithm, the
 *   product and the exponential
 * Status: lumStsOverflow: a part is infinite and all parts of both arguments are finite and not zero
 * Relative cost: 32fc A11 43.3, A21 43.3, A24 43.3; 64fc A26 47.8, A50 47.8, A53 47.8 */
LUM_API LumStatus lumsPow_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPow_32fc_A21(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPow_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPow_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsPow_64fc_A50(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsPow_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* Powx: Each element to the power `value`, which is the same for all. Exponents that have a function of their own
 *   (-1, 0.5, -0.5, 1.5; at A11 and A26 also 1/3, -1/3, 2/3), small integers, 0 and 1 take that function, products,
 *   a fill or a copy. At 64f A53 the error reaches 1.07 ulp, for bases up to 2^-9 above 1 whose power is next to
 *   the ends of the range.
 * Domain: x >= 0 with any value; x < 0 with an integer value; denormal x and results included
 * Special values: as pow(x, value) has them, but for the exponents above; value = +-0: 1; value = 1: a copy; value
 *   = 2 (at all tags) and 3 to 9 (but at A24 and A53): products; value = 0.5, -0.5, 1.5, -1, 1/3, -1/3, 2/3:
 *   special values and statuses of sqrt, invsqrt, pow3o2, inv, cbrt, invcbrt, pow2o3; value = -2, -3, -4 (but at
 *   A24 and A53): 1 over the product, with the special values and statuses of inv; zero where the product overflows
 * Status: lumStsDomain: x = +-0 and value < 0; finite x < 0 and finite value not an integer; lumStsSingularity: x =
 *   +-0 and an exponent whose function reports it (-1, -0.5; at A11 and A26 also -1/3)
 * Relative cost: 32f A11 1.21, A21 2.93, A24 3.8; 64f A26 3.68, A50 6.06, A53 6.74 */
LUM_API LumStatus lumsPowx_32f_A11(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPowx_32f_A21(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPowx_32f_A24(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsPowx_64f_A26(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPowx_64f_A50(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsPowx_64f_A53(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len);

/* Powx (complex): Each element to the power `value`, as exp(value ln(z)) with the principal logarithm. All tags are
 *   one function; the error of the rounded product grows with its size and takes digits from large and small
 *   results.
 * Domain: all numbers; branch cut of the logarithm along the negative real axis
 * Special values: 0 to the power 0 = NaN + NaN i; other special values as they come out of the logarithm, the
 *   product and the exponential
 * Status: lumStsOverflow: a part is infinite and all parts of the element and of value are finite and not zero
 * Relative cost: 32fc A11 40.9, A21 40.9, A24 40.9; 64fc A26 780.622, A50 780.622, A53 780.622 */
LUM_API LumStatus lumsPowx_32fc_A11(const Lum32fc* src, Lum32fc value, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPowx_32fc_A21(const Lum32fc* src, Lum32fc value, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPowx_32fc_A24(const Lum32fc* src, Lum32fc value, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsPowx_64fc_A26(const Lum64fc* src, Lum64fc value, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsPowx_64fc_A50(const Lum64fc* src, Lum64fc value, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsPowx_64fc_A53(const Lum64fc* src, Lum64fc value, Lum64fc* dst, int32_t len);

/* Rint: The integer nearest to x, ties to even, whatever the caller's rounding mode.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; a zero result has the sign of x; rint(NaN) = NaN of the same
 *   payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.179; 64f 0.722 */
LUM_API LumStatus lumsRint_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsRint_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* Round: The integer nearest to x, ties away from zero.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; a zero result has the sign of x; round(NaN) = NaN of the same
 *   payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.177; 64f 0.672 */
LUM_API LumStatus lumsRound_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsRound_64f(const Lum64f* src, Lum64f* dst, int32_t len);

/* SinCos: The sine of x into the first array, the cosine into the second; exact reduction of arguments of any size.
 * Domain: all finite numbers
 * Special values: sin(+-0) = +-0; cos(+-0) = 1; both are NaN for +-inf and NaN
 * Status: lumStsDomain: x = +-inf
 * Relative cost: 32f A11 0.912, A21 0.921, A24 2.03; 64f A26 2.56, A50 3.2, A53 4.01 */
LUM_API LumStatus lumsSinCos_32f_A11(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len);
LUM_API LumStatus lumsSinCos_32f_A21(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len);
LUM_API LumStatus lumsSinCos_32f_A24(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len);
LUM_API LumStatus lumsSinCos_64f_A26(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len);
LUM_API LumStatus lumsSinCos_64f_A50(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len);
LUM_API LumStatus lumsSinCos_64f_A53(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len);

/* Sin: The sine of x, in radians; exact reduction of arguments of any size.
 * Domain: all finite numbers
 * Special values: sin(+-0) = +-0; sin(+-inf) = NaN; sin(NaN) = NaN
 * Status: lumStsDomain: x = +-inf
 * Relative cost: 32f A11 0.528, A21 0.632, A24 1.36; 64f A26 1.26, A50 1.432, A53 2.719 */
LUM_API LumStatus lumsSin_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSin_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSin_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSin_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSin_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSin_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Sin (complex): The sine of z. All tags are one function, right in each part nearly always to the last bit.
 * Domain: all numbers
 * Special values: sin(z) = sinh(i z) / i, with the special values of sinh
 * Status: lumStsOverflow: a part is infinite and both parts of z are finite and not zero
 * Relative cost: 32fc A11 16.5, A21 16.5, A24 16.5; 64fc A26 24, A50 24, A53 24 */
LUM_API LumStatus lumsSin_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSin_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSin_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSin_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSin_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSin_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Sinh: The hyperbolic sine of x.
 * Domain: all numbers; finite results for |x| up to 89.41 (32f), 710.47 (64f)
 * Special values: sinh(+-0) = +-0; sinh(+-inf) = +-inf; sinh(NaN) = NaN
 * Status: lumStsOverflow: finite x with |x| too large, the result is an infinity of its sign
 * Relative cost: 32f A11 0.701, A21 0.864, A24 1.26; 64f A26 3.27, A50 3.27, A53 3.02 */
LUM_API LumStatus lumsSinh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSinh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSinh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSinh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSinh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSinh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Sinh (complex): The hyperbolic sine of z. All tags are one function, right in each part nearly always to the last
 *   bit.
 * Domain: all numbers
 * Special values: sinh(x +- 0 i) = sinh(x) +- 0 i, also of a NaN; sinh(inf + y i) = inf cos(y) + inf sin(y) i;
 *   sinh(+-0 +- inf i) = +-0 + NaN i; sinh(x +- inf i) = NaN + NaN i; sinh(+-inf +- inf i) = sinh(+-inf + NaN i) =
 *   +-inf + NaN i; NaN in both parts for other NaN arguments
 * Status: lumStsOverflow: a part is infinite and both parts of z are finite and not zero
 * Relative cost: 32fc A11 17.4, A21 17.4, A24 17.4; 64fc A26 22.5, A50 22.5, A53 22.5 */
LUM_API LumStatus lumsSinh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSinh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSinh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSinh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSinh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSinh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Sqr: x * x.
 * Domain: all numbers
 * Special values: as IEEE 754 multiplication
 * Status: always lumStsOk
 * Relative cost: 32f A24 0.163; 64f A53 0.665 */
LUM_API LumStatus lumsSqr_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSqr_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Sqrt: The square root of x.
 * Domain: x >= 0; denormal x included
 * Special values: sqrt(+-0) = +-0; sqrt(+inf) = +inf; sqrt(x < 0) = the positive NaN; sqrt(NaN) = NaN
 * Status: lumStsDomain: x < 0, -inf included
 * Relative cost: 32f A11 0.226, A21 0.315, A24 0.377; 64f A26 0.909, A50 1.07, A53 1.06 */
LUM_API LumStatus lumsSqrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSqrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSqrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Sqrt (complex): The principal square root, its real part not negative. A21 is A11 and A50 is A26.
 * Domain: all numbers; branch cut along the negative real axis, where the sign of a zero imaginary part chooses the
 *   side
 * Special values: sqrt(+-0 +- 0 i) = 0 +- 0 i; sqrt(z) = inf +- inf i for an infinite imaginary part; sqrt(inf +- y
 *   i) = inf +- 0 i; sqrt(-inf +- y i) = 0 +- inf i; sqrt(inf + NaN i) = inf + NaN i; sqrt(-inf + NaN i) = NaN +
 *   inf i; NaN in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 2.69, A21 2.69, A24 8; 64fc A26 10.787, A50 10.787, A53 207.31 */
LUM_API LumStatus lumsSqrt_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSqrt_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSqrt_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsSqrt_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Sub: src1 - src2; complex numbers part by part.
 * Domain: all numbers
 * Special values: as IEEE 754 subtraction in each part
 * Status: lumStsOverflow (complex types): a part became infinite, and no part of the inputs was; of 64fc also no
 *   part was a zero
 * Relative cost: 32f A24 0.24; 32fc A24 0.832; 64f A53 0.825; 64fc A53 13.4 */
LUM_API LumStatus lumsSub_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsSub_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsSub_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsSub_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len);

/* Tan: The tangent of x, in radians; exact reduction of arguments of any size.
 * Domain: all finite numbers; none is so close to a pole that the result overflows
 * Special values: tan(+-0) = +-0; tan(+-inf) = NaN; tan(NaN) = NaN
 * Status: lumStsDomain: x = +-inf
 * Relative cost: 32f A11 0.876, A21 1.14, A24 1.86; 64f A26 2, A50 2.62, A53 5.05 */
LUM_API LumStatus lumsTan_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTan_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTan_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTan_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsTan_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsTan_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Tan (complex): The tangent of z. All tags are one function, right in each part nearly always to the last bit.
 * Domain: all numbers
 * Special values: tan(z) = tanh(i z) / i, with the special values of tanh
 * Status: always lumStsOk
 * Relative cost: 32fc A11 21.5, A21 21.5, A24 21.5; 64fc A26 36, A50 36, A53 36 */
LUM_API LumStatus lumsTan_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTan_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTan_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTan_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsTan_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsTan_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Tanh: The hyperbolic tangent of x. At 64f A53 the error reaches 1.01 ulp, for |x| just above 1/8, 1/16 and 1/32
 *   with a result just below that power of 2; there neighbours can be out of order by an ulp.
 * Domain: all numbers
 * Special values: tanh(+-0) = +-0; tanh(+-inf) = +-1; tanh(NaN) = NaN
 * Status: always lumStsOk
 * Relative cost: 32f A11 0.482, A21 0.836, A24 0.918; 64f A26 2.68, A50 4.39, A53 4.74 */
LUM_API LumStatus lumsTanh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTanh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTanh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTanh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsTanh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len);
LUM_API LumStatus lumsTanh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len);

/* Tanh (complex): The hyperbolic tangent of z. All tags are one function, right in each part nearly always to the
 *   last bit.
 * Domain: all numbers
 * Special values: tanh(+-inf + y i) = +-1, the imaginary part a zero with the sign of sin(2 y); tanh(+-inf +- inf
 *   i) = +-1 +- 0 i; tanh(+-inf + NaN i) = +-1 + 0 i; tanh(x +- inf i) = NaN + NaN i, also for x = +-0; tanh(NaN +-
 *   0 i) = NaN +- 0 i; NaN in both parts for other NaN arguments
 * Status: always lumStsOk
 * Relative cost: 32fc A11 27.4, A21 27.4, A24 27.4; 64fc A26 45.6, A50 45.6, A53 45.6 */
LUM_API LumStatus lumsTanh_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTanh_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTanh_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len);
LUM_API LumStatus lumsTanh_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsTanh_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len);
LUM_API LumStatus lumsTanh_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len);

/* Trunc: The integer part of x, toward zero.
 * Domain: all numbers
 * Special values: zeros and infinities unchanged; a zero result has the sign of x; trunc(NaN) = NaN of the same
 *   payload
 * Status: always lumStsOk
 * Relative cost: 32f 0.178; 64f 0.735 */
LUM_API LumStatus lumsTrunc_32f(const Lum32f* src, Lum32f* dst, int32_t len);
LUM_API LumStatus lumsTrunc_64f(const Lum64f* src, Lum64f* dst, int32_t len);
#ifdef __cplusplus
}
#endif

#endif
