#include "support/values.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lum::test {
namespace {

void AddBothSigns(std::vector<uint64_t>& list, Format format, uint64_t magnitude) {
  list.push_back(magnitude);
  list.push_back(magnitude | format.sign());
}

std::vector<uint64_t> MakeKeyComponents(Format format) {
  std::vector<uint64_t> list;
  for (double number : {0.0, 1.0, 0.5, 3.0, 100.0}) AddBothSigns(list, format, format.pattern(number));
  AddBothSigns(list, format, 5);                      // a denormal
  AddBothSigns(list, format, format.infinity() - 1);  // the largest number
  AddBothSigns(list, format, format.infinity());
  list.push_back(format.infinity() | format.quiet_bit() | 0x123);  // a quiet NaN
  list.push_back(format.infinity() | 0x456 | format.sign());       // a signalling NaN
  return list;
}

std::vector<uint64_t> MakeSpecialComponents(Format format) {
  constexpr double pi = std::numbers::pi;
  std::vector<uint64_t> list;
  for (double number : {0.0,
                        1.0,
                        2.0,
                        3.0,
                        10.0,
                        100.0,
                        0.5,
                        1.5,
                        2.5,
                        0.25,
                        0.75,
                        1.0 / 3,
                        0.1,
                        pi,
                        pi / 2,
                        pi / 4,
                        3 * pi / 4,
                        2 * pi,
                        100 * pi,
                        1000 * pi,
                        87.5,
                        88.75,
                        104.0,
                        708.5,
                        709.75,
                        746.0,
                        0x1p-12,
                        0x1p-24,
                        0x1p-53,
                        0x1p-70,
                        1e-3,
                        0x1p23,
                        0x1p24,
                        0x1p31,
                        0x1p52,
                        0x1p53,
                        1e10,
                        1e20,
                        0x1p100,
                        1e38,
                        0x1p-126,
                        std::numbers::sqrt2,
                        std::numbers::e,
                        std::numbers::ln2}) {
    AddBothSigns(list, format, format.pattern(number));
  }
  const uint64_t one = format.pattern(1.0);
  const uint64_t smallest_normal = uint64_t{1} << format.fraction_bits;
  for (uint64_t magnitude :
       {one - 1, one + 1, uint64_t{1}, uint64_t{2}, smallest_normal / 2, smallest_normal - 1, smallest_normal,
        smallest_normal + 1, format.infinity() - 1, format.infinity() - smallest_normal, format.infinity()}) {
    AddBothSigns(list, format, magnitude);
  }
  for (uint64_t payload : {uint64_t{0}, uint64_t{0x155}, format.quiet_bit() - 1}) {
    AddBothSigns(list, format, format.infinity() | format.quiet_bit() | payload);
    if (payload != 0) AddBothSigns(list, format, format.infinity() | payload);  // signalling
  }
  return list;
}

// A sign and a significand at random, the exponent within 2^-range to 2^range.
uint64_t OfOrdinarySize(Format format, Random& random, int range) {
  const auto bias = (uint64_t{1} << (format.exponent_bits - 1)) - 1;
  const auto width = static_cast<uint64_t>(2 * range);
  const uint64_t exponent = bias - static_cast<uint64_t>(range) + random() % width;
  return (random() & (format.fraction() | format.sign())) | exponent << format.fraction_bits;
}

// Both inputs from lists: all pairs.
void AppendPairs(Batch& batch, const std::vector<Bits>& list) {
  for (const Bits& a : list) {
    for (const Bits& b : list) {
      batch.src1.Append(a);
      batch.src2.Append(b);
    }
  }
}

std::vector<Bits> ComponentPairs(const std::vector<uint64_t>& list) {
  std::vector<Bits> pairs;
  for (uint64_t re : list) {
    for (uint64_t im : list) pairs.push_back({re, im});
  }
  return pairs;
}

void AppendRandom(Batch& batch, const Export& entry, size_t count, Random& random) {
  for (size_t i = 0; i < count; ++i) {
    batch.src1.Append(RandomElement(entry.input, random));
    if (entry.inputs() == 2) batch.src2.Append(RandomElement(entry.input, random));
  }
}

Batch SpecialBatch(const Export& entry) {
  Batch batch(entry);
  if (entry.inputs() == 1) {
    batch.src1 = Array(entry.input, SpecialElements(entry.input));
  } else if (support::IsComplex(entry.input)) {
    AppendPairs(batch, ComponentPairs(KeyComponents(FormatOf(entry.input))));
  } else {
    AppendPairs(batch, SpecialElements(entry.input));
  }
  return batch;
}

std::vector<Batch> ParameterSweep(const Export& entry, size_t count) {
  Random random(3);
  const bool is_complex = support::IsComplex(entry.input);
  const auto elements = is_complex ? ComponentPairs(KeyComponents(FormatOf(entry.input))) : SpecialElements(entry.input);
  std::vector<Bits> parameters = elements;
  if (!is_complex) {
    for (double number : {2.0 / 3, -2.0 / 3, -1.0 / 3, 0.25, 1e-10}) {
      parameters.push_back({FormatOf(entry.input).pattern(number), 0});
    }
  }
  for (int i = 0; i < 20; ++i) parameters.push_back(RandomElement(entry.input, random));
  std::vector<Batch> batches;
  for (const Bits& parameter : parameters) {
    Batch batch(entry);
    batch.src1 = Array(entry.input, elements);
    AppendRandom(batch, entry, count / parameters.size() + 1, random);
    batch.value = Array(entry.input, {parameter});
    batches.push_back(std::move(batch));
  }
  return batches;
}

}  // namespace

