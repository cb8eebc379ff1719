#include "accuracy/hunt_errors.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace lum::accuracy {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// The power of 2 that brings values near the ends of binary64's range away from them.
double ScaleOf(double magnitude) {
  const double unless_huge = magnitude > 0x1p900 ? 0x1p-200 : 1;
  return magnitude < 0x1p-800 ? 0x1p200 : unless_huge;
}
// The one that makes the magnitude about 1.
double NormScaleOf(double magnitude) {
  if (!(magnitude > 0 && magnitude < infinity)) return 1;
  const auto exponent = static_cast<int>(std::bit_cast<uint64_t>(magnitude) >> 52) - 1023;
  return std::ldexp(1.0, std::clamp(-exponent, -1000, 1000));
}

}  // namespace

HuntValues::HuntValues(bool is_32bit, bool is_complex, size_t parts) : is32_(is_32bit), is_complex_(is_complex), parts_(parts) {
  for (HuntColumn& rest : rest_) rest.fill(0);
  for (HuntColumn& scale : scale_) scale.fill(1);
}

void HuntValues::Take(const std::array<HuntColumn, 2>& values) {
  for (size_t part = 0; part < parts_; ++part) {
    for (size_t i = 0; i < hunt_block; ++i) {
      const double magnitude = std::fabs(values[part][i]);
      if (is_complex_) {
        scale_[part][i] = NormScaleOf(std::fmax(magnitude, std::fabs(values[1 - part][i])));
      } else {
        scale_[part][i] = ScaleOf(magnitude);
      }
      value_[part][i] = values[part][i] * scale_[part][i];
      rest_[part][i] = 0;
    }
  }
  SetUnits();
}

void HuntValues::Take(const std::array<LongColumn, 2>& values) {
  for (size_t part = 0; part < parts_; ++part) {
    for (size_t i = 0; i < hunt_block; ++i) {
      const auto magnitude = static_cast<double>(std::fabs(values[part][i]));
      if (is_complex_) {
        scale_[part][i] = NormScaleOf(std::fmax(magnitude, static_cast<double>(std::fabs(values[1 - part][i]))));
      } else {
        scale_[part][i] = ScaleOf(magnitude);
      }
      const long double scaled = values[part][i] * scale_[part][i];
      value_[part][i] = static_cast<double>(scaled);
      rest_[part][i] = std::isfinite(value_[part][i]) ? static_cast<double>(scaled - value_[part][i]) : 0;
    }
  }
  SetUnits();
}

// One over the unit in the last place at the values. At a power of 2 whose value is below it, or may be, the unit is the
// smaller one.
void HuntValues::SetUnits() {
  const double lowest_power = is32_ ? 0x1p-126 : 0x1p-1022, unit = is32_ ? 0x1p23 : 0x1p52;
  if (is_complex_) {
    // Next to the denormals a part has less than full precision.
    const double least = is32_ ? 0x1p-100 : 0x1p-967;
    for (size_t i = 0; i < hunt_block; ++i) {
      const double norm = std::sqrt(value_[0][i] * value_[0][i] + value_[1][i] * value_[1][i]);
      inverse_unit_[0][i] = norm > least * scale_[0][i] ? unit / norm : 0;
    }
    return;
  }
  for (size_t part = 0; part < parts_; ++part) {
    for (size_t i = 0; i < hunt_block; ++i) {
      const double magnitude = std::fabs(value_[part][i]), scale = scale_[part][i];
      const double above = std::copysign(1.0, value_[part][i]) * rest_[part][i];
      const uint64_t below = magnitude > 0 && !(above > 0) ? 1 : 0;
      const double power = std::bit_cast<double>((std::bit_cast<uint64_t>(magnitude) - below) & 0x7FF0000000000000);
      const double floor = lowest_power * scale;
      inverse_unit_[part][i] = unit / (power < floor ? floor : power);
      overflow_[part][i] = is32_ ? 0x1p128 : (scale == 0x1p-200 ? 0x1p824 : infinity);
    }
  }
}

void HuntValues::AddPart(const std::array<HuntColumn, 2>& results, size_t part, HuntColumn& errors) const {
  for (size_t i = 0; i < hunt_block; ++i) {
    const double result = results[part][i], value = value_[part][i], overflow = overflow_[part][i];
    const double clipped = std::fabs(result) == infinity ? std::copysign(overflow, result) : result * scale_[part][i];
    const double error = std::fabs((clipped - value) - rest_[part][i]) * inverse_unit_[part][i];
    const bool both_beyond = (std::fabs(result) == infinity) & (std::fabs(value) >= overflow) & ((result > 0) == (value > 0));
    const bool both_nan = (result != result) & (value != value);
    const double judged = (both_beyond | both_nan) ? 0 : error;
    errors[i] = !(errors[i] <= judged) ? errors[i] : judged;  // a NaN stays
  }
}

void HuntValues::NormErrors(const std::array<HuntColumn, 2>& results, HuntColumn& errors) const {
  // Where parts of binary32 round to infinities.
  const double overflow = is32_ ? 0x1.ffffffp127 : infinity;
  for (size_t i = 0; i < hunt_block; ++i) {
    double square = 0;
    bool is_open = false, is_beyond = false;
    for (size_t part = 0; part < 2; ++part) {
      const double result = results[part][i], value = value_[part][i];
      const double d = (result * scale_[part][i] - value) - rest_[part][i];
      square += d * d;
      is_beyond |= !(std::fabs(result) < infinity);
      is_open |= !(std::fabs(result) < infinity) != !(std::fabs(value) < overflow * scale_[part][i]);
    }
    const double error = is_beyond ? 0 : std::sqrt(square) * inverse_unit_[0][i];
    errors[i] = is_open ? std::numeric_limits<double>::quiet_NaN() : error;
  }
}

void HuntValues::Errors(const std::array<HuntColumn, 2>& results, HuntColumn& errors) const {
  if (is_complex_) {
    NormErrors(results, errors);
    return;
  }
  errors.fill(0);
  for (size_t part = 0; part < parts_; ++part) AddPart(results, part, errors);
}

bool HuntValues::IsOrdinary(size_t i) const {
  for (size_t part = 0; part < parts_; ++part) {
    if (!std::isfinite(value_[part][i])) return false;
  }
  return value_[0][i] != 0;
}

}  // namespace lum::accuracy
