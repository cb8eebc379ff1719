#include "accuracy/hunt_points.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

#include "accuracy/neighbours.h"
#include "support/declarations.h"

namespace lum::accuracy {
namespace {

using support::Export;

constexpr HuntKind kinds[] = {HuntKind::ordinary,   HuntKind::climb,    HuntKind::ordinary,   HuntKind::magnitudes,
                              HuntKind::thresholds, HuntKind::ordinary, HuntKind::borders,    HuntKind::climb,
                              HuntKind::ordinary,   HuntKind::hard,     HuntKind::magnitudes, HuntKind::climb,
                              HuntKind::any_bits,   HuntKind::ordinary, HuntKind::thresholds, HuntKind::borders};

}  // namespace

Random::Random(uint64_t seed, uint64_t stream) {
  uint64_t z = seed * 0x9E3779B97F4A7C15 + stream;
  for (uint64_t& s : s_) {  // splitmix64
    z += 0x9E3779B97F4A7C15;
    uint64_t t = z;
    t = (t ^ (t >> 30)) * 0xBF58476D1CE4E5B9;
    t = (t ^ (t >> 27)) * 0x94D049BB133111EB;
    s = t ^ (t >> 31);
  }
}

HuntSource::HuntSource(const Export& entry, uint64_t seed)
    : entry_(entry),
      seed_(seed),
      is32_(entry.is_32bit()),
      is_complex_(support::IsComplex(entry.input)),
      has_second_(entry.inputs() == 2 || entry.has_parameter()),
      is_power_(entry.function == "Pow" || entry.function == "Powx"),
      low_(support::DeclarationOf(entry).ordinary.low),
      high_(support::DeclarationOf(entry).ordinary.high),
      borders_(entry) {
  for (const double x : support::DeclarationOf(entry).thresholds) anchors_.push_back(x);
  for (const double x : borders_.magnitudes()) anchors_.push_back(x);
  for (int k = 1; k <= 64; ++k) anchors_.push_back(k * std::numbers::pi / 4);
  for (int k = 1; k <= 256; ++k) anchors_.push_back(k * 0x1p-7);
  for (int k = -30; k <= 30; ++k) anchors_.push_back(std::ldexp(1.0, k));
  for (int k = -12; k <= 12; ++k) anchors_.push_back(std::pow(10.0, k));
  hard_ = PointsAtQuarterTurns(entry);
  if (support::IsComplex(entry.input)) {
    const std::vector<Point> circle = PointsOnUnitCircle(entry, 1 << 18, seed);
    hard_.insert(hard_.end(), circle.begin(), circle.end());
  }
}

double HuntSource::Ordinary(Random& random) const {
  const double x = low_ + (high_ - low_) * random.Unit();
  return is32_ ? static_cast<double>(static_cast<float>(x)) : x;
}

double HuntSource::Magnitude(Random& random, int low, int high, bool may_be_negative) const {
  const auto exponent = static_cast<int64_t>(random.Below(static_cast<uint64_t>(high - low))) + low;
  const uint64_t bits = random();
  const uint64_t significand = is32_ ? bits >> 12 & 0xFFFFFE0000000 : bits >> 12;
  const double x = std::bit_cast<double>(static_cast<uint64_t>(exponent + 1023) << 52 | significand);
  return may_be_negative && (bits & 1) != 0 ? -x : x;
}

double HuntSource::AnyBits(Random& random) const {
  for (;;) {
    const uint64_t bits = random();
    const double x =
        is32_ ? static_cast<double>(std::bit_cast<float>(static_cast<uint32_t>(bits))) : std::bit_cast<double>(bits);
    if (std::isfinite(x)) return x;
  }
}

double HuntSource::Away(double x, int64_t steps) const {
  return is32_ ? static_cast<double>(Neighbour(static_cast<float>(x), steps)) : Neighbour(x, steps);
}

// The logarithm of the distance is evenly distributed, up to 2^most_bits neighbours.
double HuntSource::Near(double x, Random& random, int most_bits) const {
  const uint64_t bits = random();
  const uint64_t width = (bits >> 32) % static_cast<uint64_t>(most_bits + 1);
  const auto steps = static_cast<int64_t>(random() & ((uint64_t{1} << width) - 1));
  return Away(x, (bits & 1) != 0 ? -steps : steps);
}

double HuntSource::Part(HuntKind kind, Random& random) const {
  const int spread = is32_ ? 20 : 44;
  const bool signed_ = low_ < 0;
  switch (kind) {
    case HuntKind::magnitudes: {
      const uint64_t which = random.Below(4);
      return which == 0 ? Magnitude(random, -60, 60, signed_) : Magnitude(random, -10, 10, signed_);
    }
    case HuntKind::any_bits:
      return AnyBits(random);
    case HuntKind::thresholds:
    case HuntKind::borders: {
      const bool at_border = kind == HuntKind::borders && !borders_.magnitudes().empty();
      const std::vector<double>& anchors = at_border ? borders_.magnitudes() : anchors_;
      double x = anchors[random.Below(anchors.size())];
      if (is32_) x = static_cast<double>(static_cast<float>(x));
      x = Near(x, random, spread);
      return signed_ && (random() & 1) != 0 ? -x : x;
    }
    default:
      return Ordinary(random);
  }
}

// A second argument that has to do with the first.
double HuntSource::Related(double x, Random& random) const {
  switch (random.Below(4)) {
    case 0:
      return Near(x, random, is32_ ? 12 : 30);
    case 1: {
      const double y = x * Magnitude(random, -4, 4, true);
      return is32_ ? static_cast<double>(static_cast<float>(y)) : y;
    }
    case 2: {
      const double y = x * std::ldexp(1.0, static_cast<int>(random.Below(64)) - 32);
      return Near(is32_ ? static_cast<double>(static_cast<float>(y)) : y, random, is32_ ? 12 : 30);
    }
    default:
      return Magnitude(random, -20, 20, true);
  }
}

// Exponents that keep the power finite, whole and half ones among them.
double HuntSource::Exponent(double x, Random& random) const {
  const double magnitude = std::log2(std::fabs(x)), limit = is32_ ? 150 : 1075;
  if (magnitude == 0 || !std::isfinite(magnitude)) return Magnitude(random, -20, 20, true);
  double y = (2 * random.Unit() - 1) * limit / magnitude;
  const uint64_t which = random.Below(8);
  if (which < 2 || x < 0) y = std::rint(y);
  if (which == 2) y = std::rint(2 * y) / 2;
  if (which == 3) y = std::copysign(random.Below(2) != 0 ? 0.98 * limit : limit, y) / magnitude * (1 - 0x1p-6 * random.Unit());
  return is32_ ? static_cast<double>(static_cast<float>(y)) : y;
}

void HuntSource::SetPoint(HuntPoints& points, size_t i, const Point& p) const {
  points.part[0][i] = p.re1;
  points.part[1][i] = p.im1;
  points.part[2][i] = p.re2;
  points.part[3][i] = p.im2;
}

void HuntSource::FillPairs(HuntPoints& points, Random& random) const {
  const HuntKind kind = points.kind;
  for (size_t i = 0; i < hunt_block; ++i) {
    double x = Part(kind, random);
    if (is_power_) {
      // Bases next to 1 have the large exponents.
      if (kind == HuntKind::magnitudes && i % 4 == 0) x = Near(1.0, random, is32_ ? 20 : 44);
      if (kind == HuntKind::ordinary || kind == HuntKind::magnitudes) x = std::fabs(x);
      if (kind == HuntKind::ordinary && x == 0) x = 1;
      points.part[2][i] = kind == HuntKind::any_bits && i % 2 != 0 ? AnyBits(random) : Exponent(x, random);
    } else if (kind == HuntKind::ordinary) {
      points.part[2][i] = Ordinary(random);
    } else if (kind == HuntKind::any_bits && i % 2 != 0) {
      points.part[2][i] = AnyBits(random);
    } else {
      points.part[2][i] = Related(x, random);
    }
    points.part[0][i] = x;
  }
}

void HuntSource::FillComplex(HuntPoints& points, Random& random) const {
  const auto part = [&](size_t i) -> double {
    switch (points.kind) {
      case HuntKind::ordinary:
        return Ordinary(random);
      case HuntKind::magnitudes:
        return Magnitude(random, i % 3 == 0 ? -30 : -10, i % 3 == 0 ? 30 : 10, true);
      case HuntKind::any_bits:
        return i % 8 == 0 ? AnyBits(random) : Magnitude(random, -20, 6, true);
      default:
        return Part(points.kind, random) * ((random() & 1) != 0 ? 1 : -1);
    }
  };
  for (size_t i = 0; i < hunt_block; ++i) {
    Point p{part(i), part(i), 0, 0};
    if (i % 16 == 5) p.im1 = Related(p.re1, random);
    if (i % 64 == 6) p.re1 = (i & 64) != 0 ? 0.0 : -0.0;
    if (i % 64 == 7) p.im1 = (i & 64) != 0 ? 0.0 : -0.0;
    if (has_second_ && is_power_) {
      p.re2 = Magnitude(random, -3, 3, true);
      p.im2 = i % 4 == 0 ? 0 : Magnitude(random, -3, 3, true);
      if (i % 8 == 1) p.re2 = std::rint(p.re2);
    } else if (has_second_) {
      p.re2 = i % 2 == 0 ? part(i) : Related(p.re1, random);
      p.im2 = i % 2 == 0 ? part(i) : Related(p.im1, random);
    }
    SetPoint(points, i, p);
  }
}

void HuntSource::Climb(HuntPoints& points, Random& random, std::span<const Point> worst) const {
  // The errors of complex powers grow with the exponent, without an end.
  const int spread = is_power_ && is_complex_ ? (is32_ ? 12 : 30) : is32_ ? 20 : 48;
  for (size_t i = 0; i < hunt_block; ++i) {
    Point p = worst[random.Below(worst.size())];
    double* parts[] = {&p.re1, &p.im1, &p.re2, &p.im2};
    const uint64_t which = random();
    for (size_t k = 0; k < 4; ++k) {
      if ((k % 2 == 1 && !is_complex_) || (k >= 2 && !has_second_)) continue;
      const bool alone = k == 0 && !is_complex_ && !has_second_;
      if (alone || (which >> k & 1) != 0) *parts[k] = Near(*parts[k], random, spread);
    }
    SetPoint(points, i, p);
  }
}

void HuntSource::KeepParameters(HuntPoints& points) const {
  for (size_t i = 0; i < hunt_block; ++i) {
    if (i % parameter_run == 0) continue;
    points.part[2][i] = points.part[2][i - 1];
    points.part[3][i] = points.part[3][i - 1];
  }
}

void HuntSource::Fill(HuntPoints& points, uint64_t index, std::span<const Point> worst) {
  Random random(seed_, index);
  points.kind = kinds[index % std::size(kinds)];
  // Those that were drawn about eight times each have been seen.
  const bool has_hard = index / std::size(kinds) * hunt_block < 8 * hard_.size();
  if (points.kind == HuntKind::hard && !has_hard) points.kind = HuntKind::ordinary;
  if (points.kind == HuntKind::borders && borders_.empty()) points.kind = HuntKind::thresholds;
  // The rounding of exponent times logarithm takes as many digits from a complex power as that product has before the point;
  // exponents are kept small, so that other errors show.
  const bool wants_small = is_power_ && is_complex_ && points.kind != HuntKind::ordinary && points.kind != HuntKind::climb &&
                           points.kind != HuntKind::hard;
  if (wants_small) points.kind = HuntKind::magnitudes;
  if (points.kind == HuntKind::climb && worst.empty()) points.kind = HuntKind::magnitudes;
  if (points.kind == HuntKind::climb) {
    Climb(points, random, worst);
  } else if (points.kind == HuntKind::hard) {
    for (size_t i = 0; i < hunt_block; ++i) SetPoint(points, i, hard_[random.Below(hard_.size())]);
  } else if (points.kind == HuntKind::borders && borders_.magnitudes().empty()) {
    Generator g(entry_, random());
    for (size_t i = 0; i < hunt_block; ++i) SetPoint(points, i, borders_.Next(g));
  } else if (is_complex_) {
    FillComplex(points, random);
  } else if (has_second_) {
    FillPairs(points, random);
  } else if (points.kind == HuntKind::ordinary) {
    for (double& x : points.part[0]) x = Ordinary(random);
  } else {
    for (double& x : points.part[0]) x = Part(points.kind, random);
  }
  if (entry_.has_parameter()) KeepParameters(points);
}

}  // namespace lum::accuracy
