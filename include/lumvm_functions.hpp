// Written by tools/make_hpp.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
// The functions in C++. Include lumvm.hpp, which says what holds for all of them; statuses, special values and accuracy are those
// of the C functions in lumvm_functions.h.
#ifndef LUMVM_FUNCTIONS_HPP
#define LUMVM_FUNCTIONS_HPP

#include "lumvm.hpp"

namespace lumvm {

namespace detail {

struct abs;
template <> struct calls<abs, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAbs_32f_A24, lumsAbs_32f_A24, lumsAbs_32f_A24};
};
template <> struct calls<abs, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAbs_64f_A53, lumsAbs_64f_A53, lumsAbs_64f_A53};
};
template <> struct calls<abs, std::complex<float>> {
  using result = float;
  static constexpr one_input<std::complex<float>, float> at[] = {lumsAbs_32fc_A11, lumsAbs_32fc_A21, lumsAbs_32fc_A24};
};
template <> struct calls<abs, std::complex<double>> {
  using result = double;
  static constexpr one_input<std::complex<double>, double> at[] = {lumsAbs_64fc_A26, lumsAbs_64fc_A50, lumsAbs_64fc_A53};
};

struct acos;
template <> struct calls<acos, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAcos_32f_A11, lumsAcos_32f_A21, lumsAcos_32f_A24};
};
template <> struct calls<acos, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAcos_64f_A26, lumsAcos_64f_A50, lumsAcos_64f_A53};
};
template <> struct calls<acos, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAcos_32fc_A11, lumsAcos_32fc_A21, lumsAcos_32fc_A24};
};
template <> struct calls<acos, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAcos_64fc_A26, lumsAcos_64fc_A50, lumsAcos_64fc_A53};
};

struct acosh;
template <> struct calls<acosh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAcosh_32f_A11, lumsAcosh_32f_A21, lumsAcosh_32f_A24};
};
template <> struct calls<acosh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAcosh_64f_A26, lumsAcosh_64f_A50, lumsAcosh_64f_A53};
};
template <> struct calls<acosh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAcosh_32fc_A11, lumsAcosh_32fc_A21, lumsAcosh_32fc_A24};
};
template <> struct calls<acosh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAcosh_64fc_A26, lumsAcosh_64fc_A50, lumsAcosh_64fc_A53};
};

struct add;
template <> struct calls<add, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsAdd_32f_A24, lumsAdd_32f_A24, lumsAdd_32f_A24};
};
template <> struct calls<add, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsAdd_64f_A53, lumsAdd_64f_A53, lumsAdd_64f_A53};
};
template <> struct calls<add, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsAdd_32fc_A24, lumsAdd_32fc_A24, lumsAdd_32fc_A24};
};
template <> struct calls<add, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsAdd_64fc_A53, lumsAdd_64fc_A53, lumsAdd_64fc_A53};
};

struct arg;
template <> struct calls<arg, std::complex<float>> {
  using result = float;
  static constexpr one_input<std::complex<float>, float> at[] = {lumsArg_32fc_A11, lumsArg_32fc_A21, lumsArg_32fc_A24};
};
template <> struct calls<arg, std::complex<double>> {
  using result = double;
  static constexpr one_input<std::complex<double>, double> at[] = {lumsArg_64fc_A26, lumsArg_64fc_A50, lumsArg_64fc_A53};
};

struct asin;
template <> struct calls<asin, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAsin_32f_A11, lumsAsin_32f_A21, lumsAsin_32f_A24};
};
template <> struct calls<asin, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAsin_64f_A26, lumsAsin_64f_A50, lumsAsin_64f_A53};
};
template <> struct calls<asin, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAsin_32fc_A11, lumsAsin_32fc_A21, lumsAsin_32fc_A24};
};
template <> struct calls<asin, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAsin_64fc_A26, lumsAsin_64fc_A50, lumsAsin_64fc_A53};
};

struct asinh;
template <> struct calls<asinh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAsinh_32f_A11, lumsAsinh_32f_A21, lumsAsinh_32f_A24};
};
template <> struct calls<asinh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAsinh_64f_A26, lumsAsinh_64f_A50, lumsAsinh_64f_A53};
};
template <> struct calls<asinh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAsinh_32fc_A11, lumsAsinh_32fc_A21, lumsAsinh_32fc_A24};
};
template <> struct calls<asinh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAsinh_64fc_A26, lumsAsinh_64fc_A50, lumsAsinh_64fc_A53};
};

struct atan;
template <> struct calls<atan, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAtan_32f_A11, lumsAtan_32f_A21, lumsAtan_32f_A24};
};
template <> struct calls<atan, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAtan_64f_A26, lumsAtan_64f_A50, lumsAtan_64f_A53};
};
template <> struct calls<atan, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAtan_32fc_A11, lumsAtan_32fc_A21, lumsAtan_32fc_A24};
};
template <> struct calls<atan, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAtan_64fc_A26, lumsAtan_64fc_A50, lumsAtan_64fc_A53};
};

struct atan2;
template <> struct calls<atan2, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsAtan2_32f_A11, lumsAtan2_32f_A21, lumsAtan2_32f_A24};
};
template <> struct calls<atan2, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsAtan2_64f_A26, lumsAtan2_64f_A50, lumsAtan2_64f_A53};
};

struct atanh;
template <> struct calls<atanh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsAtanh_32f_A11, lumsAtanh_32f_A21, lumsAtanh_32f_A24};
};
template <> struct calls<atanh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsAtanh_64f_A26, lumsAtanh_64f_A50, lumsAtanh_64f_A53};
};
template <> struct calls<atanh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsAtanh_32fc_A11, lumsAtanh_32fc_A21, lumsAtanh_32fc_A24};
};
template <> struct calls<atanh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsAtanh_64fc_A26, lumsAtanh_64fc_A50, lumsAtanh_64fc_A53};
};

struct cbrt;
template <> struct calls<cbrt, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCbrt_32f_A11, lumsCbrt_32f_A21, lumsCbrt_32f_A24};
};
template <> struct calls<cbrt, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCbrt_64f_A26, lumsCbrt_64f_A50, lumsCbrt_64f_A53};
};

struct cdfnorm;
template <> struct calls<cdfnorm, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCdfNorm_32f_A11, lumsCdfNorm_32f_A21, lumsCdfNorm_32f_A24};
};
template <> struct calls<cdfnorm, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCdfNorm_64f_A26, lumsCdfNorm_64f_A50, lumsCdfNorm_64f_A53};
};

struct cdfnorminv;
template <> struct calls<cdfnorminv, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCdfNormInv_32f_A11, lumsCdfNormInv_32f_A21, lumsCdfNormInv_32f_A24};
};
template <> struct calls<cdfnorminv, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCdfNormInv_64f_A26, lumsCdfNormInv_64f_A50, lumsCdfNormInv_64f_A53};
};

struct ceil;
template <> struct calls<ceil, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCeil_32f, lumsCeil_32f, lumsCeil_32f};
};
template <> struct calls<ceil, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCeil_64f, lumsCeil_64f, lumsCeil_64f};
};

struct cis;
template <> struct calls<cis, float> {
  using result = std::complex<float>;
  static constexpr one_input<float, std::complex<float>> at[] = {lumsCIS_32fc_A11, lumsCIS_32fc_A21, lumsCIS_32fc_A24};
};
template <> struct calls<cis, double> {
  using result = std::complex<double>;
  static constexpr one_input<double, std::complex<double>> at[] = {lumsCIS_64fc_A26, lumsCIS_64fc_A50, lumsCIS_64fc_A53};
};

struct conj;
template <> struct calls<conj, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsConj_32fc_A24, lumsConj_32fc_A24, lumsConj_32fc_A24};
};
template <> struct calls<conj, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsConj_64fc_A53, lumsConj_64fc_A53, lumsConj_64fc_A53};
};

