// The catalogue and the built libraries as programs see them: a list of all exports, and calls of any of them by name at run
// time. Tests, tools and benchmarks that go over all functions are written against this.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "lumvm_types.h"

namespace lum::support {

enum class Shape { OneInput, TwoInputs, TwoOutputs, ScalarParameter, ToReal, ToComplex };
enum class Element { f32, f64, c32, c64 };
enum class Tier { low, mid, high };

struct Export {
  std::string_view name;      // lumsExp_32f_A24
  std::string_view function;  // Exp
  std::string_view type;      // 32f, the type in the name
  std::string_view tag;       // A24; empty for names without a tag
  Shape shape;
  Tier tier;
  Element input;
  Element output;
  float cost;

  int inputs() const { return shape == Shape::TwoInputs ? 2 : 1; }
  int outputs() const { return shape == Shape::TwoOutputs ? 2 : 1; }
  bool has_parameter() const { return shape == Shape::ScalarParameter; }
  bool is_32bit() const { return type.starts_with("32"); }
  bool is_complex() const { return type.ends_with("c"); }
  // Bits of accuracy that the tag promises; names without a tag are exact.
  int bits() const;
};

// All exports of the catalogue, in its order.
std::span<const Export> Exports();
const Export* FindExport(std::string_view name);

size_t SizeOf(Element element);
inline bool IsComplex(Element element) { return element == Element::c32 || element == Element::c64; }
inline bool Is32Bit(Element element) { return element == Element::f32 || element == Element::c32; }

// The instructions that a library needs: "k0" AVX-512, "a2" AVX2 with FMA, BMI and LZCNT, "p0" none in particular.
std::string_view InstructionsOf(std::string_view library);
// True when the processor has them.
bool ProcessorRuns(std::string_view library);
// The fastest library that the processor runs.
std::string_view FastestLibrary();
// The names of the built libraries, the fastest first.
std::span<const std::string> BuiltLibraries();

// The arguments of any shape: those that a shape does not have are ignored. value points to the scalar parameter.
struct Arguments {
  const void* src1 = nullptr;
  const void* src2 = nullptr;
  const void* value = nullptr;
  void* dst1 = nullptr;
  void* dst2 = nullptr;
  int32_t len = 0;
};

// A loaded library. Copies share the handle, which lives as long as the process.
class Library {
 public:
  // Loads by file path. Without a value: error holds the loader's message.
  static std::optional<Library> Load(const std::string& path, std::string& error);
  // Loads the built liblumvmk0.so, liblumvma2.so or liblumvmp0.so, "k0", "a2" or "p0"; with variant "_recording" the tests'
  // copy.
  static std::optional<Library> LoadBuilt(std::string_view target, std::string& error, std::string_view variant = "");

  // The address of a symbol, or null.
  void* Symbol(std::string_view name) const;
  template <class Function> Function* Symbol(std::string_view name) const { return reinterpret_cast<Function*>(Symbol(name)); }
  LumStatus Call(const Export& entry, const Arguments& arguments) const;

 private:
  explicit Library(void* handle) : handle_(handle) {}
  void* handle_;
};

// Calls a function of the export's shape and type at that address.
LumStatus CallAddress(void* address, const Export& entry, const Arguments& arguments);

// The status in words, as the header names it.
std::string_view StatusName(LumStatus status);

}  // namespace lum::support
