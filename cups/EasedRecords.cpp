#include "cups/EasedRecords.h"

#include <cups/ppd.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

#include "cups/PpdContents.h"
#include "cups/PpdGroupOptions.h"
#include "cups/PpdOptionRecords.h"
#include "cups/PpdRecords.h"

namespace cutline {

namespace {

struct ClosePpd {
  void operator()(ppd_file_t* ppd) const noexcept { ppdClose(ppd); }
};

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

// The options are sorted as the attributes shall be.
bool putDefaults(ppd_file_t& ppd, const std::vector<ppd_option_t*>& options) {
  const auto hasDefault = [](const ppd_option_t* option) { return option->defchoice[0] != '\0'; };
  const auto count = static_cast<std::size_t>(std::ranges::count_if(options, hasDefault));
  if (count == 0) return true;
  if (!makeRoom(ppd, count)) return false;
  std::vector<ppd_attr_t*> added;
  added.reserve(count);
  for (const ppd_option_t* option : options) {
    if (!hasDefault(option)) continue;
    ppd_attr_t* attribute = newDefault(*option);
    if (!attribute) return false;
    ppd.attrs[ppd.num_attrs++] = attribute;
    added.push_back(attribute);
  }
  return sortIn(ppd, added);
}

// No where something that was to be there is missing: libcups may have stopped before the end. What
// is left then is good for ppdClose alone.
bool complete(ppd_file_t& ppd, EasedPpd& eased) {
  const auto options = putBackOptions(ppd, eased);
  return options && putDefaults(ppd, *options);
}

}  // namespace

ppd_file_t* openEased(std::string_view contents, std::size_t fewOptions) {
  auto eased = easedPpd(contents, fewOptions);
  if (!eased) return nullptr;
  FileDescriptor file = memoryFile(eased->contents);
  std::unique_ptr<ppd_file_t, ClosePpd> ppd(file ? ppdOpenFd(file.release())
                                                 : nullptr);  // closes it
  return ppd && complete(*ppd, *eased) ? ppd.release() : nullptr;
}

}  // namespace cutline
