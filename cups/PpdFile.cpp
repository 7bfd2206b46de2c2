#include "cups/PpdFile.h"

#include <cups/ppd.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <span>

#include "cups/Constraints.h"
#include "cups/CupsOptions.h"
#include "cups/CustomSize.h"
#include "cups/PpdProblem.h"
#include "cups/ServerConnection.h"

namespace cutline {

namespace {

constexpr const char* kInstallableGroup = "InstallableOptions";
constexpr const char* kCustom = "Custom";
constexpr const char* kPageSize = "PageSize";
// The same choices as the page size's; marking it would take the page size's mark away.
constexpr const char* kPageRegion = "PageRegion";

class Descriptor {
 public:
  explicit Descriptor(int fd) : mFd(fd) {}
  ~Descriptor() {
    if (mFd >= 0) close(mFd);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const noexcept { return mFd; }

 private:
  int mFd;
};

std::string contentsOf(int fd) {
  constexpr std::size_t kBlock = 65536;
  std::string text;
  if (lseek(fd, 0, SEEK_SET) != 0) return text;
  std::string block(kBlock, '\0');
  for (ssize_t count = 0; (count = read(fd, block.data(), block.size())) > 0;) {
    text.append(block, 0, count);
  }
  return text;
}

// libcups cuts a text at its buffer's end, be it in the middle of a character.
std::string wholeCharacters(std::string text) {
  const auto isInside = [](char c) { return (static_cast<unsigned char>(c) & 0xc0) == 0x80; };
  std::size_t start = text.size();
  while (start > 0 && isInside(text[start - 1])) --start;
  if (start == 0) return text;
  const auto lead = static_cast<unsigned char>(text[start - 1]);
  const std::size_t expected = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : lead >= 0xc0 ? 2 : 1;
  if (text.size() - (start - 1) < expected) text.resize(start - 1);
  return text;
}

std::string textOr(const char* text, const char* keyword) {
  std::string whole = wholeCharacters(text);
  return whole.empty() ? keyword : whole;
}

std::span<ppd_group_t> groupsOf(const ppd_file_t* ppd) {
  return {ppd->groups, ppd->groups ? static_cast<std::size_t>(ppd->num_groups) : 0};
}

std::span<ppd_group_t> subgroupsOf(const ppd_group_t& group) {
  return {group.subgroups, group.subgroups ? static_cast<std::size_t>(group.num_subgroups) : 0};
}

std::span<ppd_option_t> optionsOf(const ppd_group_t& group) {
  return {group.options, group.options ? static_cast<std::size_t>(group.num_options) : 0};
}

std::span<ppd_choice_t> choicesOf(const ppd_option_t& option) {
  return {option.choices, option.choices ? static_cast<std::size_t>(option.num_choices) : 0};
}

std::span<ppd_size_t> sizesOf(const ppd_file_t* ppd) {
  return {ppd->sizes, ppd->sizes ? static_cast<std::size_t>(ppd->num_sizes) : 0};
}

// The records are walked directly: the library's own walk shares a cursor with its searches and may
// never end.
template <typename Function>
void forEachGroup(std::span<ppd_group_t> groups, const Function& function) {
  for (const ppd_group_t& group : groups) {
    if (std::strcmp(group.name, kInstallableGroup) == 0) continue;
    function(group);
    forEachGroup(subgroupsOf(group), function);
  }
}

template <typename Function>
void forEachOption(const ppd_file_t* ppd, const Function& function) {
  forEachGroup(groupsOf(ppd), [&](const ppd_group_t& group) {
    for (const ppd_option_t& option : optionsOf(group)) function(option);
  });
}

std::string valueOf(const ppd_cparam_t& parameter) {
  switch (parameter.type) {
    case PPD_CUSTOM_INT:
      return std::to_string(parameter.current.custom_int);
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING: {
      const char* text = parameter.current.custom_string;
      return text ? text : "";
    }
    default:
      return decimalText(parameter.current.custom_real);
  }
}

// Custom.VALUE, or {NAME=VALUE ...} where the option takes several.
std::string customValue(ppd_coption_t* custom) {
  if (cupsArrayCount(custom->params) == 1) {
    return std::string(kCustom) + '.' + valueOf(*ppdFirstCustomParam(custom));
  }
  std::string text;
  for (ppd_cparam_t* p = ppdFirstCustomParam(custom); p; p = ppdNextCustomParam(custom)) {
    text += (text.empty() ? "{" : " ") + std::string(p->name) + '=' + valueOf(*p);
  }
  return text + '}';
}

const ppd_size_t* markedSize(const ppd_file_t* ppd) {
  const auto sizes = sizesOf(ppd);
  const auto marked =
      std::ranges::find_if(sizes, [](const ppd_size_t& s) { return s.marked != 0; });
  return marked == sizes.end() ? nullptr : &*marked;
}

bool isCustom(const ppd_size_t& size) { return std::strcmp(size.name, kCustom) == 0; }

// A custom choice names its values, so that it says the same on the server.
std::string choiceToSend(ppd_file_t* ppd, const ppd_option_t& option, const ppd_choice_t& choice) {
  if (std::strcmp(choice.choice, kCustom) != 0) return choice.choice;
  if (std::strcmp(option.keyword, kPageSize) == 0) {
    const ppd_size_t* size = markedSize(ppd);
    return size ? CustomSize{size->width, size->length}.choice() : kCustom;
  }
  ppd_coption_t* custom = ppdFindCustomOption(ppd, option.keyword);
  return custom ? customValue(custom) : kCustom;
}

// Several choices stand with commas where an option takes them; empty when none is marked.
std::string markedText(ppd_file_t* ppd, const ppd_option_t& option) {
  std::string text;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    if (!choice.marked) continue;
    if (!text.empty()) text += ',';
    text += choiceToSend(ppd, option, choice);
    if (option.ui != PPD_UI_PICKMANY) break;
  }
  return text;
}

PpdOption optionOf(ppd_file_t* ppd, const ppd_option_t& option) {
  PpdOption out{option.keyword, textOr(option.text, option.keyword), option.defchoice, {}};
  const bool takesCustom = ppdFindCustomOption(ppd, option.keyword) != nullptr;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    // It needs a value, which no list of choices can give.
    if (takesCustom && std::strcmp(choice.choice, kCustom) == 0) continue;
    out.choices.push_back({choice.choice, textOr(choice.text, choice.choice)});
  }
  return out;
}

OptionGroup groupOf(ppd_file_t* ppd, const ppd_group_t& group) {
  OptionGroup out{group.name, textOr(group.text, group.name), {}};
  for (const ppd_option_t& option : optionsOf(group)) {
    if (std::strcmp(option.keyword, kPageRegion) != 0) out.options.push_back(optionOf(ppd, option));
  }
  return out;
}

std::string sizeText(ppd_file_t* ppd, const char* name) {
  const ppd_option_t* option = ppdFindOption(ppd, kPageSize);
  if (!option) return name;
  const auto choices = choicesOf(*option);
  const auto choice = std::ranges::find_if(
      choices, [&](const ppd_choice_t& c) { return std::strcmp(c.choice, name) == 0; });
  return choice == choices.end() ? name : textOr(choice->text, name);
}

PaperSize paperOf(ppd_file_t* ppd, const ppd_size_t& size) {
  PaperSize paper{size.name, "",          size.width, size.length,
                  size.left, size.bottom, size.right, size.top};
  const CustomSize custom{size.width, size.length};
  if (isCustom(size)) paper.name = custom.choice();
  paper.text = isCustom(size) ? custom.text() : sizeText(ppd, size.name);
  return paper;
}

std::string choiceNames(const ppd_option_t& option) {
  std::string names;
  for (const ppd_choice_t& choice : choicesOf(option)) {
    names += (names.empty() ? "" : ", ") + std::string(choice.choice);
  }
  return names.empty() ? "it has none" : "its choices are " + names;
}

Result<Done> checkCustomSize(const ppd_file_t* ppd, const std::string& choice) {
  const auto size = CustomSize::parse(choice);
  if (!size) {
    return Error{"\"" + choice + "\" is no paper size: write it as Custom.WIDTHxLENGTHmm"};
  }
  const bool fits = size->width >= ppd->custom_min[0] && size->width <= ppd->custom_max[0] &&
                    size->length >= ppd->custom_min[1] && size->length <= ppd->custom_max[1];
  if (fits) return Done{};
  return Error{"the printer does not take paper of " + size->text() + ": it takes " +
               CustomSize{ppd->custom_min[0], ppd->custom_min[1]}.text() + " to " +
               CustomSize{ppd->custom_max[0], ppd->custom_max[1]}.text()};
}

Result<Done> checkCustom(ppd_file_t* ppd, const ppd_option_t& option, const std::string& choice) {
  if (std::strcmp(option.keyword, kPageSize) == 0) return checkCustomSize(ppd, choice);
  return Done{};
}

bool isCustomValue(const std::string& choice) {
  return choice.starts_with("Custom.") || choice.starts_with('{');
}

Error notFetched(http_t* http, const std::string& printer, http_status_t status) {
  const std::string server = "the print server at \"" + serverText() + "\"";
  if (status == HTTP_STATUS_ERROR) return {"the connection to " + server + " was lost: try again"};
  if (status != HTTP_STATUS_NOT_FOUND) {
    return {server + " does not hand out the PPD of \"" + printer + "\": " + httpStatus(status)};
  }
  cups_dest_t* dest = cupsGetNamedDest(http, printer.c_str(), nullptr);
  cupsFreeDests(dest ? 1 : 0, dest);
  if (!dest) return {server + " has no printer \"" + printer + "\""};
  return {"the printer \"" + printer + "\" has no PPD on " + server +
          ": choose a printer that was set up with its driver"};
}

}  // namespace

