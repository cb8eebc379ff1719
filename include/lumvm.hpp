// lumVM in C++20: elementwise mathematical functions over contiguous ranges. Header-only over the C interface of lumvm.h.
//
//   lumvm::exp(x, y);                       y[i] = e^x[i], error below 1 ulp
//   lumvm::exp<lumvm::mid>(x, y);           50 correct bits (21 of float), faster; lumvm::low: 26 (11)
//   auto z = lumvm::pow(x, y);              a vector of the results
//   auto [s, c] = lumvm::sincos(x);         two of them
//   lumvm::exp(x, x);                       in place
//
// Arguments are contiguous ranges that know their size (std::vector, std::array, std::span, std::valarray, C arrays ...) of
// float, double, std::complex<float> or std::complex<double>, the same for all inputs of a call. lumvm_functions.hpp lists the
// functions. They throw std::invalid_argument, before anything is written, when the sizes of the ranges differ or when the
// result overlaps an argument in another way than in place. What an element has to report, an overflow for instance, comes back
// as a lumvm::status. Everything else is as lumvm.h says it of the C functions. lumvm_parallel.hpp adds lumvm::par.
#ifndef LUMVM_HPP
#define LUMVM_HPP

#include <complex>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

#include "lumvm.h"

namespace lumvm {

// The levels of accuracy: 11, 21 or 24 correct bits of float, 26, 50 or 53 of double; at high the error of a real function is
// below one unit in the last place, but where lumvm_functions.hpp says otherwise. Functions without levels take any.
enum class accuracy { low, mid, high };
inline constexpr accuracy low = accuracy::low;
inline constexpr accuracy mid = accuracy::mid;
inline constexpr accuracy high = accuracy::high;

// What a call had to report: nothing, or the status of the last element that overflowed, underflowed, met a pole or left the
// domain. All elements have been written.
class status {
 public:
  constexpr status() = default;
  constexpr explicit status(LumStatus code) : code_(code) {}

  // True when some element had something to report.
  constexpr explicit operator bool() const { return code_ != lumStsOk; }
  constexpr LumStatus code() const { return code_; }
  constexpr const char* meaning() const {
    switch (code_) {
      case lumStsOk: return "ok";
      case lumStsOverflow: return "overflow";
      case lumStsUnderflow: return "underflow";
      case lumStsSingularity: return "singularity";
      case lumStsDomain: return "domain error";
      default: return "bad argument";
    }
  }
  friend constexpr bool operator==(status, status) = default;

