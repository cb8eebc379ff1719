// The vector operations as AVX2 and FMA instructions, with the result bits of the AVX-512 layer in every lane: a vector is a
// pair of registers, a mask a pair of registers with all bits of a lane set or none. Instructions round to nearest, as the
// frame has set the environment; what AVX2 lacks is in the files that the four below include. Files and sections stand in the
// same order as those of vec_avx512.h.
#pragma once

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#include "frame/avx2/arithmetic.h"
#include "frame/avx2/base.h"
#include "frame/avx2/estimates.h"
#include "frame/avx2/integers.h"
#include "frame/avx2/moves.h"
#pragma GCC diagnostic pop
