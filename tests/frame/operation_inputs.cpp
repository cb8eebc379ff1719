#include "operation_inputs.h"

#include <bit>
#include <cstring>
#include <limits>
#include <type_traits>

namespace lum::test {
namespace {

template <class T> using Word = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;

template <class T> constexpr int fraction_bits = std::numeric_limits<T>::digits - 1;
template <class T> constexpr int bias = std::numeric_limits<T>::max_exponent - 1;

template <class T> uint64_t BitsOf(T x) { return std::bit_cast<Word<T>>(x); }

// Zero, the ends of the range, the neighbourhoods of small numbers, halves and powers of two; infinities and NaNs.
template <class T> std::vector<uint64_t> FloatingSpecials() {
  using Limits = std::numeric_limits<T>;
  const uint64_t hidden = uint64_t{1} << fraction_bits<T>;
  const uint64_t infinity = BitsOf(Limits::infinity());
  std::vector<uint64_t> values = {
      0,          1,      2,          3,          hidden / 2,        hidden / 2 + 1,        hidden / 4,   hidden / 4 + 1,
      hidden - 1, hidden, hidden + 1, 2 * hidden, infinity - hidden, infinity - hidden - 1, infinity - 2, infinity - 1,
      infinity};
  for (const uint64_t payload : {hidden / 2, hidden / 2 + 5, hidden - 1, uint64_t{1}, hidden / 2 - 1, hidden / 4})
    values.push_back(infinity + payload);
  for (const T x :
       {T(1), T(0.5), T(2), T(4), T(0.75), T(1.5), T(2.5), T(3.5), T(0.125), T(0.03125), T(90), T(3), T(0.1), T(7.3)})
    for (const int step : {-1, 0, 1}) values.push_back(BitsOf(x) + static_cast<uint64_t>(step));
  for (const int exponent : {-bias<T> + 40, -bias<T> / 2, -30, -5, 8, 20, 26, 52, bias<T> / 2, bias<T> - 27}) {
    const uint64_t power = static_cast<uint64_t>(exponent + bias<T>) << fraction_bits<T>;
    values.insert(values.end(), {power, power + 1, power - 1, power + hidden / 2});
  }
  const size_t positive = values.size();
  const uint64_t sign = uint64_t{1} << (8 * sizeof(T) - 1);
  for (size_t i = 0; i < positive; ++i) values.push_back(values[i] | sign);
  return values;
}

// A few of them, for operations of three operands.
template <class T> std::vector<uint64_t> FloatingSpecialsInBrief() {
  const uint64_t hidden = uint64_t{1} << fraction_bits<T>;
  const uint64_t infinity = BitsOf(std::numeric_limits<T>::infinity());
  std::vector<uint64_t> values = {0, 1, hidden - 1, hidden, infinity - 1, infinity, infinity + hidden / 2 + 5, infinity + 9};
  for (const T x : {T(1), T(1.5), T(3.5)}) values.insert(values.end(), {BitsOf(x), BitsOf(x) + 1});
  for (const int exponent : {-bias<T> + 40, -bias<T> / 2, bias<T> / 2, bias<T> - 27})
    values.push_back((static_cast<uint64_t>(exponent + bias<T>) << fraction_bits<T>)+1);
  const size_t positive = values.size();
  const uint64_t sign = uint64_t{1} << (8 * sizeof(T) - 1);
  for (size_t i = 0; i < positive; ++i) values.push_back(values[i] | sign);
  return values;
}

std::vector<uint64_t> IntegerSpecials(int width) {
  const uint64_t top = uint64_t{1} << (width - 1);
  std::vector<uint64_t> values = {0, 1, 2, 3, 7, 15, 16, 31, 32, 33, 63, 64, 65, 0xFFFF, 0x8000, 0x80008000, 0x7FFF8000};
  values.insert(values.end(), {top, top - 1, top + 1, ~uint64_t{0}, ~uint64_t{1}, 0x5555555555555555, 0x123456789ABCDEF0});
  return values;
}

}  // namespace

int LaneBytes(Element element) { return element == Element::f32 || element == Element::integer32 ? 4 : 8; }

uint64_t GetLane(const RawVector& v, Element element, int lane) {
  if (LaneBytes(element) == 8) {
    uint64_t bits;
    std::memcpy(&bits, v.bytes + 8 * lane, sizeof bits);
    return bits;
  }
  uint32_t bits;
  std::memcpy(&bits, v.bytes + 4 * lane, sizeof bits);
  return bits;
}

void SetLane(RawVector& v, Element element, int lane, uint64_t bits) {
  if (LaneBytes(element) == 8) {
    std::memcpy(v.bytes + 8 * lane, &bits, sizeof bits);
  } else {
    const auto narrow = static_cast<uint32_t>(bits);
    std::memcpy(v.bytes + 4 * lane, &narrow, sizeof narrow);
  }
}

const std::vector<uint64_t>& SpecialValues(Element element) {
  static const auto f32 = FloatingSpecials<float>();
  static const auto f64 = FloatingSpecials<double>();
  static const auto integer32 = IntegerSpecials(32);
  static const auto integer64 = IntegerSpecials(64);
  switch (element) {
    case Element::f32:
      return f32;
    case Element::f64:
      return f64;
    case Element::integer32:
      return integer32;
    default:
      return integer64;
  }
}

namespace {
const std::vector<uint64_t>& SpecialValuesInBrief(Element element) {
  static const auto f32 = FloatingSpecialsInBrief<float>();
  static const auto f64 = FloatingSpecialsInBrief<double>();
  return element == Element::f32 ? f32 : element == Element::f64 ? f64 : SpecialValues(element);
}
// The special values that are combined in the operands of an operation.
const std::vector<uint64_t>& CombinedSpecials(const Operation& operation, Element element) {
  const bool three = operation.operands.size() >= 3 && operation.operands[2] != Element::none;
  return three ? SpecialValuesInBrief(element) : SpecialValues(element);
}
}  // namespace

uint64_t InputGenerator::Special(Element element) {
  const auto& values = SpecialValues(element);
  return values[Below(values.size())];
}

uint64_t InputGenerator::IntegerLane(int width) {
  switch (Below(4)) {
    case 0:
      return Special(width == 32 ? Element::integer32 : Element::integer64);
    case 1:
      return Below(160) - 80;
    case 2:
      return random_() >> Below(static_cast<uint64_t>(width));
    default:
      return random_();
  }
}

// One lane: 0 any bits; 1 an exponent near zero; 2 few bits in the significand; 3 close to a denormal or tiny; 4 near the
// largest; 5 on or beside a multiple of a power of two.
template <class T> uint64_t InputGenerator::FloatingLane(int manner) {
  constexpr int F = fraction_bits<T>;
  constexpr uint64_t fraction_mask = (uint64_t{1} << F) - 1;
  // Drawn one after the other, so that every compiler draws them in the same order.
  const uint64_t any = random_();
  const uint64_t sign = Below(2) << (8 * sizeof(T) - 1);
  const uint64_t near = Below(60);
  const uint64_t cut = Below(static_cast<uint64_t>(F));
  const uint64_t cleared = Below(static_cast<uint64_t>(F));
  const uint64_t fraction = any & fraction_mask;
  const auto with_exponent = [&](uint64_t field, uint64_t significand) { return sign | field << F | significand; };
  switch (manner) {
    case 0:
      return static_cast<Word<T>>(any);
    case 1:
      return with_exponent(static_cast<uint64_t>(bias<T>) - 8 + near % 16, fraction);
    case 2:
      return with_exponent(static_cast<uint64_t>(bias<T>) - 30 + near, (fraction >> cut << cleared) & fraction_mask);
    case 3:
      return with_exponent(near / 2, fraction >> cut);
    case 4:
      return with_exponent(2 * static_cast<uint64_t>(bias<T>) - near / 2, fraction);
    default: {
      const T grid = static_cast<T>(static_cast<int64_t>(any % 4096) - 2048) / static_cast<T>(uint64_t{1} << near % 8);
      return (BitsOf(grid) + cut % 3 - 1) | (grid == 0 ? sign : 0);
    }
  }
}

// The lanes of all floating-point operands together: the second close to the first, the third close to minus their product.
template <class T> void InputGenerator::FillFloatingLanes(int lane, const std::vector<Element>& elements, Operands& operands) {
  constexpr Element element = sizeof(T) == 4 ? Element::f32 : Element::f64;
  const int manner = static_cast<int>(Below(6));
  const bool related = Below(3) == 0;
  T previous[2] = {T(1), T(1)};
  for (size_t i = 0; i < elements.size() && i < 3; ++i) {
    if (elements[i] != element) continue;
    const bool is_special = Below(16) == 0;
    const int own_manner = static_cast<int>(Below(24));  // at times not that of the other operands
    const uint64_t step = Below(7) - 3;
    uint64_t bits = is_special ? Special(element) : FloatingLane<T>(own_manner < 6 ? own_manner : manner);
    if (related && i == 1 && elements.size() == 2) bits = BitsOf(previous[0]) + step;
    const T product = previous[0] * previous[1];
    if (related && i == 2 && product == product) bits = BitsOf(-product) + step;  // a NaN's bits are not the same everywhere
    bits = static_cast<Word<T>>(bits);
    if (i < 2) previous[i] = std::bit_cast<T>(static_cast<Word<T>>(bits));
    SetLane(operands.vector[i], element, lane, bits);
  }
}

void InputGenerator::Fill(const Operation& operation, Operands& operands) {
  operands.mask = static_cast<uint32_t>(random_());
  const auto& elements = operation.operands;
  for (size_t i = 0; i < elements.size() && i < 3; ++i)
    if (elements[i] == Element::integer32 || elements[i] == Element::integer64)
      for (int lane = 0; lane < 64 / LaneBytes(elements[i]); ++lane)
        SetLane(operands.vector[i], elements[i], lane, IntegerLane(8 * LaneBytes(elements[i])));
  for (const Element element : elements) {
    if (element == Element::f32) {
      for (int lane = 0; lane < 16; ++lane) FillFloatingLanes<float>(lane, elements, operands);
      break;
    }
    if (element == Element::f64) {
      for (int lane = 0; lane < 8; ++lane) FillFloatingLanes<double>(lane, elements, operands);
      break;
    }
  }
}

uint64_t SpecialVectors(const Operation& operation) {
  uint64_t combinations = 1;
  int lanes = 1;
  for (const Element element : operation.operands)
    if (element != Element::none) {
      combinations *= CombinedSpecials(operation, element).size();
      lanes = 64 / LaneBytes(element);
    }
  return (combinations + static_cast<uint64_t>(lanes) - 1) / static_cast<uint64_t>(lanes);
}

void FillSpecials(const Operation& operation, uint64_t index, Operands& operands) {
  operands.mask = static_cast<uint32_t>(index * 0x9E3779B9 >> 3);
  const auto& elements = operation.operands;
  for (int lane = 0; lane < 16; ++lane) {
    uint64_t combination = 0;
    for (size_t i = 0; i < elements.size() && i < 3; ++i) {
      if (elements[i] == Element::none || lane >= 64 / LaneBytes(elements[i])) continue;
      if (combination == 0)
        combination = index * static_cast<uint64_t>(64 / LaneBytes(elements[i])) + static_cast<uint64_t>(lane) + 1;
      const auto& values = CombinedSpecials(operation, elements[i]);
      const uint64_t place = combination - 1;
      SetLane(operands.vector[i], elements[i], lane, values[place % values.size()]);
      combination = place / values.size() + 1;
    }
  }
}

}  // namespace lum::test
