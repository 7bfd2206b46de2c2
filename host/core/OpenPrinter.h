// One printer opened in a print dialog: its PPD's marks, its panels, and the sequence that holds
// together what the panels show, what the PPD has marked and what is sent.
//
// Panels have habits that would lose a user's choices in a host that only relays calls: the first
// willShow starts the controls from the PPD's defaults and saves them, a full refresh puts boxes
// back to what the preset list can express, two boxes can stand for one option, and a save reads
// the boxes. So the host remembers what is wanted, marks it, lets the panels restore, puts each box
// where it should stand - by a click, as a user would, or, where a box cannot be used, by setting
// it - and lets the panels save. Last it marks what no box can say.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/core/OptionTable.h"
#include "host/core/PanelSet.h"
#include "host/core/WantedChoices.h"

namespace cutline {

class PopUpButton;

class OpenPrinter final : private PanelHostOwner {
 public:
  // Marks the PPD and makes the panels. `layoutDidChange` is called when a panel has resized its
  // view.
  OpenPrinter(PrinterChoice choice, PanelSource& source, const OptionList& asked,
              std::function<void()> layoutDidChange);
  ~OpenPrinter() override;
  OpenPrinter(const OpenPrinter&) = delete;
  OpenPrinter& operator=(const OpenPrinter&) = delete;

  const PrinterChoice& choice() const noexcept { return mChoice; }
  const PpdFile& ppd() const noexcept { return *mChoice.ppd; }
  const OptionTable& options() const noexcept { return mOptions; }
  const PanelSet& panels() const noexcept { return *mPanels; }
  const std::vector<PaperSize>& papers() const noexcept { return mPapers; }
  // How the printer begins by itself, what was saved for the destination, and what was asked for
  // over it, in order.
  const std::vector<OptionList>& layers() const noexcept { return mLayers; }
  // Keywords of the PPD that somebody chose, so that they are sent even at their defaults.
  const std::set<std::string, std::less<>>& askedFor() const noexcept { return mAskedFor; }

  // Starts again as the printer begins by itself, with these options over it.
  void restart(const OptionList& options);
  // All of them take names that the PPD has.
  void choosePaper(const std::string& name);
  void chooseOption(const std::string& keyword, const std::string& choice);
  // Several at once, as one change.
  void chooseOptions(const OptionList& changes);
  // After an action of a control; false when it was the host's own click, which changes nothing.
  bool userDidAct(View& sender);
  // Saves the panels' values; every option that has no mark gets its default first.
  Result<Done> askToPrint();
  void save();

  const WantedChoices& wanted() const noexcept { return mWanted; }
  // Where the controls of what is wanted stand.
  OptionList shownChoices() const;
  // What is sent otherwise than wanted, or against a rule, or unseen.
  std::vector<Deviation> deviations() const;
  // False for an option that no panel declared, or some choice of which its panel's controls do not
  // reach: the dialog shows a list for it. `withBox` is keywordsWithBox(), for many options at
  // once.
  bool isReachedByPanels(const PpdOption& option, const std::set<std::string>& withBox) const;
  std::set<std::string> keywordsWithBox() const { return mPanels->boxKeywords(); }
  // The user's last choice, which gives way last.
  const std::string& lastChosen() const noexcept { return mLastChosen; }

 private:
  // While one exists, marks and clicks are the host's own doing, not the user's.
  class HostCall {
   public:
    explicit HostCall(OpenPrinter& printer) : mPrinter(printer) { ++mPrinter.mHostCalls; }
    ~HostCall() { --mPrinter.mHostCalls; }
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

   private:
    OpenPrinter& mPrinter;
  };
  using BoxStates = std::map<CheckBox*, int>;

  void panelWillChange(const PDEPluginCallback13_v400_& from, const std::string& key,
                       const std::string& choice) override;
  void panelDidResize() override;

  void markLayers();
  void want(const std::string& keyword, const std::string& choice);
  bool isRuled(const std::string& keyword) const;
  void wantMarked();
  void wantChosen(PopUpButton& presets);
  void wantIfMeant(PopUpButton& presets, const std::vector<CheckBox*>& unmoved);

  void run();
  void runFromPaper();
  void runFromMarks();
  void settle();
  void place(CheckBox& box);
  void markUnshown();
  void mark(const std::string& keyword, const std::string& choice);
  BoxStates boxStates() const;

  PrinterChoice mChoice;
  OptionTable mOptions;
  std::vector<PaperSize> mPapers;
  OptionList mStart;  // see PrinterStart.h
  std::shared_ptr<PrintTicket> mTicket;
  std::vector<OptionList> mLayers;
  std::set<std::string, std::less<>> mAskedFor;
  std::function<void()> mLayoutDidChange;
  int mHostCalls = 0;
  WantedChoices mWanted;
  BoxStates mSettled;  // the boxes as the user saw them last
  std::string mLastChosen;
  std::unique_ptr<PanelSet> mPanels;
};

}  // namespace cutline
