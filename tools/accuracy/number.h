// A number of multiple precision that frees its memory.
#pragma once

#include <mpfr.h>

namespace lum::accuracy {

class Number {
 public:
  explicit Number(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
  Number(mpfr_prec_t bits, double x) : Number(bits) { mpfr_set_d(value_, x, MPFR_RNDN); }
  Number(const Number&) = delete;
  Number& operator=(const Number&) = delete;
  ~Number() { mpfr_clear(value_); }
  operator mpfr_ptr() { return value_; }
  operator mpfr_srcptr() const { return value_; }

 private:
  mpfr_t value_;
};

}  // namespace lum::accuracy
