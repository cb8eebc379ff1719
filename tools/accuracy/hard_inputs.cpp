#include "accuracy/hard_inputs.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "accuracy/generator.h"
#include "accuracy/quarter_turns.h"

namespace lum::accuracy {

using support::Export;

namespace {

// What a border is about. |x| and |y| are the magnitudes of the arguments, x keeps its sign; z and w are complex ones.
enum class Quantity {
  x,
  abs_x,
  abs_y,
  ratio_x_y,
  y_log2_x,
  abs_re,
  abs_im,
  ratio_re_im,
  abs_z_squared,
  product_of_moduli,
  ratio_of_products
};

}  // namespace

struct Border {
  const char *function, *type;
  Quantity quantity;
  double value;
  double width;  // how far from it arguments are tried, relative to it
};

namespace {

constexpr Border borders[] = {
#include "borders.inc"
};

// 1 + d with |d| from a bit of the format to `width`, its logarithm uniformly distributed.
class Offsets {
 public:
  explicit Offsets(Generator& g, bool is_32bit) : g_(g), smallest_(is_32bit ? -24 : -53) {}
  double Factor(double width) {
    const double d = std::exp2(Uniform(smallest_, std::log2(width)));
    return (g_.Bits() & 1) != 0 ? 1 + d : 1 - d;
  }
  double Uniform(double low, double high) { return low + (high - low) * (static_cast<double>(g_.Bits() >> 11) * 0x1p-53); }
  // A number next to the value: one of the nearest, or one within the width.
  double Near(double value, double width, size_t i) {
    if (i < 9) {
      const int steps = static_cast<int>(i + 1) / 2;
      return g_.Neighbour(g_.Round(value), i % 2 != 0 ? -steps : steps);
    }
    return g_.Round(value * Factor(width));
  }

