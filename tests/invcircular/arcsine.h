// Cases and arguments that the tests of Asin and Acos share.
#pragma once

#include <cmath>
#include <string_view>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {

inline void ExpectDomainIsUnitInterval(std::string_view name_32f, std::string_view name_64f) {
  for (std::string_view name : {name_32f, name_64f}) {
    ExpectCases(name, {{2, default_nan, lumStsDomain},
                       {-2, default_nan, lumStsDomain},
                       {max, default_nan, lumStsDomain},
                       {-max, default_nan, lumStsDomain},
                       {inf, default_nan, lumStsDomain},
                       {-inf, default_nan, lumStsDomain}});
  }
  ExpectCases(name_32f, {{FromBits(0x3F800001), default_nan, lumStsDomain}, {FromBits(0xBF800001), default_nan, lumStsDomain}});
  ExpectCases(name_64f, {{FromBits(0x3FF0000000000001), default_nan, lumStsDomain},
                         {FromBits(0xBFF0000000000001), default_nan, lumStsDomain}});
}

// Around the border of the branches and the ends of the domain, inside of it.
inline Arguments1 AroundArcsineThresholds(bool is_32bit) {
  Arguments1 x;
  for (double point : {0.5, -0.5, 1.0, -1.0}) x = x + Around(point, is_32bit, 300);
  for (double exponent = 1; exponent <= 24; ++exponent) x = x + Around(1 - std::exp2(-exponent), is_32bit, 5);
  std::erase_if(x, [](double a) { return a < -1 || a > 1; });
  return x;
}

}  // namespace lum::test
