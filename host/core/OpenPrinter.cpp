#include "host/core/OpenPrinter.h"

#include "host/core/CutRules.h"
#include "host/core/JobOptions.h"
#include "host/core/PrinterStart.h"
#include "platform/ports/Controls.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/PrintDialogPanel.h"

namespace cutline {

namespace {

NotificationCenter& notificationCenter() {
  NotificationCenter* own = currentPlatform().notificationCenter;
  return own != nullptr ? *own : NotificationCenter::defaultCenter();
}

// The state of a box whose option has this choice: the first one is off.
int stateFor(int position) { return position > 0 ? CheckBox::kOn : CheckBox::kOff; }

std::vector<PaperSize> papersOf(const PrinterChoice& choice) {
  std::vector<PaperSize> papers = choice.ppd->paperSizes();
  markLoaded(papers, choice.destination.device);
  return papers;
}

}  // namespace

OpenPrinter::OpenPrinter(PrinterChoice choice, PanelSource& source, const OptionList& asked,
                         std::function<void()> layoutDidChange)
    : mChoice(std::move(choice)),
      mOptions(*mChoice.ppd),
      mPapers(papersOf(mChoice)),
      mStart(printerStart(*mChoice.ppd, mOptions, mPapers, mChoice.destination.device)),
      mTicket(std::make_shared<PrintTicket>(mChoice.ppd, mChoice.destination.deviceURI)),
      mLayers{mStart, withWishes(mChoice.destination.savedOptions), asked},
      mLayoutDidChange(std::move(layoutDidChange)),
      mWanted(*mChoice.ppd, mOptions) {
  const HostCall call(*this);
  markLayers();
  mPanels =
      std::make_unique<PanelSet>(source, static_cast<PanelHostOwner*>(this), mTicket, mChoice.ppd);
  mPanels->show();
  run();
}

OpenPrinter::~OpenPrinter() {
  const HostCall call(*this);
  mPanels.reset();
}

void OpenPrinter::restart(const OptionList& options) {
  const HostCall call(*this);
  mLayers = {mStart, withWishes(options)};
  run();
}

void OpenPrinter::markLayers() {
  mChoice.ppd->mark(mLayers);
  mAskedFor.clear();
  for (const OptionList& layer : mLayers)
    for (const auto& [name, value] : layer)
      if (const PpdOption* option = mOptions.find(name)) mAskedFor.insert(option->keyword);
}

// The whole sequence: mark, let the panels know the paper, restore, place the boxes, save.
void OpenPrinter::run() {
  markLayers();
  wantMarked();
  runFromPaper();
}

void OpenPrinter::runFromPaper() {
  mWanted.paperWasChosen();
  notificationCenter().postNotificationName(kPaperDidChangeNotification, std::monostate{});
  runFromMarks();
}

// Panels restore from the marks, so these are what the boxes are to show.
void OpenPrinter::runFromMarks() {
  for (const auto& [keyword, choice] : mWanted.all()) mark(keyword, mWanted.shown(keyword));
  mPanels->restore();
  settle();
}

// A restore or a click can have moved other boxes than those that were meant; a save turns what the
// boxes say into marks.
void OpenPrinter::settle() {
  for (CheckBox* box : mPanels->boxes()) place(*box);
  mPanels->save();
  markUnshown();
  mSettled = boxStates();
}

// The box of an option that the PPD lacks can switch nothing, and stays off.
void OpenPrinter::place(CheckBox& box) {
  const std::string keyword = box.ppdKeyword();
  const std::string choice = mWanted.shown(keyword);
  if (choice.empty() && mOptions.find(keyword) != nullptr) return;
  const int state = stateFor(mOptions.position(keyword, choice).value_or(0));
  if (box.state() == state) return;
  if (box.isEnabled()) return box.performClick();
  box.setState(state);
}

// What no box says: options without one, third choices, and what a rule sends.
void OpenPrinter::markUnshown() {
  const std::set<std::string> withBox = mPanels->boxKeywords();
  for (const auto& [keyword, choice] : mWanted.all()) {
    const std::string sent = mWanted.sent(keyword);
    const bool isShown = withBox.contains(keyword) && sent == mWanted.shown(keyword) &&
                         mOptions.position(keyword, sent).value_or(0) <= 1;
    if (!isShown) mark(keyword, sent);
  }
}

void OpenPrinter::mark(const std::string& keyword, const std::string& choice) {
  if (mChoice.ppd->markedChoice(keyword) == choice) return;
  mChoice.ppd->markChoice(keyword, choice);
  mPanels->report(nullptr, keyword, choice);
}

bool OpenPrinter::isReachedByPanels(const PpdOption& option,
                                    const std::set<std::string>& withBox) const {
  if (!mPanels->declares(option.keyword)) return false;
  if (withBox.contains(option.keyword)) return option.choices.size() <= 2;
  return !panelMayLackControl(mOptions, option.keyword);
}

void OpenPrinter::choosePaper(const std::string& name) {
  const HostCall call(*this);
  mLastChosen = "PageSize";
  mAskedFor.insert("PageSize");
  mark("PageSize", name);
  runFromPaper();
}

void OpenPrinter::chooseOption(const std::string& keyword, const std::string& choice) {
  mLastChosen = keyword;
  chooseOptions({{keyword, choice}});
}

void OpenPrinter::chooseOptions(const OptionList& changes) {
  const HostCall call(*this);
  bool changesPaper = false;
  bool concernsPanels = false;
  for (const auto& [keyword, choice] : changes) {
    mChoice.ppd->markChoice(keyword, choice);
    mAskedFor.insert(keyword);
    want(keyword, choice);
    mPanels->report(nullptr, keyword, choice);
    changesPaper |= keyword == "PageSize";
    concernsPanels |= mPanels->declares(keyword);
  }
  if (changesPaper) return runFromPaper();
  if (concernsPanels) return runFromMarks();
  markUnshown();
}

bool OpenPrinter::userDidAct(View& sender) {
  if (mHostCalls > 0) return false;
  const HostCall call(*this);
  if (auto* presets = dynamic_cast<PopUpButton*>(&sender)) wantChosen(*presets);
  settle();
  return true;
}

void OpenPrinter::save() {
  const HostCall call(*this);
  settle();
}

Result<Done> OpenPrinter::askToPrint() {
  const HostCall call(*this);
  Result<Done> answer = mPanels->askToPrint();
  if (!answer) return answer;
  settle();
  return Done{};
}

void OpenPrinter::panelWillChange(const PDEPluginCallback13_v400_& from, const std::string& key,
                                  const std::string& choice) {
  if (mHostCalls == 0) {
    want(key, choice);
    mAskedFor.insert(key);
    mLastChosen = key;
  }
  if (mPanels != nullptr) mPanels->report(&from, key, choice);
}

void OpenPrinter::panelDidResize() { mLayoutDidChange(); }

void OpenPrinter::want(const std::string& keyword, const std::string& choice) {
  if (isRuled(keyword)) mWanted.want(keyword, choice);
}

// The rules of tape and media hold also where the cut panel could not be loaded.
bool OpenPrinter::isRuled(const std::string& keyword) const {
  return mPanels->declares(keyword) || isCutKeyword(keyword);
}

OptionList OpenPrinter::shownChoices() const {
  OptionList shown;
  for (const auto& [keyword, choice] : mWanted.all())
    shown.emplace_back(keyword, mWanted.shown(keyword));
  return shown;
}

void OpenPrinter::wantMarked() {
  mWanted.clear();
  std::set<std::string> keywords = mPanels->keywords();
  keywords.insert(kCutKeywords.begin(), kCutKeywords.end());
  for (const std::string& keyword : keywords) {
    const std::string marked = mChoice.ppd->markedChoice(keyword);
    if (!marked.empty()) mWanted.want(keyword, marked);
  }
}

// The preset list moves boxes and marks nothing, so the boxes say what the user chose.
void OpenPrinter::wantChosen(PopUpButton& presets) {
  std::map<std::string, std::string> moved;
  std::vector<CheckBox*> unmoved;
  for (const auto& [box, state] : boxStates()) {
    const auto choice = mOptions.choiceAt(box->ppdKeyword(), state);
    if (choice && mSettled[box] != state) moved[box->ppdKeyword()] = *choice;
  }
  for (CheckBox* box : mPanels->boxes())
    if (!moved.contains(box->ppdKeyword())) unmoved.push_back(box);
  for (const auto& [keyword, choice] : moved) want(keyword, choice);
  wantIfMeant(presets, unmoved);
}

// A preset can mean the state that a box has already, and that state need not be what is wanted: a
// rule can have put the box there, or the option has more choices than the box has states. Such a
// box is turned over and the preset chosen once more: if it is turned back, it was meant. The last
// time has the panel follow the boxes that were not.
void OpenPrinter::wantIfMeant(PopUpButton& presets, const std::vector<CheckBox*>& unmoved) {
  BoxStates doubtful;
  for (CheckBox* box : unmoved) {
    const auto choice = mOptions.choiceAt(box->ppdKeyword(), box->state());
    if (choice && *choice != mWanted.wanted(box->ppdKeyword())) doubtful[box] = box->state();
  }
  if (doubtful.empty()) return;
  for (const auto& [box, state] : doubtful) box->setState(stateFor(state == CheckBox::kOff));
  presets.performSelection(presets.selectedTag());
  for (const auto& [box, state] : doubtful) {
    if (box->state() == state)
      want(box->ppdKeyword(), *mOptions.choiceAt(box->ppdKeyword(), state));
    box->setState(state);
  }
  presets.performSelection(presets.selectedTag());
}

OpenPrinter::BoxStates OpenPrinter::boxStates() const {
  BoxStates states;
  for (CheckBox* box : mPanels->boxes()) states.emplace(box, box->state());
  return states;
}

std::vector<Deviation> OpenPrinter::deviations() const {
  std::vector<Deviation> deviations;
  const std::string paper = mChoice.ppd->markedPaper().text;
  const std::set<std::string> withBox = mPanels->boxKeywords();
  for (const auto& [keyword, choice] : mWanted.all()) {
    const std::string marked = mChoice.ppd->markedChoice(keyword);
    const bool isAsWanted = marked == choice;
    const CutRule rule = isAsWanted
                             ? brokenBy(*mChoice.ppd, mOptions, keyword, withBox.contains(keyword))
                             : rulingOver(*mChoice.ppd, mOptions, keyword);
    if (isAsWanted && rule == CutRule::none) continue;
    deviations.push_back({keyword, choice, marked,
                          sentenceForRule(rule, mOptions.optionText(keyword),
                                          mOptions.choiceText(keyword, marked), paper)});
  }
  return deviations;
}

}  // namespace cutline
