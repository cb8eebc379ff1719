// x^y for one y and all x of an array. The exponent's pattern decides: small integers are products, and exponents that have a
// function of their own hand the whole array to its kernel of the same tier, whose status is the call's; here alone a kernel
// calls kernels of another family. All other exponents take the general path.
#include <bit>
#include <cstdint>

#include "frame/kernels.h"
#include "pow/powx_chains.h"
#include "pow/powx_general.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace pow;

// Kernels of a tier. The powers of thirds are null where the general path serves their exponents.
template <class T> struct RootKernels {
  using Function = LumStatus(const T* src, T* dst, int32_t len);
  Function *inv, *sqrt, *inv_sqrt, *pow3o2;
  Function *cbrt = nullptr, *inv_cbrt = nullptr, *pow2o3 = nullptr;
};

// Exponents are compared as patterns: a comparison of numbers would raise flags before the environment is set.
template <class T> constexpr UnsignedOf<T> Pattern(double exponent) {
  return std::bit_cast<UnsignedOf<T>>(static_cast<T>(exponent));
}

template <class T> struct Arguments {
  const T* src;
  T* dst;
  int32_t len;

  LumStatus Call(typename RootKernels<T>::Function* function) const { return function(src, dst, len); }
  template <class K> LumStatus Run(const K& kernel = {}) const { return OneInput<K>(src, dst, len, kernel); }
  // 1/x^n: the power goes to dst, and the reciprocal works in place.
  template <int n> LumStatus ReciprocalOfChain(typename RootKernels<T>::Function* inv) const {
    const auto status = Run<Chain<T, n>>();
    return status == lumStsOk ? inv(dst, dst, len) : status;
  }
};

template <class General, class T> LumStatus WithoutChains(const Arguments<T>& a, T value, const RootKernels<T>& kernels) {
  const auto pattern = std::bit_cast<UnsignedOf<T>>(value);
  switch (pattern) {
    case Pattern<T>(0.0):
    case Pattern<T>(-0.0):
      return FillWithOnes(a.src, a.dst, a.len);
    case Pattern<T>(1):
      return a.template Run<Copy<T>>();
    case Pattern<T>(2):
      return a.template Run<Chain<T, 2>>();
    case Pattern<T>(-1):
      return a.Call(kernels.inv);
    case Pattern<T>(0.5):
      return a.Call(kernels.sqrt);
    case Pattern<T>(-0.5):
      return a.Call(kernels.inv_sqrt);
    case Pattern<T>(1.5):
      return a.Call(kernels.pow3o2);
    default:
      break;
  }
  if (kernels.cbrt != nullptr) {
    switch (pattern) {
      case Pattern<T>(1.0 / 3):
        return a.Call(kernels.cbrt);
      case Pattern<T>(-1.0 / 3):
        return a.Call(kernels.inv_cbrt);
      case Pattern<T>(2.0 / 3):
        return a.Call(kernels.pow2o3);
      default:
        break;
    }
  }
  return a.Run(General{{{}, value}});
}

template <class General, class T> LumStatus WithChains(const Arguments<T>& a, T value, const RootKernels<T>& kernels) {
  switch (std::bit_cast<UnsignedOf<T>>(value)) {
    case Pattern<T>(3):
      return a.template Run<Chain<T, 3>>();
    case Pattern<T>(4):
      return a.template Run<Chain<T, 4>>();
    case Pattern<T>(5):
      return a.template Run<Chain<T, 5>>();
    case Pattern<T>(6):
      return a.template Run<Chain<T, 6>>();
    case Pattern<T>(7):
      return a.template Run<Chain<T, 7>>();
    case Pattern<T>(8):
      return a.template Run<Chain<T, 8>>();
    case Pattern<T>(9):
      return a.template Run<Chain<T, 9>>();
    case Pattern<T>(-2):
      return a.template ReciprocalOfChain<2>(kernels.inv);
    case Pattern<T>(-3):
      return a.template ReciprocalOfChain<3>(kernels.inv);
    case Pattern<T>(-4):
      return a.template ReciprocalOfChain<4>(kernels.inv);
    default:
      return WithoutChains<General>(a, value, kernels);
  }
}

LumStatus Inv_64f_Powx(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<ReciprocalA50>(src, dst, len); }

constexpr RootKernels<Lum32f> kernels_A11 = {Inv_32f_A11,  Sqrt_32f_A11,    InvSqrt_32f_A11, Pow3o2_32f_A11,
                                             Cbrt_32f_A11, InvCbrt_32f_A11, Pow2o3_32f_A11};
constexpr RootKernels<Lum32f> kernels_A21 = {Inv_32f_A24, Sqrt_32f_A21, InvSqrt_32f_A21, Pow3o2_32f_A21};
constexpr RootKernels<Lum32f> kernels_A24 = {Inv_32f_A24, Sqrt_32f_A24, InvSqrt_32f_A24, Pow3o2_32f_A24};
constexpr RootKernels<Lum64f> kernels_A26 = {Inv_64f_A26,  Sqrt_64f_A26,    InvSqrt_64f_A26, Pow3o2_64f_A26,
                                             Cbrt_64f_A26, InvCbrt_64f_A26, Pow2o3_64f_A26};
constexpr RootKernels<Lum64f> kernels_A50 = {Inv_64f_Powx, Sqrt_64f_A50, InvSqrt_64f_A50, Pow3o2_64f_A50};
constexpr RootKernels<Lum64f> kernels_A53 = {Inv_64f_A53, Sqrt_64f_A53, InvSqrt_64f_A53, Pow3o2_64f_A53};

}  // namespace

LumStatus Powx_32f_A11(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len) {
  return WithChains<PowxA11_32f>(Arguments<Lum32f>{src, dst, len}, value, kernels_A11);
}
LumStatus Powx_32f_A21(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len) {
  return WithChains<PowxA21_32f>(Arguments<Lum32f>{src, dst, len}, value, kernels_A21);
}
LumStatus Powx_32f_A24(const Lum32f* src, Lum32f value, Lum32f* dst, int32_t len) {
  return WithoutChains<PowxA24_32f>(Arguments<Lum32f>{src, dst, len}, value, kernels_A24);
}
LumStatus Powx_64f_A26(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len) {
  return WithChains<PowxA26_64f>(Arguments<Lum64f>{src, dst, len}, value, kernels_A26);
}
LumStatus Powx_64f_A50(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len) {
  return WithChains<PowxA50_64f>(Arguments<Lum64f>{src, dst, len}, value, kernels_A50);
}
LumStatus Powx_64f_A53(const Lum64f* src, Lum64f value, Lum64f* dst, int32_t len) {
  return WithoutChains<PowxA53_64f>(Arguments<Lum64f>{src, dst, len}, value, kernels_A53);
}

}  // namespace lum::inline LUM_LAYER