PpdFile::~PpdFile() { ppdClose(mPpd); }

Result<std::shared_ptr<PpdFile>> PpdFile::read(int fd, const std::string& name) {
  // The library closes what it reads; the copy is for explaining a failure.
  const Descriptor copy(fcntl(fd, F_DUPFD_CLOEXEC, 0));
  ppd_file_t* ppd = ppdOpenFd(fd);
  if (!ppd) return ppdProblem(name, contentsOf(copy.get()));
  ppdLocalize(ppd);
  return std::shared_ptr<PpdFile>(new PpdFile(ppd));
}

Result<std::shared_ptr<PpdFile>> PpdFile::open(const std::string& path) {
  const std::string name = "the PPD \"" + path + "\"";
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return Error{"cannot open " + name + ": " + std::strerror(errno)};
  struct stat status {};
  if (fstat(fd, &status) == 0 && !S_ISDIR(status.st_mode)) return read(fd, name);
  close(fd);
  return Error{"cannot open " + name + ": it is a folder"};
}

// The PPD is asked from the server itself, into memory. libcups' own call would take a file of the
// same name from the machine's server folder, whichever server is meant, and leave a file behind.
Result<std::shared_ptr<PpdFile>> PpdFile::fetch(const ServerOptions& server,
                                                const std::string& printer) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  const int fd = memfd_create("ppd", MFD_CLOEXEC);
  if (fd < 0) return Error{"no memory for the PPD of \"" + printer + "\""};
  const std::string resource = "/printers/" + printer + ".ppd";
  const http_status_t status = cupsGetFd(connection->get(), resource.c_str(), fd);
  if (status == HTTP_STATUS_OK && lseek(fd, 0, SEEK_SET) == 0) {
    return read(fd, "the PPD of \"" + printer + "\"");
  }
  close(fd);
  return notFetched(connection->get(), printer, status);
}