Batch::Batch(const Export& entry) : src1(entry.input), src2(entry.input), value(entry.input) {}

void Batch::resize(size_t size) {
  src1.resize(size);
  if (src2.size() != 0) src2.resize(size);
}

void Batch::Append(const Batch& other, size_t i) {
  src1.Append(other.src1[i]);
  if (other.src2.size() != 0) src2.Append(other.src2[i]);
}

int Batch::Nans(size_t i) const {
  int count = CountNans(src1.element(), src1[i]);
  if (src2.size() != 0) count += CountNans(src2.element(), src2[i]);
  if (value.size() != 0) count += CountNans(value.element(), value[0]);
  return count;
}

std::string Batch::Show(size_t i) const {
  std::string text = test::Show(src1.element(), src1[i]);
  if (src2.size() != 0) text += ", " + test::Show(src2.element(), src2[i]);
  if (value.size() != 0) text += ", parameter " + test::Show(value.element(), value[0]);
  return text;
}

const std::vector<uint64_t>& SpecialComponents(Format format) {
  static const auto single = MakeSpecialComponents(FormatOf(Element::f32));
  static const auto dual = MakeSpecialComponents(FormatOf(Element::f64));
  return format.fraction_bits == 23 ? single : dual;
}

const std::vector<uint64_t>& KeyComponents(Format format) {
  static const auto single = MakeKeyComponents(FormatOf(Element::f32));
  static const auto dual = MakeKeyComponents(FormatOf(Element::f64));
  return format.fraction_bits == 23 ? single : dual;
}

uint64_t RandomComponent(Format format, Random& random) {
  switch (random() % 8) {
    case 0:
    case 1:
      return random() & format.all();
    case 2:
      return format.pattern(0.5 * (static_cast<double>(random() % 401) - 200));
    case 3:
      return format.pattern(static_cast<double>(random() >> 11) * 0x1p-52 - 1);
    case 4:
      return OfOrdinarySize(format, random, 40);
    default:
      return OfOrdinarySize(format, random, 10);
  }
}

std::vector<Bits> SpecialElements(Element element) {
  const Format format = FormatOf(element);
  std::vector<Bits> list;
  if (!support::IsComplex(element)) {
    for (uint64_t bits : SpecialComponents(format)) list.push_back({bits, 0});
    return list;
  }
  for (uint64_t re : SpecialComponents(format)) {
    for (uint64_t im : KeyComponents(format)) {
      list.push_back({re, im});
      list.push_back({im, re});
    }
  }
  return list;
}

Bits RandomElement(Element element, Random& random) {
  const Format format = FormatOf(element);
  Bits bits{RandomComponent(format, random), 0};
  if (support::IsComplex(element)) bits.im = RandomComponent(format, random);
  return bits;
}

std::vector<Batch> Sweep(const Export& entry, size_t count) {
  if (entry.has_parameter()) return ParameterSweep(entry, count);
  Random random(2);
  Batch batch = SpecialBatch(entry);
  AppendRandom(batch, entry, count, random);
  return {batch};
}

Batch Sample(const Export& entry, size_t count, uint64_t seed) {
  Random random(seed);
  const auto specials = SpecialElements(entry.input);
  const auto any = [&] {
    return random() % 2 == 0 ? specials[random() % specials.size()] : RandomElement(entry.input, random);
  };
  Batch batch(entry);
  for (size_t i = 0; i < count; ++i) {
    batch.src1.Append(any());
    if (entry.inputs() == 2) batch.src2.Append(any());
  }
  if (entry.has_parameter()) batch.value.Append(RandomElement(entry.input, random));
  return batch;
}

}  // namespace lum::test
