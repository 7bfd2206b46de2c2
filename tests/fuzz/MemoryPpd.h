// A PPD that is in no folder.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "cups/PpdContents.h"
#include "cups/PpdFile.h"

namespace cutline::fuzz {

// libcups itself loses texts of a damaged PPD; that is not what is tested here. While one exists,
// nothing that is lost counts.
struct [[maybe_unused]] LossesOfLibcups {
#ifdef __SANITIZE_ADDRESS__
  const __lsan::ScopedDisabler disabler{};
#endif
};

inline Result<std::shared_ptr<PpdFile>> openPpd(std::string_view contents) {
  const LossesOfLibcups losses;
  const FileDescriptor file = memoryFile(contents);
  return PpdFile::open("/proc/self/fd/" + std::to_string(file.get()));
}

}  // namespace cutline::fuzz
