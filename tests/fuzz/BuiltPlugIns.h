// The bundles of the build tree; loaded once a process.
#pragma once

#include "host/core/PluginLoader.h"

namespace cutline::fuzz {

inline PluginLoader& builtPlugIns() {
  static PluginLoader loader({CUTLINE_BUILD_DIR "/lib/cutline/plugins"});
  return loader;
}

}  // namespace cutline::fuzz
