#include "cups/EasedRecords.h"

#include <cups/ppd.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "cups/PpdContents.h"
#include "cups/PpdGroupParts.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

constexpr std::string_view kDefaultOf = "Default";

struct FreeMemory {
  void operator()(void* memory) const noexcept { std::free(memory); }
};
// ppdClose frees it once the records have it.
using Attribute = std::unique_ptr<ppd_attr_t, FreeMemory>;

void copyName(char (&name)[PPD_MAX_NAME], std::string_view text) {
  name[text.copy(name, PPD_MAX_NAME - 1)] = '\0';
}

// Null when there is no memory.
Attribute defaultAttribute(std::string_view keyword, std::string_view choice) {
  Attribute attribute(static_cast<ppd_attr_t*>(std::calloc(1, sizeof(ppd_attr_t))));
  if (!attribute) return nullptr;
  copyName(attribute->name, std::string(kDefaultOf) + std::string(keyword));
  attribute->value = strndup(choice.data(), choice.size());
  return attribute->value ? std::move(attribute) : nullptr;
}

// Makes room for more attributes behind those that there are.
bool makeRoom(ppd_file_t& ppd, std::size_t more) {
  const std::size_t count = static_cast<std::size_t>(ppd.num_attrs) + more;
  auto** attributes = static_cast<ppd_attr_t**>(
      std::realloc(static_cast<void*>(ppd.attrs), count * sizeof(ppd_attr_t*)));
  if (attributes) ppd.attrs = attributes;
  return attributes != nullptr;
}

bool comesBefore(const ppd_attr_t* a, const ppd_attr_t* b) {
  return strcasecmp(a->name, b->name) < 0;
}

// libcups' list keeps itself sorted. It gets all of them anew in their order: one that comes
// between others would move all behind it.
bool sortIn(ppd_file_t& ppd, const std::vector<ppd_attr_t*>& added) {
  auto all = elementsOf<ppd_attr_t>(ppd.sorted_attrs);
  const auto middle = static_cast<std::ptrdiff_t>(all.size());
  all.insert(all.end(), added.begin(), added.end());
  std::inplace_merge(all.begin(), all.begin() + middle, all.end(), comesBefore);
  return refill(ppd.sorted_attrs, all);
}

bool putDefaults(ppd_file_t& ppd, const EasedPpd& eased) {
  if (eased.defaults.empty()) return true;
  if (!makeRoom(ppd, eased.defaults.size())) return false;
  std::vector<ppd_attr_t*> added;
  added.reserve(eased.defaults.size());
  // libcups has the options sorted as the attributes shall be.
  for (ppd_option_t* option : elementsOf<ppd_option_t>(ppd.options)) {
    const auto found = eased.defaults.find(option->keyword);
    if (found == eased.defaults.end()) continue;
    if (added.size() == eased.defaults.size()) return false;
    Attribute attribute = defaultAttribute(found->first, found->second);
    if (!attribute) return false;
    copyName(option->defchoice, found->second);
    added.push_back(attribute.get());
    ppd.attrs[ppd.num_attrs++] = attribute.release();
  }
  return added.size() == eased.defaults.size() && sortIn(ppd, added);
}

// No where something that was to be there is missing: libcups may have stopped before the end. What
// is left then is good for ppdClose alone.
bool complete(ppd_file_t& ppd, const EasedPpd& eased) {
  return joinParts(ppd, eased.parts) && putDefaults(ppd, eased);
}

}  // namespace

ppd_file_t* openEased(std::string_view contents, const EasingCounts& counts) {
  const auto eased = easedPpd(contents, counts);
  if (!eased) return nullptr;
  FileDescriptor file = memoryFile(eased->contents);
  ppd_file_t* ppd = file ? ppdOpenFd(file.release()) : nullptr;  // closes it
  if (!ppd || complete(*ppd, *eased)) return ppd;
  ppdClose(ppd);
  return nullptr;
}

}  // namespace cutline
