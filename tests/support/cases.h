// Named special values of functions: a table of arguments, results and statuses, checked on every library. Each case is run
// with its element alone, and in random lanes of random arrays, among junk of all classes.
//
//   TEST(Exp, Infinities) {
//     ExpectCases("Exp_64f", {{inf, inf}, {-inf, 0}, {709.79, inf, lumStsOverflow}});     // all tags
//     ExpectCases("Exp_32f_A24", {{FromBits(0x7FA00001), FromBits(0x7FE00001)}});         // one tag
//   }
//   ExpectCases("Pow_32f", {{2, 3, 8}, {0, -1, inf, lumStsSingularity}})                 two inputs
//   ExpectCases("Powx_32f", ...)                                                         an input and the parameter, the same
//   ExpectCases("SinCos_32f", {{inf, nan, nan, lumStsDomain}})                           two outputs
//   ExpectCases("Sub_64fc", {{{max, 0}, {-max, 1}, {inf, -1}}})                          complex: pairs in braces
//
// Numbers are rounded to the type of the function. All results are compared bit for bit; any_nan accepts every quiet NaN.
#pragma once

#include <initializer_list>
#include <limits>
#include <string_view>
#include <type_traits>
#include <vector>

#include "support/subjects.h"

namespace lum::test {

// A component: a number to be rounded to the type, an exact pattern, or a value that every type has.
class Component {
 public:
  enum class Kind { number, pattern, largest, smallest_normal, smallest, nan, default_nan, any_nan };
  template <class Number>
  requires std::is_arithmetic_v<Number>
  constexpr Component(Number number) : kind_(Kind::number), number_(static_cast<double>(number)) {}
  constexpr Component(Kind kind, uint64_t bits = 0) : kind_(kind), bits_(bits) {}
  constexpr Component operator-() const {
    Component opposite = *this;
    opposite.number_ = -number_;
    opposite.negative_ = !negative_;
    return opposite;
  }
  uint64_t In(Format format) const;
  bool is_any_nan() const { return kind_ == Kind::any_nan; }

 private:
  Kind kind_;
  double number_ = 0;
  uint64_t bits_ = 0;
  bool negative_ = false;
};

// The pattern of a component, 8 digits for 32-bit types and 16 for 64-bit ones.
constexpr Component FromBits(uint64_t bits) { return {Component::Kind::pattern, bits}; }
inline constexpr double inf = std::numeric_limits<double>::infinity();
inline constexpr Component max = {Component::Kind::largest};
inline constexpr Component min_normal = {Component::Kind::smallest_normal};
inline constexpr Component min_denormal = {Component::Kind::smallest};
inline constexpr Component nan = {Component::Kind::nan};                  // quiet, positive, no payload
inline constexpr Component default_nan = {Component::Kind::default_nan};  // the same with the sign set, as 0/0 gives it
inline constexpr Component any_nan = {Component::Kind::any_nan};

// A real or complex element.
struct Value {
  Component re, im = 0.0;
  template <class Number>
  requires std::is_arithmetic_v<Number>
  constexpr Value(Number number) : re(number) {}
  constexpr Value(Component component) : re(component) {}
  constexpr Value(Component real, Component imaginary) : re(real), im(imaginary) {}
};

struct OneInputCase {
  Value x, result;
  LumStatus status = lumStsOk;
};
// Two inputs, or an input and the parameter, and a result; for a function of two outputs an input and two results.
struct ThreeValueCase {
  Value first, second, third;
  LumStatus status = lumStsOk;
};

// The exports that a name stands for: "Exp_32f" for all tags, "Exp_32f_A24" for one.
std::vector<const Export*> ExportsNamed(std::string_view name);

// Expects result and status of each case from all exports of that name, given as a list or computed by a test.
void ExpectCases(std::string_view name, std::initializer_list<OneInputCase> cases);
void ExpectCases(std::string_view name, std::initializer_list<ThreeValueCase> cases);
void ExpectCases(std::string_view name, const std::vector<OneInputCase>& cases);
void ExpectCases(std::string_view name, const std::vector<ThreeValueCase>& cases);

}  // namespace lum::test
