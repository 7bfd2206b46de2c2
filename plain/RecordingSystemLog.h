// A system log that keeps its messages.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/System.h"

namespace cutline {

class RecordingSystemLog final : public SystemLog {
 public:
  void log(const std::string& message) noexcept override { mMessages.push_back(message); }
  // Oldest first.
  const std::vector<std::string>& messages() const noexcept { return mMessages; }

 private:
  std::vector<std::string> mMessages;
};

}  // namespace cutline
