// The vector operations as AVX-512 instructions. Floating-point operations use the embedded-rounding forms: the rounding is the
// operation's own and no flag is raised (the plain forms would also be contracted by the compiler). Files and sections stand in
// the same order as those of vec_portable.h.
#pragma once

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#include "frame/avx512/arithmetic.h"
#include "frame/avx512/base.h"
#include "frame/avx512/integers.h"
#include "frame/avx512/moves.h"
#pragma GCC diagnostic pop
