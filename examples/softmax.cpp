// Softmax of the rows of a matrix of floats, e^(x - m) / sum e^(x - m) with the row's maximum m, as the last layer of a
// classifier computes it: at three accuracy tags, against the same in double precision, and against a loop over <cmath>.
#include <lumvm.hpp>
#include <numeric>
#include <random>

#include "example.h"

namespace {

struct Matrix {
  size_t rows, columns;
  std::vector<float> values;
  float* row(size_t i) { return &values[i * columns]; }
  const float* row(size_t i) const { return &values[i * columns]; }
};

// Logits of the size that trained networks have; every 16th row has one that leaves all others behind.
Matrix RandomLogits(size_t rows, size_t columns) {
  Matrix logits{rows, columns, std::vector<float>(rows * columns)};
  std::mt19937_64 generator(1);
  std::normal_distribution<float> normal(0, 4);
  for (float& x : logits.values) x = normal(generator);
  for (size_t i = 0; i < rows; i += 16) logits.row(i)[i % columns] = 120;
  return logits;
}

// The elements put together by an associative operation, 16 at a time, so that the compiler can use vector instructions.
template <class Operation> float Reduce(const float* x, size_t n, float start, Operation operation) {
  float lanes[16];
  std::fill_n(lanes, 16, start);
  for (; n >= 16; x += 16, n -= 16) {
    for (size_t j = 0; j < 16; ++j) lanes[j] = operation(lanes[j], x[j]);
  }
  for (size_t j = 0; j < n; ++j) lanes[j] = operation(lanes[j], x[j]);
  return std::accumulate(lanes + 1, lanes + 16, lanes[0], operation);
}

// exp turns a row of x - m into e^(x - m) and says whether that went well.
template <class RowExp> bool Softmax(const Matrix& logits, Matrix& result, RowExp exp) {
  bool ok = true;
  const size_t n = logits.columns;
  for (size_t i = 0; i < logits.rows; ++i) {
    const float* x = logits.row(i);
    float* y = result.row(i);
    const float m = Reduce(x, n, x[0], [](float a, float b) { return a > b ? a : b; });
    for (size_t j = 0; j < n; ++j) y[j] = x[j] - m;
    ok &= exp(std::span(y, n));
    const float factor = 1 / Reduce(y, n, 0, std::plus<float>());
    for (size_t j = 0; j < n; ++j) y[j] *= factor;
  }
  return ok;
}

// x - m is never positive, so nothing overflows; underflow is harmless here.
template <lumvm::accuracy a> bool ExpInPlace(std::span<float> x) {
  const lumvm::status status = lumvm::exp<a>(x, x);
  return !status || status.code() == lumStsUnderflow;
}
bool ExpByLoop(std::span<float> x) {
  for (float& value : x) value = std::exp(value);
  return true;
}

struct Level {
  const char* name;
  bool (*exp)(std::span<float>);
  double error;  // of exp, relative to the result
};
constexpr Level levels[] = {{"A11", ExpInPlace<lumvm::low>, 0x1p-11},
                            {"A21", ExpInPlace<lumvm::mid>, 0x1p-21},
                            {"A24", ExpInPlace<lumvm::high>, 0x1p-23}};

// The largest error relative to what it may be: twice that of Exp (numerator and sum), the roundings of x - m, which e^ turns
// into relative errors of |x - m| half ulps, and those of the sum, its reciprocal and the product. Where the quotient is no
// normal number, its digits fade and an absolute error counts.
double WorstError(double error_of_exp, const Matrix& logits, const Matrix& result) {
  double worst = 0;
  for (size_t i = 0; i < logits.rows; ++i) {
    const float* x = logits.row(i);
    const double m = *std::max_element(x, x + logits.columns);
    double sum = 0, mean_distance = 0;
    for (size_t j = 0; j < logits.columns; ++j) sum += std::exp(x[j] - m);
    for (size_t j = 0; j < logits.columns; ++j) mean_distance += (m - x[j]) * std::exp(x[j] - m) / sum;
    const double additions = static_cast<double>(logits.columns) / 16 + 16;
    for (size_t j = 0; j < logits.columns; ++j) {
      const double exact = std::exp(x[j] - m) / sum;
      const double limit = exact * (2 * error_of_exp + 0x1p-24 * (m - x[j] + mean_distance + additions + 2));
      const double error = std::fabs(result.row(i)[j] - exact);
      if (std::isnan(error) || (exact < 0x1p-126 && error > 0x1p-148)) return HUGE_VAL;
      if (exact >= 0x1p-126) worst = std::max(worst, error / limit);
    }
  }
  return worst;
}

double WorstSum(const Matrix& result) {
  double worst = 0;
  for (size_t i = 0; i < result.rows; ++i) {
    double sum = 0;
    for (size_t j = 0; j < result.columns; ++j) sum += result.row(i)[j];
    worst = std::max(worst, std::fabs(sum - 1));
  }
  return worst;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Softmax of the rows of a matrix of floats", "softmax");
  size_t rows = 4096, columns = 1000;
  app.add_option("-r,--rows", rows, "rows of the matrix")->check(CLI::Range(1, 1000000));
  app.add_option("-c,--columns", columns, "elements of a row")->check(CLI::Range(1, 100000));
  return example::Run(app, argc, argv, [&] {
    const Matrix logits = RandomLogits(rows, columns);
    Matrix result = logits;
    const auto millions = static_cast<double>(rows * columns) * 1e-6;
    const double loop = example::Seconds([&] { Softmax(logits, result, ExpByLoop); });
    fmt::print("{} rows of {}\n<cmath>: {:.0f} million elements a second\n", rows, columns, millions / loop);
    bool holds = true;
    for (const Level& level : levels) {
      bool ok = true;
      const double seconds = example::Seconds([&] { ok = Softmax(logits, result, level.exp); });
      fmt::print("{}: {:.0f} million elements a second, {:.1f} times the loop\n", level.name, millions / seconds,
                 loop / seconds);
      holds &=
          example::Check("  error against double precision, relative to the bound", WorstError(level.error, logits, result), 1);
      holds &= example::Check("  sum of a row - 1", WorstSum(result), 0x1p-24 * (static_cast<double>(columns) / 16 + 18));
      if (!ok) fmt::print("  FAILED: a function reported another warning than underflow\n");
      holds &= ok;
    }
    return holds;
  });
}
