// The commands of the tool. Each throws InputError or SystemError where it cannot do what is asked.
#pragma once

#include <string>
#include <vector>

#include "lumvm/results.h"

namespace lum::tool {

struct ListOptions {
  std::vector<std::string> words;  // a function is listed that all of them fit: parts of names or texts, families, types
  bool is_json = false;
};

struct InfoOptions {
  std::string function;
  bool is_json = false;
};

// What apply and compare have in common.
struct ApplyOptions {
  std::string function;
  std::string type;                    // empty: by the input
  std::string tag;                     // empty: the highest
  std::vector<std::string> arguments;  // files, or numbers
  std::string value;                   // the scalar parameter, as text
  std::vector<std::string> columns;
  std::string delimiter;
  std::string layer;
  bool is_raw = false;
  // What apply alone takes.
  std::string output = "-";
  std::string format;  // empty: by the name of the output
  bool is_json = false;
  Notation notation = Notation::decimal;
};

struct PlotOptions {
  std::string function;
  std::string type;
  std::string tag;
  std::string value;
  std::string from, to;  // empty: the function's interval of everyday arguments
  std::string output;    // .svg or .png; empty: the terminal
  std::string layer;
  bool has_error = false;
};

void List(const ListOptions& options);
void Info(const InfoOptions& options);
void Apply(const ApplyOptions& options);
// Results at all tags side by side with their distance from the highest, and the speed of each against a scalar loop.
void Compare(const ApplyOptions& options);
void Plot(const PlotOptions& options);
void Version();

}  // namespace lum::tool
