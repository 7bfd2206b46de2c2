#include "cups/PpdContents.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace cutline {

namespace {

constexpr unsigned kUnpackedBlock = 65536;
constexpr std::string_view kPackedSign = "\x1f\x8b";

// A file that zlib reads, packed or not.
class Unpacker {
 public:
  explicit Unpacker(FileDescriptor file) : mFile(gzdopen(file.get(), "rb")) {
    if (mFile) file.release();
  }
  ~Unpacker() { close(); }
  Unpacker(const Unpacker&) = delete;
  Unpacker& operator=(const Unpacker&) = delete;

  explicit operator bool() const noexcept { return mFile != nullptr; }
  int read(std::array<char, kUnpackedBlock>& block) {
    return gzread(mFile, block.data(), kUnpackedBlock);
  }
  // Whether all that was packed has come out; asked at the end.
  bool close() {
    gzFile file = mFile;
    mFile = nullptr;
    return !file || gzclose_r(file) == Z_OK;
  }

 private:
  gzFile mFile;
};

Error tooLarge(const Sentence& name) {
  constexpr std::size_t kMegabyte = 1U << 20U;
  return unopenedPpd(
      name, {Phrase("cups", "it is larger than %1 MB"), {std::to_string(kLargestPpd / kMegabyte)}});
}

Error damaged(const Sentence& name) {
  return unopenedPpd(name, Phrase("cups", "it is damaged or not whole"));
}

// None where it is not known, or too large.
std::size_t sizeOf(const FileDescriptor& file) {
  struct stat status {};
  if (fstat(file.get(), &status) != 0 || status.st_size > static_cast<off_t>(kLargestPpd)) return 0;
  return static_cast<std::size_t>(status.st_size);
}

}  // namespace

Error unopenedPpd(const Sentence& name, Sentence why) {
  return Sentence(Phrase("cups", "cannot open %1: %2"), {name, std::move(why)});
}

// libcups unpacks, too, so what is still packed here would come out there without a limit.
Result<std::string> ppdContents(FileDescriptor file, const Sentence& name) {
  const std::size_t size = sizeOf(file);
  Unpacker unpacker(std::move(file));
  if (!unpacker) return unopenedPpd(name, std::string(std::strerror(ENOMEM)));
  std::string text;
  text.reserve(size);
  std::array<char, kUnpackedBlock> block{};
  int count = 0;
  while ((count = unpacker.read(block)) > 0) {
    text.append(block.data(), static_cast<std::size_t>(count));
    if (text.size() > kLargestPpd) return tooLarge(name);
  }
  if (count < 0 || !unpacker.close() || text.starts_with(kPackedSign)) return damaged(name);
  return text;
}

Result<std::string> ppdContents(const std::string& path, const Sentence& name) {
  FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0)
    return unopenedPpd(name, std::string(std::strerror(errno)));
  if (S_ISDIR(status.st_mode)) return unopenedPpd(name, Phrase("cups", "it is a folder"));
  if (!S_ISREG(status.st_mode)) return unopenedPpd(name, Phrase("cups", "it is not a file"));
  if (status.st_size > static_cast<off_t>(kLargestPpd)) return tooLarge(name);
  return ppdContents(std::move(file), name);
}

Result<std::string> unpackedPpd(std::string contents, const Sentence& name) {
  if (!contents.starts_with(kPackedSign)) return contents;
  FileDescriptor packed = memoryFile(contents);
  if (!packed) return unopenedPpd(name, std::string(std::strerror(errno)));
  return ppdContents(std::move(packed), name);
}

FileDescriptor memoryFile(std::string_view contents) {
  FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
  const bool isWritten = file && writeAll(file.get(), contents.data(), contents.size());
  if (isWritten && lseek(file.get(), 0, SEEK_SET) == 0) return file;
  return FileDescriptor();
}

}  // namespace cutline
