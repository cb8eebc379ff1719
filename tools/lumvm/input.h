// The elements that a function is applied to, in blocks of bounded size, from files of any format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "lumvm/bytes.h"
#include "lumvm/npy.h"
#include "support/library.h"

namespace lum::tool {

inline constexpr size_t block_size = 16384;

struct InputRequest {
  std::vector<std::string> files;    // one or two, or none when there are words
  std::vector<std::string> words;    // numbers given as arguments
  std::vector<std::string> columns;  // of a CSV table, by name or by number from 1; empty: no table
  char delimiter = 0;                // between its fields; 0: the first line tells
  bool is_raw = false;
  support::Element element = support::Element::f64;
  int inputs = 1;
};

// Elements in memory order. Of a table also its lines as they stand in the file.
struct Block {
  std::vector<std::byte> src1, src2;
  std::vector<std::string> lines;
  size_t count = 0;
};

class Input {
 public:
  virtual ~Input() = default;
  // Up to block_size elements; false behind the last one. Throws InputError that names file and line.
  virtual bool Next(Block& block) = 0;
  // Where the input is one .npy array: its header. Where it is a table: the line of the columns' names, if it has one.
  virtual const NpyHeader* npy() const { return nullptr; }
  virtual std::optional<std::string> table_head() const { return std::nullopt; }
  virtual bool is_table() const { return false; }
  virtual char delimiter() const { return ','; }
  // True when the elements of one file alternate between two inputs.
  virtual bool alternates() const { return false; }
  // The share of the input that has been taken, for a display of progress.
  virtual std::optional<double> share() const = 0;
  virtual std::string name() const = 0;
  // What the user should know of the numbers that were read, a line each.
  virtual std::vector<std::string> warnings() const = 0;
};

std::unique_ptr<Input> OpenInput(const InputRequest& request);

// The element type of a .npy file, without a value for anything else or where it is none of ours.
std::optional<support::Element> ElementOfFile(const std::string& path);

// One number of the type from a word of the command line. Throws InputError that calls it `name`.
std::vector<std::byte> ParseArgument(const std::string& text, const std::string& name, support::Element element,
                                     std::vector<std::string>& warnings);

// Numbers of a text that could not be held by the type.
struct OutOfRange {
  uint64_t count = 0;
  std::string first;  // file, line and word of the first one, and what it became
  void Add(const std::string& name, uint64_t line, std::string_view word, double value);
};

}  // namespace lum::tool
