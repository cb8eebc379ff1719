// The vector operations for any processor, with the result bits of the AVX-512 layer in every lane: part by part in the
// compiler's own vector type where that has the operation (portable/registers.h), else as loops over lanes. What one lane does
// beyond plain arithmetic is in the lane_*.h files and reciprocal_estimates.h. The code counts on the frame: the
// rounding is to nearest, denormals are not flushed, exceptions are masked. Files and sections stand in the same order as those
// of vec_avx512.h.
#pragma once

#include "frame/portable/arithmetic.h"
#include "frame/portable/base.h"
#include "frame/portable/integers.h"
#include "frame/portable/moves.h"
