! The Fortran module: results, statuses, in place, and a complex parameter by value.
program arrays
  use lumvm
  use, intrinsic :: iso_c_binding
  implicit none
  real(c_double) :: x(3) = [0.5d0, 1d0, 2d0], y(3), s(3), c(3)
  complex(c_double_complex) :: z(2) = [(1d0, 2d0), (3d0, 4d0)]
  complex(c_float_complex) :: w(2) = [(1.0, 2.0), (3.0, 4.0)]
  real(c_double) :: moduli(2)

  call expect(lumsExp_64f_A53(x, y, size(x)) == lumStsOk, 'status of exp')
  call expect(all(abs(y - exp(x)) <= spacing(y)), 'exp')
  call expect(lumsSinCos_64f_A53(x, s, c, size(x)) == lumStsOk, 'status of sincos')
  call expect(all(abs(s - sin(x)) <= spacing(s)) .and. all(abs(c - cos(x)) <= spacing(c)), 'sincos')
  call expect(lumsLn_64f_A53([0d0], y, 1) == lumStsSingularity, 'status of a pole')
  call expect(lumsExp_64f_A53(x, y, 0) == lumStsSizeErr, 'status of a bad length')
  call expect(lumsAbs_64fc_A53(z, moduli, size(z)) == lumStsOk .and. moduli(2) == 5, 'modulus')
  call expect(lumsPowx_64fc_A53(z, (2d0, 0d0), z, size(z)) == lumStsOk, 'status of a power')
  call expect(all(abs(z - [(-3d0, 4d0), (-7d0, 24d0)]) < 1d-13), 'power with a complex exponent')
  call expect(lumsPowx_32fc_A24(w, (2.0, 0.0), w, size(w)) == lumStsOk, 'status of a power of 32-bit parts')
  call expect(all(abs(w - [(-3.0, 4.0), (-7.0, 24.0)]) < 1e-5), 'power with a complex exponent of 32-bit parts')
  print '(a)', 'Fortran: ok'

contains
  subroutine expect(holds, what)
    logical, intent(in) :: holds
    character(*), intent(in) :: what
    if (.not. holds) then
      print '(2a)', 'Fortran: wrong: ', what
      stop 1
    end if
  end subroutine expect
end program arrays