 private:
  LumStatus code_ = lumStsOk;
};

// The types of elements.
template <class T>
concept real_element = std::is_same_v<T, float> || std::is_same_v<T, double>;
template <class T>
concept complex_element = std::is_same_v<T, std::complex<float>> || std::is_same_v<T, std::complex<double>>;
template <class T>
concept element = real_element<T> || complex_element<T>;

// A contiguous range that knows its size.
template <class R>
concept contiguous = requires(R& range) { std::span(range); };

namespace detail {

template <class R> using span_of = decltype(std::span(std::declval<R&>()));
template <class R> using reference_of = typename span_of<R>::element_type;

}  // namespace detail

template <contiguous R> using element_of = std::remove_cv_t<detail::reference_of<R>>;

// A range that can be read from.
template <class R>
concept input = contiguous<R> && element<element_of<R>>;
// A range of T that can be written to: no constant elements, and no temporary that owns its elements.
template <class R, class T>
concept output_of = contiguous<std::remove_reference_t<R>> && std::is_same_v<detail::reference_of<std::remove_reference_t<R>>, T> &&
                    (std::is_lvalue_reference_v<R> || std::ranges::borrowed_range<R>);

namespace detail {

// The C types of elements.
template <class T> struct c_type { using type = T; };
template <> struct c_type<std::complex<float>> { using type = Lum32fc; };
template <> struct c_type<std::complex<double>> { using type = Lum64fc; };
template <class T> using c_type_t = typename c_type<T>::type;

template <class T> const c_type_t<T>* c_pointer(const T* p) { return reinterpret_cast<const c_type_t<T>*>(p); }
template <class T> c_type_t<T>* c_pointer(T* p) { return reinterpret_cast<c_type_t<T>*>(p); }
template <class T> c_type_t<T> c_value(T x) {
  if constexpr (complex_element<T>) return {x.real(), x.imag()};
  else return x;
}

// Shapes of C functions by the elements of input and output.
template <class T, class U = T> using one_input = LumStatus (*)(const c_type_t<T>*, c_type_t<U>*, std::int32_t);
template <class T> using two_inputs = LumStatus (*)(const c_type_t<T>*, const c_type_t<T>*, c_type_t<T>*, std::int32_t);
template <class T> using two_outputs = LumStatus (*)(const c_type_t<T>*, c_type_t<T>*, c_type_t<T>*, std::int32_t);
template <class T> using with_parameter = LumStatus (*)(const c_type_t<T>*, c_type_t<T>, c_type_t<T>*, std::int32_t);

// The C functions of a function F, low to high, and the type of its results; lumvm_functions.hpp specialises it for the types
// of elements that the function takes.
template <class F, class T> struct calls;
template <class F, class T> using result_of = typename calls<F, T>::result;

// F exists for the range's elements.
template <class F, class R>
concept takes = input<R> && requires { typename result_of<F, element_of<R>>; };
template <class F, class R, class Y>
concept gives = takes<F, R> && output_of<Y, result_of<F, element_of<R>>>;
template <class R, class S>
concept same_elements = input<R> && input<S> && std::is_same_v<element_of<R>, element_of<S>>;

template <contiguous R> std::span<reference_of<R>> view(R& range) { return std::span(range); }

// Out of line, so that calls stay small.
[[noreturn, gnu::cold, gnu::noinline]] inline void refuse(const char* message) { throw std::invalid_argument(message); }
inline void require(bool condition, const char* message) {
  if (!condition) [[unlikely]] refuse(message);
}
template <class T, class U> bool apart(std::span<T> a, std::span<U> b) {
  const auto distance = reinterpret_cast<std::uintptr_t>(b.data()) - reinterpret_cast<std::uintptr_t>(a.data());
  return distance >= a.size_bytes() && std::uintptr_t{0} - distance >= b.size_bytes();
}
// The result may stand in the place of an argument of the same type, and nowhere else in it.
template <class T, class U> void check_result(std::span<const T> x, std::span<U> y) {
  require(x.size() == y.size(), "lumvm: the sizes of argument and result differ");
  const bool in_place = std::is_same_v<T, U> && static_cast<const void*>(x.data()) == static_cast<const void*>(y.data());
  require(in_place || apart(x, y), "lumvm: the result overlaps an argument in part");
}

// call(first, count) over parts of at most 2^30 elements, as a C function takes no more than 2^31 - 1. The status is that of
// the last part that reported.
template <class Call> status in_parts(std::size_t size, const Call& call) {
  constexpr std::size_t most = std::size_t{1} << 30;
  if (size - 1 < most) [[likely]] return status(call(0, static_cast<std::int32_t>(size)));
  LumStatus last = lumStsOk;
  for (std::size_t first = 0; first < size; first += most) {
    const auto count = static_cast<std::int32_t>(size - first < most ? size - first : most);
    if (const LumStatus reported = call(first, count); reported != lumStsOk) last = reported;
  }
  return status(last);
}

// How a call runs over checked arrays: its parts one after the other. lumvm_parallel.hpp has another way.
struct sequential {
  using is_way = void;
  template <class Call> status operator()(std::size_t size, const Call& call) const { return in_parts(size, call); }
};

template <class W>
concept way = requires { typename W::is_way; };

template <class F, accuracy a, class T> constexpr auto function_of = calls<F, T>::at[static_cast<int>(a)];

template <class F, accuracy a, class Way, class T, class U> status run(const Way& way, std::span<const T> x, std::span<U> y) {
  check_result(x, y);
  return way(x.size(), [&](std::size_t first, std::int32_t count) {
    return function_of<F, a, T>(c_pointer(x.data() + first), c_pointer(y.data() + first), count);
  });
}
template <class F, accuracy a, class Way, class T>
status run(const Way& way, std::span<const T> x1, std::span<const T> x2, std::span<T> y) {
  check_result(x1, y);
  check_result(x2, y);
  return way(x1.size(), [&](std::size_t first, std::int32_t count) {
    return function_of<F, a, T>(c_pointer(x1.data() + first), c_pointer(x2.data() + first), c_pointer(y.data() + first), count);
  });
}
template <class F, accuracy a, class Way, class T>
status run_with(const Way& way, std::span<const T> x, T value, std::span<T> y) {
  check_result(x, y);
  return way(x.size(), [&](std::size_t first, std::int32_t count) {
    return function_of<F, a, T>(c_pointer(x.data() + first), c_value(value), c_pointer(y.data() + first), count);
  });
}
template <class F, accuracy a, class Way, class T>
status run_two(const Way& way, std::span<const T> x, std::span<T> y1, std::span<T> y2) {
  check_result(x, y1);
  check_result(x, y2);
  require(apart(y1, y2), "lumvm: the two results overlap");
  return way(x.size(), [&](std::size_t first, std::int32_t count) {
    return function_of<F, a, T>(c_pointer(x.data() + first), c_pointer(y1.data() + first), c_pointer(y2.data() + first), count);
  });
}

template <input R> std::span<const element_of<R>> read(const R& range) { return view(range); }

}  // namespace detail
}  // namespace lumvm

#include "lumvm_functions.hpp"

#endif
