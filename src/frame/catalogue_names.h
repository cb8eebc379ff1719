// Exported names made from a row of the catalogue. For a row's function, type and exported form,
// LUM_EXPORTS_<exported>(X, function, type, shape) calls X(name, function, type, shape, tag, slot) for each name.
// Read by the compiler and, for the version script, by the preprocessor alone.
#define LUM_LOW_32f A11
#define LUM_LOW_32fc A11
#define LUM_LOW_64f A26
#define LUM_LOW_64fc A26
#define LUM_MID_32f A21
#define LUM_MID_32fc A21
#define LUM_MID_64f A50
#define LUM_MID_64fc A50
#define LUM_HIGH_32f A24
#define LUM_HIGH_32fc A24
#define LUM_HIGH_64f A53
#define LUM_HIGH_64fc A53

#define LUM_EXPORT_WITH_TAG_(X, function, type, shape, tag, slot) \
  X(lums##function##_##type##_##tag, function, type, shape, tag, slot)
#define LUM_EXPORT_WITH_TAG(X, function, type, shape, tag, slot) LUM_EXPORT_WITH_TAG_(X, function, type, shape, tag, slot)
#define LUM_EXPORTS_High(X, function, type, shape) LUM_EXPORT_WITH_TAG(X, function, type, shape, LUM_HIGH_##type, entryHigh)
#define LUM_EXPORTS_Tagged(X, function, type, shape)                      \
  LUM_EXPORT_WITH_TAG(X, function, type, shape, LUM_LOW_##type, entryLow) \
  LUM_EXPORT_WITH_TAG(X, function, type, shape, LUM_MID_##type, entryMid) \
  LUM_EXPORTS_High(X, function, type, shape)
#define LUM_EXPORTS_Untagged(X, function, type, shape) X(lums##function##_##type, function, type, shape, , entryHigh)