 private:
  Generator& g_;
  double smallest_;
};

// A second argument, or other part, of any size.
double Other(Generator& g, size_t i) {
  switch (i % 4) {
    case 0:
      return g.LogUniform(3);
    case 1:
      return g.Uniform({-10, 10});
    case 2:
      return g.LogUniform(20);
    default:
      return i % 16 == 3 ? g.Round(0.0) : g.Uniform({-1, 1});
  }
}

// The exponents of powers keep the result finite.
double Exponent(Generator& g, const Export& entry, double x, size_t i) {
  const double magnitude = std::log2(std::fabs(x)), limit = entry.is_32bit() ? 127 : 1022;
  if (magnitude == 0 || !std::isfinite(magnitude)) return g.LogUniform(20);
  const double y = g.Uniform({-limit, limit}) / magnitude;
  return g.Round(i % 3 == 0 ? std::rint(y) : y);
}

Point PointAt(const Export& entry, const Border& border, Generator& g, size_t i) {
  Offsets offsets(g, entry.is_32bit());
  const bool is_power = entry.function == "Pow" || entry.function == "Powx";
  const double sign = (g.Bits() & 1) != 0 ? -1 : 1;
  const double near = offsets.Near(border.value, border.width, i);
  Point p{Other(g, i), Other(g, i / 4), Other(g, i / 2), Other(g, i / 8)};
  if (!entry.is_complex()) p.im1 = p.im2 = 0;
  switch (border.quantity) {
    case Quantity::x:
    case Quantity::abs_x:
      p.re1 = border.quantity == Quantity::x ? near : sign * near;
      if (is_power) p.re2 = Exponent(g, entry, p.re1, i);
      break;
    case Quantity::abs_y:
      p.re2 = sign * near;
      break;
    case Quantity::ratio_x_y:
      p.re1 = g.Round(p.re2 * near);
      if (i % 2 != 0) p.re1 = g.Neighbour(p.re1, static_cast<int>(i % 5) - 2);
      break;
    case Quantity::y_log2_x:
      p.re1 = std::fabs(p.re1);
      p.re2 = g.Round(sign * border.value * offsets.Factor(border.width) / std::log2(p.re1));
      break;
    case Quantity::abs_re:
      p.re1 = sign * near;
      break;
    case Quantity::abs_im:
      p.im1 = sign * near;
      break;
    case Quantity::ratio_re_im:
      p.re1 = sign * g.Round(p.im1 * near);
      if (i % 2 != 0) p.re1 = g.Neighbour(p.re1, static_cast<int>(i % 5) - 2);
      break;
    case Quantity::abs_z_squared: {
      // Angles of all sizes, in all quadrants.
      const double modulus = std::sqrt(border.value * offsets.Factor(border.width));
      const double angle = i % 2 == 0 ? offsets.Uniform(-3.2, 3.2) : std::exp2(offsets.Uniform(-30, 0));
      p.re1 = g.Neighbour(g.Round(modulus * std::cos(angle)), i % 3 == 0 ? static_cast<int>(i % 7) - 3 : 0);
      p.im1 = g.Round(modulus * std::sin(angle));
      if (i % 5 == 0) std::swap(p.re1, p.im1);
      break;
    }
    case Quantity::product_of_moduli: {
      // Both moduli are normal numbers.
      const double spread = entry.is_32bit() ? 120 : 1000, of_product = std::log2(border.value);
      const double exponent = offsets.Uniform(std::max(-spread, of_product - spread), std::min(spread, of_product + spread));
      const double v = offsets.Uniform(-3.2, 3.2), w = offsets.Uniform(-3.2, 3.2);
      const double first = std::exp2(exponent), second = border.value * offsets.Factor(border.width) / first;
      p = {g.Round(first * std::cos(v)), g.Round(first * std::sin(v)), g.Round(second * std::cos(w)),
           g.Round(second * std::sin(w))};
      break;
    }
    case Quantity::ratio_of_products:
      p.im2 = g.Round(p.re1 * p.re2 / p.im1 * offsets.Factor(border.width) / border.value * sign);
      break;
  }
  return p;
}

bool IsFinite(const Point& p) {
  return std::isfinite(p.re1) && std::isfinite(p.im1) && std::isfinite(p.re2) && std::isfinite(p.im2);
}

}  // namespace

BorderPoints::BorderPoints(const Export& entry) : entry_(entry) {
  std::ranges::copy_if(borders, std::back_inserter(own_),
                       [&](const Border& b) { return b.function == entry.function && b.type == entry.type; });
  if (entry.inputs() == 2 || entry.has_parameter() || support::IsComplex(entry.input)) return;
  for (const Border& border : own_) magnitudes_.push_back(border.value);
}
BorderPoints::~BorderPoints() = default;

Point BorderPoints::Next(Generator& g) const {
  for (;;) {
    const Border& border = own_[g.Bits() % own_.size()];
    const Point p = PointAt(entry_, border, g, g.Bits() % 64);
    if (IsFinite(p)) return p;
  }
}

std::vector<Point> PointsAtBorders(const Export& entry, size_t count) {
  const BorderPoints borders(entry);
  Generator g(entry, 5);
  std::vector<Point> points;
  for (const Border& border : borders.own_) {
    const size_t share = std::max<size_t>(8, count / borders.own_.size());
    for (size_t i = 0; i < share; ++i) {
      const Point p = PointAt(entry, border, g, i);
      if (IsFinite(p)) points.push_back(p);
    }
  }
  return points;
}

std::vector<Point> PointsAtQuarterTurns(const Export& entry) {
  static constexpr std::string_view circular[] = {"Sin", "Cos", "SinCos", "CIS", "Tan"};
  static constexpr std::string_view turned[] = {"Sinh", "Cosh", "Tanh", "Exp"};  // of complex numbers: the imaginary part
  const bool is_complex = support::IsComplex(entry.input);
  const bool is_circular = std::ranges::find(circular, entry.function) != std::end(circular);
  const bool is_turned = is_complex && std::ranges::find(turned, entry.function) != std::end(turned);
  std::vector<Point> points;
  if (!is_circular && !is_turned) return points;
  Generator g(entry, 6);
  size_t i = 0;
  for (double x : NearestToQuarterTurns(entry.is_32bit())) {
    for (double reduced : {x, -x}) {
      const double other = !is_complex ? 0 : (++i % 3 == 0 ? g.LogUniform(60) : Other(g, i));
      points.push_back(is_turned ? Point{other, reduced, 0, 0} : Point{reduced, other, 0, 0});
    }
  }
  return points;
}

std::vector<Point> PointsOnUnitCircle(const Export& entry, size_t count, uint64_t seed) {
  std::vector<Point> points;
  const bool takes_one = entry.inputs() == 1;
  if (!support::IsComplex(entry.input) || (!takes_one && entry.function != "Pow")) return points;
  Generator g(entry, seed);
  Offsets offsets(g, entry.is_32bit());
  for (size_t i = 0; i < count; ++i) {
    // Angles all round, and small ones next to the axes.
    const double angle = i % 3 != 0 ? offsets.Uniform(-3.2, 3.2) : std::exp2(offsets.Uniform(-40, 0));
    const double modulus = i % 4 == 3 ? offsets.Factor(0x1p-20) : 1;
    Point p{g.Round(modulus * std::cos(angle)), g.Round(modulus * std::sin(angle)), 0, 0};
    if (i % 6 == 0) std::swap(p.re1, p.im1);
    if (i % 4 == 1) p.re1 = g.Neighbour(p.re1, static_cast<int>(g.Bits() % 9) - 4);
    if (i % 4 == 2) p.im1 = g.Neighbour(p.im1, static_cast<int>(g.Bits() % 9) - 4);
    if (entry.inputs() == 2 || entry.has_parameter()) {
      p.re2 = g.Uniform({-3, 3});
      p.im2 = g.Uniform({-3, 3});
    }
    points.push_back(p);
  }
  return points;
}

}  // namespace lum::accuracy
