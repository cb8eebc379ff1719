// Arguments at which errors hide: they are too rare for a random sample to meet.
#pragma once

#include <vector>

#include "accuracy/generator.h"
#include "accuracy/inputs.h"

namespace lum::accuracy {

// The borders that functions.toml lists for a function, as a source of points next to them.
class BorderPoints {
 public:
  explicit BorderPoints(const support::Export& entry);
  ~BorderPoints();
  BorderPoints(const BorderPoints&) = delete;
  BorderPoints& operator=(const BorderPoints&) = delete;

  bool empty() const { return own_.empty(); }
  // Next to a random border: one of the nearest numbers, or one as far off as the border's width. Parts that it is not about
  // are of any size. All parts are finite.
  Point Next(Generator& g) const;
  // The magnitudes of a function of one real input at its borders; empty for others.
  const std::vector<double>& magnitudes() const { return magnitudes_; }

 private:
  friend std::vector<Point> PointsAtBorders(const support::Export& entry, size_t count);
  const support::Export& entry_;
  std::vector<struct Border> own_;
  std::vector<double> magnitudes_;
};

// Both sides of the borders that functions.toml lists for the function, from the neighbouring numbers to 2^-20 of their size.
std::vector<Point> PointsAtBorders(const support::Export& entry, size_t count);
// The numbers nearest to multiples of pi/2, of both signs; with other parts of all sizes for complex functions.
std::vector<Point> PointsAtQuarterTurns(const support::Export& entry);
// (cos t, sin t) rounded, its neighbours in either part, and numbers up to 2^-20 from the circle.
std::vector<Point> PointsOnUnitCircle(const support::Export& entry, size_t count, uint64_t seed = 7);

}  // namespace lum::accuracy
