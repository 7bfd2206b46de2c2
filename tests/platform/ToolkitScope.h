// Makes a toolkit, and a system log where there is one, the current platform's for one scope.
#pragma once

#include "platform/ports/Platform.h"

namespace cutline {

class ToolkitScope {
 public:
  explicit ToolkitScope(Toolkit* toolkit, SystemLog* systemLog = nullptr) {
    Platform platform = mBefore;
    platform.toolkit = toolkit;
    platform.systemLog = systemLog;
    setCurrentPlatform(platform);
  }
  ~ToolkitScope() { setCurrentPlatform(mBefore); }
  ToolkitScope(const ToolkitScope&) = delete;
  ToolkitScope& operator=(const ToolkitScope&) = delete;

 private:
  Platform mBefore = currentPlatform();
};

}  // namespace cutline
