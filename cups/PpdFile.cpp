#include "cups/PpdFile.h"

#include <cups/ppd.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>

#include "base/FileDescriptor.h"
#include "cups/CupsOptions.h"
#include "cups/CustomSize.h"
#include "cups/EasedRecords.h"
#include "cups/IppMessage.h"
#include "cups/PpdChoice.h"
#include "cups/PpdContents.h"
#include "cups/PpdLimits.h"
#include "cups/PpdMarks.h"
#include "cups/PpdProblems.h"
#include "cups/PpdRecords.h"
#include "cups/PpdTexts.h"
#include "cups/ServerConnection.h"
#include "cups/ServerFile.h"
#include "platform/lib/Languages.h"

namespace cutline {

namespace {

// The same choices as the page size's; marking it would take the page size's mark away.
constexpr const char* kPageRegion = "PageRegion";

Error noMemoryFor(const Sentence& name) {
  return Sentence(Phrase("cups", "no memory for %1"), {name});
}

PpdOption optionOf(ppd_file_t* ppd, const ppd_option_t& option) {
  PpdOption out{option.keyword, textOr(option.text, option.keyword), option.defchoice, {}};
  const bool takesCustom = ppdFindCustomOption(ppd, option.keyword) != nullptr;
  out.choices.reserve(choicesOf(option).size());
  for (const ppd_choice_t& choice : choicesOf(option)) {
    // It needs a value, which no list of choices can give.
    if (takesCustom && std::strcmp(choice.choice, kCustomChoice) == 0) continue;
    out.choices.push_back({choice.choice, textOr(choice.text, choice.choice)});
  }
  return out;
}

bool isPageRegion(const ppd_option_t& option) {
  return std::strcmp(option.keyword, kPageRegion) == 0;
}

OptionGroup groupOf(ppd_file_t* ppd, const ppd_group_t& group) {
  OptionGroup out{group.name, textOr(group.text, group.name), {}};
  for (const ppd_option_t& option : optionsOf(group)) {
    if (!isPageRegion(option)) out.options.push_back(optionOf(ppd, option));
  }
  return out;
}

std::string sizeText(ppd_file_t* ppd, const char* name) {
  const ppd_option_t* option = ppdFindOption(ppd, kPageSizeKeyword);
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

bool hasPrinter(http_t* http, const std::string& printer) {
  IppMessage request = newPrinterRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printer);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  return static_cast<bool>(answerTo(http, std::move(request)));
}

Error notFetched(http_t* http, const std::string& printer, http_status_t status) {
  if (serverKeptSilent()) return serverError({Phrase("cups", "no PPD of \"%1\""), {printer}});
  if (status == HTTP_STATUS_ERROR) {
    return Sentence(
        Phrase("cups", "the connection to the print server at \"%1\" was lost: try again"),
        {serverText()});
  }
  if (status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_FORBIDDEN)
    return denied({Phrase("cups", "no PPD of \"%1\""), {printer}}, httpStatus(status));
  if (status != HTTP_STATUS_NOT_FOUND) {
    return Sentence(
        Phrase("cups", "the print server at \"%1\" does not hand out the PPD of \"%2\": %3"),
        {serverText(), printer, std::string(httpStatus(status))});
  }
  if (!hasPrinter(http, printer)) {
    return Sentence(Phrase("cups", "the print server at \"%1\" has no printer \"%2\""),
                    {serverText(), printer});
  }
  return Sentence(Phrase("cups",
                         "the printer \"%1\" has no PPD on the print server at \"%2\": choose a "
                         "printer that was set up with its driver"),
                  {printer, serverText()});
}

}  // namespace

PpdFile::PpdFile(ppd_file_t* ppd, std::size_t fingerprint)
    : mPpd(ppd), mFingerprint(fingerprint), mMarks(std::make_unique<PpdMarks>(ppd)) {}

PpdFile::~PpdFile() { ppdClose(mPpd); }

Result<std::shared_ptr<PpdFile>> PpdFile::read(std::string contents, const Sentence& name) {
  const auto kept = keepTexts(contents, preferredLocalizations());
  if (const auto problem = tooMuchForLibcups(contents, name)) return *problem;
  ppd_file_t* ppd = openEased(contents);
  if (!ppd) {
    FileDescriptor copy = memoryFile(contents);
    if (!copy) return noMemoryFor(name);
    ppd = ppdOpenFd(copy.release());  // closes it
  }
  if (!ppd) return ppdProblem(name, contents);
  std::shared_ptr<PpdFile> file(new PpdFile(ppd, std::hash<std::string>{}(contents)));
  if (const auto problem = unusableSizes(ppd, name)) return *problem;
  putTexts(*ppd, kept);
  file->mMarks->markDefaults();
  return file;
}

Result<std::shared_ptr<PpdFile>> PpdFile::open(const std::string& path) {
  const Sentence name(Phrase("cups", "the PPD \"%1\""), {path});
  Result<std::string> contents = ppdContents(path, name);
  if (!contents) return contents.error();
  return read(std::move(*contents), name);
}

// Works around libcups 2.4.2: cupsGetPPD3 takes a file of the same name from the machine's own
// server folder, whichever server is meant, and leaves a file behind; cupsGetFd takes what arrived
// before the connection broke for the whole. So the PPD is asked from the server itself.
Result<std::shared_ptr<PpdFile>> PpdFile::fetch(const ServerOptions& server,
                                                const std::string& printer) {
  const auto connection = ServerConnection::open(server);
  if (!connection) return connection.error();
  return fetchOn(*connection, printer);
}

Result<std::shared_ptr<PpdFile>> PpdFile::fetchOn(const ServerConnection& connection,
                                                  const std::string& printer) {
  const Sentence name(Phrase("cups", "the PPD of \"%1\""), {printer});
  auto file = fetchServerFile(connection.get(), "/printers/" + printer + ".ppd", kLargestPpd, name);
  if (!file) return file.error();
  if (file->status != HTTP_STATUS_OK) return notFetched(connection.get(), printer, file->status);
  Result<std::string> contents = unpackedPpd(std::move(file->contents), name);
  if (!contents) return contents.error();
  return read(std::move(*contents), name);
}

void PpdFile::mark(const std::vector<OptionList>& layers) const {
  mMarks->markDefaults();
  for (const OptionList& layer : layers) {
    const CupsOptions options(withoutUnusableSizes(mPpd, layer));
    cupsMarkOptions(mPpd, options.size(), options.data());
    for (const auto& [keyword, choice] : layer) markList(mPpd, keyword, choice);
  }
}

void PpdFile::markChoice(const std::string& keyword, const std::string& choice) const {
  if (markList(mPpd, keyword, choice)) return;
  if (!isUnusableSize(mPpd, keyword, choice)) mMarks->mark(keyword, choice);
}

std::string PpdFile::markedChoice(const std::string& keyword) const {
  const ppd_choice_t* choice = ppdFindMarkedChoice(mPpd, keyword.c_str());
  return choice ? choice->choice : "";
}

bool PpdFile::hasOption(const std::string& keyword) const {
  return ppdFindOption(mPpd, keyword.c_str()) != nullptr;
}

OptionList::value_type PpdFile::spelled(const OptionList::value_type& option) const {
  const ppd_option_t* known = ppdFindOption(mPpd, option.first.c_str());
  if (!known) return option;
  return {known->keyword, spelledChoice(*known, option.second)};
}

Result<Done> PpdFile::checkChoice(const std::string& keyword, const std::string& choice) const {
  const ppd_option_t* option = ppdFindOption(mPpd, keyword.c_str());
  return option ? checkChoiceOf(mPpd, *option, choice) : Done{};
}

OptionList PpdFile::markedOptions() const {
  OptionList marked;
  forEachOption(mPpd, [&](const ppd_option_t& option) {
    const std::string text = markedText(mPpd, option);
    if (!text.empty()) marked.emplace_back(option.keyword, text);
  });
  return marked;
}

OptionList PpdFile::markedBesideDefaults(
    const std::set<std::string, std::less<>>& evenAtDefault) const {
  std::set<const ppd_option_t*> even;
  for (const std::string& keyword : evenAtDefault)
    even.insert(ppdFindOption(mPpd, keyword.c_str()));
  OptionList marked;
  forEachOption(mPpd, [&](const ppd_option_t& option) {
    if (isAtDefault(option) && !even.contains(&option)) return;
    const std::string text = markedText(mPpd, option);
    if (!text.empty()) marked.emplace_back(option.keyword, text);
  });
  return marked;
}

std::optional<PpdOption> PpdFile::option(const std::string& keyword) const {
  const ppd_option_t* option = ppdFindOption(mPpd, keyword.c_str());
  if (!option || isPageRegion(*option) || isInstallable(mPpd, *option)) return std::nullopt;
  return optionOf(mPpd, *option);
}

bool PpdFile::anyOption(const std::function<bool(const PpdOption&)>& isMeant) const {
  bool found = false;
  forEachOption(mPpd, [&](const ppd_option_t& option) {
    found = found || (!isPageRegion(option) && isMeant(optionOf(mPpd, option)));
  });
  return found;
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

std::size_t PpdFile::constraintCount() const { return cutline::constraintCount(mPpd); }

std::vector<PaperSize> PpdFile::paperSizes() const {
  std::vector<PaperSize> papers;
  for (const ppd_size_t& size : sizesOf(mPpd)) {
    if (!isCustom(size) && isUsable(size)) papers.push_back(paperOf(mPpd, size));
  }
  return papers;
}

PaperSize PpdFile::markedPaper() const {
  const ppd_size_t* size = markedSize(mPpd);
  return size ? paperOf(mPpd, *size) : PaperSize{};
}

std::optional<CustomSizes> PpdFile::customSizes() const {
  if (mPpd->variable_sizes == 0) return std::nullopt;
  const auto& margins = mPpd->custom_margins;
  return CustomSizes{mPpd->custom_min[0], mPpd->custom_max[0], mPpd->custom_min[1],
                     mPpd->custom_max[1], margins[0],          margins[1],
                     margins[2],          margins[3]};
}

std::string PpdFile::attribute(const std::string& name) const {
  const ppd_attr_t* found = ppdFindAttr(mPpd, name.c_str(), nullptr);
  return found && found->value ? found->value : "";
}

}  // namespace cutline
