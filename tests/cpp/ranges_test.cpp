// The C++ interface: what counts as a range, what is refused at run time, statuses, and results that come back as vectors.
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <lumvm.hpp>
#include <lumvm_parallel.hpp>
#include <numeric>
#include <valarray>

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

std::vector<double> Exponentials(const std::vector<double>& x) {
  std::vector<double> y(x.size());
  lumsExp_64f_A53(x.data(), y.data(), static_cast<int32_t>(x.size()));
  return y;
}

const std::vector<double> x = {0.5, -1, 2, 30, -0.0};

TEST(Ranges, ContainersOfAllKinds) {
  const auto expected = Exponentials(x);
  std::vector<double> y(5);
  EXPECT_FALSE(lumvm::exp(x, y));
  EXPECT_EQ(y, expected);
  std::array<double, 5> array{};
  EXPECT_FALSE(lumvm::exp(std::span(x), array));
  EXPECT_TRUE(std::ranges::equal(array, expected));
  double plain[5];
  EXPECT_FALSE(lumvm::exp(x, plain));
  EXPECT_TRUE(std::ranges::equal(plain, expected));
  std::valarray<double> values(x.data(), x.size());
  EXPECT_FALSE(lumvm::exp(values, values));
  EXPECT_TRUE(std::equal(std::begin(values), std::end(values), expected.begin()));
  EXPECT_FALSE(lumvm::exp(x, std::span(y).first(5)));
  EXPECT_FALSE(lumvm::exp(std::span<const double, 5>(x), std::span<double, 5>(array)));
  EXPECT_EQ(lumvm::exp(x), expected);
}

TEST(Ranges, EmptyOnesDoNothing) {
  const std::vector<double> nothing;
  std::vector<double> y;
  EXPECT_FALSE(lumvm::exp(nothing, y));
  EXPECT_FALSE(lumvm::exp(lumvm::par, nothing, y));
  EXPECT_TRUE(lumvm::exp(nothing).empty());
}

TEST(Ranges, LevelsAreTheTags) {
  std::vector<double> y(5), expected(5);
  lumsExp_64f_A26(x.data(), expected.data(), 5);
  EXPECT_FALSE(lumvm::exp<lumvm::low>(x, y));
  EXPECT_EQ(y, expected);
  EXPECT_EQ(lumvm::exp<lumvm::low>(x), expected);
  lumsExp_64f_A50(x.data(), expected.data(), 5);
  EXPECT_EQ(lumvm::exp<lumvm::mid>(x), expected);
}

TEST(Ranges, InPlace) {
  std::vector<double> y = x;
  EXPECT_FALSE(lumvm::exp(y, y));
  EXPECT_EQ(y, Exponentials(x));
  y = x;
  const auto products = lumvm::mul(x, x);
  EXPECT_FALSE(lumvm::mul(y, y, y));
  EXPECT_EQ(y, products);
}

TEST(Ranges, TwoResultsAndParameters) {
  const auto [sine, cosine] = lumvm::sincos(x);
  EXPECT_EQ(sine.size(), 5u);
  EXPECT_EQ(cosine[4], 1);
  const auto cubes = lumvm::powx(x, 3);
  EXPECT_EQ(cubes[2], 8);
  const std::vector<std::complex<double>> z = {{3, 4}, {0, 1}};
  const std::vector<double> moduli = lumvm::abs(z);
  EXPECT_EQ(moduli, (std::vector<double>{5, 1}));
  const std::vector<std::complex<double>> turned = lumvm::cis(std::vector<double>{0});
  EXPECT_EQ(turned[0], std::complex<double>(1, 0));
}

TEST(Statuses, NameWhatWasReported) {
  std::vector<double> y(3);
  const lumvm::status overflow = lumvm::exp(std::vector<double>{1, 1000, 2}, y);
  EXPECT_TRUE(overflow);
  EXPECT_EQ(overflow.code(), lumStsOverflow);
  EXPECT_STREQ(overflow.meaning(), "overflow");
  EXPECT_EQ(y[1], inf);
  EXPECT_STREQ(lumvm::log(std::vector<double>{-1, 0, 1}, y).meaning(), "singularity");
  EXPECT_STREQ(lumvm::log(std::vector<double>{0, -1, 1}, y).meaning(), "domain error");
  EXPECT_STREQ(lumvm::exp(std::vector<double>{0, -1000, 1}, y).meaning(), "underflow");
  EXPECT_STREQ(lumvm::log(std::vector<double>{2, 3, 1}, y).meaning(), "ok");
}

