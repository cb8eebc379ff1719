#include "lumvm/output.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "lumvm/errors.h"

namespace lum::tool {
namespace {

constexpr size_t buffer_size = size_t{1} << 18;

// The temporary file of the output in progress, for the handler of signals that end the program.
char pending_file[PATH_MAX];

void RemoveAndEnd(int signal) {
  if (pending_file[0] != '\0') unlink(pending_file);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void SetPending(const std::string& path) {
  pending_file[0] = '\0';
  if (path.empty() || path.size() >= sizeof pending_file) return;
  // The first character last: the handler sees a whole name or none.
  std::memcpy(pending_file + 1, path.c_str() + 1, path.size());
  pending_file[0] = path[0];
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXFSZ}) {
    if (std::signal(signal, RemoveAndEnd) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

// The number of an open file that a path of this kind names, or -1.
int OpenFileNumber(const std::string& path) {
  if (path == "-" || path == "/dev/stdout") return STDOUT_FILENO;
  if (path == "/dev/stderr") return STDERR_FILENO;
  for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
    if (path.starts_with(folder)) return std::atoi(path.c_str() + folder.size());
  }
  return -1;
}

// Behind all symbolic links, also where the last one points to nothing.
std::string BehindLinks(std::string path) {
  constexpr int most_links = 40;
  for (int i = 0; i < most_links; ++i) {
    std::error_code error;
    const auto next = std::filesystem::read_symlink(path, error);
    if (error) return path;
    path = next.is_absolute() ? next : std::filesystem::path(path).parent_path() / next;
  }
  return path;
}

int OpenSpool() {
  const char* folder = std::getenv("TMPDIR");
  std::string name = fmt::format("{}/lumvm-XXXXXX", folder == nullptr || *folder == '\0' ? "/tmp" : folder);
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) throw SystemError(fmt::format("no temporary file {}: {}", name, std::strerror(errno)));
  unlink(name.c_str());
  return file;
}

bool WriteAll(int file, const char* from, size_t count) {
  while (count != 0) {
    const ssize_t written = write(file, from, count);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    from += written;
    count -= static_cast<size_t>(written);
  }
  return true;
}

mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

Output::Output(const std::string& path, bool is_spooled) : name_(path == "-" ? "standard output" : path), buffer_(buffer_size) {
  if (const int number = OpenFileNumber(path); number >= 0) {
    through_ = fcntl(number, F_DUPFD_CLOEXEC, 0);
    if (through_ < 0) Fail(errno);
  } else {
    target_ = BehindLinks(path);
    struct stat status;
    if (stat(target_.c_str(), &status) != 0) {
      if (errno != ENOENT) Fail(errno);
      OpenReplacement();
      return;
    }
    if (S_ISDIR(status.st_mode)) Fail(EISDIR);
    through_ = open(target_.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (through_ < 0) Fail(errno);
    if (S_ISREG(status.st_mode)) {
      OpenReplacement();
      return;
    }
  }
  if (is_spooled) file_ = OpenSpool();
  else std::swap(file_, through_);
}

// A temporary file in the target's folder, with the mode and owner of the target if that exists. Where that cannot be: a spool.
void Output::OpenReplacement() {
  is_regular_ = true;
  struct stat old;
  const bool exists = through_ >= 0;
  if (exists && fstat(through_, &old) != 0) Fail(errno);
  if (!exists || old.st_nlink == 1) {
    const std::string folder = std::filesystem::path(target_).parent_path();
    temporary_ = (folder.empty() ? "." : folder) + "/.lumvm-XXXXXX";
    file_ = mkostemp(temporary_.data(), O_CLOEXEC);
    if (file_ < 0 && !exists) {
      temporary_.clear();
      Fail(errno);
    }
  }
  if (file_ >= 0) {
    SetPending(temporary_);
    const bool is_like_old = !exists || fchown(file_, old.st_uid, old.st_gid) == 0;
    const mode_t mode = exists ? old.st_mode & 07777 : NewFileMode();
    if (is_like_old && fchmod(file_, mode) == 0) {
      if (exists) close(through_);
      through_ = -1;
      return;
    }
    if (!exists) Fail(errno);
    unlink(temporary_.c_str());
    SetPending("");
    close(file_);
  }
  temporary_.clear();
  file_ = OpenSpool();
}

Output::~Output() { Abandon(); }

void Output::Abandon() {
  if (!temporary_.empty()) unlink(temporary_.c_str());
  SetPending("");
  temporary_.clear();
  for (int* file : {&file_, &through_}) {
    if (*file >= 0) close(*file);
    *file = -1;
  }
}

void Output::Fail(int error) const { throw SystemError(fmt::format("{}: cannot be written: {}", name_, std::strerror(error))); }

void Output::Flush() {
  const size_t count = filled_;
  filled_ = 0;
  if (!WriteAll(file_, buffer_.data(), count)) Fail(errno);
}

char* Output::Room(size_t count) {
  if (buffer_.size() - filled_ < count) Flush();
  if (buffer_.size() < count) buffer_.resize(count);
  return buffer_.data() + filled_;
}

void Output::Write(std::string_view text) {
  if (text.size() > buffer_.size() - filled_) Flush();
  if (text.size() > buffer_.size()) {
    if (!WriteAll(file_, text.data(), text.size())) Fail(errno);
    return;
  }
  std::ranges::copy(text, buffer_.data() + filled_);
  filled_ += text.size();
}

void Output::Rewrite(std::string_view start) {
  Flush();
  if (pwrite(file_, start.data(), start.size(), 0) != static_cast<ssize_t>(start.size())) Fail(errno);
}

// From the start of the spool. A regular file first gets its size, so that a full device shows before a byte has changed.
void Output::CopyInto(int to, bool is_regular) {
  const off_t size = lseek(file_, 0, SEEK_END);
  struct stat old;
  if (size < 0 || lseek(file_, 0, SEEK_SET) != 0 || fstat(to, &old) != 0) Fail(errno);
  if (is_regular && size > old.st_size) {
    const int error = posix_fallocate(to, 0, size);
    if (error != 0) {
      if (ftruncate(to, old.st_size) != 0) Fail(errno);
      Fail(error);
    }
  }
  while (true) {
    const ssize_t got = read(file_, buffer_.data(), buffer_.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0 || !WriteAll(to, buffer_.data(), static_cast<size_t>(got))) Fail(errno);
    if (got == 0) break;
  }
  if (is_regular && ftruncate(to, size) != 0) Fail(errno);
}

void Output::Finish() {
  Flush();
  if (through_ >= 0) CopyInto(through_, is_regular_);
  for (int* file : {&file_, &through_}) {
    if (*file < 0) continue;
    const int closed = close(*file);
    *file = -1;
    if (closed != 0) Fail(errno);
  }
  if (temporary_.empty()) return;
  if (std::rename(temporary_.c_str(), target_.c_str()) != 0) Fail(errno);
  temporary_.clear();
  SetPending("");
}

Spool::Spool() : file_(fdopen(OpenSpool(), "w+b")) {
  if (file_ == nullptr) throw SystemError(std::strerror(errno));
}

Spool::~Spool() { std::fclose(file_); }

void Spool::Write(const void* bytes, size_t count) {
  if (std::fwrite(bytes, 1, count, file_) != count) {
    throw SystemError(fmt::format("a temporary file cannot be written: {}", std::strerror(errno)));
  }
}

int Spool::Rewound() {
  if (std::fflush(file_) != 0) throw SystemError(fmt::format("a temporary file cannot be written: {}", std::strerror(errno)));
  std::rewind(file_);
  return fileno(file_);
}

void Spool::CopyTo(Output& output) {
  std::rewind(file_);
  std::vector<char> part(buffer_size);
  while (const size_t got = std::fread(part.data(), 1, part.size(), file_)) output.Write({part.data(), got});
  if (std::ferror(file_)) throw SystemError(fmt::format("a temporary file cannot be read: {}", std::strerror(errno)));
}

}  // namespace lum::tool
