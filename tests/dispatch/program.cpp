// A program that is linked with lumVM and with a library that calls it early: prints the layer and a digest of results, which
// is the same on every processor. It calls after a fork, too.
#include <lumvm.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

extern "C" int CalledWellBefore();

namespace {

constexpr int count = 4096;
double x[count], y[count];
float u[count], v[count];

uint64_t digest = 14695981039346656037u;
void Add(const void* data, size_t size) {
  for (size_t i = 0; i < size; ++i) digest = (digest ^ static_cast<const unsigned char*>(data)[i]) * 1099511628211u;
}

using Doubles = LumStatus(const double*, double*, int32_t);
using Floats = LumStatus(const float*, float*, int32_t);

uint64_t Digest() {
  digest = 14695981039346656037u;
  for (int i = 0; i < count; ++i) {
    x[i] = (i - 100) * 0.013;
    u[i] = static_cast<float>(x[i]);
  }
  for (Doubles* function : {lumsExp_64f_A53, lumsLn_64f_A53, lumsSin_64f_A53, lumsTan_64f_A50, lumsErf_64f_A53,
                            lumsCbrt_64f_A26, lumsTanh_64f_A53, lumsCdfNormInv_64f_A53, lumsSqrt_64f_A50, lumsAtan_64f_A53}) {
    const LumStatus status = function(x, y, count);
    Add(y, sizeof y);
    Add(&status, sizeof status);
  }
  for (Floats* function : {lumsExp_32f_A24, lumsLog10_32f_A21, lumsCos_32f_A24, lumsAcosh_32f_A11, lumsErfc_32f_A24,
                           lumsInvSqrt_32f_A24, lumsRound_32f}) {
    const LumStatus status = function(u, v, count);
    Add(v, sizeof v);
    Add(&status, sizeof status);
  }
  static Lum64fc z[count / 2], w[count / 2];
  std::memcpy(z, x, sizeof z);
  for (auto* function : {lumsExp_64fc_A53, lumsLn_64fc_A53, lumsSqrt_64fc_A53, lumsSin_64fc_A53, lumsAcos_64fc_A53}) {
    const LumStatus status = function(z, w, count / 2);
    Add(w, sizeof w);
    Add(&status, sizeof status);
  }
  return digest;
}

}  // namespace

int main() {
  if (CalledWellBefore() == 0) {
    std::puts("a call before the library's constructor went wrong");
    return 1;
  }
  const uint64_t own = Digest();
  const pid_t child = fork();
  if (child == 0) _exit(Digest() == own ? 0 : 1);
  int status = 1;
  if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
    std::puts("calls after a fork went wrong");
    return 1;
  }
  std::printf("%s %016llx\n", lumvmGetLayer(), static_cast<unsigned long long>(own));
  return 0;
}
