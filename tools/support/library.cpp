#include "support/library.h"

#include <dlfcn.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

#include "frame/catalogue_names.h"
#include "frame/dispatch/processor.h"

namespace lum::support {
namespace {

constexpr Element ElementOf(std::string_view type) {
  if (type == "32f") return Element::f32;
  if (type == "64f") return Element::f64;
  return type == "32fc" ? Element::c32 : Element::c64;
}
constexpr Element RealOf(Element element) {
  if (element == Element::c32) return Element::f32;
  return element == Element::c64 ? Element::f64 : element;
}

struct Costs {
  float low, mid, high;
};
enum class Slot { entryMid, entryHigh, entryLow };

constexpr Export Make(std::string_view name, std::string_view function, std::string_view type, std::string_view tag,
                      Shape shape, Slot slot, Costs costs) {
  const Element element = ElementOf(type);
  const float cost = slot == Slot::entryMid ? costs.mid : slot == Slot::entryHigh ? costs.high : costs.low;
  const Tier tier = slot == Slot::entryMid ? Tier::mid : slot == Slot::entryHigh ? Tier::high : Tier::low;
  return {name,
          function,
          type,
          tag,
          shape,
          tier,
          shape == Shape::ToComplex ? RealOf(element) : element,
          shape == Shape::ToReal ? RealOf(element) : element,
          cost};
}

#define LUM_COSTS(function, type, low, mid, high) constexpr Costs costs_##function##_##type{low, mid, high};
#include "frame/costs.def"

#define LUM_EXPORT(name, function, type, shape, tag, slot) \
  Make(#name, #function, #type, #tag, Shape::shape, Slot::slot, costs_##function##_##type),
#define LUM_ROW(function, type, shape, exported, ...) LUM_EXPORTS_##exported(LUM_EXPORT, function, type, shape)
constexpr Export exports[] = {
#include "frame/catalogue.def"
};

template <class T> LumStatus CallTyped(void* address, Shape shape, const Arguments& a) {
  const auto* src1 = static_cast<const T*>(a.src1);
  const auto* src2 = static_cast<const T*>(a.src2);
  auto* dst1 = static_cast<T*>(a.dst1);
  auto* dst2 = static_cast<T*>(a.dst2);
  switch (shape) {
    case Shape::TwoInputs:
      return reinterpret_cast<LumStatus (*)(const T*, const T*, T*, int32_t)>(address)(src1, src2, dst1, a.len);
    case Shape::TwoOutputs:
      return reinterpret_cast<LumStatus (*)(const T*, T*, T*, int32_t)>(address)(src1, dst1, dst2, a.len);
    case Shape::ScalarParameter:
      return reinterpret_cast<LumStatus (*)(const T*, T, T*, int32_t)>(address)(src1, *static_cast<const T*>(a.value), dst1,
                                                                                a.len);
    default:
      return reinterpret_cast<LumStatus (*)(const void*, void*, int32_t)>(address)(a.src1, a.dst1, a.len);
  }
}

}  // namespace

int Export::bits() const {
  if (tag.empty()) return is_32bit() ? 24 : 53;
  return 10 * (tag[1] - '0') + (tag[2] - '0');
}

std::span<const Export> Exports() { return exports; }

const Export* FindExport(std::string_view name) {
  const auto found = std::ranges::find(exports, name, &Export::name);
  return found == std::end(exports) ? nullptr : found;
}

size_t SizeOf(Element element) {
  switch (element) {
    case Element::f32:
      return sizeof(Lum32f);
    case Element::f64:
      return sizeof(Lum64f);
    case Element::c32:
      return sizeof(Lum32fc);
    case Element::c64:
      return sizeof(Lum64fc);
  }
  return 0;
}

std::string_view InstructionsOf(std::string_view library) {
  if (library == "k0") return "AVX-512F/CD/BW/DQ/VL";
  return library == "a2" ? "AVX2, FMA, BMI and LZCNT" : "no particular instructions";
}

bool ProcessorRuns(std::string_view library) {
  if (library == "k0") return lum::ProcessorRuns(Layer::avx512);
  if (library == "a2") return lum::ProcessorRuns(Layer::avx2);
  return library == "p0";
}

std::string_view FastestLibrary() {
  return *std::ranges::find_if(BuiltLibraries(), [](std::string_view name) { return ProcessorRuns(name); });
}

std::span<const std::string> BuiltLibraries() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> list;
    std::istringstream text(LUM_BUILT_LIBRARIES);
    for (std::string name; std::getline(text, name, ' ');) list.push_back(name);
    return list;
  }();
  return names;
}

std::optional<Library> Library::Load(const std::string& path, std::string& error) {
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    error = dlerror();
    return std::nullopt;
  }
  return Library(handle);
}

std::optional<Library> Library::LoadBuilt(std::string_view target, std::string& error, std::string_view variant) {
  std::string path = LUM_BUILT_LIBRARY_DIR "/liblumvm";
  path.append(target).append(variant).append(".so");
  return Load(path, error);
}

void* Library::Symbol(std::string_view name) const { return dlsym(handle_, std::string(name).c_str()); }

LumStatus Library::Call(const Export& entry, const Arguments& arguments) const {
  return CallAddress(Symbol(entry.name), entry, arguments);
}

LumStatus CallAddress(void* address, const Export& entry, const Arguments& arguments) {
  switch (ElementOf(entry.type)) {
    case Element::f32:
      return CallTyped<Lum32f>(address, entry.shape, arguments);
    case Element::f64:
      return CallTyped<Lum64f>(address, entry.shape, arguments);
    case Element::c32:
      return CallTyped<Lum32fc>(address, entry.shape, arguments);
    default:
      return CallTyped<Lum64fc>(address, entry.shape, arguments);
  }
}

std::string_view StatusName(LumStatus status) {
  switch (status) {
    case lumStsOk:
      return "ok";
    case lumStsSizeErr:
      return "size error";
    case lumStsNullPtrErr:
      return "null pointer";
    case lumStsOverflow:
      return "overflow";
    case lumStsUnderflow:
      return "underflow";
    case lumStsSingularity:
      return "singularity";
    case lumStsDomain:
      return "domain error";
  }
  return "unknown status";
}

}  // namespace lum::support
