// Every function of the C++ interface, at every type and level, gives the results and the status of its C function.
#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <lumvm.hpp>

namespace {

template <class T> T Number(int i) { return static_cast<T>(i * 0.37 - 1.5); }
template <class T> std::vector<T> Elements(int shift) {
  std::vector<T> elements;
  for (int i = 0; i < 40; ++i) {
    if constexpr (lumvm::complex_element<T>) {
      using Part = typename T::value_type;
      elements.emplace_back(Number<Part>(i), Number<Part>(40 - i - shift));
    } else {
      elements.push_back(Number<T>(i + shift));
    }
  }
  return elements;
}

template <class T> bool SameBits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}
template <class T> auto* Pointer(std::vector<T>& elements) { return lumvm::detail::c_pointer(elements.data()); }

template <class T, class U, class Function, class Call> void CompareOne(Function c_function, const Call& call) {
  auto x = Elements<T>(0);
  std::vector<U> expected(x.size()), y(x.size());
  const LumStatus status = c_function(Pointer(x), Pointer(expected), static_cast<int32_t>(x.size()));
  EXPECT_EQ(call(x, y).code(), status);
  EXPECT_TRUE(SameBits(y, expected));
}
template <class T, class Function, class Call> void CompareTwoInputs(Function c_function, const Call& call) {
  auto x1 = Elements<T>(0), x2 = Elements<T>(7);
  std::vector<T> expected(x1.size()), y(x1.size());
  const LumStatus status = c_function(Pointer(x1), Pointer(x2), Pointer(expected), static_cast<int32_t>(x1.size()));
  EXPECT_EQ(call(x1, x2, y).code(), status);
  EXPECT_TRUE(SameBits(y, expected));
}
template <class T, class Function, class Call> void CompareTwoOutputs(Function c_function, const Call& call) {
  auto x = Elements<T>(0);
  std::vector<T> expected1(x.size()), expected2(x.size()), y1(x.size()), y2(x.size());
  const LumStatus status = c_function(Pointer(x), Pointer(expected1), Pointer(expected2), static_cast<int32_t>(x.size()));
  EXPECT_EQ(call(x, y1, y2).code(), status);
  EXPECT_TRUE(SameBits(y1, expected1));
  EXPECT_TRUE(SameBits(y2, expected2));
}
template <class T, class Function, class Call> void CompareParameter(Function c_function, const Call& call) {
  auto x = Elements<T>(0);
  const T value = x[11];
  std::vector<T> expected(x.size()), y(x.size());
  const LumStatus status =
      c_function(Pointer(x), lumvm::detail::c_value(value), Pointer(expected), static_cast<int32_t>(x.size()));
  EXPECT_EQ(call(x, value, y).code(), status);
  EXPECT_TRUE(SameBits(y, expected));
}

#define LUM_CALL(name, level) [](auto&... arguments) { return lumvm::name<lumvm::level>(arguments...); }
// Compare<types>(C function, C++ function) for each exported name.
#define LUM_CPP(compare, c_name, name, level) \
  TEST(Functions, c_name) {                   \
    SCOPED_TRACE(#c_name);                    \
    compare(c_name, LUM_CALL(name, level));   \
  }
#include "cpp_calls.inc"

}  // namespace
