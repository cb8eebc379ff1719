#!/usr/bin/env python3
"""Writes include/lumvm.f90, a Fortran module of interfaces, from the functions' declarations. With --check, compares instead."""

import sys

import catalogue

MODULE = catalogue.ROOT / "include/lumvm.f90"

OPENING = """! Written by tools/make_fortran.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
!
! lumVM for Fortran: interfaces to the C functions, which lumvm.h and lumvm_functions.h describe. An array may be the result in
! the place of an argument where the type is the same. The result is a status: 0, a negative one for a bad length, a positive one
! when an element overflowed, underflowed, met a pole or left the domain; all elements have been written then.
!
!   use lumvm
!   status = lumsExp_64f_A53(x, y, size(x))
module lumvm
  use, intrinsic :: iso_c_binding, only: c_int, c_int32_t, c_float, c_double, c_float_complex, c_double_complex
  implicit none
  private :: c_int, c_int32_t, c_float, c_double, c_float_complex, c_double_complex

  integer(c_int), parameter :: lumStsOk = 0, lumStsSizeErr = -6, lumStsNullPtrErr = -8, lumStsOverflow = 12, &
                               lumStsUnderflow = 17, lumStsSingularity = 18, lumStsDomain = 19

  interface
"""

CLOSING = """  end interface
end module lumvm
"""

TYPES = {"32f": "real(c_float)", "64f": "real(c_double)", "32fc": "complex(c_float_complex)", "64fc": "complex(c_double_complex)"}


def parameters(row):
    """Names of the arguments before len, with their types and attributes."""
    type_ = TYPES[row.type]
    real = TYPES[row.type.rstrip("c")]
    read, write = ", intent(in) :: {}(*)", ", intent(inout) :: {}(*)"
    return {
        "OneInput": [("src", type_ + read), ("dst", type_ + write)],
        "ToReal": [("src", type_ + read), ("dst", real + write)],
        "ToComplex": [("src", real + read), ("dst", type_ + write)],
        "TwoInputs": [("src1", type_ + read), ("src2", type_ + read), ("dst", type_ + write)],
        "TwoOutputs": [("src", type_ + read), ("dst1", type_ + write), ("dst2", type_ + write)],
        "ScalarParameter": [("src", type_ + read), ("value", type_ + ", value :: {}"), ("dst", type_ + write)],
    }[row.shape]


def interface(name, row):
    arguments = parameters(row)
    kinds = sorted({declaration[declaration.index("(") + 1:declaration.index(")")] for _, declaration in arguments})
    yield f"    function {name}({', '.join(argument for argument, _ in arguments)}, len) result(status) &"
    yield f"        bind(c, name='{name}')"
    yield f"      import :: c_int, c_int32_t, {', '.join(kinds)}"
    for argument, declaration in arguments:
        yield f"      {declaration.format(argument)}"
    yield "      integer(c_int32_t), value :: len"
    yield "      integer(c_int) :: status"
    yield f"    end function {name}"


def text():
    lines = []
    for row in catalogue.rows():
        for name, _ in row.exports():
            lines += interface(name, row)
    return OPENING + "\n".join(lines) + "\n" + CLOSING


if __name__ == "__main__":
    sys.exit(catalogue.write_or_check(MODULE, text, "make_fortran.py", __doc__))
