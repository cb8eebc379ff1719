// What the second paths of arccosine, arcsine and their hyperbolic counterparts share. Where |z| is large, arcosh A is ln 2|z|
// and the angle that of z.
#pragma once

#include "complex/arc_parts.h"
#include "complex/far_parts.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {

// An angle and a logarithm, each without the power of 2 of its exponent.
struct ScaledArcParts {
  AngleAndLogarithm<HeadTail> parts;
  Vec<Lum64f> angle_exponent, logarithm_exponent;
  Mask<Lum64f> is_known;
};

// The angle and the logarithm of any finite u, v >= 0.
template <Arc arc> LUM_INLINE ScaledArcParts InversePartsOfAny(Vec<Lum64f> u, Vec<Lum64f> v) {
  const auto z = BringNearer(u, v);
  auto parts = InverseParts<arc, HeadTail>(z.u.value, z.v.value);
  constexpr auto& ln2 = numbers::ln2_by_2p40_parts<Lum64f>;
  parts.logarithm = Add(parts.logarithm, {z.common * all(ln2[0]), z.common * all(ln2[1])});
  const auto one = all(1.0);
  const auto angle_exponent = arc == Arc::sine ? z.u.exponent : zero_unless(lt(one, z.u.value), z.v.exponent);
  return {parts, angle_exponent, zero_unless(lt(z.u.value, one), z.v.exponent), ~IsNextToBranch(z)};
}

}  // namespace lum::inline LUM_LAYER::complex
