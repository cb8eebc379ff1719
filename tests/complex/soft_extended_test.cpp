// The extended format in integers against the x87 unit, bit for bit: operations, comparisons and conversions.
#include "complex/core/soft_extended.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace lum::portable::complex {
namespace {

#if __LDBL_MANT_DIG__ == 64

constexpr size_t bytes = 10;

template <class T> std::vector<unsigned char> BytesOf(const T& x, size_t size = sizeof(T)) {
  std::vector<unsigned char> result(size);
  std::memcpy(result.data(), &x, size);
  return result;
}
// The x87 unit has no other way to read a signalling NaN as it is.
template <class T> T FromFields(uint16_t upper, uint64_t significand) {
  T x = 0;
  std::memcpy(static_cast<void*>(&x), &significand, 8);
  std::memcpy(reinterpret_cast<char*>(&x) + 8, &upper, 2);
  return x;
}

struct Pair {
  uint16_t upper;
  uint64_t significand;
  long double native() const { return FromFields<long double>(upper, significand); }
  SoftExtended soft() const { return FromFields<SoftExtended>(upper, significand); }
};

class Numbers {
 public:
  Pair Next() {
    const uint64_t kind = engine_() % 16;
    const auto sign = static_cast<uint16_t>(engine_() % 2 << 15);
    const uint64_t significand = Significand() | uint64_t{1} << 63;
    if (kind == 0) return {sign, 0};
    if (kind == 1) return {static_cast<uint16_t>(sign | 0x7fff), uint64_t{1} << 63};
    if (kind == 2) return {static_cast<uint16_t>(sign | 0x7fff), significand};
    if (kind == 3) return {sign, Significand() >> (1 + engine_() % 63)};
    if (kind == 4) return {static_cast<uint16_t>(sign | Exponent(1, 0x7ffe)), significand};
    if (kind == 5) return {static_cast<uint16_t>(sign | Exponent(0x7fc0, 0x7ffe)), significand};
    if (kind == 6) return {static_cast<uint16_t>(sign | Exponent(1, 130)), significand};
    if (kind == 7) return {static_cast<uint16_t>(sign | Exponent(0x3fff / 2, 0x3fff / 2 + 70)), significand};
    if (kind == 8) return {static_cast<uint16_t>(sign | Exponent(0x3fff - 1100, 0x3fff - 1000)), significand};
    if (kind == 9) return {static_cast<uint16_t>(sign | Exponent(0x3fff + 1000, 0x3fff + 1100)), significand};
    return {static_cast<uint16_t>(sign | Exponent(0x3fff - 70, 0x3fff + 70)), significand};
  }

 private:
  // Also such with long runs of equal bits, which make ties and carries.
  uint64_t Significand() {
    const uint64_t random = engine_();
    switch (engine_() % 4) {
      case 0:
        return random << engine_() % 64;
      case 1:
        return ~(random >> engine_() % 64);
      case 2:
        return (random & 0xffffffff00000000) | (uint64_t{1} << engine_() % 64);
      default:
        return random;
    }
  }
  uint16_t Exponent(uint64_t first, uint64_t last) { return static_cast<uint16_t>(first + engine_() % (last - first + 1)); }

  std::mt19937_64 engine_{7};
};

class SoftExtendedNumbers : public testing::Test {
 protected:
  template <class Check> void ForPairs(const Check& check) {
    Numbers numbers;
    for (int i = 0; i < 2'000'000 && !HasFailure(); ++i) {
      const Pair a = numbers.Next(), b = numbers.Next();
      check(a, b);
      if (HasFailure())
        ADD_FAILURE() << std::hex << a.upper << ' ' << a.significand << " and " << b.upper << ' ' << b.significand;
    }
  }
};

TEST_F(SoftExtendedNumbers, Sums) {
  ForPairs([](Pair a, Pair b) {
    ASSERT_EQ(BytesOf(a.soft() + b.soft(), bytes), BytesOf(a.native() + b.native(), bytes));
    ASSERT_EQ(BytesOf(a.soft() - b.soft(), bytes), BytesOf(a.native() - b.native(), bytes));
  });
}

TEST_F(SoftExtendedNumbers, ProductsAndQuotients) {
  ForPairs([](Pair a, Pair b) {
    ASSERT_EQ(BytesOf(a.soft() * b.soft(), bytes), BytesOf(a.native() * b.native(), bytes));
    ASSERT_EQ(BytesOf(a.soft() / b.soft(), bytes), BytesOf(a.native() / b.native(), bytes));
  });
}

TEST_F(SoftExtendedNumbers, Comparisons) {
  ForPairs([](Pair a, Pair b) {
    for (const Pair& other : {a, b}) {
      ASSERT_EQ(a.soft() == other.soft(), a.native() == other.native());
      ASSERT_EQ(a.soft() != other.soft(), a.native() != other.native());
      ASSERT_EQ(a.soft() < other.soft(), a.native() < other.native());
      ASSERT_EQ(a.soft() <= other.soft(), a.native() <= other.native());
      ASSERT_EQ(a.soft() > other.soft(), a.native() > other.native());
      ASSERT_EQ(a.soft() >= other.soft(), a.native() >= other.native());
    }
  });
}

TEST_F(SoftExtendedNumbers, ConversionsToOtherFormats) {
  ForPairs([](Pair a, Pair) {
    ASSERT_EQ(BytesOf(static_cast<double>(a.soft())), BytesOf(static_cast<double>(a.native())));
    ASSERT_EQ(BytesOf(static_cast<float>(a.soft())), BytesOf(static_cast<float>(a.native())));
    if (a.native() > -0x1p62L && a.native() < 0x1p62L) {
      ASSERT_EQ(static_cast<int64_t>(a.soft()), static_cast<int64_t>(a.native()));
    }
  });
}

TEST_F(SoftExtendedNumbers, ConversionsFromOtherFormats) {
  ForPairs([](Pair a, Pair b) {
    const auto wide = std::bit_cast<double>(a.significand ^ static_cast<uint64_t>(b.upper) << 48);
    const auto narrow = std::bit_cast<float>(static_cast<uint32_t>(b.significand >> 20));
    ASSERT_EQ(BytesOf(SoftExtended{wide}, bytes), BytesOf(static_cast<long double>(wide), bytes));
    ASSERT_EQ(BytesOf(SoftExtended{narrow}, bytes), BytesOf(static_cast<long double>(narrow), bytes));
    const auto integer = static_cast<int64_t>(a.significand) >> (b.significand % 64);
    ASSERT_EQ(BytesOf(SoftExtended{integer}, bytes), BytesOf(static_cast<long double>(integer), bytes));
    ASSERT_EQ(BytesOf(SoftExtended{1.0L / static_cast<long double>(integer | 1)}, bytes),
              BytesOf(1.0L / static_cast<long double>(integer | 1), bytes));
  });
}

TEST_F(SoftExtendedNumbers, SignsAndMagnitudesKeepNaNsAsTheyAre) {
  ForPairs([](Pair a, Pair) {
    ASSERT_EQ(BytesOf(-a.soft(), bytes), BytesOf(-a.native(), bytes));
    ASSERT_EQ(BytesOf(magnitude(a.soft()), bytes), BytesOf(__builtin_fabsl(a.native()), bytes));
  });
}

#else

TEST(SoftExtendedNumbers, SameBitsAsTheUnit) { GTEST_SKIP() << "this processor has no x87 unit"; }

#endif

}  // namespace
}  // namespace lum::portable::complex
