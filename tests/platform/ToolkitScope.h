// Makes a toolkit the current platform's for one scope.
#pragma once

#include "platform/Platform.h"

namespace cutline {

class ToolkitScope {
 public:
  explicit ToolkitScope(Toolkit* toolkit) {
    Platform platform = mBefore;
    platform.toolkit = toolkit;
    setCurrentPlatform(platform);
  }
  ~ToolkitScope() { setCurrentPlatform(mBefore); }
  ToolkitScope(const ToolkitScope&) = delete;
  ToolkitScope& operator=(const ToolkitScope&) = delete;

 private:
  Platform mBefore = currentPlatform();
};

}  // namespace cutline