void PpdFile::mark(const std::vector<OptionList>& layers) const {
  ppdMarkDefaults(mPpd);
  for (const OptionList& layer : layers) {
    const CupsOptions options(layer);
    cupsMarkOptions(mPpd, options.size(), options.data());
  }
}

void PpdFile::markChoice(const std::string& keyword, const std::string& choice) const {
  ppdMarkOption(mPpd, keyword.c_str(), choice.c_str());
}

std::string PpdFile::markedChoice(const std::string& keyword) const {
  const ppd_choice_t* choice = ppdFindMarkedChoice(mPpd, keyword.c_str());
  return choice ? choice->choice : "";
}

bool PpdFile::hasOption(const std::string& keyword) const {
  return ppdFindOption(mPpd, keyword.c_str()) != nullptr;
}

Result<Done> PpdFile::checkChoice(const std::string& keyword, const std::string& choice) const {
  const ppd_option_t* option = ppdFindOption(mPpd, keyword.c_str());
  if (!option) return Done{};
  if (isCustomValue(choice) && ppdFindCustomOption(mPpd, option->keyword)) {
    return checkCustom(mPpd, *option, choice);
  }
  const bool isKnown = std::ranges::any_of(choicesOf(*option), [&](const ppd_choice_t& known) {
    return strcasecmp(known.choice, choice.c_str()) == 0;
  });
  if (isKnown) return Done{};
  return Error{"the option " + std::string(option->keyword) + " has no choice \"" + choice +
               "\": " + choiceNames(*option)};
}

OptionList PpdFile::markedOptions() const {
  OptionList marked;
  forEachOption(mPpd, [&](const ppd_option_t& option) {
    const std::string text = markedText(mPpd, option);
    if (!text.empty()) marked.emplace_back(option.keyword, text);
  });
  return marked;
}

std::vector<OptionGroup> PpdFile::optionGroups() const {
  std::vector<OptionGroup> groups;
  forEachGroup(groupsOf(mPpd), [&](const ppd_group_t& group) {
    OptionGroup out = groupOf(mPpd, group);
    if (!out.options.empty()) groups.push_back(std::move(out));
  });
  return groups;
}

std::vector<Conflict> PpdFile::conflicts() const { return brokenConstraints(mPpd); }

std::vector<PaperSize> PpdFile::paperSizes() const {
  std::vector<PaperSize> papers;
  for (const ppd_size_t& size : sizesOf(mPpd)) {
    if (!isCustom(size)) papers.push_back(paperOf(mPpd, size));
  }
  return papers;
}

PaperSize PpdFile::markedPaper() const {
  const ppd_size_t* size = markedSize(mPpd);
  return size ? paperOf(mPpd, *size) : PaperSize{};
}

std::string PpdFile::attribute(const std::string& name) const {
  const ppd_attr_t* found = ppdFindAttr(mPpd, name.c_str(), nullptr);
  return found && found->value ? found->value : "";
}

}  // namespace cutline
