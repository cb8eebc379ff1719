// What the tests of Powx share: batches of all classes with one exponent, and calls whose reports are recorded.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/accuracy.h"
#include "support/cases.h"
#include "support/recorder.h"

namespace lum::test {

inline constexpr double third = 1.0 / 3;

inline const Export& ExportOf(std::string_view name) { return *ExportsNamed(name).front(); }

// Special values and others of all classes.
inline Array Elements(const Export& entry) {
  Array array(entry.input);
  for (const Bits& bits : SpecialElements(entry.input)) array.Append(bits);
  Random random(5);
  for (int i = 0; i < 700; ++i) array.Append(RandomElement(entry.input, random));
  for (double x : BetweenMagnitudes(1e-5, 1e5, 300) + Between(-3, 3, 200)) array.Append({FormatOf(entry.input).pattern(x), 0});
  return array;
}
inline Batch WithValue(const Export& entry, const Array& x, double value) {
  Batch batch(entry);
  batch.src1 = x;
  batch.value.Append({FormatOf(entry.input).pattern(value), 0});
  return batch;
}

// A call with its status and what the hook saw.
struct Seen {
  Output output;
  std::vector<std::pair<int32_t, int32_t>> reports;  // index, status
};
inline Seen RunRecorded(const support::Library& library, const Export& entry, const Batch& batch) {
  Recorder recorder(library, entry);
  Seen seen{Callee(library, entry).Run(batch), {}};
  for (const auto& logged : recorder.log()) seen.reports.emplace_back(logged.call.index, logged.call.status);
  return seen;
}

// On every library that can run: test(library).
template <class Test> void OnEveryLibrary(Test test) {
  for (const std::string& name : RunnableLibraries()) {
    SCOPED_TRACE(name);
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    test(*library);
  }
}

}  // namespace lum::test
