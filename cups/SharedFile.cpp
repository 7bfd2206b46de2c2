#include "cups/SharedFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <thread>

#include "base/FileDescriptor.h"

namespace cutline {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kFolderMode = 0700;  // as libcups makes it
constexpr mode_t kFileMode = 0644;
constexpr std::size_t kSharedBlock = 65536;
constexpr std::size_t kLargest = 16U << 20U;

Error unsaved(const std::string& path, Sentence why) {
  return Sentence(Phrase("cups", "the options cannot be saved in \"%1\": %2"),
                  {path, std::move(why)});
}

// With errno as the reason.
Error unsaved(const std::string& path) { return unsaved(path, std::string(std::strerror(errno))); }

// Where a link at the path leads to, so that the link stays.
std::string placeOf(const std::string& path) {
  std::error_code problem;
  const fs::path place = fs::canonical(path, problem);
  return problem ? path : place.string();
}

bool makeFolder(const std::string& path) {
  return ::mkdir(path.c_str(), kFolderMode) == 0 || errno == EEXIST;
}

// Of a file beside the shared one, which is another one after each change. Held until it is closed.
Result<FileDescriptor> locked(const std::string& path) {
  constexpr std::chrono::milliseconds kPause{10};
  constexpr int kMostPauses = 1000;
  const std::string name = path + ".lock";
  FileDescriptor lock(
      ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, kFileMode));
  if (!lock) return unsaved(name);
  for (int pauses = 0; ::flock(lock.get(), LOCK_EX | LOCK_NB) != 0; ++pauses) {
    if (errno != EWOULDBLOCK && errno != EINTR) return unsaved(name);
    if (pauses == kMostPauses)
      return unsaved(path, Phrase("cups", "another program keeps it locked; try again"));
    std::this_thread::sleep_for(kPause);
  }
  return lock;
}

struct Old {
  std::string bytes;
  std::optional<struct stat> status;  // nothing where there is no file
};

Result<Old> oldOf(const std::string& path) {
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file && errno == ENOENT) return Old{};
  Old old{"", std::optional<struct stat>(std::in_place)};
  if (!file || ::fstat(file.get(), &*old.status) != 0) return unsaved(path);
  if (!S_ISREG(old.status->st_mode)) return unsaved(path, Phrase("cups", "it is not a file"));
  std::array<char, kSharedBlock> block{};
  for (ssize_t count = 0; (count = ::read(file.get(), block.data(), block.size())) != 0;) {
    if (count < 0) return unsaved(path);
    old.bytes.append(block.data(), static_cast<std::size_t>(count));
    if (old.bytes.size() > kLargest) return unsaved(path, Phrase("cups", "it is too large"));
  }
  return old;
}

// A new file beside the shared one; removed with this object unless it has taken its place. Made
// under the lock alone, so it has one name for all: what a killed program left goes with the next
// change.
class NewFile {
 public:
  explicit NewFile(const std::string& path) : mPath(path + ".cutline-new") {
    ::unlink(mPath.c_str());
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    mFile = FileDescriptor(::open(mPath.c_str(), kFlags, S_IRUSR | S_IWUSR));
  }
  ~NewFile() {
    if (mFile) ::unlink(mPath.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // False with errno where something fails; the bytes are on the disk when it is true.
  bool write(const std::string& bytes, const std::optional<struct stat>& like) const {
    const mode_t mode = like ? like->st_mode & 07777U : kFileMode;
    if (!mFile || !writeAll(mFile.get(), bytes.data(), bytes.size())) return false;
    // Only root may give it to whom it belonged to, and nobody else needs to.
    if (like && ::geteuid() == 0 && ::fchown(mFile.get(), like->st_uid, like->st_gid) != 0)
      return false;
    return ::fchmod(mFile.get(), mode) == 0 && ::fsync(mFile.get()) == 0;
  }
  bool replace(const std::string& path) {
    if (::rename(mPath.c_str(), path.c_str()) != 0) return false;
    mFile = FileDescriptor();
    return true;
  }

 private:
  std::string mPath;
  FileDescriptor mFile;
};

// The new name, too, is to outlive a power cut; where that cannot be had the file is there all the
// same.
void keepNameIn(const fs::path& folder) {
  const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened.get());
}

}  // namespace

Result<Done> changeSharedFile(const std::string& path,
                              const std::function<std::string(const std::string&)>& change) {
  if (!makeFolder(fs::path(path).parent_path())) return unsaved(path);
  const std::string place = placeOf(path);
  const auto lock = locked(place);
  if (!lock) return lock.error();
  const auto old = oldOf(place);
  if (!old) return old.error();
  const std::string bytes = change(old->bytes);
  NewFile file(place);
  if (old->status && bytes == old->bytes) return Done{};
  if (!file.write(bytes, old->status) || !file.replace(place)) return unsaved(place);
  keepNameIn(fs::path(place).parent_path());
  return Done{};
}

}  // namespace cutline
