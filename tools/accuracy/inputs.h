// The arguments at which a function's accuracy is measured.
#pragma once

#include <vector>

#include "accuracy/reference.h"
#include "support/declarations.h"

namespace lum::accuracy {

// Deterministic points for a function and type, each representable in the type: the ordinary range, log-uniform over the whole
// domain, the neighbours of the kernels' thresholds and table borders, denormals, huge arguments, poles and zeros, and for
// circular functions multiples of pi/2.
std::vector<Point> SamplePoints(const support::Export& entry, size_t count);

// Kinds of points, each measured by itself:
//   sample         those of SamplePoints
//   borders        both sides of every threshold and every border of a table or segment of the function's kernels
//   quarter_turns  the numbers closest to a multiple of pi/2 in the part that is reduced by it, for every binade
//   unit_circle    complex numbers on the unit circle and next to it
enum class InputClass { sample, borders, quarter_turns, unit_circle };
inline constexpr InputClass input_classes[] = {InputClass::sample, InputClass::borders, InputClass::quarter_turns,
                                               InputClass::unit_circle};
const char* NameOf(InputClass inputs);
// Deterministic, about `count` of them where they are not given by the class; none where the class does not suit the function.
std::vector<Point> PointsOf(const support::Export& entry, InputClass inputs, size_t count);

using support::Interval;

}  // namespace lum::accuracy
