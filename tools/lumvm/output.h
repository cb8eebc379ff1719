// A file that is written whole or not at all.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace lum::tool {

// Throws SystemError for what cannot be written. Where Finish is not called, an existing file stays as it was and a new one
// does not come into being.
//   A regular file, also one behind symbolic links, is written under a private name in its folder, which then takes its place
//   with its mode and owner. Where that would change its owner or part it from other links to it, or the folder is
//   closed, the complete output is copied into it at the end.
//   Anything else (a device, a FIFO) and standard output, "-", are written through, or at the end when the output is `spooled`.
class Output {
 public:
  explicit Output(const std::string& path, bool is_spooled = false);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  // Room for that many characters behind what is written; Advance says how many there are now.
  char* Room(size_t count);
  void Advance(const char* end) { filled_ = static_cast<size_t>(end - buffer_.data()); }
  void Write(std::string_view text);
  // Puts text of the same size in the place of the first bytes; of regular files and spooled output.
  void Rewrite(std::string_view start);
  void Finish();

 private:
  void Flush();
  void OpenReplacement();
  void CopyInto(int to, bool is_regular);
  [[noreturn]] void Fail(int error) const;
  void Abandon();

  std::string name_;
  std::string target_;     // the file itself, behind symbolic links
  std::string temporary_;  // empty where none is to take the target's place
  int file_ = -1;          // what is written to
  int through_ = -1;       // what a spool is copied to at the end
  bool is_regular_ = false;
  std::vector<char> buffer_;
  size_t filled_ = 0;
};

// A nameless temporary file.
class Spool {
 public:
  Spool();
  ~Spool();
  Spool(const Spool&) = delete;
  Spool& operator=(const Spool&) = delete;
  void Write(const void* bytes, size_t count);
  void CopyTo(Output& output);
  // The open file, read from its start by another program.
  int Rewound();

 private:
  std::FILE* file_;
};

}  // namespace lum::tool
