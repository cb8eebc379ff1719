// Abs, Add, Sub, Mul and Sqr of real numbers: one operation between a load and a store. They never report: an overflow is an
// infinity, an invalid operation the default NaN, and of two NaNs the first comes back quieted. Memory is what bounds them, so
// a block is four vectors and nothing else.
#include "arith/first_nan.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace arith;

template <class T> struct PlainKernel : Kernel<T> {
  static constexpr Variant variant = pure_vector_variant;
  static constexpr int vectors = 4;
  static constexpr bool aligns_stores = true;
};

// Adding +0 changes no number, and quiets a signalling NaN.
template <class T> struct AbsKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return abs(x) + all(T(0)); }
};
template <class T> struct SqrKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return x * x; }
};
template <class T> struct AddKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> a, Vec<T> b) { return SumInOrder(a, b); }
};
template <class T> struct SubKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> a, Vec<T> b) { return a - b; }
};
template <class T> struct MulKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> a, Vec<T> b) { return ProductInOrder(a, b); }
};

// Pairs as a flat array of twice the length.
template <template <class> class K, class E> LumStatus Flat(const E* src1, const E* src2, E* dst, int32_t len) {
  if (const auto bad = CheckArguments(len, src1, src2, dst); bad != lumStsOk) return bad;
  using T = Real<E>;
  return frame::RunChecked<K<T>, 2, 1>({}, {{&src1->re, &src2->re}, {&dst->re}}, 2 * int64_t{len});
}

}  // namespace

LumStatus Abs_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<AbsKernel<Lum32f>>(src, dst, len); }
LumStatus Abs_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<AbsKernel<Lum64f>>(src, dst, len); }
LumStatus Sqr_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<SqrKernel<Lum32f>>(src, dst, len); }
LumStatus Sqr_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<SqrKernel<Lum64f>>(src, dst, len); }

LumStatus Add_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<AddKernel<Lum32f>>(src1, src2, dst, len);
}
LumStatus Add_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<AddKernel<Lum64f>>(src1, src2, dst, len);
}
LumStatus Sub_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<SubKernel<Lum32f>>(src1, src2, dst, len);
}
LumStatus Sub_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<SubKernel<Lum64f>>(src1, src2, dst, len);
}
LumStatus Mul_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<MulKernel<Lum32f>>(src1, src2, dst, len);
}
LumStatus Mul_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<MulKernel<Lum64f>>(src1, src2, dst, len);
}

// The complex sums without a look at overflow. They fill the other two slots of their rows in the entry table, which has three
// a row; these functions are exported at the high tag alone.
LumStatus Add_32fc_Flat(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return Flat<AddKernel>(src1, src2, dst, len);
}
LumStatus Add_64fc_Flat(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return Flat<AddKernel>(src1, src2, dst, len);
}
LumStatus Sub_32fc_Flat(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return Flat<SubKernel>(src1, src2, dst, len);
}
LumStatus Sub_64fc_Flat(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return Flat<SubKernel>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
