#include "lumvm/bytes.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "lumvm/errors.h"

namespace lum::tool {
namespace {

constexpr size_t buffer_size = size_t{1} << 18;

}  // namespace

Bytes::Bytes(const std::string& path) : name_(path == "-" ? "standard input" : path), buffer_(buffer_size) {
  file_ = path == "-" ? dup(STDIN_FILENO) : open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status;
  if (file_ < 0 || fstat(file_, &status) != 0) throw InputError(fmt::format("{}: {}", name_, std::strerror(errno)));
  if (S_ISDIR(status.st_mode)) throw InputError(fmt::format("{}: {}", name_, std::strerror(EISDIR)));
  // Standard input may stand anywhere in its file; files of size 0 are those of /proc, too, which hold something.
  const off_t at = S_ISREG(status.st_mode) ? lseek(file_, 0, SEEK_CUR) : -1;
  if (at >= 0 && status.st_size > at) size_ = static_cast<uint64_t>(status.st_size - at);
}

Bytes::Bytes(std::string name, std::string text)
    : name_(std::move(name)),
      at_end_(true),
      size_(text.size()),
      taken_(text.size()),
      buffer_(text.begin(), text.end()),
      end_(text.size()) {}

Bytes::~Bytes() {
  if (file_ >= 0) close(file_);
}

size_t Bytes::ReadFile(char* to, size_t count) {
  if (at_end_) return 0;
  ssize_t got;
  do got = read(file_, to, count);
  while (got < 0 && errno == EINTR);
  if (got < 0) throw InputError(fmt::format("{}: {}", name_, std::strerror(errno)));
  at_end_ = got == 0;
  taken_ += static_cast<uint64_t>(got);
  return static_cast<size_t>(got);
}

bool Bytes::Refill() {
  if (begin_ != 0) {
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_), buffer_.begin() + static_cast<std::ptrdiff_t>(end_),
              buffer_.begin());
    end_ -= begin_;
    begin_ = 0;
  }
  if (at_end_) return false;
  if (end_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const size_t got = ReadFile(buffer_.data() + end_, buffer_.size() - end_);
  end_ += got;
  return got != 0;
}

size_t Bytes::Read(char* to, size_t count) {
  size_t got = std::min(count, View().size());
  if (got != 0) std::memcpy(to, View().data(), got);
  Consume(got);
  while (got < count) {
    const size_t more = ReadFile(to + got, count - got);
    if (more == 0) break;
    got += more;
  }
  return got;
}

}  // namespace lum::tool
