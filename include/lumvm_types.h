/* The types of lumVM: elements, statuses, the version record. */
#ifndef LUMVM_TYPES_H
#define LUMVM_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define LUM_API __attribute__((visibility("default")))
#else
#define LUM_API
#endif

typedef float Lum32f;
typedef double Lum64f;
typedef struct Lum32fc {
  Lum32f re, im;
} Lum32fc;
typedef struct Lum64fc {
  Lum64f re, im;
} Lum64fc;

typedef enum LumStatus {
  lumStsOk = 0,
  lumStsSizeErr = -6,      /* len is zero or negative; nothing was touched */
  lumStsNullPtrErr = -8,   /* an array pointer is null; nothing was touched */
  lumStsOverflow = 12,     /* finite arguments, result too large */
  lumStsUnderflow = 17,    /* finite arguments, result too small: zero or denormal */
  lumStsSingularity = 18,  /* pole: the element is an infinity */
  lumStsDomain = 19        /* argument outside the domain: the element is a NaN */
} LumStatus;

typedef struct LumLibraryVersion {
  int32_t versionMajor;
  int32_t versionMinor;
  int32_t versionPatch;
  uint32_t buildTag;   /* revision number */
  char targetCode[4];  /* processor class, filled with zeros */
  const char* name;
  const char* version;
  const char* buildDate;
} LumLibraryVersion;

#endif
