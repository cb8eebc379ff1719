/* What a user's first program looks like. */
#include <lumvm.h>
#include <stdio.h>

int main(void) {
  double x[3] = {0.0, 1.0, 1000.0};
  const LumStatus status = lumsExp_64f_A53(x, x, 3);
  printf("%s: %g %g %g, status %d\n", lumvmGetLibVersion()->version, x[0], x[1], x[2], (int)status);
  return x[0] == 1.0 && status == lumStsOverflow ? 0 : 1;
}
