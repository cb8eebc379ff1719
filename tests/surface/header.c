/* The public header compiles as C, and a C program calls the library. */
#include <lumvm.h>

int main(void) {
  const double x[3] = {0.0, -2.5, 1000.0};
  double y[3];
  if (lumsAbs_64f_A53(x, y, 3) != lumStsOk) return 1;
  if (y[0] != 0.0 || y[1] != 2.5 || y[2] != 1000.0) return 2;
  if (lumsExp_64f_A53(x, y, 3) != lumStsOverflow) return 3;
  if (y[0] != 1.0) return 4;
  return lumvmGetLibVersion()->versionMajor == 2026 ? 0 : 5;
}
