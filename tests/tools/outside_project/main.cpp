// A program outside of this project that calls the library from C++, with the standard library's complex numbers.
#include <lumvm.h>

#include <cmath>
#include <complex>
#include <vector>

int main() {
  const std::vector<std::complex<double>> z = {{3, 4}, {0, 2}, {-5, 12}};
  std::vector<double> modulus(z.size());
  const auto* elements = reinterpret_cast<const Lum64fc*>(z.data());
  if (lumsAbs_64fc_A53(elements, modulus.data(), static_cast<int32_t>(z.size())) != lumStsOk) return 1;
  for (std::size_t i = 0; i < z.size(); ++i) {
    if (std::fabs(modulus[i] - std::abs(z[i])) > 1e-15 * modulus[i]) return 2;
  }
  return 0;
}