// Throws, and leaves the result alone.
template <class Call> void ExpectRefused(const std::vector<double>& result, const Call& call) {
  const std::vector<double> before = result;
  EXPECT_THROW(call(), std::invalid_argument);
  EXPECT_EQ(result, before);
}

TEST(Refused, SizesThatDiffer) {
  std::vector<double> y(4, 7.0), z(5, 7.0);
  ExpectRefused(y, [&] { return lumvm::exp(x, y); });
  ExpectRefused(z, [&] { return lumvm::pow(x, y, z); });
  ExpectRefused(y, [&] { return lumvm::pow(x, x, y); });
  ExpectRefused(z, [&] { return lumvm::sincos(x, z, y); });
  EXPECT_THROW(lumvm::pow(x, y), std::invalid_argument);
  EXPECT_THROW(lumvm::exp(lumvm::par, x, y), std::invalid_argument);
}

TEST(Refused, PartialOverlap) {
  std::vector<double> y = {1, 2, 3, 4, 5, 6};
  const std::span all(y);
  ExpectRefused(y, [&] { return lumvm::exp(all.first(5), all.last(5)); });
  ExpectRefused(y, [&] { return lumvm::exp(all.last(5), all.first(5)); });
  ExpectRefused(y, [&] { return lumvm::mul(all.first(3), all.subspan(1, 3), all.first(3)); });
  ExpectRefused(y, [&] { return lumvm::sincos(all.first(3), all.last(3), all.last(3)); });
  // Next to each other is no overlap.
  EXPECT_FALSE(lumvm::exp(all.first(3), all.last(3)));
  // In an array of another type the same place is an overlap.
  std::vector<std::complex<double>> z(4);
  const std::span<double> parts(reinterpret_cast<double*>(z.data()), 4);
  EXPECT_THROW(lumvm::abs(z, parts), std::invalid_argument);
}

TEST(Parallel, SameBitsAndStatus) {
  std::vector<double> long_x(100001);
  std::iota(long_x.begin(), long_x.end(), -50000.0);
  for (double& value : long_x) value /= 100;
  std::vector<double> y(long_x.size()), z(long_x.size());
  for (const auto place : {size_t{0}, size_t{16383}, size_t{16384}, long_x.size() - 1}) {
    auto changed = long_x;
    changed[place] = 1000;
    const lumvm::status alone = lumvm::exp(changed, y);
    EXPECT_EQ(lumvm::exp(lumvm::par, changed, z), alone);
    EXPECT_EQ(y, z);
  }
  const auto [sine, cosine] = lumvm::sincos<lumvm::low>(lumvm::par, long_x);
  EXPECT_EQ(sine, lumvm::sincos<lumvm::low>(long_x).first);
  EXPECT_EQ(lumvm::powx(lumvm::par, long_x, 2), lumvm::powx(long_x, 2));
  EXPECT_EQ(lumvm::hypot(lumvm::par, long_x, long_x), lumvm::hypot(long_x, long_x));
}

// Parts of a longer array than a C function takes, without the memory: the parts are what is asked for.
TEST(Parts, CoverLongArraysInOrder) {
  std::vector<std::pair<size_t, int32_t>> parts;
  const size_t size = (size_t{1} << 32) + 5;
  const lumvm::status last = lumvm::detail::in_parts(size, [&](size_t first, int32_t count) {
    parts.emplace_back(first, count);
    return parts.size() == 2 ? lumStsDomain : parts.size() == 4 ? lumStsOverflow : lumStsOk;
  });
  ASSERT_EQ(parts.size(), 5u);
  size_t expected_first = 0;
  for (const auto& [first, count] : parts) {
    EXPECT_EQ(first, expected_first);
    expected_first += static_cast<size_t>(count);
  }
  EXPECT_EQ(expected_first, size);
  EXPECT_EQ(last.code(), lumStsOverflow);
}

}  // namespace
