#include "host/core/PrintModel.h"

#include <algorithm>

#include "base/Lists.h"
#include "base/Numbers.h"
#include "composition/PageRanges.h"
#include "cups/CustomSize.h"
#include "host/core/Collation.h"
#include "host/core/ConflictResolution.h"
#include "host/core/CutRules.h"
#include "host/core/JobOptions.h"
#include "host/core/OpenPrinter.h"
#include "host/core/OptionSpelling.h"
#include "platform/ports/Platform.h"

namespace cutline {

namespace {

std::optional<std::string> lastValue(const OptionList& options, const std::string& name) {
  const auto found = std::find_if(options.rbegin(), options.rend(),
                                  [&](const auto& option) { return option.first == name; });
  return found != options.rend() ? std::optional<std::string>(found->second) : std::nullopt;
}

std::optional<int> copiesOf(const OptionList& options) {
  const std::string text = lastValue(options, "copies").value_or("");
  const std::optional<int> copies = numberIn<int>(text);
  return copies && *copies >= 1 && *copies <= kMostCopies ? copies : std::nullopt;
}

bool hasOwnControl(const std::string& keyword) {
  return keyword == "PageSize" || keyword == "PageRegion";
}

std::string listOf(const std::vector<PaperSize>& papers) {
  std::vector<std::string> names;
  for (const PaperSize& paper : papers) names.push_back(paper.name);
  return listed(names);
}

}  // namespace

PrintModelListener::~PrintModelListener() = default;

PrintModel::PrintModel(PanelSource& panelSource, AskedSettings asked)
    : mPanelSource(panelSource), mAsked(std::move(asked)) {
  currentPlatform().toolkit->setActionObserver(this);
}

PrintModel::~PrintModel() {
  close();
  currentPlatform().toolkit->setActionObserver(nullptr);
}

void PrintModel::setListener(PrintModelListener* listener) noexcept { mListener = listener; }

void PrintModel::tell(ModelChange what) {
  if (mListener != nullptr && mPrinter != nullptr) mListener->modelDidChange(what);
}

void PrintModel::openPrinter(PrinterChoice choice) {
  mPrinter.reset();
  OptionList& saved = choice.destination.savedOptions;
  saved = spelledFor(*choice.ppd, saved);
  const OptionList asked = spelledFor(*choice.ppd, mAsked.options);
  mPrinter = std::make_unique<OpenPrinter>(std::move(choice), mPanelSource, asked,
                                           [this] { tell(ModelChange::layout); });
  tell(ModelChange::printer);
  tell(ModelChange::options);
}

bool PrintModel::isOpen() const noexcept { return mPrinter != nullptr; }

bool PrintModel::hasQueue() const noexcept {
  return isOpen() && !destination().name.printer.empty();
}

const Destination& PrintModel::destination() const noexcept {
  return mPrinter->choice().destination;
}

const std::shared_ptr<PpdFile>& PrintModel::ppdFile() const noexcept {
  return mPrinter->choice().ppd;
}

const std::vector<PanelEntry>& PrintModel::panels() const noexcept {
  return mPrinter->panels().entries();
}

std::vector<CheckBox*> PrintModel::boxes() const { return mPrinter->panels().boxes(); }

const std::vector<PaperSize>& PrintModel::papers() const noexcept { return mPrinter->papers(); }

PaperSize PrintModel::currentPaper() const { return mPrinter->ppd().markedPaper(); }

Result<Done> PrintModel::setPaper(const std::string& name) {
  if (CustomSize::parse(name)) return setCustomPaper(name);
  const auto known = std::find_if(papers().begin(), papers().end(),
                                  [&](const PaperSize& paper) { return paper.name == name; });
  if (known == papers().end())
    return Error{Sentence(Phrase("host", "unknown paper \"%1\"; this printer has %2"),
                          {name, listOf(papers())})};
  mPrinter->choosePaper(name);
  tell(ModelChange::paper);
  tell(ModelChange::options);
  return Done{};
}

Result<Done> PrintModel::setCustomPaper(const std::string& name) {
  if (Result<Done> known = mPrinter->ppd().checkChoice("PageSize", name); !known) return known;
  mPrinter->choosePaper(name);
  tell(ModelChange::paper);
  tell(ModelChange::options);
  return Done{};
}

const OptionTable& PrintModel::options() const noexcept { return mPrinter->options(); }

std::string PrintModel::markedChoice(const std::string& keyword) const {
  return mPrinter->ppd().markedChoice(keyword);
}

std::vector<OptionGroup> PrintModel::generatedOptions() const {
  std::vector<OptionGroup> groups = mPrinter->ppd().optionGroups();
  const std::set<std::string> withBox = mPrinter->keywordsWithBox();
  for (OptionGroup& group : groups)
    std::erase_if(group.options,
                  [&](const PpdOption& option) { return !isGenerated(option, withBox); });
  std::erase_if(groups, [](const OptionGroup& group) { return group.options.empty(); });
  return groups;
}

bool PrintModel::hasGeneratedOptions() const {
  return mPrinter->ppd().anyOption(
      [this, withBox = mPrinter->keywordsWithBox()](const PpdOption& option) {
        return isGenerated(option, withBox);
      });
}

bool PrintModel::isGenerated(const PpdOption& option, const std::set<std::string>& withBox) const {
  return !hasOwnControl(option.keyword) && !option.choices.empty() &&
         !mPrinter->isReachedByPanels(option, withBox);
}

Result<Done> PrintModel::setOption(const std::string& keyword, const std::string& choice) {
  const PpdOption* option = mPrinter->options().find(keyword);
  if (option == nullptr) {
    return Error{Sentence(Phrase("host", "this printer has no option \"%1\""), {keyword})};
  }
  if (Result<Done> known = mPrinter->ppd().checkChoice(keyword, choice); !known) return known;
  const auto spelled = mPrinter->ppd().spelled({keyword, choice});
  if (spelled.first == "PageSize") return setPaper(spelled.second);
  mPrinter->chooseOption(spelled.first, spelled.second);
  tell(ModelChange::options);
  return Done{};
}

int PrintModel::copies() const noexcept {
  if (mAsked.copies) return *mAsked.copies;
  return isOpen() ? copiesOf(destination().savedOptions).value_or(1) : 1;
}

Result<Done> PrintModel::setCopies(int copies) {
  if (copies < 1 || copies > kMostCopies)
    return Error{Sentence(Phrase("host", "copies: %1 is not between 1 and %2"),
                          {std::to_string(copies), std::to_string(kMostCopies)})};
  mAsked.copies = copies;
  tell(ModelChange::job);
  return Done{};
}

std::string PrintModel::pageRanges() const {
  if (mAsked.pageRanges) return *mAsked.pageRanges;
  return isOpen() ? lastValue(destination().savedOptions, "page-ranges").value_or("") : "";
}

Result<Done> PrintModel::setPageRanges(const std::string& text) {
  const Result<PageRanges> ranges = PageRanges::parse(text);
  if (!ranges) return ranges.error();
  if (mAsked.pageRanges == ranges->text()) return Done{};
  mAsked.pageRanges = ranges->text();
  tell(ModelChange::job);
  return Done{};
}

bool PrintModel::isCollated() const {
  if (mIsCollated) return *mIsCollated;
  // All options of a PPD are gone through only where it has one for this.
  const bool isInPpd = std::ranges::any_of(
      kCollationOptions, [this](const char* each) { return ppdFile()->hasOption(each); });
  return collates(isInPpd ? cutline::jobOptions(*mPrinter) : jobOptionsBesidePpd(*mPrinter));
}

void PrintModel::setCollated(bool isCollated) {
  mIsCollated = isCollated;
  tell(ModelChange::job);
}

std::vector<SummaryLine> PrintModel::summary() const { return mPrinter->panels().summary(); }

std::vector<Deviation> PrintModel::deviations() const {
  std::vector<Deviation> deviations = mPrinter->deviations();
  if (mAsked.isRaw()) return deviations;
  for (const auto& [name, value] : mAsked.options)
    if (isForeignLayoutOption(name))
      deviations.push_back(
          {name, value, "", {Phrase("host", "\"%1\" does not go with labels: left out"), {name}}});
  return deviations;
}

std::vector<Sentence> PrintModel::conflicts() const { return conflictSentences(*mPrinter); }

Result<Done> PrintModel::resolveConflicts() {
  Result<Done> resolved = cutline::resolveConflicts(*mPrinter);
  tell(ModelChange::paper);
  tell(ModelChange::options);
  return resolved;
}

OptionList PrintModel::jobOptions() const {
  OptionList options = cutline::jobOptions(*mPrinter);
  if (mIsCollated) setCollation(*mIsCollated, options);
  options.emplace_back("copies", std::to_string(copies()));
  if (!mAsked.isRaw()) return forLaidOutDocument(options);
  if (!pageRanges().empty()) options.emplace_back("page-ranges", pageRanges());
  return options;
}

Result<OptionList> PrintModel::savePreset() {
  mPrinter->save();
  tell(ModelChange::options);
  return keptOptions();
}

OptionList PrintModel::keptOptions() const {
  OptionList options = withoutLayout(presetOptions(*mPrinter));
  for (const auto& option : layoutOptions(jobLayout())) options.push_back(option);
  if (mIsCollated) setCollation(*mIsCollated, options);
  options.emplace_back("copies", std::to_string(copies()));
  return options;
}

Result<Done> PrintModel::applyPreset(const OptionList& options) {
  std::erase_if(mAsked.options, [](const auto& option) { return option.first != "raw"; });
  OptionList spelled = spelledFor(*ppdFile(), options);
  if (const std::optional<int> copies = copiesOf(spelled)) mAsked.copies = copies;
  mLayout.reset();
  mIsCollated.reset();
  spelled.insert(spelled.end(), mAsked.options.begin(), mAsked.options.end());
  mPrinter->restart(spelled);
  tell(ModelChange::job);
  tell(ModelChange::composition);
  tell(ModelChange::paper);
  tell(ModelChange::options);
  return Done{};
}

Settings PrintModel::settings() const {
  Settings settings{keptOptions(), mPrinter->shownChoices(), pageRanges()};
  std::sort(settings.options.begin(), settings.options.end());
  return settings;
}

// A preset's paper turns automatic cutting off with HS media; who had insisted on it there did so
// after choosing that.
void PrintModel::restore(const Settings& settings) {
  mAsked.pageRanges = settings.pageRanges;
  applyPreset(settings.options);
  const OptionList now = mPrinter->shownChoices();
  OptionList others;
  for (const auto& option : settings.shown) {
    const bool isKnown = mPrinter->options().find(option.first) != nullptr;
    const bool isShown = std::find(now.begin(), now.end(), option) != now.end();
    if (isKnown && !isShown) others.push_back(option);
  }
  if (others.empty()) return;
  mPrinter->chooseOptions(others);
  tell(ModelChange::options);
}

void PrintModel::reset() { restore({{{"copies", "1"}}, {}, ""}); }

Result<OptionList> PrintModel::prepareToPrint() {
  if (!hasQueue()) return Error{Phrase("host", "a PPD file alone cannot print; choose a printer")};
  const Result<Done> agreed = mPrinter->askToPrint();
  tell(ModelChange::options);
  if (!agreed) return agreed.error();
  return jobOptions();
}

void PrintModel::close() noexcept { mPrinter.reset(); }

void PrintModel::actionDidFinish(View& sender) noexcept {
  if (mPrinter == nullptr) return;
  if (mPrinter->userDidAct(sender)) tell(ModelChange::options);
}

}  // namespace cutline