struct cos;
template <> struct calls<cos, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCos_32f_A11, lumsCos_32f_A21, lumsCos_32f_A24};
};
template <> struct calls<cos, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCos_64f_A26, lumsCos_64f_A50, lumsCos_64f_A53};
};
template <> struct calls<cos, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsCos_32fc_A11, lumsCos_32fc_A21, lumsCos_32fc_A24};
};
template <> struct calls<cos, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsCos_64fc_A26, lumsCos_64fc_A50, lumsCos_64fc_A53};
};

struct cosh;
template <> struct calls<cosh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsCosh_32f_A11, lumsCosh_32f_A21, lumsCosh_32f_A24};
};
template <> struct calls<cosh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsCosh_64f_A26, lumsCosh_64f_A50, lumsCosh_64f_A53};
};
template <> struct calls<cosh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsCosh_32fc_A11, lumsCosh_32fc_A21, lumsCosh_32fc_A24};
};
template <> struct calls<cosh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsCosh_64fc_A26, lumsCosh_64fc_A50, lumsCosh_64fc_A53};
};

struct div;
template <> struct calls<div, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsDiv_32f_A11, lumsDiv_32f_A21, lumsDiv_32f_A24};
};
template <> struct calls<div, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsDiv_64f_A26, lumsDiv_64f_A50, lumsDiv_64f_A53};
};
template <> struct calls<div, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsDiv_32fc_A11, lumsDiv_32fc_A21, lumsDiv_32fc_A24};
};
template <> struct calls<div, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsDiv_64fc_A26, lumsDiv_64fc_A50, lumsDiv_64fc_A53};
};

struct erf;
template <> struct calls<erf, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsErf_32f_A11, lumsErf_32f_A21, lumsErf_32f_A24};
};
template <> struct calls<erf, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsErf_64f_A26, lumsErf_64f_A50, lumsErf_64f_A53};
};

struct erfc;
template <> struct calls<erfc, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsErfc_32f_A11, lumsErfc_32f_A21, lumsErfc_32f_A24};
};
template <> struct calls<erfc, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsErfc_64f_A26, lumsErfc_64f_A50, lumsErfc_64f_A53};
};

struct erfcinv;
template <> struct calls<erfcinv, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsErfcInv_32f_A11, lumsErfcInv_32f_A21, lumsErfcInv_32f_A24};
};
template <> struct calls<erfcinv, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsErfcInv_64f_A26, lumsErfcInv_64f_A50, lumsErfcInv_64f_A53};
};

struct erfinv;
template <> struct calls<erfinv, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsErfInv_32f_A11, lumsErfInv_32f_A21, lumsErfInv_32f_A24};
};
template <> struct calls<erfinv, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsErfInv_64f_A26, lumsErfInv_64f_A50, lumsErfInv_64f_A53};
};

struct exp;
template <> struct calls<exp, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsExp_32f_A11, lumsExp_32f_A21, lumsExp_32f_A24};
};
template <> struct calls<exp, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsExp_64f_A26, lumsExp_64f_A50, lumsExp_64f_A53};
};
template <> struct calls<exp, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsExp_32fc_A11, lumsExp_32fc_A21, lumsExp_32fc_A24};
};
template <> struct calls<exp, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsExp_64fc_A26, lumsExp_64fc_A50, lumsExp_64fc_A53};
};

struct expm1;
template <> struct calls<expm1, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsExpm1_32f_A11, lumsExpm1_32f_A21, lumsExpm1_32f_A24};
};
template <> struct calls<expm1, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsExpm1_64f_A26, lumsExpm1_64f_A50, lumsExpm1_64f_A53};
};

struct floor;
template <> struct calls<floor, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsFloor_32f, lumsFloor_32f, lumsFloor_32f};
};
template <> struct calls<floor, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsFloor_64f, lumsFloor_64f, lumsFloor_64f};
};

struct frac;
template <> struct calls<frac, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsFrac_32f, lumsFrac_32f, lumsFrac_32f};
};
template <> struct calls<frac, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsFrac_64f, lumsFrac_64f, lumsFrac_64f};
};

struct hypot;
template <> struct calls<hypot, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsHypot_32f_A11, lumsHypot_32f_A21, lumsHypot_32f_A24};
};
template <> struct calls<hypot, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsHypot_64f_A26, lumsHypot_64f_A50, lumsHypot_64f_A53};
};

struct inv;
template <> struct calls<inv, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsInv_32f_A11, lumsInv_32f_A21, lumsInv_32f_A24};
};
template <> struct calls<inv, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsInv_64f_A26, lumsInv_64f_A50, lumsInv_64f_A53};
};

struct invcbrt;
template <> struct calls<invcbrt, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsInvCbrt_32f_A11, lumsInvCbrt_32f_A21, lumsInvCbrt_32f_A24};
};
template <> struct calls<invcbrt, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsInvCbrt_64f_A26, lumsInvCbrt_64f_A50, lumsInvCbrt_64f_A53};
};

struct invsqrt;
template <> struct calls<invsqrt, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsInvSqrt_32f_A11, lumsInvSqrt_32f_A21, lumsInvSqrt_32f_A24};
};
template <> struct calls<invsqrt, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsInvSqrt_64f_A26, lumsInvSqrt_64f_A50, lumsInvSqrt_64f_A53};
};

struct log;
template <> struct calls<log, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsLn_32f_A11, lumsLn_32f_A21, lumsLn_32f_A24};
};
template <> struct calls<log, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsLn_64f_A26, lumsLn_64f_A50, lumsLn_64f_A53};
};
template <> struct calls<log, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsLn_32fc_A11, lumsLn_32fc_A21, lumsLn_32fc_A24};
};
template <> struct calls<log, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsLn_64fc_A26, lumsLn_64fc_A50, lumsLn_64fc_A53};
};

struct log10;
template <> struct calls<log10, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsLog10_32f_A11, lumsLog10_32f_A21, lumsLog10_32f_A24};
};
template <> struct calls<log10, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsLog10_64f_A26, lumsLog10_64f_A50, lumsLog10_64f_A53};
};
template <> struct calls<log10, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsLog10_32fc_A11, lumsLog10_32fc_A21, lumsLog10_32fc_A24};
};
template <> struct calls<log10, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsLog10_64fc_A26, lumsLog10_64fc_A50, lumsLog10_64fc_A53};
};

struct log1p;
template <> struct calls<log1p, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsLog1p_32f_A11, lumsLog1p_32f_A21, lumsLog1p_32f_A24};
};
template <> struct calls<log1p, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsLog1p_64f_A26, lumsLog1p_64f_A50, lumsLog1p_64f_A53};
};

struct modf;
template <> struct calls<modf, float> {
  using result = float;
  static constexpr two_outputs<float> at[] = {lumsModf_32f, lumsModf_32f, lumsModf_32f};
};
template <> struct calls<modf, double> {
  using result = double;
  static constexpr two_outputs<double> at[] = {lumsModf_64f, lumsModf_64f, lumsModf_64f};
};

struct mul;
template <> struct calls<mul, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsMul_32f_A24, lumsMul_32f_A24, lumsMul_32f_A24};
};
template <> struct calls<mul, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsMul_64f_A53, lumsMul_64f_A53, lumsMul_64f_A53};
};
template <> struct calls<mul, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsMul_32fc_A11, lumsMul_32fc_A21, lumsMul_32fc_A24};
};
template <> struct calls<mul, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsMul_64fc_A26, lumsMul_64fc_A50, lumsMul_64fc_A53};
};

struct mulbyconj;
template <> struct calls<mulbyconj, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsMulByConj_32fc_A11, lumsMulByConj_32fc_A21, lumsMulByConj_32fc_A24};
};
template <> struct calls<mulbyconj, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsMulByConj_64fc_A26, lumsMulByConj_64fc_A50, lumsMulByConj_64fc_A53};
};

struct nearbyint;
template <> struct calls<nearbyint, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsNearbyInt_32f, lumsNearbyInt_32f, lumsNearbyInt_32f};
};
template <> struct calls<nearbyint, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsNearbyInt_64f, lumsNearbyInt_64f, lumsNearbyInt_64f};
};

