#include "composition/reader/DocumentBytes.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "base/Uninterrupted.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

constexpr std::size_t kMostBytes = std::size_t{128} * 1024 * 1024;
constexpr std::size_t kStep = 65536;

// How many bytes were read from there; 0 at the end.
std::size_t readSome(int descriptor, char* to, std::size_t size, std::size_t from) {
  const ssize_t got =
      uninterrupted([&] { return ::pread(descriptor, to, size, static_cast<off_t>(from)); });
  if (got < 0) throw Refusal{DocumentProblem::broken, std::strerror(errno)};
  return static_cast<std::size_t>(got);
}

}  // namespace

std::size_t sizeOf(int descriptor) {
  struct stat facts {};
  return ::fstat(descriptor, &facts) == 0 ? static_cast<std::size_t>(facts.st_size) : 0;
}

std::string startOf(int descriptor, std::size_t most) {
  std::string bytes;
  bytes.reserve(std::min(sizeOf(descriptor) + kStep, most));
  std::size_t got = 0;
  do {
    const std::size_t size = bytes.size();
    bytes.resize(std::min(size + kStep, most));
    got = readSome(descriptor, bytes.data() + size, bytes.size() - size, size);
    bytes.resize(size + got);
  } while (got > 0 && bytes.size() < most);
  return bytes;
}

std::string contentsOf(int descriptor) {
  std::string bytes = startOf(descriptor, kMostBytes + 1);
  if (bytes.size() > kMostBytes) throw Refusal{DocumentProblem::tooLarge, {}};
  return bytes;
}

}  // namespace cutline
