// The bytes of a file, of standard input or of a text, through one buffer of bounded size.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lum::tool {

class Bytes {
 public:
  // "-" is standard input.
  explicit Bytes(const std::string& path);
  // A text that is there already, under the name by which messages call it.
  Bytes(std::string name, std::string text);
  ~Bytes();
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;

  // What stands in the buffer and has not been consumed.
  std::string_view View() const { return {buffer_.data() + begin_, end_ - begin_}; }
  void Consume(size_t count) { begin_ += count; }
  // Reads more behind what is there. False at the end of the input.
  bool Refill();
  // As many of these bytes as the input has; for raw elements.
  size_t Read(char* to, size_t count);

  const std::string& name() const { return name_; }
  // The size in bytes, of a regular file or a text.
  std::optional<uint64_t> size() const { return size_; }
  uint64_t consumed() const { return taken_ - (end_ - begin_); }

 private:
  size_t ReadFile(char* to, size_t count);

  std::string name_;
  int file_ = -1;
  bool at_end_ = false;
  std::optional<uint64_t> size_;
  uint64_t taken_ = 0;
  std::vector<char> buffer_;
  size_t begin_ = 0, end_ = 0;
};

}  // namespace lum::tool