struct pow;
template <> struct calls<pow, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsPow_32f_A11, lumsPow_32f_A21, lumsPow_32f_A24};
};
template <> struct calls<pow, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsPow_64f_A26, lumsPow_64f_A50, lumsPow_64f_A53};
};
template <> struct calls<pow, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsPow_32fc_A11, lumsPow_32fc_A21, lumsPow_32fc_A24};
};
template <> struct calls<pow, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsPow_64fc_A26, lumsPow_64fc_A50, lumsPow_64fc_A53};
};

struct pow2o3;
template <> struct calls<pow2o3, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsPow2o3_32f_A11, lumsPow2o3_32f_A21, lumsPow2o3_32f_A24};
};
template <> struct calls<pow2o3, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsPow2o3_64f_A26, lumsPow2o3_64f_A50, lumsPow2o3_64f_A53};
};

struct pow3o2;
template <> struct calls<pow3o2, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsPow3o2_32f_A11, lumsPow3o2_32f_A21, lumsPow3o2_32f_A24};
};
template <> struct calls<pow3o2, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsPow3o2_64f_A26, lumsPow3o2_64f_A50, lumsPow3o2_64f_A53};
};

struct powx;
template <> struct calls<powx, float> {
  using result = float;
  static constexpr with_parameter<float> at[] = {lumsPowx_32f_A11, lumsPowx_32f_A21, lumsPowx_32f_A24};
};
template <> struct calls<powx, double> {
  using result = double;
  static constexpr with_parameter<double> at[] = {lumsPowx_64f_A26, lumsPowx_64f_A50, lumsPowx_64f_A53};
};
template <> struct calls<powx, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr with_parameter<std::complex<float>> at[] = {lumsPowx_32fc_A11, lumsPowx_32fc_A21, lumsPowx_32fc_A24};
};
template <> struct calls<powx, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr with_parameter<std::complex<double>> at[] = {lumsPowx_64fc_A26, lumsPowx_64fc_A50, lumsPowx_64fc_A53};
};

struct rint;
template <> struct calls<rint, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsRint_32f, lumsRint_32f, lumsRint_32f};
};
template <> struct calls<rint, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsRint_64f, lumsRint_64f, lumsRint_64f};
};

struct round;
template <> struct calls<round, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsRound_32f, lumsRound_32f, lumsRound_32f};
};
template <> struct calls<round, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsRound_64f, lumsRound_64f, lumsRound_64f};
};

struct sin;
template <> struct calls<sin, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsSin_32f_A11, lumsSin_32f_A21, lumsSin_32f_A24};
};
template <> struct calls<sin, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsSin_64f_A26, lumsSin_64f_A50, lumsSin_64f_A53};
};
template <> struct calls<sin, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsSin_32fc_A11, lumsSin_32fc_A21, lumsSin_32fc_A24};
};
template <> struct calls<sin, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsSin_64fc_A26, lumsSin_64fc_A50, lumsSin_64fc_A53};
};

struct sincos;
template <> struct calls<sincos, float> {
  using result = float;
  static constexpr two_outputs<float> at[] = {lumsSinCos_32f_A11, lumsSinCos_32f_A21, lumsSinCos_32f_A24};
};
template <> struct calls<sincos, double> {
  using result = double;
  static constexpr two_outputs<double> at[] = {lumsSinCos_64f_A26, lumsSinCos_64f_A50, lumsSinCos_64f_A53};
};

struct sinh;
template <> struct calls<sinh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsSinh_32f_A11, lumsSinh_32f_A21, lumsSinh_32f_A24};
};
template <> struct calls<sinh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsSinh_64f_A26, lumsSinh_64f_A50, lumsSinh_64f_A53};
};
template <> struct calls<sinh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsSinh_32fc_A11, lumsSinh_32fc_A21, lumsSinh_32fc_A24};
};
template <> struct calls<sinh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsSinh_64fc_A26, lumsSinh_64fc_A50, lumsSinh_64fc_A53};
};

struct sqr;
template <> struct calls<sqr, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsSqr_32f_A24, lumsSqr_32f_A24, lumsSqr_32f_A24};
};
template <> struct calls<sqr, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsSqr_64f_A53, lumsSqr_64f_A53, lumsSqr_64f_A53};
};

struct sqrt;
template <> struct calls<sqrt, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsSqrt_32f_A11, lumsSqrt_32f_A21, lumsSqrt_32f_A24};
};
template <> struct calls<sqrt, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsSqrt_64f_A26, lumsSqrt_64f_A50, lumsSqrt_64f_A53};
};
template <> struct calls<sqrt, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsSqrt_32fc_A11, lumsSqrt_32fc_A21, lumsSqrt_32fc_A24};
};
template <> struct calls<sqrt, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsSqrt_64fc_A26, lumsSqrt_64fc_A50, lumsSqrt_64fc_A53};
};

struct sub;
template <> struct calls<sub, float> {
  using result = float;
  static constexpr two_inputs<float> at[] = {lumsSub_32f_A24, lumsSub_32f_A24, lumsSub_32f_A24};
};
template <> struct calls<sub, double> {
  using result = double;
  static constexpr two_inputs<double> at[] = {lumsSub_64f_A53, lumsSub_64f_A53, lumsSub_64f_A53};
};
template <> struct calls<sub, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr two_inputs<std::complex<float>> at[] = {lumsSub_32fc_A24, lumsSub_32fc_A24, lumsSub_32fc_A24};
};
template <> struct calls<sub, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr two_inputs<std::complex<double>> at[] = {lumsSub_64fc_A53, lumsSub_64fc_A53, lumsSub_64fc_A53};
};

struct tan;
template <> struct calls<tan, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsTan_32f_A11, lumsTan_32f_A21, lumsTan_32f_A24};
};
template <> struct calls<tan, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsTan_64f_A26, lumsTan_64f_A50, lumsTan_64f_A53};
};
template <> struct calls<tan, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsTan_32fc_A11, lumsTan_32fc_A21, lumsTan_32fc_A24};
};
template <> struct calls<tan, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsTan_64fc_A26, lumsTan_64fc_A50, lumsTan_64fc_A53};
};

struct tanh;
template <> struct calls<tanh, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsTanh_32f_A11, lumsTanh_32f_A21, lumsTanh_32f_A24};
};
template <> struct calls<tanh, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsTanh_64f_A26, lumsTanh_64f_A50, lumsTanh_64f_A53};
};
template <> struct calls<tanh, std::complex<float>> {
  using result = std::complex<float>;
  static constexpr one_input<std::complex<float>, std::complex<float>> at[] = {lumsTanh_32fc_A11, lumsTanh_32fc_A21, lumsTanh_32fc_A24};
};
template <> struct calls<tanh, std::complex<double>> {
  using result = std::complex<double>;
  static constexpr one_input<std::complex<double>, std::complex<double>> at[] = {lumsTanh_64fc_A26, lumsTanh_64fc_A50, lumsTanh_64fc_A53};
};

struct trunc;
template <> struct calls<trunc, float> {
  using result = float;
  static constexpr one_input<float, float> at[] = {lumsTrunc_32f, lumsTrunc_32f, lumsTrunc_32f};
};
template <> struct calls<trunc, double> {
  using result = double;
  static constexpr one_input<double, double> at[] = {lumsTrunc_64f, lumsTrunc_64f, lumsTrunc_64f};
};

}  // namespace detail

