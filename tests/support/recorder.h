// Observes the hook of a recording library for the lifetime of the object, and keeps a log of its calls.
#pragma once

#include <functional>
#include <vector>

#include "support/recording_hook.h"
#include "support/subjects.h"

namespace lum::test {

class Recorder {
 public:
  struct Entry {
    HookCall call;
    uint32_t cell_value;
    Bits dst1, dst2;  // the element in the caller's arrays at the time of the call
  };
  // action, if any, runs after the entry was made, and may change the element.
  using Action = std::function<void(const HookCall&)>;

  Recorder(const support::Library& library, const Export& entry, Action action = {})
      : install_(library.Symbol<InstallHook>("lumTestInstallHook")), element_(entry.output), action_(std::move(action)) {
    if (install_ != nullptr) install_(&Recorder::Observe, this);
  }
  ~Recorder() {
    if (install_ != nullptr) install_(nullptr, nullptr);
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  const std::vector<Entry>& log() const { return log_; }
  void Clear() { log_.clear(); }

 private:
  static void Observe(void* context, const HookCall& call) {
    auto& self = *static_cast<Recorder*>(context);
    const size_t offset = static_cast<size_t>(call.index) * support::SizeOf(self.element_);
    self.log_.push_back({call, *call.cell, LoadBits(self.element_, static_cast<const std::byte*>(call.dst1) + offset),
                         LoadBits(self.element_, static_cast<const std::byte*>(call.dst2) + offset)});
    if (self.action_) self.action_(call);
  }

  InstallHook* install_;
  Element element_;
  Action action_;
  std::vector<Entry> log_;
};

// The statuses of all elements of a call, from the log.
inline std::vector<LumStatus> StatusesFrom(const std::vector<Recorder::Entry>& log, size_t size) {
  std::vector<LumStatus> statuses(size, lumStsOk);
  for (const auto& entry : log) statuses.at(static_cast<size_t>(entry.call.index)) = static_cast<LumStatus>(entry.call.status);
  return statuses;
}

}  // namespace lum::test
