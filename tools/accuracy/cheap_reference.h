// Values in binary64 of the functions of one 32f input, made for going over all 2^32 arguments.
#pragma once

#include <span>

#include "support/library.h"

namespace lum::accuracy {

// Relative error that no value of a cheap reference reaches. In units of binary32's last place that is 2^-21.
inline constexpr double cheap_error = 0x1p-45;

// Gives the parts of f(x) for all x: one, or two of a function of two outputs. The spans are of one length. A value may
// overflow or underflow binary64; a NaN, an infinity or a zero of the other arguments is f's own.
using CheapReference = void (*)(std::span<const float> x, std::span<double> part1, std::span<double> part2);

// Null unless the export has one real 32f input.
CheapReference FindCheapReference(const support::Export& entry);

}  // namespace lum::accuracy
