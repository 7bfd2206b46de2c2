#include "cups/SavedOptions.h"

#include <cups/file.h>
#include <pwd.h>
#include <strings.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "cups/CupsOptions.h"
#include "cups/SavedLines.h"
#include "cups/SharedFile.h"

namespace cutline {

namespace {

struct CloseFile {
  void operator()(cups_file_t* file) const noexcept { cupsFileClose(file); }
};

// libcups 2.4.2 reads a line of the file into a buffer of this size; what is longer is lost to it.
constexpr std::size_t kLineSize = 8192;
constexpr const char* kNameEnds = " \t\f\v\r";

std::string administratorOptionsPath() {
  const char* root = secure_getenv("CUPS_SERVERROOT");
  return std::string(root ? root : "/etc/cups") + "/lpoptions";
}

// NAME[/INSTANCE] OPTIONS
SavedEntry entryOf(const std::string& text, bool isDefault) {
  const auto nameEnd = std::min(text.find_first_of(kNameEnds), text.size());
  return {DestinationName::parse(text.substr(0, nameEnd)), isDefault,
          CupsOptions::parse(text.c_str() + nameEnd).list()};
}

void merge(const OptionList& from, OptionList& into) {
  for (const auto& option : from) {
    const auto known = std::ranges::find(into, option.first, &OptionList::value_type::first);
    if (known == into.end()) {
      into.push_back(option);
    } else {
      known->second = option.second;
    }
  }
}

// The administrator's entries, then the user's, which win.
std::vector<SavedEntry> allEntries() {
  std::vector<SavedEntry> all = readSavedEntries(administratorOptionsPath());
  if (userOptionsPath() == administratorOptionsPath()) return all;
  for (SavedEntry& entry : readSavedEntries(userOptionsPath())) all.push_back(std::move(entry));
  return all;
}

bool isPlainName(const std::string& text) {
  constexpr std::size_t kLongest = 127;
  const auto isSpecial = [](unsigned char c) {
    return c <= ' ' || c == 0x7f || c == '/' || c == '#';
  };
  return !text.empty() && text.size() <= kLongest && std::ranges::none_of(text, isSpecial);
}

// The file of saved options ends a value at these, whatever quotes stand around it.
bool canBeSaved(const std::pair<std::string, std::string>& option) {
  const auto isSpecial = [](unsigned char c) { return c < ' ' || c == '#'; };
  return std::ranges::none_of(option.first + option.second, isSpecial);
}

// What is longer than libcups' line is lost to it.
std::optional<Error> whyTooLong(const DestinationName& name, const OptionList& options) {
  const std::size_t size = savedLine(name, /*isDefault=*/true, options).size();
  if (size < kLineSize) return std::nullopt;
  return Sentence(
      Phrase("cups",
             "the settings \"%1\" cannot be saved: they have %2 characters, and at most "
             "%3 can be saved"),
      {name.text(), std::to_string(size), std::to_string(kLineSize - 1)});
}

}  // namespace

bool isSame(const DestinationName& one, const DestinationName& other) {
  return strcasecmp(one.text().c_str(), other.text().c_str()) == 0;
}

std::vector<SavedEntry> readSavedEntries(const std::string& path) {
  const std::unique_ptr<cups_file_t, CloseFile> file(cupsFileOpen(path.c_str(), "r"));
  std::vector<SavedEntry> entries;
  if (!file) return entries;
  std::array<char, kLineSize> line{};
  char* value = nullptr;
  int lineNumber = 0;
  while (cupsFileGetConf(file.get(), line.data(), line.size(), &value, &lineNumber)) {
    const bool isDefault = strcasecmp(line.data(), "default") == 0;
    if (!value || (!isDefault && strcasecmp(line.data(), "dest") != 0)) continue;
    entries.push_back(entryOf(value, isDefault));
  }
  return entries;
}

std::string userOptionsPath() {
  const char* home = secure_getenv("HOME");
  if (!home) {
    const passwd* user = getpwuid(getuid());
    home = user ? user->pw_dir : nullptr;
  }
  return home ? std::string(home) + "/.cups/lpoptions" : administratorOptionsPath();
}

std::optional<OptionList> savedOptionsFor(const DestinationName& name) {
  std::optional<OptionList> options;
  for (const SavedEntry& entry : allEntries()) {
    if (!isSame(entry.name, name)) continue;
    if (!options) options.emplace();
    merge(entry.options, *options);
  }
  return options;
}

std::optional<DestinationName> savedDefault() {
  for (const std::string& path : {userOptionsPath(), administratorOptionsPath()}) {
    const std::vector<SavedEntry> entries = readSavedEntries(path);
    const auto found = std::ranges::find(entries, true, &SavedEntry::isDefault);
    if (found != entries.end()) return found->name;
  }
  return std::nullopt;
}

DestinationName spelledAsSaved(const DestinationName& name) {
  for (const SavedEntry& entry : allEntries())
    if (isSame(entry.name, name)) return entry.name;
  return name;
}

std::vector<std::string> savedInstances(const std::string& printer) {
  std::vector<std::string> instances;
  for (const SavedEntry& entry : allEntries()) {
    const std::optional<std::string>& instance = entry.name.instance;
    if (!instance || !isSame(entry.name, {printer, instance})) continue;
    const bool isKnown = std::ranges::any_of(instances, [&](const std::string& known) {
      return strcasecmp(known.c_str(), instance->c_str()) == 0;
    });
    if (!isKnown) instances.push_back(*instance);
  }
  return instances;
}

std::optional<Error> whyNotSaved(const DestinationName& name, const OptionList& options) {
  if (!isPlainName(name.printer)) {
    return Sentence(Phrase("cups", "\"%1\" is no printer's name"), {name.printer});
  }
  if (name.instance && !isPlainName(*name.instance)) {
    return Sentence(
        Phrase("cups",
               "settings cannot be saved as \"%1\": choose a name without spaces, \"/\" "
               "and \"#\""),
        {*name.instance});
  }
  const auto bad = std::ranges::find_if_not(options, canBeSaved);
  if (bad == options.end()) return whyTooLong(name, options);
  return Sentence(
      Phrase("cups", "the option %1 cannot be saved: its value has a \"#\" or a line end"),
      {bad->first});
}

Result<Done> saveEntry(const DestinationName& name, const OptionList& options) {
  if (auto why = whyNotSaved(name, options)) return *std::move(why);
  return changeSharedFile(userOptionsPath(),
                          [&](const std::string& text) { return withEntry(text, name, options); });
}

Result<Done> removeEntry(const DestinationName& name) {
  return changeSharedFile(userOptionsPath(),
                          [&](const std::string& text) { return withoutEntry(text, name); });
}

}  // namespace cutline
