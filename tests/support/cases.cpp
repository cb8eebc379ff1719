#include "support/cases.h"

#include <map>

namespace lum::test {
namespace {

using support::Arguments;
using support::Shape;

struct Case {
  std::vector<Value> inputs;  // with the parameter last, where there is one
  std::vector<Value> results;
  LumStatus status;
};

Bits BitsOf(const Value& value, Element element) {
  const Format format = FormatOf(element);
  return {value.re.In(format), support::IsComplex(element) ? value.im.In(format) : 0};
}

bool Matches(const Component& expected, uint64_t actual, Format format) {
  return expected.is_any_nan() ? format.is_quiet_nan(actual) : expected.In(format) == actual;
}
bool Matches(const Value& expected, Bits actual, Element element) {
  const Format format = FormatOf(element);
  return Matches(expected.re, actual.re, format) && (!support::IsComplex(element) || Matches(expected.im, actual.im, format));
}

Batch BatchOf(const Case& c, const Export& entry) {
  Batch batch(entry);
  batch.src1.Append(BitsOf(c.inputs[0], entry.input));
  if (entry.inputs() == 2) batch.src2.Append(BitsOf(c.inputs[1], entry.input));
  if (entry.has_parameter()) batch.value.Append(BitsOf(c.inputs[1], entry.input));
  return batch;
}

// One call, in which the case is element `position`.
void ExpectElement(const Case& c, const Callee& callee, const Batch& batch, size_t position) {
  const Output output = callee.Run(batch);
  const Element element = callee.entry().output;
  const bool good = Matches(c.results[0], output.dst1[position], element) &&
                    (c.results.size() == 1 || Matches(c.results[1], output.dst2[position], element)) &&
                    output.status == c.status;
  if (good) return;
  std::string expected = Show(element, BitsOf(c.results[0], element));
  if (c.results.size() == 2) expected += ", " + Show(element, BitsOf(c.results[1], element));
  ADD_FAILURE() << callee.entry().name << " of " << batch.Show(position) << ", element " << position << " of " << batch.size()
                << "\n  expected " << expected << " status " << c.status << "\n  got      " << output.Show(position)
                << " status " << output.status;
}

// Elements of all classes that report nothing, so that the status of a call is that of the case.
Batch QuietJunk(const Callee& callee, const Batch& parameter) {
  Batch junk = Sample(callee.entry(), 300, 7);
  junk.value = parameter.value;
  std::vector<LumStatus> statuses;
  callee.RunEach(junk, statuses);
  Batch quiet(callee.entry());
  quiet.value = parameter.value;
  for (size_t i = 0; i < junk.size(); ++i) {
    if (statuses[i] == lumStsOk) quiet.Append(junk, i);
  }
  return quiet;
}

void ExpectAmongJunk(const Case& c, const Callee& callee, const Batch& single, const Batch& junk, Random& random) {
  for (int round = 0; round < 4; ++round) {
    const size_t size = 1 + random() % 140;
    const size_t position = random() % size;
    Batch batch(callee.entry());
    batch.value = single.value;
    for (size_t i = 0; i < size; ++i) {
      if (i == position) batch.Append(single, 0);
      else batch.Append(junk, random() % junk.size());
    }
    ExpectElement(c, callee, batch, position);
  }
}

void ExpectCasesOf(const Export& entry, const std::vector<Case>& cases) {
  for (const std::string& name : RunnableLibraries()) {
    SCOPED_TRACE(name);
    std::string reason;
    const Callee callee(*TestLibrary(name, "", reason), entry);
    Random random(5);
    Batch junk(entry);
    for (const Case& c : cases) {
      const Batch single = BatchOf(c, entry);
      ExpectElement(c, callee, single, 0);
      if (junk.size() == 0 || entry.has_parameter()) junk = QuietJunk(callee, single);
      // With some parameters every element reports; with all other functions there are some that do not.
      ASSERT_TRUE(junk.size() != 0 || entry.has_parameter()) << "no element that reports nothing";
      if (junk.size() != 0) ExpectAmongJunk(c, callee, single, junk, random);
    }
  }
}

void ExpectCasesNamed(std::string_view name, const std::vector<Case>& cases, size_t inputs, size_t outputs) {
  const auto exports = ExportsNamed(name);
  ASSERT_FALSE(exports.empty()) << "no export is named " << name;
  for (const Export* entry : exports) {
    const auto values = static_cast<size_t>(entry->inputs() + (entry->has_parameter() ? 1 : 0));
    ASSERT_EQ(values, inputs) << name << " takes another number of inputs";
    ASSERT_EQ(static_cast<size_t>(entry->outputs()), outputs) << name << " has another number of outputs";
    ExpectCasesOf(*entry, cases);
  }
}

}  // namespace

uint64_t Component::In(Format format) const {
  if (kind_ == Kind::number) return format.pattern(number_);
  const uint64_t sign = negative_ ? format.sign() : 0;
  switch (kind_) {
    case Kind::largest:
      return (format.infinity() - 1) ^ sign;
    case Kind::smallest_normal:
      return (format.fraction() + 1) ^ sign;
    case Kind::smallest:
      return 1 ^ sign;
    case Kind::nan:
    case Kind::any_nan:
      return (format.infinity() | format.quiet_bit()) ^ sign;
    case Kind::default_nan:
      return (format.infinity() | format.quiet_bit() | format.sign()) ^ sign;
    default:
      return bits_ ^ sign;
  }
}

std::vector<const Export*> ExportsNamed(std::string_view name) {
  std::vector<const Export*> found;
  for (const Export& entry : support::Exports()) {
    const std::string_view full = entry.name.substr(4);
    if (full == name || (full.starts_with(name) && full.substr(name.size()) == std::string("_").append(entry.tag))) {
      found.push_back(&entry);
    }
  }
  return found;
}

void ExpectCases(std::string_view name, const std::vector<OneInputCase>& cases) {
  std::vector<Case> list;
  for (const OneInputCase& c : cases) list.push_back({{c.x}, {c.result}, c.status});
  ExpectCasesNamed(name, list, 1, 1);
}

void ExpectCases(std::string_view name, const std::vector<ThreeValueCase>& cases) {
  const auto exports = ExportsNamed(name);
  const bool two_outputs = !exports.empty() && exports[0]->outputs() == 2;
  std::vector<Case> list;
  for (const ThreeValueCase& c : cases) {
    if (two_outputs) list.push_back({{c.first}, {c.second, c.third}, c.status});
    else list.push_back({{c.first, c.second}, {c.third}, c.status});
  }
  ExpectCasesNamed(name, list, two_outputs ? 1 : 2, two_outputs ? 2 : 1);
}

void ExpectCases(std::string_view name, std::initializer_list<OneInputCase> cases) {
  ExpectCases(name, std::vector<OneInputCase>(cases));
}
void ExpectCases(std::string_view name, std::initializer_list<ThreeValueCase> cases) {
  ExpectCases(name, std::vector<ThreeValueCase>(cases));
}

}  // namespace lum::test
