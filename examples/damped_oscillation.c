/* A C99 program: position and velocity of damped oscillators, e^-t cos(w t) and e^-t sin(w t), at many times.
 *
 *     cc -std=c99 damped_oscillation.c $(pkg-config --cflags --libs lumvm) -lm -o damped_oscillation
 */
#include <lumvm.h>
#include <math.h>
#include <stdio.h>

enum { count = 1000 };

/* Describes a status that is not lumStsOk. */
static const char* describe(LumStatus status) {
  switch (status) {
    case lumStsSizeErr:
      return "bad length";
    case lumStsNullPtrErr:
      return "null array";
    case lumStsOverflow:
      return "overflow";
    case lumStsUnderflow:
      return "underflow";
    case lumStsSingularity:
      return "singularity";
    case lumStsDomain:
      return "outside the domain";
    default:
      return "ok";
  }
}

int main(void) {
  static double decay[count], angle[count], x[count], y[count];
  double worst = 0;
  int failures = 0;
  int i;
  LumStatus status;

  for (i = 0; i < count; ++i) {
    decay[i] = -0.01 * i;
    angle[i] = 0.5 * i;
  }
  failures += lumsExp_64f_A53(decay, decay, count) != lumStsOk; /* in place */
  failures += lumsSinCos_64f_A53(angle, y, x, count) != lumStsOk;
  failures += lumsMul_64f_A53(decay, x, x, count) != lumStsOk;
  failures += lumsMul_64f_A53(decay, y, y, count) != lumStsOk;

  printf("%8s %20s %20s\n", "t", "x", "y");
  for (i = 0; i < count; i += count / 5) printf("%8.2f %20.17f %20.17f\n", 0.01 * i, x[i], y[i]);

  /* x^2 + y^2 = e^(-2t), whatever the angle. */
  for (i = 0; i < count; ++i) {
    const double expected = exp(-0.02 * i);
    const double error = fabs(x[i] * x[i] + y[i] * y[i] - expected) / expected;
    if (!(error <= worst)) worst = error;
  }
  printf("largest relative error of x^2 + y^2: %.2g\n", worst);
  failures += !(worst < 1e-14);

  /* A warning: all elements are written, the status is that of the last one that had something to report. */
  decay[0] = 1000.0;
  decay[1] = -1.0;
  status = lumsExp_64f_A53(decay, decay, 2);
  printf("Exp of 1000 and -1: %g %g, status %d (%s)\n", decay[0], decay[1], (int)status, describe(status));
  failures += status != lumStsOverflow;

  /* An error: nothing has been touched. */
  status = lumsExp_64f_A53(decay, decay, 0);
  printf("Exp of no elements: status %d (%s)\n", (int)status, describe(status));
  failures += status != lumStsSizeErr;
  return failures == 0 ? 0 : 1;
}
