#include "host/core/ElfFile.h"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace cutline {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

constexpr char kNotWhole[] = "is not whole";
constexpr char kNoCode[] = "is no code for this machine";

bool readAt(const FileDescriptor& file, void* to, std::size_t size, std::uint64_t at) {
  return ::pread(file.get(), to, size, static_cast<off_t>(at)) == static_cast<ssize_t>(size);
}

bool isWithin(std::uint64_t at, std::uint64_t size, std::uint64_t whole) {
  return at <= whole && size <= whole - at;
}

// The linker's name for the header of the file that this code is in.
extern "C" __attribute__((visibility("hidden"))) const Header __ehdr_start;

// Our magic number, class and order of bytes.
bool isOfOurKind(const Header& header) {
  return std::memcmp(header.e_ident, __ehdr_start.e_ident, EI_OSABI) == 0 &&
         header.e_machine == __ehdr_start.e_machine;
}

bool isCode(const Header& header) {
  return isOfOurKind(header) && header.e_type == ET_DYN && header.e_phentsize == sizeof(Segment);
}

bool hasItsSegments(const FileDescriptor& file, const Header& header, std::uint64_t whole) {
  std::vector<Segment> segments(header.e_phnum);
  const std::uint64_t size = segments.size() * sizeof(Segment);
  if (!isWithin(header.e_phoff, size, whole)) return false;
  if (!readAt(file, segments.data(), size, header.e_phoff)) return false;
  for (const Segment& segment : segments)
    if (!isWithin(segment.p_offset, segment.p_filesz, whole)) return false;
  return true;
}

}  // namespace

std::string reasonAgainstCode(const FileDescriptor& file) {
  struct stat status {};
  Header header{};
  if (::fstat(file.get(), &status) != 0) return std::strerror(errno);
  if (!readAt(file, &header, sizeof header, 0) || !isCode(header)) return kNoCode;
  const auto whole = static_cast<std::uint64_t>(status.st_size);
  const std::uint64_t sections = std::uint64_t{header.e_shnum} * header.e_shentsize;
  if (!isWithin(header.e_shoff, sections, whole)) return kNotWhole;
  return hasItsSegments(file, header, whole) ? "" : kNotWhole;
}

Result<void*> loadCode(FileDescriptor file, int flags) {
  const std::string name = "/proc/self/fd/" + std::to_string(file.get());
  void* const library = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL | flags);
  if (library == nullptr) return Error{dlerror()};
  static_cast<void>(file.release());
  return library;
}

}  // namespace cutline
