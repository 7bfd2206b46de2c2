#include "bundle/diag/settings_dump.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <optional>
#include <string>

#include "base/FileDescriptor.h"
#include "bundle/diag/diagnostics.h"
#include "bundle/diag/messages.h"
#include "bundle/format/SafeFormat.h"

namespace cutline {
namespace {

constexpr mode_t kMode = S_IRUSR | S_IWUSR;

// A new file of a name that nobody can foresee, gone with this object unless it was given another.
class NewFile {
 public:
  explicit NewFile(int directory) : mDirectory(directory) {
    constexpr int kAttempts = 16;  // another file may have the name
    for (int i = 0; i < kAttempts && !create(); ++i) {
      if (errno != EEXIST) return;
    }
  }
  ~NewFile() {
    if (exists() && !mName.empty()) unlinkat(mDirectory, mName.c_str(), 0);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool exists() const noexcept { return static_cast<bool>(mFile); }
  // The mode is set once more, as the process's mask may have taken from it.
  bool write(std::string_view contents) const noexcept {
    return fchmod(mFile.get(), kMode) == 0 &&
           writeAll(mFile.get(), contents.data(), contents.size()) && fsync(mFile.get()) == 0;
  }
  bool rename(const std::string& name) noexcept {
    if (renameat(mDirectory, mName.c_str(), mDirectory, name.c_str()) != 0) return false;
    mName.clear();
    return true;
  }

 private:
  bool create() {
    std::uint64_t number = 0;
    if (getrandom(&number, sizeof number, 0) != sizeof number) return false;
    mName = safeFormat(".LxPDE_%016llx", {number});
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    mFile = FileDescriptor(openat(mDirectory, mName.c_str(), kFlags, kMode));
    return exists();
  }

  int mDirectory;
  FileDescriptor mFile;
  std::string mName;
};

void writeToRootDirectory(const char* name, std::string_view xml) noexcept {
  const FileDescriptor root(open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (root) quietly([&] { writeSettingsFile(root.get(), name, xml); });
}

}  // namespace

bool writeSettingsFile(int directory, std::string_view name, std::string_view contents) {
  if (name.find('/') != name.npos || name.find('\0') != name.npos) return false;
  NewFile file(directory);
  if (!file.exists() || !file.write(contents)) return false;
  return file.rename(safeFormat("LxPDE_%@.plist", {name}));
}

}  // namespace cutline

void _PDELog_PMPrintSettings_WriteToFile(cutline::PMPrintSettings settings,
                                         const char* name) noexcept {
  if (!settings || !name) return;
  std::optional<std::string> xml;
  if (cutline::PMPrintSettingsCreateDataRepresentation(settings, &xml) != cutline::noErr || !xml)
    return;
  cutline::writeToRootDirectory(name, *xml);
}
