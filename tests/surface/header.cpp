// The public header compiles as C++ by itself, and its names are C names.
#include <lumvm.h>

int main() {
  const Lum32fc z = {1.0f, 2.0f};
  Lum32fc w;
  if (lumsConj_32fc_A24(&z, &w, 1) != lumStsOk) return 1;
  return w.re == 1.0f && w.im == -2.0f ? 0 : 2;
}
