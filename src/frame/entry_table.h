// The table from exported names to kernels: one FunctionRecord a function and element type, three slots each. A level of
// accuracy may share a kernel with another one without any other code knowing it.
#pragma once

#include <cstdint>

#include "frame/layer.h"
#include "lumvm_types.h"

namespace lum {

// The kernels' signatures by shape, for element type T. ToReal and ToComplex take one type's elements to the other's; the
// parameter of a 64fc kernel comes by address, in memory private to the call.
namespace signature {
template <class T> using OneInput = LumStatus(const T* src, T* dst, int32_t len);
template <class T> using TwoInputs = LumStatus(const T* src1, const T* src2, T* dst, int32_t len);
template <class T> using TwoOutputs = LumStatus(const T* src, T* dst1, T* dst2, int32_t len);
template <class T> struct ParameterOf { using Type = T; };
template <> struct ParameterOf<Lum64fc> { using Type = const Lum64fc*; };
template <class T> using ScalarParameter = LumStatus(const T* src, typename ParameterOf<T>::Type value, T* dst, int32_t len);
template <class Complex> struct Part { using Type = decltype(Complex::re); };
template <class Complex> using ToReal = LumStatus(const Complex* src, typename Part<Complex>::Type* dst, int32_t len);
template <class Complex> using ToComplex = LumStatus(const typename Part<Complex>::Type* src, Complex* dst, int32_t len);
}  // namespace signature

// A kernel of any shape; the member is the row's shape and type.
union KernelPointer {
  signature::OneInput<Lum32f>* OneInput_32f;
  signature::OneInput<Lum64f>* OneInput_64f;
  signature::OneInput<Lum32fc>* OneInput_32fc;
  signature::OneInput<Lum64fc>* OneInput_64fc;
  signature::TwoInputs<Lum32f>* TwoInputs_32f;
  signature::TwoInputs<Lum64f>* TwoInputs_64f;
  signature::TwoInputs<Lum32fc>* TwoInputs_32fc;
  signature::TwoInputs<Lum64fc>* TwoInputs_64fc;
  signature::TwoOutputs<Lum32f>* TwoOutputs_32f;
  signature::TwoOutputs<Lum64f>* TwoOutputs_64f;
  signature::ScalarParameter<Lum32f>* ScalarParameter_32f;
  signature::ScalarParameter<Lum64f>* ScalarParameter_64f;
  signature::ScalarParameter<Lum32fc>* ScalarParameter_32fc;
  signature::ScalarParameter<Lum64fc>* ScalarParameter_64fc;
  signature::ToReal<Lum32fc>* ToReal_32fc;
  signature::ToReal<Lum64fc>* ToReal_64fc;
  signature::ToComplex<Lum32fc>* ToComplex_32fc;
  signature::ToComplex<Lum64fc>* ToComplex_64fc;
};

struct FunctionRecord {
  KernelPointer entryMid;
  KernelPointer entryHigh;
  KernelPointer entryLow;
  Lum32f costMid;
  Lum32f costHigh;
  Lum32f costLow;
  uint8_t reserved[12];
};
static_assert(sizeof(FunctionRecord) == 3 * sizeof(void*) + 24);

#define LUM_ROW(function, type, ...) Row_##function##_##type,
enum Row : int {
#include "frame/catalogue.def"
  row_count
};
#undef LUM_ROW

using EntryTable = FunctionRecord[row_count];

// The table of a layer. In writable data, written by nobody; the exported stubs alone read it. Hidden, so that a stub reaches
// its slot directly.
inline namespace LUM_LAYER {
extern __attribute__((visibility("hidden"))) EntryTable entryTable;
}

}  // namespace lum
