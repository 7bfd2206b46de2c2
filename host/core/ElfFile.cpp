#include "host/core/ElfFile.h"

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

constexpr unsigned char kClass = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
constexpr char kNotWhole[] = "is not whole";
constexpr char kNoCode[] = "is no code for this machine";

bool readAt(const FileDescriptor& file, void* to, std::size_t size, std::uint64_t at) {
  return ::pread(file.get(), to, size, static_cast<off_t>(at)) == static_cast<ssize_t>(size);
}

bool isWithin(std::uint64_t at, std::uint64_t size, std::uint64_t whole) {
  return at <= whole && size <= whole - at;
}

bool isCode(const Header& header) {
  return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == kClass &&
         header.e_type == ET_DYN && header.e_phentsize == sizeof(Segment);
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

}  // namespace cutline
