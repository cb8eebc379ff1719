#include "lumvm/engine.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <type_traits>
#include <vector>

#include "lumvm/errors.h"
#include "lumvm/names.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

constexpr const char* file_name = "liblumvm.so.1";

// Beside the tool, in its build folder or where both are installed; else where the system looks.
support::Library Load(std::string& path) {
  std::error_code error;
  const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  for (const char* there : {"..", "../" LUM_INSTALLED_LIBRARY_DIR}) {
    const auto candidate = folder / there / file_name;
    if (folder.empty() || !std::filesystem::exists(candidate, error)) continue;
    path = std::filesystem::canonical(candidate, error);
    break;
  }
  if (path.empty()) path = file_name;
  std::string message;
  const auto library = support::Library::Load(path, message);
  if (!library) throw SystemError(message);
  return *library;
}

// The pointer that many bytes further; a null pointer stays one.
template <class T> T* Behind(T* at, size_t bytes) {
  using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
  return at == nullptr ? nullptr : static_cast<Byte*>(at) + bytes;
}

}  // namespace

Engine::Engine(const std::string& layer) : library_(Load(path_)) {
  const auto get_version = library_.Symbol<const LumLibraryVersion*()>("lumvmGetLibVersion");
  const auto get_layer = library_.Symbol<const char*()>("lumvmGetLayer");
  const auto set_layer = library_.Symbol<int(const char*)>("lumvmSetLayer");
  if (get_version == nullptr || get_layer == nullptr || set_layer == nullptr) {
    throw SystemError(fmt::format("{}: not a library of this tool", path_));
  }
  if (!layer.empty() && set_layer(Lower(layer).c_str()) != 0) {
    std::vector<const char*> there = {"avx512", "avx2", "portable"};
    std::erase_if(there, [&](const char* name) { return set_layer(name) != 0; });
    throw InputError(
        fmt::format("no layer {}; this library and this processor have {}", Quoted(layer), fmt::join(there, ", ")));
  }
  version_ = get_version();
  layer_ = get_layer();
}

void* Engine::Address(const support::Export& entry) const {
  void* address = library_.Symbol(entry.name);
  if (address == nullptr) throw SystemError(fmt::format("{}: has no {}", path_, entry.name));
  return address;
}

void Reports::Add(LumStatus status, const support::Arguments& block, uint64_t first) {
  if (status == lumStsOk) return;
  last_ = status;
  const auto count = static_cast<size_t>(block.len);
  scratch1_.resize(count * support::SizeOf(entry_.output));
  if (entry_.outputs() == 2) scratch2_.resize(scratch1_.size());
  Search(block, first);
  std::ranges::sort(kinds_, {}, &Kind::first);
}

// By halves, as most elements report nothing.
void Reports::Search(const support::Arguments& part, uint64_t first) {
  support::Arguments call = part;
  call.dst1 = scratch1_.data();
  call.dst2 = scratch2_.data();
  const LumStatus status = support::CallAddress(address_, entry_, call);
  if (status == lumStsOk) return;
  if (part.len == 1) {
    const auto kind = std::ranges::find(kinds_, status, &Kind::status);
    if (kind == kinds_.end()) kinds_.push_back({status, 1, first});
    else ++kind->count;
    return;
  }
  support::Arguments left = part, right = part;
  left.len = part.len / 2;
  right.len = part.len - left.len;
  const size_t bytes = static_cast<size_t>(left.len) * support::SizeOf(entry_.input);
  right.src1 = Behind(part.src1, bytes);
  right.src2 = Behind(part.src2, bytes);
  Search(left, first);
  Search(right, first + static_cast<uint64_t>(left.len));
}

}  // namespace lum::tool
