#include "host/core/OpenPrinter.h"

#include <algorithm>

#include "platform/ports/Controls.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/Platform.h"
#include "platform/ports/PopUpButton.h"

namespace cutline {

namespace {

constexpr char kPaperDidChange[] = "PMPrintDestinationPaperDidChangeNotification";
// A click can move another box at most once (special tape frees the boxes it held), so this is more
// than the panels need.
constexpr int kMaxSettlingRounds = 4;

NotificationCenter& notificationCenter() {
  NotificationCenter* own = currentPlatform().notificationCenter;
  return own != nullptr ? *own : NotificationCenter::defaultCenter();
}

bool isOperable(const CheckBox& box) { return !box.isHidden() && box.isEnabled(); }

}  // namespace

OpenPrinter::OpenPrinter(PrinterChoice choice, PanelSource& source, const OptionList& asked,
                         std::function<void()> layoutDidChange)
    : mChoice(std::move(choice)),
      mOptions(*mChoice.ppd),
      mPapers(mChoice.ppd->paperSizes()),
      mTicket(std::make_shared<PrintTicket>(mChoice.ppd, mChoice.destination.deviceURI)),
      mLayers{mChoice.destination.savedOptions, asked},
      mLayoutDidChange(std::move(layoutDidChange)) {
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
  mLayers = {options};
  run();
}

void OpenPrinter::markLayers() {
  mChoice.ppd->mark(mLayers);
  mAskedFor.clear();
  for (const OptionList& layer : mLayers)
    for (const auto& [name, value] : layer)
      if (const PpdOption* option = mOptions.find(name)) mAskedFor.insert(option->keyword);
}

// The whole sequence: mark, let the panels know the paper, restore, tick, save.
void OpenPrinter::run() {
  markLayers();
  wantMarked();
  runFromPaper();
}

void OpenPrinter::runFromPaper() {
  postPaperChange();
  mPanels->restore();
  settle();
}

void OpenPrinter::postPaperChange() {
  notificationCenter().postNotificationName(kPaperDidChange, std::monostate{});
}

// The other boxes of the clicked box's option go where the click has put the mark.
void OpenPrinter::followClicked(const CheckBox& clicked) {
  const std::string keyword = clicked.ppdKeyword();
  for (CheckBox* box : mPanels->boxes())
    if (box != &clicked && box->ppdKeyword() == keyword)
      click(*box, mChoice.ppd->markedChoice(keyword));
}

// Saves, and brings back what is wanted: a restore can have moved boxes, and a rule that no longer
// holds leaves behind what it had changed. Saving comes first because it can free boxes.
void OpenPrinter::settle() {
  int round = 0;
  do {
    mPanels->save();
  } while (clickStrays() && ++round < kMaxSettlingRounds);
  markStrays();
}

bool OpenPrinter::hasBox(const std::string& keyword) const {
  const std::vector<CheckBox*> boxes = mPanels->boxes();
  return std::any_of(boxes.begin(), boxes.end(),
                     [&](const CheckBox* box) { return box->ppdKeyword() == keyword; });
}

// Options of the panels that no box stands for.
void OpenPrinter::markStrays() {
  for (const auto& [keyword, choice] : mWanted) {
    if (hasBox(keyword) || ruleFor(keyword) != CutRule::none) continue;
    if (mChoice.ppd->markedChoice(keyword) == choice) continue;
    mChoice.ppd->markChoice(keyword, choice);
    mPanels->report(nullptr, keyword, choice);
  }
}

bool OpenPrinter::clickStrays() {
  bool clicked = false;
  for (CheckBox* box : mPanels->boxes()) {
    const std::string keyword = box->ppdKeyword();
    if (ruleFor(keyword) == CutRule::none) clicked |= click(*box, wanted(keyword));
  }
  return clicked;
}

bool OpenPrinter::click(CheckBox& box, const std::string& choice) {
  const std::optional<int> position = mOptions.position(box.ppdKeyword(), choice);
  if (!position || !isOperable(box) || box.state() == *position) return false;
  box.performClick();
  return true;
}

CutRule OpenPrinter::ruleFor(const std::string& keyword) const {
  return cutRuleFor(*mChoice.ppd, mOptions, keyword, hasBox(keyword));
}

void OpenPrinter::choosePaper(const std::string& name) {
  const HostCall call(*this);
  const auto before = std::pair(panelMarks(), boxStates());
  mChoice.ppd->markChoice("PageSize", name);
  mAskedFor.insert("PageSize");
  mLastChosen = "PageSize";
  mPanels->report(nullptr, "PageSize", name);
  postPaperChange();
  if (std::pair(panelMarks(), boxStates()) != before) return runFromPaper();
  settle();
}

void OpenPrinter::chooseOption(const std::string& keyword, const std::string& choice) {
  mLastChosen = keyword;
  chooseOptions({{keyword, choice}});
}

void OpenPrinter::chooseOptions(const OptionList& changes) {
  const HostCall call(*this);
  bool concernsPanels = false;
  for (const auto& [keyword, choice] : changes) {
    mChoice.ppd->markChoice(keyword, choice);
    mAskedFor.insert(keyword);
    want(keyword, choice);
    mPanels->report(nullptr, keyword, choice);
    concernsPanels |= keyword == "PageSize" || mPanels->declares(keyword);
  }
  if (concernsPanels) runFromPaper();
}

bool OpenPrinter::userDidAct(View& sender) {
  if (mHostCalls > 0) return false;
  const HostCall call(*this);
  if (dynamic_cast<const PopUpButton*>(&sender) != nullptr) wantShown();
  if (const auto* box = dynamic_cast<const CheckBox*>(&sender)) followClicked(*box);
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
  if (mPanels->declares(keyword)) mWanted[keyword] = choice;
}

void OpenPrinter::wantMarked() {
  mWanted.clear();
  for (const std::string& keyword : mPanels->keywords()) {
    const std::string marked = mChoice.ppd->markedChoice(keyword);
    if (!marked.empty()) mWanted[keyword] = marked;
  }
}

// The preset list moves boxes and marks nothing, so the boxes say what the user chose.
void OpenPrinter::wantShown() {
  for (const CheckBox* box : mPanels->boxes()) {
    if (!isOperable(*box)) continue;
    const std::string keyword = box->ppdKeyword();
    if (const auto choice = mOptions.choiceAt(keyword, box->state())) want(keyword, *choice);
  }
}

std::string OpenPrinter::wanted(const std::string& keyword) const {
  const auto entry = mWanted.find(keyword);
  return entry != mWanted.end() ? entry->second : std::string();
}

OpenPrinter::BoxStates OpenPrinter::boxStates() const {
  BoxStates states;
  for (CheckBox* box : mPanels->boxes()) states.emplace_back(box, box->state());
  return states;
}

OptionList OpenPrinter::panelMarks() const {
  OptionList marks;
  for (const std::string& keyword : mPanels->keywords())
    marks.emplace_back(keyword, mChoice.ppd->markedChoice(keyword));
  return marks;
}

std::vector<Deviation> OpenPrinter::deviations() const {
  std::vector<Deviation> deviations;
  const std::string paper = mChoice.ppd->markedPaper().text;
  for (const auto& [keyword, choice] : mWanted) {
    const std::string marked = mChoice.ppd->markedChoice(keyword);
    if (marked == choice) continue;
    deviations.push_back({keyword, choice, marked,
                          sentenceForRule(ruleFor(keyword), mOptions.optionText(keyword),
                                          mOptions.choiceText(keyword, marked), paper)});
  }
  return deviations;
}

}  // namespace cutline
