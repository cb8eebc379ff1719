! Written by tools/make_fortran.py from src/<family>/functions.toml; do not edit, write it again by `./run generate`.
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
    function lumsAbs_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAbs_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_32f_A24
    function lumsAbs_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAbs_32fc_A11')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_32fc_A11
    function lumsAbs_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAbs_32fc_A21')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_32fc_A21
    function lumsAbs_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAbs_32fc_A24')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_32fc_A24
    function lumsAbs_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAbs_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_64f_A53
    function lumsAbs_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAbs_64fc_A26')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_64fc_A26
    function lumsAbs_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAbs_64fc_A50')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_64fc_A50
    function lumsAbs_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAbs_64fc_A53')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAbs_64fc_A53
    function lumsAcos_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32f_A11
    function lumsAcos_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32f_A21
    function lumsAcos_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32f_A24
    function lumsAcos_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32fc_A11
    function lumsAcos_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32fc_A21
    function lumsAcos_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAcos_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_32fc_A24
    function lumsAcos_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64f_A26
    function lumsAcos_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64f_A50
    function lumsAcos_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64f_A53
    function lumsAcos_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64fc_A26
    function lumsAcos_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64fc_A50
    function lumsAcos_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAcos_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcos_64fc_A53
    function lumsAcosh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32f_A11
    function lumsAcosh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32f_A21
    function lumsAcosh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32f_A24
    function lumsAcosh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32fc_A11
    function lumsAcosh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32fc_A21
    function lumsAcosh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_32fc_A24
    function lumsAcosh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64f_A26
    function lumsAcosh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64f_A50
    function lumsAcosh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64f_A53
    function lumsAcosh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64fc_A26
    function lumsAcosh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64fc_A50
    function lumsAcosh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAcosh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAcosh_64fc_A53
    function lumsAdd_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAdd_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAdd_32f_A24
    function lumsAdd_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAdd_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAdd_32fc_A24
    function lumsAdd_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAdd_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAdd_64f_A53
    function lumsAdd_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAdd_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAdd_64fc_A53
    function lumsArg_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsArg_32fc_A11')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_32fc_A11
    function lumsArg_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsArg_32fc_A21')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_32fc_A21
    function lumsArg_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsArg_32fc_A24')
      import :: c_int, c_int32_t, c_float, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_32fc_A24
    function lumsArg_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsArg_64fc_A26')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_64fc_A26
    function lumsArg_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsArg_64fc_A50')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_64fc_A50
    function lumsArg_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsArg_64fc_A53')
      import :: c_int, c_int32_t, c_double, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsArg_64fc_A53
    function lumsAsin_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32f_A11
    function lumsAsin_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32f_A21
    function lumsAsin_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32f_A24
    function lumsAsin_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32fc_A11
    function lumsAsin_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32fc_A21
    function lumsAsin_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAsin_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_32fc_A24
    function lumsAsin_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64f_A26
    function lumsAsin_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64f_A50
    function lumsAsin_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64f_A53
    function lumsAsin_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64fc_A26
    function lumsAsin_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64fc_A50
    function lumsAsin_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAsin_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsin_64fc_A53
    function lumsAsinh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32f_A11
    function lumsAsinh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32f_A21
    function lumsAsinh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32f_A24
    function lumsAsinh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32fc_A11
    function lumsAsinh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32fc_A21
    function lumsAsinh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_32fc_A24
    function lumsAsinh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64f_A26
    function lumsAsinh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64f_A50
    function lumsAsinh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64f_A53
    function lumsAsinh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64fc_A26
    function lumsAsinh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64fc_A50
    function lumsAsinh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAsinh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAsinh_64fc_A53
    function lumsAtan2_32f_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_32f_A11
    function lumsAtan2_32f_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_32f_A21
    function lumsAtan2_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_32f_A24
    function lumsAtan2_64f_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_64f_A26
    function lumsAtan2_64f_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_64f_A50
    function lumsAtan2_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsAtan2_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan2_64f_A53
    function lumsAtan_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32f_A11
    function lumsAtan_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32f_A21
    function lumsAtan_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32f_A24
    function lumsAtan_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32fc_A11
    function lumsAtan_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32fc_A21
    function lumsAtan_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAtan_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_32fc_A24
    function lumsAtan_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64f_A26
    function lumsAtan_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64f_A50
    function lumsAtan_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64f_A53
    function lumsAtan_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64fc_A26
    function lumsAtan_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64fc_A50
    function lumsAtan_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAtan_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtan_64fc_A53
    function lumsAtanh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32f_A11
    function lumsAtanh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32f_A21
    function lumsAtanh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32f_A24
    function lumsAtanh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32fc_A11
    function lumsAtanh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32fc_A21
    function lumsAtanh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_32fc_A24
    function lumsAtanh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64f_A26
    function lumsAtanh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64f_A50
    function lumsAtanh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64f_A53
    function lumsAtanh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64fc_A26
    function lumsAtanh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64fc_A50
    function lumsAtanh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsAtanh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsAtanh_64fc_A53
    function lumsCIS_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsCIS_32fc_A11')
      import :: c_int, c_int32_t, c_float, c_float_complex
      real(c_float), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_32fc_A11
    function lumsCIS_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsCIS_32fc_A21')
      import :: c_int, c_int32_t, c_float, c_float_complex
      real(c_float), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_32fc_A21
    function lumsCIS_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsCIS_32fc_A24')
      import :: c_int, c_int32_t, c_float, c_float_complex
      real(c_float), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_32fc_A24
    function lumsCIS_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsCIS_64fc_A26')
      import :: c_int, c_int32_t, c_double, c_double_complex
      real(c_double), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_64fc_A26
    function lumsCIS_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsCIS_64fc_A50')
      import :: c_int, c_int32_t, c_double, c_double_complex
      real(c_double), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_64fc_A50
    function lumsCIS_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsCIS_64fc_A53')
      import :: c_int, c_int32_t, c_double, c_double_complex
      real(c_double), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCIS_64fc_A53
    function lumsCbrt_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_32f_A11
    function lumsCbrt_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_32f_A21
    function lumsCbrt_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_32f_A24
    function lumsCbrt_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_64f_A26
    function lumsCbrt_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_64f_A50
    function lumsCbrt_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsCbrt_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCbrt_64f_A53
    function lumsCdfNormInv_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_32f_A11
    function lumsCdfNormInv_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_32f_A21
    function lumsCdfNormInv_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_32f_A24
    function lumsCdfNormInv_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_64f_A26
    function lumsCdfNormInv_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_64f_A50
    function lumsCdfNormInv_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsCdfNormInv_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNormInv_64f_A53
    function lumsCdfNorm_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_32f_A11
    function lumsCdfNorm_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_32f_A21
    function lumsCdfNorm_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_32f_A24
    function lumsCdfNorm_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_64f_A26
    function lumsCdfNorm_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_64f_A50
    function lumsCdfNorm_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsCdfNorm_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCdfNorm_64f_A53
    function lumsCeil_32f(src, dst, len) result(status) &
        bind(c, name='lumsCeil_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCeil_32f
    function lumsCeil_64f(src, dst, len) result(status) &
        bind(c, name='lumsCeil_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCeil_64f
    function lumsConj_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsConj_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsConj_32fc_A24
    function lumsConj_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsConj_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsConj_64fc_A53
    function lumsCos_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsCos_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32f_A11
    function lumsCos_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsCos_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32f_A21
    function lumsCos_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsCos_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32f_A24
    function lumsCos_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsCos_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32fc_A11
    function lumsCos_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsCos_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32fc_A21
    function lumsCos_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsCos_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_32fc_A24
    function lumsCos_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsCos_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64f_A26
    function lumsCos_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsCos_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64f_A50
    function lumsCos_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsCos_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64f_A53
    function lumsCos_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsCos_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64fc_A26
    function lumsCos_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsCos_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64fc_A50
    function lumsCos_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsCos_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCos_64fc_A53
    function lumsCosh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32f_A11
    function lumsCosh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32f_A21
    function lumsCosh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32f_A24
    function lumsCosh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32fc_A11
    function lumsCosh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32fc_A21
    function lumsCosh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsCosh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_32fc_A24
    function lumsCosh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64f_A26
    function lumsCosh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64f_A50
    function lumsCosh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64f_A53
    function lumsCosh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64fc_A26
    function lumsCosh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64fc_A50
    function lumsCosh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsCosh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsCosh_64fc_A53
    function lumsDiv_32f_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32f_A11
    function lumsDiv_32f_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32f_A21
    function lumsDiv_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32f_A24
    function lumsDiv_32fc_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32fc_A11
    function lumsDiv_32fc_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32fc_A21
    function lumsDiv_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_32fc_A24
    function lumsDiv_64f_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64f_A26
    function lumsDiv_64f_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64f_A50
    function lumsDiv_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64f_A53
    function lumsDiv_64fc_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64fc_A26
    function lumsDiv_64fc_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64fc_A50
    function lumsDiv_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsDiv_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsDiv_64fc_A53
    function lumsErfInv_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_32f_A11
    function lumsErfInv_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_32f_A21
    function lumsErfInv_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_32f_A24
    function lumsErfInv_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_64f_A26
    function lumsErfInv_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_64f_A50
    function lumsErfInv_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsErfInv_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfInv_64f_A53
    function lumsErf_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsErf_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_32f_A11
    function lumsErf_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsErf_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_32f_A21
    function lumsErf_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsErf_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_32f_A24
    function lumsErf_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsErf_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_64f_A26
    function lumsErf_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsErf_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_64f_A50
    function lumsErf_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsErf_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErf_64f_A53
    function lumsErfcInv_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_32f_A11
    function lumsErfcInv_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_32f_A21
    function lumsErfcInv_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_32f_A24
    function lumsErfcInv_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_64f_A26
    function lumsErfcInv_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_64f_A50
    function lumsErfcInv_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsErfcInv_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfcInv_64f_A53
    function lumsErfc_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsErfc_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_32f_A11
    function lumsErfc_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsErfc_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_32f_A21
    function lumsErfc_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsErfc_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_32f_A24
    function lumsErfc_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsErfc_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_64f_A26
    function lumsErfc_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsErfc_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_64f_A50
    function lumsErfc_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsErfc_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsErfc_64f_A53
    function lumsExp_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsExp_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32f_A11
    function lumsExp_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsExp_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32f_A21
    function lumsExp_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsExp_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32f_A24
    function lumsExp_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsExp_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32fc_A11
    function lumsExp_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsExp_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32fc_A21
    function lumsExp_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsExp_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_32fc_A24
    function lumsExp_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsExp_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64f_A26
    function lumsExp_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsExp_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64f_A50
    function lumsExp_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsExp_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64f_A53
    function lumsExp_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsExp_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64fc_A26
    function lumsExp_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsExp_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64fc_A50
    function lumsExp_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsExp_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExp_64fc_A53
    function lumsExpm1_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_32f_A11
    function lumsExpm1_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_32f_A21
    function lumsExpm1_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_32f_A24
    function lumsExpm1_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_64f_A26
    function lumsExpm1_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_64f_A50
    function lumsExpm1_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsExpm1_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsExpm1_64f_A53
    function lumsFloor_32f(src, dst, len) result(status) &
        bind(c, name='lumsFloor_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsFloor_32f
    function lumsFloor_64f(src, dst, len) result(status) &
        bind(c, name='lumsFloor_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsFloor_64f
    function lumsFrac_32f(src, dst, len) result(status) &
        bind(c, name='lumsFrac_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsFrac_32f
    function lumsFrac_64f(src, dst, len) result(status) &
        bind(c, name='lumsFrac_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsFrac_64f
    function lumsHypot_32f_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_32f_A11
    function lumsHypot_32f_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_32f_A21
    function lumsHypot_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_32f_A24
    function lumsHypot_64f_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_64f_A26
    function lumsHypot_64f_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_64f_A50
    function lumsHypot_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsHypot_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsHypot_64f_A53
    function lumsInvCbrt_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_32f_A11
    function lumsInvCbrt_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_32f_A21
    function lumsInvCbrt_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_32f_A24
    function lumsInvCbrt_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_64f_A26
    function lumsInvCbrt_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_64f_A50
    function lumsInvCbrt_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsInvCbrt_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvCbrt_64f_A53
    function lumsInvSqrt_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_32f_A11
    function lumsInvSqrt_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_32f_A21
    function lumsInvSqrt_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_32f_A24
    function lumsInvSqrt_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_64f_A26
    function lumsInvSqrt_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_64f_A50
    function lumsInvSqrt_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsInvSqrt_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInvSqrt_64f_A53
    function lumsInv_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsInv_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_32f_A11
    function lumsInv_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsInv_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_32f_A21
    function lumsInv_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsInv_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_32f_A24
    function lumsInv_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsInv_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_64f_A26
    function lumsInv_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsInv_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_64f_A50
    function lumsInv_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsInv_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsInv_64f_A53
    function lumsLn_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsLn_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32f_A11
    function lumsLn_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsLn_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32f_A21
    function lumsLn_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsLn_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32f_A24
    function lumsLn_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsLn_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32fc_A11
    function lumsLn_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsLn_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32fc_A21
    function lumsLn_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsLn_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_32fc_A24
    function lumsLn_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsLn_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64f_A26
    function lumsLn_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsLn_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64f_A50
    function lumsLn_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsLn_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64f_A53
    function lumsLn_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsLn_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64fc_A26
    function lumsLn_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsLn_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64fc_A50
    function lumsLn_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsLn_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLn_64fc_A53
    function lumsLog10_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32f_A11
    function lumsLog10_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32f_A21
    function lumsLog10_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32f_A24
    function lumsLog10_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32fc_A11
    function lumsLog10_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32fc_A21
    function lumsLog10_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsLog10_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_32fc_A24
    function lumsLog10_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64f_A26
    function lumsLog10_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64f_A50
    function lumsLog10_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64f_A53
    function lumsLog10_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64fc_A26
    function lumsLog10_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64fc_A50
    function lumsLog10_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsLog10_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog10_64fc_A53
    function lumsLog1p_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_32f_A11
    function lumsLog1p_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_32f_A21
    function lumsLog1p_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_32f_A24
    function lumsLog1p_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_64f_A26
    function lumsLog1p_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_64f_A50
    function lumsLog1p_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsLog1p_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsLog1p_64f_A53
    function lumsModf_32f(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsModf_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*)
      real(c_float), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsModf_32f
    function lumsModf_64f(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsModf_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*)
      real(c_double), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsModf_64f
    function lumsMulByConj_32fc_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_32fc_A11
    function lumsMulByConj_32fc_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_32fc_A21
    function lumsMulByConj_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_32fc_A24
    function lumsMulByConj_64fc_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_64fc_A26
    function lumsMulByConj_64fc_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_64fc_A50
    function lumsMulByConj_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMulByConj_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMulByConj_64fc_A53
    function lumsMul_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_32f_A24
    function lumsMul_32fc_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_32fc_A11
    function lumsMul_32fc_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_32fc_A21
    function lumsMul_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_32fc_A24
    function lumsMul_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_64f_A53
    function lumsMul_64fc_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_64fc_A26
    function lumsMul_64fc_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_64fc_A50
    function lumsMul_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsMul_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsMul_64fc_A53
    function lumsNearbyInt_32f(src, dst, len) result(status) &
        bind(c, name='lumsNearbyInt_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsNearbyInt_32f
    function lumsNearbyInt_64f(src, dst, len) result(status) &
        bind(c, name='lumsNearbyInt_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsNearbyInt_64f
    function lumsPow2o3_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_32f_A11
    function lumsPow2o3_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_32f_A21
    function lumsPow2o3_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_32f_A24
    function lumsPow2o3_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_64f_A26
    function lumsPow2o3_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_64f_A50
    function lumsPow2o3_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsPow2o3_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow2o3_64f_A53
    function lumsPow3o2_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_32f_A11
    function lumsPow3o2_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_32f_A21
    function lumsPow3o2_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_32f_A24
    function lumsPow3o2_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_64f_A26
    function lumsPow3o2_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_64f_A50
    function lumsPow3o2_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsPow3o2_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow3o2_64f_A53
    function lumsPow_32f_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32f_A11
    function lumsPow_32f_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32f_A21
    function lumsPow_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32f_A24
    function lumsPow_32fc_A11(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32fc_A11
    function lumsPow_32fc_A21(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32fc_A21
    function lumsPow_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_32fc_A24
    function lumsPow_64f_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64f_A26
    function lumsPow_64f_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64f_A50
    function lumsPow_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64f_A53
    function lumsPow_64fc_A26(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64fc_A26
    function lumsPow_64fc_A50(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64fc_A50
    function lumsPow_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsPow_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPow_64fc_A53
    function lumsPowx_32f_A11(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: value
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32f_A11
    function lumsPowx_32f_A21(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: value
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32f_A21
    function lumsPowx_32f_A24(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), value :: value
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32f_A24
    function lumsPowx_32fc_A11(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), value :: value
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32fc_A11
    function lumsPowx_32fc_A21(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), value :: value
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32fc_A21
    function lumsPowx_32fc_A24(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), value :: value
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_32fc_A24
    function lumsPowx_64f_A26(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), value :: value
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64f_A26
    function lumsPowx_64f_A50(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), value :: value
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64f_A50
    function lumsPowx_64f_A53(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), value :: value
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64f_A53
    function lumsPowx_64fc_A26(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), value :: value
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64fc_A26
    function lumsPowx_64fc_A50(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), value :: value
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64fc_A50
    function lumsPowx_64fc_A53(src, value, dst, len) result(status) &
        bind(c, name='lumsPowx_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), value :: value
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsPowx_64fc_A53
    function lumsRint_32f(src, dst, len) result(status) &
        bind(c, name='lumsRint_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsRint_32f
    function lumsRint_64f(src, dst, len) result(status) &
        bind(c, name='lumsRint_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsRint_64f
    function lumsRound_32f(src, dst, len) result(status) &
        bind(c, name='lumsRound_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsRound_32f
    function lumsRound_64f(src, dst, len) result(status) &
        bind(c, name='lumsRound_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsRound_64f
    function lumsSinCos_32f_A11(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*)
      real(c_float), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_32f_A11
    function lumsSinCos_32f_A21(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*)
      real(c_float), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_32f_A21
    function lumsSinCos_32f_A24(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst1(*)
      real(c_float), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_32f_A24
    function lumsSinCos_64f_A26(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*)
      real(c_double), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_64f_A26
    function lumsSinCos_64f_A50(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*)
      real(c_double), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_64f_A50
    function lumsSinCos_64f_A53(src, dst1, dst2, len) result(status) &
        bind(c, name='lumsSinCos_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst1(*)
      real(c_double), intent(inout) :: dst2(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinCos_64f_A53
    function lumsSin_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsSin_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32f_A11
    function lumsSin_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsSin_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32f_A21
    function lumsSin_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsSin_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32f_A24
    function lumsSin_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsSin_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32fc_A11
    function lumsSin_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsSin_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32fc_A21
    function lumsSin_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsSin_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_32fc_A24
    function lumsSin_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsSin_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64f_A26
    function lumsSin_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsSin_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64f_A50
    function lumsSin_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsSin_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64f_A53
    function lumsSin_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsSin_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64fc_A26
    function lumsSin_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsSin_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64fc_A50
    function lumsSin_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsSin_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSin_64fc_A53
    function lumsSinh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32f_A11
    function lumsSinh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32f_A21
    function lumsSinh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32f_A24
    function lumsSinh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32fc_A11
    function lumsSinh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32fc_A21
    function lumsSinh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsSinh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_32fc_A24
    function lumsSinh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64f_A26
    function lumsSinh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64f_A50
    function lumsSinh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64f_A53
    function lumsSinh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64fc_A26
    function lumsSinh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64fc_A50
    function lumsSinh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsSinh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSinh_64fc_A53
    function lumsSqr_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsSqr_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqr_32f_A24
    function lumsSqr_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsSqr_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqr_64f_A53
    function lumsSqrt_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32f_A11
    function lumsSqrt_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32f_A21
    function lumsSqrt_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32f_A24
    function lumsSqrt_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32fc_A11
    function lumsSqrt_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32fc_A21
    function lumsSqrt_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_32fc_A24
    function lumsSqrt_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64f_A26
    function lumsSqrt_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64f_A50
    function lumsSqrt_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64f_A53
    function lumsSqrt_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64fc_A26
    function lumsSqrt_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64fc_A50
    function lumsSqrt_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsSqrt_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSqrt_64fc_A53
    function lumsSub_32f_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsSub_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src1(*)
      real(c_float), intent(in) :: src2(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSub_32f_A24
    function lumsSub_32fc_A24(src1, src2, dst, len) result(status) &
        bind(c, name='lumsSub_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src1(*)
      complex(c_float_complex), intent(in) :: src2(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSub_32fc_A24
    function lumsSub_64f_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsSub_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src1(*)
      real(c_double), intent(in) :: src2(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSub_64f_A53
    function lumsSub_64fc_A53(src1, src2, dst, len) result(status) &
        bind(c, name='lumsSub_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src1(*)
      complex(c_double_complex), intent(in) :: src2(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsSub_64fc_A53
    function lumsTan_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsTan_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32f_A11
    function lumsTan_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsTan_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32f_A21
    function lumsTan_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsTan_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32f_A24
    function lumsTan_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsTan_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32fc_A11
    function lumsTan_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsTan_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32fc_A21
    function lumsTan_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsTan_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_32fc_A24
    function lumsTan_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsTan_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64f_A26
    function lumsTan_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsTan_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64f_A50
    function lumsTan_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsTan_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64f_A53
    function lumsTan_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsTan_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64fc_A26
    function lumsTan_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsTan_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64fc_A50
    function lumsTan_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsTan_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTan_64fc_A53
    function lumsTanh_32f_A11(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32f_A11')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32f_A11
    function lumsTanh_32f_A21(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32f_A21')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32f_A21
    function lumsTanh_32f_A24(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32f_A24')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32f_A24
    function lumsTanh_32fc_A11(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32fc_A11')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32fc_A11
    function lumsTanh_32fc_A21(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32fc_A21')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32fc_A21
    function lumsTanh_32fc_A24(src, dst, len) result(status) &
        bind(c, name='lumsTanh_32fc_A24')
      import :: c_int, c_int32_t, c_float_complex
      complex(c_float_complex), intent(in) :: src(*)
      complex(c_float_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_32fc_A24
    function lumsTanh_64f_A26(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64f_A26')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64f_A26
    function lumsTanh_64f_A50(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64f_A50')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64f_A50
    function lumsTanh_64f_A53(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64f_A53')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64f_A53
    function lumsTanh_64fc_A26(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64fc_A26')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64fc_A26
    function lumsTanh_64fc_A50(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64fc_A50')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64fc_A50
    function lumsTanh_64fc_A53(src, dst, len) result(status) &
        bind(c, name='lumsTanh_64fc_A53')
      import :: c_int, c_int32_t, c_double_complex
      complex(c_double_complex), intent(in) :: src(*)
      complex(c_double_complex), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTanh_64fc_A53
    function lumsTrunc_32f(src, dst, len) result(status) &
        bind(c, name='lumsTrunc_32f')
      import :: c_int, c_int32_t, c_float
      real(c_float), intent(in) :: src(*)
      real(c_float), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTrunc_32f
    function lumsTrunc_64f(src, dst, len) result(status) &
        bind(c, name='lumsTrunc_64f')
      import :: c_int, c_int32_t, c_double
      real(c_double), intent(in) :: src(*)
      real(c_double), intent(inout) :: dst(*)
      integer(c_int32_t), value :: len
      integer(c_int) :: status
    end function lumsTrunc_64f
  end interface
end module lumvm