// |x|, the magnitude. Complex: The modulus |z|, into an array of real numbers.
// lumsAbs: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::abs, X, Y>
status abs(const X& x, Y&& y) {
  return detail::run<detail::abs, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::abs, X>
auto abs(const X& x) {
  std::vector<detail::result_of<detail::abs, element_of<X>>> y(detail::view(x).size());
  abs<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::abs, X, Y>
status abs(const W& way, const X& x, Y&& y) {
  return detail::run<detail::abs, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::abs, X>
auto abs(const W& way, const X& x) {
  std::vector<detail::result_of<detail::abs, element_of<X>>> y(detail::view(x).size());
  abs<a>(way, x, y);
  return y;
}

// The angle in [0, pi] whose cosine is x. Complex: The principal arc cosine of z, its real part in [0, pi]. All tags are
// one function, right in each part nearly always to the last bit.
// lumsAcos: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::acos, X, Y>
status acos(const X& x, Y&& y) {
  return detail::run<detail::acos, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::acos, X>
auto acos(const X& x) {
  std::vector<detail::result_of<detail::acos, element_of<X>>> y(detail::view(x).size());
  acos<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::acos, X, Y>
status acos(const W& way, const X& x, Y&& y) {
  return detail::run<detail::acos, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::acos, X>
auto acos(const W& way, const X& x) {
  std::vector<detail::result_of<detail::acos, element_of<X>>> y(detail::view(x).size());
  acos<a>(way, x, y);
  return y;
}

// The number that is not negative and whose hyperbolic cosine is x. Complex: The principal inverse hyperbolic cosine of z,
// its real part not negative. All tags are one function, right in each part nearly always to the last bit.
// lumsAcosh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::acosh, X, Y>
status acosh(const X& x, Y&& y) {
  return detail::run<detail::acosh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::acosh, X>
auto acosh(const X& x) {
  std::vector<detail::result_of<detail::acosh, element_of<X>>> y(detail::view(x).size());
  acosh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::acosh, X, Y>
status acosh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::acosh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::acosh, X>
auto acosh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::acosh, element_of<X>>> y(detail::view(x).size());
  acosh<a>(way, x, y);
  return y;
}

// src1 + src2; complex numbers part by part.
// lumsAdd: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::add, X1, Y> && detail::same_elements<X1, X2>
status add(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::add, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::add, X1> && detail::same_elements<X1, X2>
auto add(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::add, element_of<X1>>> y(detail::view(x1).size());
  add<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::add, X1, Y> && detail::same_elements<X1, X2>
status add(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::add, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::add, X1> && detail::same_elements<X1, X2>
auto add(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::add, element_of<X1>>> y(detail::view(x1).size());
  add<a>(way, x1, x2, y);
  return y;
}

// The angle of z in [-pi, pi], into an array of real numbers.
// lumsArg: std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::arg, X, Y>
status arg(const X& x, Y&& y) {
  return detail::run<detail::arg, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::arg, X>
auto arg(const X& x) {
  std::vector<detail::result_of<detail::arg, element_of<X>>> y(detail::view(x).size());
  arg<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::arg, X, Y>
status arg(const W& way, const X& x, Y&& y) {
  return detail::run<detail::arg, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::arg, X>
auto arg(const W& way, const X& x) {
  std::vector<detail::result_of<detail::arg, element_of<X>>> y(detail::view(x).size());
  arg<a>(way, x, y);
  return y;
}

// The angle in [-pi/2, pi/2] whose sine is x. Complex: The principal arc sine of z, its real part in [-pi/2, pi/2]. All
// tags are one function, right in each part nearly always to the last bit.
// lumsAsin: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::asin, X, Y>
status asin(const X& x, Y&& y) {
  return detail::run<detail::asin, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::asin, X>
auto asin(const X& x) {
  std::vector<detail::result_of<detail::asin, element_of<X>>> y(detail::view(x).size());
  asin<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::asin, X, Y>
status asin(const W& way, const X& x, Y&& y) {
  return detail::run<detail::asin, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::asin, X>
auto asin(const W& way, const X& x) {
  std::vector<detail::result_of<detail::asin, element_of<X>>> y(detail::view(x).size());
  asin<a>(way, x, y);
  return y;
}

// The number whose hyperbolic sine is x. Complex: The principal inverse hyperbolic sine of z, its imaginary part in [-pi/2,
// pi/2]. All tags are one function, right in each part nearly always to the last bit.
// lumsAsinh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::asinh, X, Y>
status asinh(const X& x, Y&& y) {
  return detail::run<detail::asinh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::asinh, X>
auto asinh(const X& x) {
  std::vector<detail::result_of<detail::asinh, element_of<X>>> y(detail::view(x).size());
  asinh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::asinh, X, Y>
status asinh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::asinh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::asinh, X>
auto asinh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::asinh, element_of<X>>> y(detail::view(x).size());
  asinh<a>(way, x, y);
  return y;
}

// The angle in [-pi/2, pi/2] whose tangent is x. Complex: The principal arc tangent of z, its real part in [-pi/2, pi/2].
// All tags are one function, right in each part nearly always to the last bit.
// lumsAtan: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::atan, X, Y>
status atan(const X& x, Y&& y) {
  return detail::run<detail::atan, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::atan, X>
auto atan(const X& x) {
  std::vector<detail::result_of<detail::atan, element_of<X>>> y(detail::view(x).size());
  atan<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::atan, X, Y>
status atan(const W& way, const X& x, Y&& y) {
  return detail::run<detail::atan, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::atan, X>
auto atan(const W& way, const X& x) {
  std::vector<detail::result_of<detail::atan, element_of<X>>> y(detail::view(x).size());
  atan<a>(way, x, y);
  return y;
}

// The angle in [-pi, pi] of the point with ordinate src1 and abscissa src2.
// lumsAtan2: float, double.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::atan2, X1, Y> && detail::same_elements<X1, X2>
status atan2(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::atan2, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::atan2, X1> && detail::same_elements<X1, X2>
auto atan2(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::atan2, element_of<X1>>> y(detail::view(x1).size());
  atan2<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::atan2, X1, Y> && detail::same_elements<X1, X2>
status atan2(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::atan2, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::atan2, X1> && detail::same_elements<X1, X2>
auto atan2(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::atan2, element_of<X1>>> y(detail::view(x1).size());
  atan2<a>(way, x1, x2, y);
  return y;
}

// The number whose hyperbolic tangent is x. Complex: The principal inverse hyperbolic tangent of z, its imaginary part in
// [-pi/2, pi/2]. All tags are one function, right in each part nearly always to the last bit.
// lumsAtanh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::atanh, X, Y>
status atanh(const X& x, Y&& y) {
  return detail::run<detail::atanh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::atanh, X>
auto atanh(const X& x) {
  std::vector<detail::result_of<detail::atanh, element_of<X>>> y(detail::view(x).size());
  atanh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::atanh, X, Y>
status atanh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::atanh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::atanh, X>
auto atanh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::atanh, element_of<X>>> y(detail::view(x).size());
  atanh<a>(way, x, y);
  return y;
}

// The cube root of x.
// lumsCbrt: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cbrt, X, Y>
status cbrt(const X& x, Y&& y) {
  return detail::run<detail::cbrt, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cbrt, X>
auto cbrt(const X& x) {
  std::vector<detail::result_of<detail::cbrt, element_of<X>>> y(detail::view(x).size());
  cbrt<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cbrt, X, Y>
status cbrt(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cbrt, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cbrt, X>
auto cbrt(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cbrt, element_of<X>>> y(detail::view(x).size());
  cbrt<a>(way, x, y);
  return y;
}

// The distribution function of the standard normal distribution, erfc(-x/sqrt(2))/2.
// lumsCdfNorm: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cdfnorm, X, Y>
status cdfnorm(const X& x, Y&& y) {
  return detail::run<detail::cdfnorm, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cdfnorm, X>
auto cdfnorm(const X& x) {
  std::vector<detail::result_of<detail::cdfnorm, element_of<X>>> y(detail::view(x).size());
  cdfnorm<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cdfnorm, X, Y>
status cdfnorm(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cdfnorm, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cdfnorm, X>
auto cdfnorm(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cdfnorm, element_of<X>>> y(detail::view(x).size());
  cdfnorm<a>(way, x, y);
  return y;
}

// The quantile of the standard normal distribution: the x with cdfnorm(x) = p.
// lumsCdfNormInv: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cdfnorminv, X, Y>
status cdfnorminv(const X& x, Y&& y) {
  return detail::run<detail::cdfnorminv, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cdfnorminv, X>
auto cdfnorminv(const X& x) {
  std::vector<detail::result_of<detail::cdfnorminv, element_of<X>>> y(detail::view(x).size());
  cdfnorminv<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cdfnorminv, X, Y>
status cdfnorminv(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cdfnorminv, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cdfnorminv, X>
auto cdfnorminv(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cdfnorminv, element_of<X>>> y(detail::view(x).size());
  cdfnorminv<a>(way, x, y);
  return y;
}

// The smallest integer not below x.
// lumsCeil: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::ceil, X, Y>
status ceil(const X& x, Y&& y) {
  return detail::run<detail::ceil, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::ceil, X>
auto ceil(const X& x) {
  std::vector<detail::result_of<detail::ceil, element_of<X>>> y(detail::view(x).size());
  ceil<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::ceil, X, Y>
status ceil(const W& way, const X& x, Y&& y) {
  return detail::run<detail::ceil, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::ceil, X>
auto ceil(const W& way, const X& x) {
  std::vector<detail::result_of<detail::ceil, element_of<X>>> y(detail::view(x).size());
  ceil<a>(way, x, y);
  return y;
}

// cos x + i sin x, the complex exponential of i x, of a real x in radians; exact reduction of arguments of any size.
// lumsCIS: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cis, X, Y>
status cis(const X& x, Y&& y) {
  return detail::run<detail::cis, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cis, X>
auto cis(const X& x) {
  std::vector<detail::result_of<detail::cis, element_of<X>>> y(detail::view(x).size());
  cis<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cis, X, Y>
status cis(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cis, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cis, X>
auto cis(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cis, element_of<X>>> y(detail::view(x).size());
  cis<a>(way, x, y);
  return y;
}

// The complex conjugate (re, -im).
// lumsConj: std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::conj, X, Y>
status conj(const X& x, Y&& y) {
  return detail::run<detail::conj, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::conj, X>
auto conj(const X& x) {
  std::vector<detail::result_of<detail::conj, element_of<X>>> y(detail::view(x).size());
  conj<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::conj, X, Y>
status conj(const W& way, const X& x, Y&& y) {
  return detail::run<detail::conj, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::conj, X>
auto conj(const W& way, const X& x) {
  std::vector<detail::result_of<detail::conj, element_of<X>>> y(detail::view(x).size());
  conj<a>(way, x, y);
  return y;
}

// The cosine of x, in radians; exact reduction of arguments of any size. Complex: The cosine of z. All tags are one
// function, right in each part nearly always to the last bit.
// lumsCos: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cos, X, Y>
status cos(const X& x, Y&& y) {
  return detail::run<detail::cos, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cos, X>
auto cos(const X& x) {
  std::vector<detail::result_of<detail::cos, element_of<X>>> y(detail::view(x).size());
  cos<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cos, X, Y>
status cos(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cos, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cos, X>
auto cos(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cos, element_of<X>>> y(detail::view(x).size());
  cos<a>(way, x, y);
  return y;
}

// The hyperbolic cosine of x. Complex: The hyperbolic cosine of z. All tags are one function, right in each part nearly
// always to the last bit.
// lumsCosh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::cosh, X, Y>
status cosh(const X& x, Y&& y) {
  return detail::run<detail::cosh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::cosh, X>
auto cosh(const X& x) {
  std::vector<detail::result_of<detail::cosh, element_of<X>>> y(detail::view(x).size());
  cosh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::cosh, X, Y>
status cosh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::cosh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::cosh, X>
auto cosh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::cosh, element_of<X>>> y(detail::view(x).size());
  cosh<a>(way, x, y);
  return y;
}

// src1 / src2. Complex: src1 / src2. The low tags multiply by an estimate of a reciprocal.
// lumsDiv: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::div, X1, Y> && detail::same_elements<X1, X2>
status div(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::div, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::div, X1> && detail::same_elements<X1, X2>
auto div(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::div, element_of<X1>>> y(detail::view(x1).size());
  div<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::div, X1, Y> && detail::same_elements<X1, X2>
status div(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::div, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::div, X1> && detail::same_elements<X1, X2>
auto div(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::div, element_of<X1>>> y(detail::view(x1).size());
  div<a>(way, x1, x2, y);
  return y;
}

// The error function, 2/sqrt(pi) times the integral of exp(-t^2) over t from 0 to x.
// lumsErf: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::erf, X, Y>
status erf(const X& x, Y&& y) {
  return detail::run<detail::erf, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::erf, X>
auto erf(const X& x) {
  std::vector<detail::result_of<detail::erf, element_of<X>>> y(detail::view(x).size());
  erf<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::erf, X, Y>
status erf(const W& way, const X& x, Y&& y) {
  return detail::run<detail::erf, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::erf, X>
auto erf(const W& way, const X& x) {
  std::vector<detail::result_of<detail::erf, element_of<X>>> y(detail::view(x).size());
  erf<a>(way, x, y);
  return y;
}

// The complementary error function, 1 - erf(x), accurate also where it is tiny.
// lumsErfc: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::erfc, X, Y>
status erfc(const X& x, Y&& y) {
  return detail::run<detail::erfc, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::erfc, X>
auto erfc(const X& x) {
  std::vector<detail::result_of<detail::erfc, element_of<X>>> y(detail::view(x).size());
  erfc<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::erfc, X, Y>
status erfc(const W& way, const X& x, Y&& y) {
  return detail::run<detail::erfc, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::erfc, X>
auto erfc(const W& way, const X& x) {
  std::vector<detail::result_of<detail::erfc, element_of<X>>> y(detail::view(x).size());
  erfc<a>(way, x, y);
  return y;
}

// The inverse of the complementary error function: the y with erfc(y) = x.
// lumsErfcInv: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::erfcinv, X, Y>
status erfcinv(const X& x, Y&& y) {
  return detail::run<detail::erfcinv, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::erfcinv, X>
auto erfcinv(const X& x) {
  std::vector<detail::result_of<detail::erfcinv, element_of<X>>> y(detail::view(x).size());
  erfcinv<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::erfcinv, X, Y>
status erfcinv(const W& way, const X& x, Y&& y) {
  return detail::run<detail::erfcinv, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::erfcinv, X>
auto erfcinv(const W& way, const X& x) {
  std::vector<detail::result_of<detail::erfcinv, element_of<X>>> y(detail::view(x).size());
  erfcinv<a>(way, x, y);
  return y;
}

// The inverse of the error function: the y with erf(y) = x.
// lumsErfInv: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::erfinv, X, Y>
status erfinv(const X& x, Y&& y) {
  return detail::run<detail::erfinv, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::erfinv, X>
auto erfinv(const X& x) {
  std::vector<detail::result_of<detail::erfinv, element_of<X>>> y(detail::view(x).size());
  erfinv<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::erfinv, X, Y>
status erfinv(const W& way, const X& x, Y&& y) {
  return detail::run<detail::erfinv, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::erfinv, X>
auto erfinv(const W& way, const X& x) {
  std::vector<detail::result_of<detail::erfinv, element_of<X>>> y(detail::view(x).size());
  erfinv<a>(way, x, y);
  return y;
}

// e to the power of x. Complex: e to the power z. A21 is A11 and A50 is A26.
// lumsExp: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::exp, X, Y>
status exp(const X& x, Y&& y) {
  return detail::run<detail::exp, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::exp, X>
auto exp(const X& x) {
  std::vector<detail::result_of<detail::exp, element_of<X>>> y(detail::view(x).size());
  exp<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::exp, X, Y>
status exp(const W& way, const X& x, Y&& y) {
  return detail::run<detail::exp, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::exp, X>
auto exp(const W& way, const X& x) {
  std::vector<detail::result_of<detail::exp, element_of<X>>> y(detail::view(x).size());
  exp<a>(way, x, y);
  return y;
}

// e to the power of x, minus 1, accurate also next to x = 0.
// lumsExpm1: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::expm1, X, Y>
status expm1(const X& x, Y&& y) {
  return detail::run<detail::expm1, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::expm1, X>
auto expm1(const X& x) {
  std::vector<detail::result_of<detail::expm1, element_of<X>>> y(detail::view(x).size());
  expm1<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::expm1, X, Y>
status expm1(const W& way, const X& x, Y&& y) {
  return detail::run<detail::expm1, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::expm1, X>
auto expm1(const W& way, const X& x) {
  std::vector<detail::result_of<detail::expm1, element_of<X>>> y(detail::view(x).size());
  expm1<a>(way, x, y);
  return y;
}

// The largest integer not above x.
// lumsFloor: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::floor, X, Y>
status floor(const X& x, Y&& y) {
  return detail::run<detail::floor, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::floor, X>
auto floor(const X& x) {
  std::vector<detail::result_of<detail::floor, element_of<X>>> y(detail::view(x).size());
  floor<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::floor, X, Y>
status floor(const W& way, const X& x, Y&& y) {
  return detail::run<detail::floor, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::floor, X>
auto floor(const W& way, const X& x) {
  std::vector<detail::result_of<detail::floor, element_of<X>>> y(detail::view(x).size());
  floor<a>(way, x, y);
  return y;
}

// The fractional part x - trunc(x), with the sign of x.
// lumsFrac: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::frac, X, Y>
status frac(const X& x, Y&& y) {
  return detail::run<detail::frac, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::frac, X>
auto frac(const X& x) {
  std::vector<detail::result_of<detail::frac, element_of<X>>> y(detail::view(x).size());
  frac<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::frac, X, Y>
status frac(const W& way, const X& x, Y&& y) {
  return detail::run<detail::frac, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::frac, X>
auto frac(const W& way, const X& x) {
  std::vector<detail::result_of<detail::frac, element_of<X>>> y(detail::view(x).size());
  frac<a>(way, x, y);
  return y;
}

// sqrt(src1^2 + src2^2), without overflow or underflow on the way.
// lumsHypot: float, double.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::hypot, X1, Y> && detail::same_elements<X1, X2>
status hypot(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::hypot, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::hypot, X1> && detail::same_elements<X1, X2>
auto hypot(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::hypot, element_of<X1>>> y(detail::view(x1).size());
  hypot<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::hypot, X1, Y> && detail::same_elements<X1, X2>
status hypot(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::hypot, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::hypot, X1> && detail::same_elements<X1, X2>
auto hypot(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::hypot, element_of<X1>>> y(detail::view(x1).size());
  hypot<a>(way, x1, x2, y);
  return y;
}

// 1 / x.
// lumsInv: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::inv, X, Y>
status inv(const X& x, Y&& y) {
  return detail::run<detail::inv, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::inv, X>
auto inv(const X& x) {
  std::vector<detail::result_of<detail::inv, element_of<X>>> y(detail::view(x).size());
  inv<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::inv, X, Y>
status inv(const W& way, const X& x, Y&& y) {
  return detail::run<detail::inv, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::inv, X>
auto inv(const W& way, const X& x) {
  std::vector<detail::result_of<detail::inv, element_of<X>>> y(detail::view(x).size());
  inv<a>(way, x, y);
  return y;
}

// 1 / cbrt(x), the reciprocal of the cube root.
// lumsInvCbrt: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::invcbrt, X, Y>
status invcbrt(const X& x, Y&& y) {
  return detail::run<detail::invcbrt, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::invcbrt, X>
auto invcbrt(const X& x) {
  std::vector<detail::result_of<detail::invcbrt, element_of<X>>> y(detail::view(x).size());
  invcbrt<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::invcbrt, X, Y>
status invcbrt(const W& way, const X& x, Y&& y) {
  return detail::run<detail::invcbrt, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::invcbrt, X>
auto invcbrt(const W& way, const X& x) {
  std::vector<detail::result_of<detail::invcbrt, element_of<X>>> y(detail::view(x).size());
  invcbrt<a>(way, x, y);
  return y;
}

// 1 / sqrt(x).
// lumsInvSqrt: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::invsqrt, X, Y>
status invsqrt(const X& x, Y&& y) {
  return detail::run<detail::invsqrt, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::invsqrt, X>
auto invsqrt(const X& x) {
  std::vector<detail::result_of<detail::invsqrt, element_of<X>>> y(detail::view(x).size());
  invsqrt<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::invsqrt, X, Y>
status invsqrt(const W& way, const X& x, Y&& y) {
  return detail::run<detail::invsqrt, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::invsqrt, X>
auto invsqrt(const W& way, const X& x) {
  std::vector<detail::result_of<detail::invsqrt, element_of<X>>> y(detail::view(x).size());
  invsqrt<a>(way, x, y);
  return y;
}

// The natural logarithm of x. Complex: The principal natural logarithm, the imaginary part in [-pi, pi].
// lumsLn: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::log, X, Y>
status log(const X& x, Y&& y) {
  return detail::run<detail::log, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::log, X>
auto log(const X& x) {
  std::vector<detail::result_of<detail::log, element_of<X>>> y(detail::view(x).size());
  log<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::log, X, Y>
status log(const W& way, const X& x, Y&& y) {
  return detail::run<detail::log, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::log, X>
auto log(const W& way, const X& x) {
  std::vector<detail::result_of<detail::log, element_of<X>>> y(detail::view(x).size());
  log<a>(way, x, y);
  return y;
}

// The decimal logarithm of x. Complex: The principal logarithm of z to the base 10, the imaginary part in [-pi, pi] / ln
// 10. All tags are one function, right in each part nearly always to the last bit.
// lumsLog10: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::log10, X, Y>
status log10(const X& x, Y&& y) {
  return detail::run<detail::log10, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::log10, X>
auto log10(const X& x) {
  std::vector<detail::result_of<detail::log10, element_of<X>>> y(detail::view(x).size());
  log10<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::log10, X, Y>
status log10(const W& way, const X& x, Y&& y) {
  return detail::run<detail::log10, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::log10, X>
auto log10(const W& way, const X& x) {
  std::vector<detail::result_of<detail::log10, element_of<X>>> y(detail::view(x).size());
  log10<a>(way, x, y);
  return y;
}

// The natural logarithm of 1 + x, accurate also next to x = 0.
// lumsLog1p: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::log1p, X, Y>
status log1p(const X& x, Y&& y) {
  return detail::run<detail::log1p, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::log1p, X>
auto log1p(const X& x) {
  std::vector<detail::result_of<detail::log1p, element_of<X>>> y(detail::view(x).size());
  log1p<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::log1p, X, Y>
status log1p(const W& way, const X& x, Y&& y) {
  return detail::run<detail::log1p, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::log1p, X>
auto log1p(const W& way, const X& x) {
  std::vector<detail::result_of<detail::log1p, element_of<X>>> y(detail::view(x).size());
  log1p<a>(way, x, y);
  return y;
}

// dst1 = trunc(x), dst2 = x - trunc(x), both with the sign of x.
// lumsModf: float, double.
template <accuracy a = high, class X, class Y1, class Y2>
requires detail::gives<detail::modf, X, Y1> && detail::gives<detail::modf, X, Y2>
status modf(const X& x, Y1&& y1, Y2&& y2) {
  return detail::run_two<detail::modf, a>(detail::sequential(), detail::read(x), detail::view(y1), detail::view(y2));
}
template <accuracy a = high, input X>
requires detail::takes<detail::modf, X>
auto modf(const X& x) {
  std::vector<detail::result_of<detail::modf, element_of<X>>> y1(detail::view(x).size()), y2(y1.size());
  modf<a>(x, y1, y2);
  return std::pair(std::move(y1), std::move(y2));
}
template <accuracy a = high, detail::way W, class X, class Y1, class Y2>
requires detail::gives<detail::modf, X, Y1> && detail::gives<detail::modf, X, Y2>
status modf(const W& way, const X& x, Y1&& y1, Y2&& y2) {
  return detail::run_two<detail::modf, a>(way, detail::read(x), detail::view(y1), detail::view(y2));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::modf, X>
auto modf(const W& way, const X& x) {
  std::vector<detail::result_of<detail::modf, element_of<X>>> y1(detail::view(x).size()), y2(y1.size());
  modf<a>(way, x, y1, y2);
  return std::pair(std::move(y1), std::move(y2));
}

// src1 * src2. Complex: src1 * src2. A21 is A24 and A50 is A53.
// lumsMul: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::mul, X1, Y> && detail::same_elements<X1, X2>
status mul(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::mul, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::mul, X1> && detail::same_elements<X1, X2>
auto mul(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::mul, element_of<X1>>> y(detail::view(x1).size());
  mul<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::mul, X1, Y> && detail::same_elements<X1, X2>
status mul(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::mul, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::mul, X1> && detail::same_elements<X1, X2>
auto mul(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::mul, element_of<X1>>> y(detail::view(x1).size());
  mul<a>(way, x1, x2, y);
  return y;
}

// src1 times the conjugate of src2. A50 is A53.
// lumsMulByConj: std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::mulbyconj, X1, Y> && detail::same_elements<X1, X2>
status mulbyconj(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::mulbyconj, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::mulbyconj, X1> && detail::same_elements<X1, X2>
auto mulbyconj(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::mulbyconj, element_of<X1>>> y(detail::view(x1).size());
  mulbyconj<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::mulbyconj, X1, Y> && detail::same_elements<X1, X2>
status mulbyconj(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::mulbyconj, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::mulbyconj, X1> && detail::same_elements<X1, X2>
auto mulbyconj(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::mulbyconj, element_of<X1>>> y(detail::view(x1).size());
  mulbyconj<a>(way, x1, x2, y);
  return y;
}

// The integer nearest to x, ties to even, whatever the caller's rounding mode: the same as Rint.
// lumsNearbyInt: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::nearbyint, X, Y>
status nearbyint(const X& x, Y&& y) {
  return detail::run<detail::nearbyint, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::nearbyint, X>
auto nearbyint(const X& x) {
  std::vector<detail::result_of<detail::nearbyint, element_of<X>>> y(detail::view(x).size());
  nearbyint<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::nearbyint, X, Y>
status nearbyint(const W& way, const X& x, Y&& y) {
  return detail::run<detail::nearbyint, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::nearbyint, X>
auto nearbyint(const W& way, const X& x) {
  std::vector<detail::result_of<detail::nearbyint, element_of<X>>> y(detail::view(x).size());
  nearbyint<a>(way, x, y);
  return y;
}

// src1 to the power src2. Complex: src1 to the power src2, as exp(src2 ln(src1)) with the principal logarithm. All tags are
// one function; the error of the rounded product grows with its size and takes digits from large and small results.
// lumsPow: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::pow, X1, Y> && detail::same_elements<X1, X2>
status pow(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::pow, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::pow, X1> && detail::same_elements<X1, X2>
auto pow(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::pow, element_of<X1>>> y(detail::view(x1).size());
  pow<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::pow, X1, Y> && detail::same_elements<X1, X2>
status pow(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::pow, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::pow, X1> && detail::same_elements<X1, X2>
auto pow(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::pow, element_of<X1>>> y(detail::view(x1).size());
  pow<a>(way, x1, x2, y);
  return y;
}

// x^(2/3), the square of the cube root; positive for negative x.
// lumsPow2o3: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::pow2o3, X, Y>
status pow2o3(const X& x, Y&& y) {
  return detail::run<detail::pow2o3, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::pow2o3, X>
auto pow2o3(const X& x) {
  std::vector<detail::result_of<detail::pow2o3, element_of<X>>> y(detail::view(x).size());
  pow2o3<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::pow2o3, X, Y>
status pow2o3(const W& way, const X& x, Y&& y) {
  return detail::run<detail::pow2o3, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::pow2o3, X>
auto pow2o3(const W& way, const X& x) {
  std::vector<detail::result_of<detail::pow2o3, element_of<X>>> y(detail::view(x).size());
  pow2o3<a>(way, x, y);
  return y;
}

// x^(3/2) = x sqrt(x).
// lumsPow3o2: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::pow3o2, X, Y>
status pow3o2(const X& x, Y&& y) {
  return detail::run<detail::pow3o2, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::pow3o2, X>
auto pow3o2(const X& x) {
  std::vector<detail::result_of<detail::pow3o2, element_of<X>>> y(detail::view(x).size());
  pow3o2<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::pow3o2, X, Y>
status pow3o2(const W& way, const X& x, Y&& y) {
  return detail::run<detail::pow3o2, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::pow3o2, X>
auto pow3o2(const W& way, const X& x) {
  std::vector<detail::result_of<detail::pow3o2, element_of<X>>> y(detail::view(x).size());
  pow3o2<a>(way, x, y);
  return y;
}

// Each element to the power `value`, which is the same for all. Exponents that have a function of their own (-1, 0.5, -0.5,
// 1.5; at A11 and A26 also 1/3, -1/3, 2/3), small integers, 0 and 1 take that function, products, a fill or a copy. At 64f
// A53 the error reaches 1.07 ulp, for bases up to 2^-9 above 1 whose power is next to the ends of the range. Complex: Each
// element to the power `value`, as exp(value ln(z)) with the principal logarithm. All tags are one function; the error of
// the rounded product grows with its size and takes digits from large and small results.
// lumsPowx: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, input X, class Y>
requires detail::gives<detail::powx, X, Y>
status powx(const X& x, element_of<X> value, Y&& y) {
  return detail::run_with<detail::powx, a>(detail::sequential(), detail::read(x), value, detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::powx, X>
auto powx(const X& x, element_of<X> value) {
  std::vector<detail::result_of<detail::powx, element_of<X>>> y(detail::view(x).size());
  powx<a>(x, value, y);
  return y;
}
template <accuracy a = high, detail::way W, input X, class Y>
requires detail::gives<detail::powx, X, Y>
status powx(const W& way, const X& x, element_of<X> value, Y&& y) {
  return detail::run_with<detail::powx, a>(way, detail::read(x), value, detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::powx, X>
auto powx(const W& way, const X& x, element_of<X> value) {
  std::vector<detail::result_of<detail::powx, element_of<X>>> y(detail::view(x).size());
  powx<a>(way, x, value, y);
  return y;
}

// The integer nearest to x, ties to even, whatever the caller's rounding mode.
// lumsRint: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::rint, X, Y>
status rint(const X& x, Y&& y) {
  return detail::run<detail::rint, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::rint, X>
auto rint(const X& x) {
  std::vector<detail::result_of<detail::rint, element_of<X>>> y(detail::view(x).size());
  rint<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::rint, X, Y>
status rint(const W& way, const X& x, Y&& y) {
  return detail::run<detail::rint, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::rint, X>
auto rint(const W& way, const X& x) {
  std::vector<detail::result_of<detail::rint, element_of<X>>> y(detail::view(x).size());
  rint<a>(way, x, y);
  return y;
}

// The integer nearest to x, ties away from zero.
// lumsRound: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::round, X, Y>
status round(const X& x, Y&& y) {
  return detail::run<detail::round, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::round, X>
auto round(const X& x) {
  std::vector<detail::result_of<detail::round, element_of<X>>> y(detail::view(x).size());
  round<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::round, X, Y>
status round(const W& way, const X& x, Y&& y) {
  return detail::run<detail::round, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::round, X>
auto round(const W& way, const X& x) {
  std::vector<detail::result_of<detail::round, element_of<X>>> y(detail::view(x).size());
  round<a>(way, x, y);
  return y;
}

// The sine of x, in radians; exact reduction of arguments of any size. Complex: The sine of z. All tags are one function,
// right in each part nearly always to the last bit.
// lumsSin: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::sin, X, Y>
status sin(const X& x, Y&& y) {
  return detail::run<detail::sin, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::sin, X>
auto sin(const X& x) {
  std::vector<detail::result_of<detail::sin, element_of<X>>> y(detail::view(x).size());
  sin<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::sin, X, Y>
status sin(const W& way, const X& x, Y&& y) {
  return detail::run<detail::sin, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::sin, X>
auto sin(const W& way, const X& x) {
  std::vector<detail::result_of<detail::sin, element_of<X>>> y(detail::view(x).size());
  sin<a>(way, x, y);
  return y;
}

// The sine of x into the first array, the cosine into the second; exact reduction of arguments of any size.
// lumsSinCos: float, double.
template <accuracy a = high, class X, class Y1, class Y2>
requires detail::gives<detail::sincos, X, Y1> && detail::gives<detail::sincos, X, Y2>
status sincos(const X& x, Y1&& y1, Y2&& y2) {
  return detail::run_two<detail::sincos, a>(detail::sequential(), detail::read(x), detail::view(y1), detail::view(y2));
}
template <accuracy a = high, input X>
requires detail::takes<detail::sincos, X>
auto sincos(const X& x) {
  std::vector<detail::result_of<detail::sincos, element_of<X>>> y1(detail::view(x).size()), y2(y1.size());
  sincos<a>(x, y1, y2);
  return std::pair(std::move(y1), std::move(y2));
}
template <accuracy a = high, detail::way W, class X, class Y1, class Y2>
requires detail::gives<detail::sincos, X, Y1> && detail::gives<detail::sincos, X, Y2>
status sincos(const W& way, const X& x, Y1&& y1, Y2&& y2) {
  return detail::run_two<detail::sincos, a>(way, detail::read(x), detail::view(y1), detail::view(y2));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::sincos, X>
auto sincos(const W& way, const X& x) {
  std::vector<detail::result_of<detail::sincos, element_of<X>>> y1(detail::view(x).size()), y2(y1.size());
  sincos<a>(way, x, y1, y2);
  return std::pair(std::move(y1), std::move(y2));
}

// The hyperbolic sine of x. Complex: The hyperbolic sine of z. All tags are one function, right in each part nearly always
// to the last bit.
// lumsSinh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::sinh, X, Y>
status sinh(const X& x, Y&& y) {
  return detail::run<detail::sinh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::sinh, X>
auto sinh(const X& x) {
  std::vector<detail::result_of<detail::sinh, element_of<X>>> y(detail::view(x).size());
  sinh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::sinh, X, Y>
status sinh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::sinh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::sinh, X>
auto sinh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::sinh, element_of<X>>> y(detail::view(x).size());
  sinh<a>(way, x, y);
  return y;
}

// x * x.
// lumsSqr: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::sqr, X, Y>
status sqr(const X& x, Y&& y) {
  return detail::run<detail::sqr, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::sqr, X>
auto sqr(const X& x) {
  std::vector<detail::result_of<detail::sqr, element_of<X>>> y(detail::view(x).size());
  sqr<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::sqr, X, Y>
status sqr(const W& way, const X& x, Y&& y) {
  return detail::run<detail::sqr, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::sqr, X>
auto sqr(const W& way, const X& x) {
  std::vector<detail::result_of<detail::sqr, element_of<X>>> y(detail::view(x).size());
  sqr<a>(way, x, y);
  return y;
}

// The square root of x. Complex: The principal square root, its real part not negative. A21 is A11 and A50 is A26.
// lumsSqrt: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::sqrt, X, Y>
status sqrt(const X& x, Y&& y) {
  return detail::run<detail::sqrt, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::sqrt, X>
auto sqrt(const X& x) {
  std::vector<detail::result_of<detail::sqrt, element_of<X>>> y(detail::view(x).size());
  sqrt<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::sqrt, X, Y>
status sqrt(const W& way, const X& x, Y&& y) {
  return detail::run<detail::sqrt, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::sqrt, X>
auto sqrt(const W& way, const X& x) {
  std::vector<detail::result_of<detail::sqrt, element_of<X>>> y(detail::view(x).size());
  sqrt<a>(way, x, y);
  return y;
}

// src1 - src2; complex numbers part by part.
// lumsSub: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X1, class X2, class Y>
requires detail::gives<detail::sub, X1, Y> && detail::same_elements<X1, X2>
status sub(const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::sub, a>(detail::sequential(), detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, class X1, class X2>
requires detail::takes<detail::sub, X1> && detail::same_elements<X1, X2>
auto sub(const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::sub, element_of<X1>>> y(detail::view(x1).size());
  sub<a>(x1, x2, y);
  return y;
}
template <accuracy a = high, detail::way W, class X1, class X2, class Y>
requires detail::gives<detail::sub, X1, Y> && detail::same_elements<X1, X2>
status sub(const W& way, const X1& x1, const X2& x2, Y&& y) {
  return detail::run<detail::sub, a>(way, detail::read(x1), detail::read(x2), detail::view(y));
}
template <accuracy a = high, detail::way W, class X1, class X2>
requires detail::takes<detail::sub, X1> && detail::same_elements<X1, X2>
auto sub(const W& way, const X1& x1, const X2& x2) {
  std::vector<detail::result_of<detail::sub, element_of<X1>>> y(detail::view(x1).size());
  sub<a>(way, x1, x2, y);
  return y;
}

// The tangent of x, in radians; exact reduction of arguments of any size. Complex: The tangent of z. All tags are one
// function, right in each part nearly always to the last bit.
// lumsTan: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::tan, X, Y>
status tan(const X& x, Y&& y) {
  return detail::run<detail::tan, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::tan, X>
auto tan(const X& x) {
  std::vector<detail::result_of<detail::tan, element_of<X>>> y(detail::view(x).size());
  tan<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::tan, X, Y>
status tan(const W& way, const X& x, Y&& y) {
  return detail::run<detail::tan, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::tan, X>
auto tan(const W& way, const X& x) {
  std::vector<detail::result_of<detail::tan, element_of<X>>> y(detail::view(x).size());
  tan<a>(way, x, y);
  return y;
}

// The hyperbolic tangent of x. At 64f A53 the error reaches 1.01 ulp, for |x| just above 1/8, 1/16 and 1/32 with a result
// just below that power of 2; there neighbours can be out of order by an ulp. Complex: The hyperbolic tangent of z. All
// tags are one function, right in each part nearly always to the last bit.
// lumsTanh: float, double, std::complex<float>, std::complex<double>.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::tanh, X, Y>
status tanh(const X& x, Y&& y) {
  return detail::run<detail::tanh, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::tanh, X>
auto tanh(const X& x) {
  std::vector<detail::result_of<detail::tanh, element_of<X>>> y(detail::view(x).size());
  tanh<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::tanh, X, Y>
status tanh(const W& way, const X& x, Y&& y) {
  return detail::run<detail::tanh, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::tanh, X>
auto tanh(const W& way, const X& x) {
  std::vector<detail::result_of<detail::tanh, element_of<X>>> y(detail::view(x).size());
  tanh<a>(way, x, y);
  return y;
}

// The integer part of x, toward zero.
// lumsTrunc: float, double.
template <accuracy a = high, class X, class Y>
requires detail::gives<detail::trunc, X, Y>
status trunc(const X& x, Y&& y) {
  return detail::run<detail::trunc, a>(detail::sequential(), detail::read(x), detail::view(y));
}
template <accuracy a = high, input X>
requires detail::takes<detail::trunc, X>
auto trunc(const X& x) {
  std::vector<detail::result_of<detail::trunc, element_of<X>>> y(detail::view(x).size());
  trunc<a>(x, y);
  return y;
}
template <accuracy a = high, detail::way W, class X, class Y>
requires detail::gives<detail::trunc, X, Y>
status trunc(const W& way, const X& x, Y&& y) {
  return detail::run<detail::trunc, a>(way, detail::read(x), detail::view(y));
}
template <accuracy a = high, detail::way W, input X>
requires detail::takes<detail::trunc, X>
auto trunc(const W& way, const X& x) {
  std::vector<detail::result_of<detail::trunc, element_of<X>>> y(detail::view(x).size());
  trunc<a>(way, x, y);
  return y;
}
}  // namespace lumvm

#endif
