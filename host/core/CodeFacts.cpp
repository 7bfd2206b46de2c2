#include "host/core/CodeFacts.h"

#include <elf.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace cutline {

namespace {

using Section = ElfW(Shdr);
using Symbol = ElfW(Sym);

constexpr std::uint64_t kMostBytes = std::uint64_t{64} << 20;

// As many records as are wholly there.
template <typename Record>
std::vector<Record> recordsAt(const FileDescriptor& file, std::uint64_t at, std::uint64_t bytes) {
  std::vector<Record> records(std::min(bytes, kMostBytes) / sizeof(Record));
  const std::size_t size = records.size() * sizeof(Record);
  const ssize_t got = ::pread(file.get(), records.data(), size, static_cast<off_t>(at));
  records.resize(got < 0 ? 0 : static_cast<std::size_t>(got) / sizeof(Record));
  return records;
}

std::string bytesOf(const FileDescriptor& file, const Section& section) {
  if (section.sh_type == SHT_NOBITS) return {};
  const auto bytes = recordsAt<char>(file, section.sh_offset, section.sh_size);
  return {bytes.begin(), bytes.end()};
}

// The text that begins there in a table of texts.
std::string_view textAt(const std::string& table, std::uint64_t at) {
  return at < table.size() ? std::string_view(table.c_str() + at) : std::string_view();
}

struct Sections {
  std::vector<Section> all;
  std::size_t indexOfNames = 0;
};

Sections sectionsOf(const FileDescriptor& file) {
  const auto header = recordsAt<ElfW(Ehdr)>(file, 0, sizeof(ElfW(Ehdr)));
  if (header.empty() || header.front().e_shentsize != sizeof(Section)) return {};
  const std::uint64_t size = header.front().e_shnum * sizeof(Section);
  return {recordsAt<Section>(file, header.front().e_shoff, size), header.front().e_shstrndx};
}

std::string textsOf(const FileDescriptor& file, const Sections& sections, std::size_t index) {
  return index < sections.all.size() ? bytesOf(file, sections.all[index]) : std::string();
}

}  // namespace

std::optional<std::string> codeSection(const FileDescriptor& file, std::string_view name) {
  const Sections sections = sectionsOf(file);
  const std::string names = textsOf(file, sections, sections.indexOfNames);
  for (const Section& section : sections.all)
    if (textAt(names, section.sh_name) == name) return bytesOf(file, section);
  return std::nullopt;
}

bool offersSymbol(const FileDescriptor& file, std::string_view name) {
  const Sections sections = sectionsOf(file);
  for (const Section& section : sections.all) {
    if (section.sh_type != SHT_DYNSYM) continue;
    const std::string names = textsOf(file, sections, section.sh_link);
    for (const Symbol& symbol : recordsAt<Symbol>(file, section.sh_offset, section.sh_size))
      if (symbol.st_shndx != SHN_UNDEF && textAt(names, symbol.st_name) == name) return true;
  }
  return false;
}

}  // namespace cutline
