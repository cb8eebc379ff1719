// Cases that many functions of one input have in common.
#pragma once

#include <initializer_list>
#include <string_view>

#include "support/cases.h"

namespace lum::test {

inline void ExpectZeroKeepsItsSign(std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) ExpectCases(name, {{0.0, 0.0}, {-0.0, -0.0}});
}

// f(x) = x for arguments so small that the next term of the series is lost, down to the denormals.
inline void ExpectTinyArgumentsStay(std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) {
    ExpectCases(name, {{min_denormal, min_denormal},
                       {-min_denormal, -min_denormal},
                       {min_normal, min_normal},
                       {-min_normal, -min_normal},
                       {1e-40, 1e-40},
                       {-1e-20, -1e-20}});
  }
}

// A NaN, quiet or signalling, comes through quiet with its sign and payload.
inline void ExpectNanComesThroughQuieted(std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) {
    for (const Export* entry : ExportsNamed(name)) {
      if (entry->is_32bit()) {
        ExpectCases(entry->name.substr(4), {{FromBits(0x7FC01234), FromBits(0x7FC01234)},
                                            {FromBits(0xFFC00001), FromBits(0xFFC00001)},
                                            {FromBits(0x7F812345), FromBits(0x7FC12345)},
                                            {FromBits(0xFFBFFFFF), FromBits(0xFFFFFFFF)}});
      } else {
        ExpectCases(entry->name.substr(4), {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                                            {FromBits(0xFFF8000000000001), FromBits(0xFFF8000000000001)},
                                            {FromBits(0x7FF0000000012345), FromBits(0x7FF8000000012345)},
                                            {FromBits(0xFFF7FFFFFFFFFFFF), FromBits(0xFFFFFFFFFFFFFFFF)}});
      }
    }
  }
}

}  // namespace lum::test
