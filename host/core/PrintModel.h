// The state of one print dialog: a printer with its PPD, the panels of its plug-ins, paper,
// options, copies and pages. It holds what is shown, what is marked in the PPD and what is sent
// with the job together, in the one sequence described in docs/architecture.md. It asks no server
// anything: the caller fetches destinations and PPDs (on another thread, if it draws) and hands
// them in.
//
// A program without a window and the dialog use the same model; only the toolkit behind the panels
// differs. Everything runs on the thread that owns the toolkit.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "host/core/CutMeanings.h"
#include "host/core/JobLayout.h"
#include "host/core/PanelSource.h"
#include "host/core/PrintValues.h"
#include "host/core/SettingsHistory.h"
#include "platform/ports/PrintDialogPanel.h"
#include "platform/ports/Toolkit.h"
#include "strip/PageList.h"

namespace cutline {

class CheckBox;
class OpenPrinter;
class OptionTable;

enum class ModelChange {
  printer,      // everything is new: panels, papers, generated options
  options,      // marks, summary, deviations, conflicts, generated options' marks
  paper,        // the current paper; `options` follows
  job,          // copies, their order, or page ranges
  composition,  // how documents are laid onto labels
  layout,       // a panel's view has another size
};

class PrintModelListener {
 public:
  virtual ~PrintModelListener();
  // The model is consistent when this is called; it may be read but not changed from here.
  virtual void modelDidChange(ModelChange what) = 0;
};

class PrintModel final : public ActionObserver {
 public:
  // `panelSource` is borrowed and outlives the model. The platform (setCurrentPlatform) is set
  // before; its toolkit reports finished actions to this model until the model goes.
  PrintModel(PanelSource& panelSource, AskedSettings asked);
  // Closes first when that was not done.
  ~PrintModel() override;

  // Borrowed; null removes it. One at a time.
  void setListener(PrintModelListener* listener) noexcept;

  // Opens the first printer, or switches to another one: makes its panels, loads their views, and
  // runs the sequence. The asked options are laid over the new printer's saved ones; copies and
  // pages stay. The old panels and views are gone after it; a PPD whose records somebody still
  // borrows stays alive. Options that this PPD does not have are left out (checkOptions tells).
  void openPrinter(PrinterChoice choice);
  bool isOpen() const noexcept;
  // True when jobs can be sent: the printer is a queue.
  bool hasQueue() const noexcept;
  const Destination& destination() const noexcept;           // only while open
  const std::shared_ptr<PpdFile>& ppdFile() const noexcept;  // only while open

  const std::vector<PanelEntry>& panels() const noexcept;
  // The panels' check boxes that are not hidden and name a PPD option. Borrowed from their views.
  std::vector<CheckBox*> boxes() const;

  const std::vector<PaperSize>& papers() const noexcept;
  PaperSize currentPaper() const;
  // By PageSize choice. An unknown name is an error that lists the names.
  Result<Done> setPaper(const std::string& name);

  // The PPD's; while open only.
  const OptionTable& options() const noexcept;
  // The marked choice's keyword; empty where none is marked. While open only.
  std::string markedChoice(const std::string& keyword) const;
  // Options that no panel takes care of, or some choice of which no control of a panel reaches, in
  // the PPD's groups and order; installable options and the paper's own options left out. No group
  // is empty.
  std::vector<OptionGroup> generatedOptions() const;
  // Whether there are any, without listing them.
  bool hasGeneratedOptions() const;
  // A user's choice in the generated options. An unknown keyword or choice is an error.
  Result<Done> setOption(const std::string& keyword, const std::string& choice);

  // What can be asked of the knife where the driver has words of its own for it; see CutMeanings.h.
  // Empty for printers with the cut panel's options, and where no word is known.
  CutMeanings cutMeanings() const;
  // Chooses what one of cutMeanings() says, as one change.
  void chooseCut(const CutOffer& offer);

  int copies() const noexcept;
  Result<Done> setCopies(int copies);  // 1 to 9999
  std::string pageRanges() const;
  // "2", "1-4,7", "5-"; blanks allowed; empty for all pages. An error says what is wrong.
  Result<Done> setPageRanges(const std::string& text);

  // With several copies the whole document comes once a copy, instead of each label as often.
  bool isCollated() const;
  void setCollated(bool isCollated);

  // How documents are laid onto labels: as asked for or saved, until it is set.
  JobLayout jobLayout() const;
  void setJobLayout(const JobLayout& layout);
  // The current paper as documents are laid onto it. Where the length follows the content it is of
  // the tape's width, with the margins of sizes without a name.
  LabelPage label() const;
  // Between what lengths the present tape can be cut, in points; nothing where the PPD takes its
  // named sizes only.
  std::optional<LengthBounds> customLengths() const;
  // Chooses a size of the present width and this length, in points. An error names the bounds.
  Result<Done> setCustomLength(double length);
  // The composer's answer where the length follows the content; the paper is of that length then.
  void takeContentLength(double length);
  // Which pages are printed, in which order. Ranges that were saved and are none pick all.
  PageSelection pageSelection() const;
  // The selected of so many pages. Looked for only when it is another selection, or of another
  // number, than the last time.
  PageList pagesToPrint(int documentPages) const;
  // What the composer is asked, but for the documents' names: every page of them, since the preview
  // shows those that are not printed, too.
  CompositionRequest compositionRequest() const;

  // The panels' summary lines, in display order.
  std::vector<SummaryLine> summary() const;
  // What a user must hear of before printing: changed by a rule, or sent against one, or unseen.
  std::vector<Deviation> deviations() const;
  // Pairs of choices that the PPD does not allow together, each in a sentence.
  std::vector<Sentence> conflicts() const;
  // Gives way in the other options until the conflicts are gone; an error when that is impossible.
  Result<Done> resolveConflicts();

  // What is sent with the composed document: every cut option, paper, other options that differ
  // from the PPD's default or were asked for, copies, and what keeps the print system from laying
  // it out again. Where raw was asked for, the document goes as it is, with all options that it
  // had.
  OptionList jobOptions() const;

  // Saves the panels' values and answers what to store as an instance of this destination: what is
  // sent, and beside it what is wanted where a rule changes that.
  Result<OptionList> savePreset();
  // Lays an instance's options over the PPD's defaults and runs the sequence. What was asked on the
  // command line is replaced by it.
  Result<Done> applyPreset(const OptionList& options);

  // What can be undone: the settings of the job as they are now. Restoring runs the sequence as a
  // preset does; where the printer was switched in between, what it does not have is left out.
  Settings settings() const;
  void restore(const Settings& settings);
  // The settings that the driver starts with, and one copy of all pages.
  void reset();

  // Asks each panel whether it agrees, saves for the last time, and answers the options to send. A
  // refusal is an error that names the panel.
  Result<OptionList> prepareToPrint();

  // Tells the panels that the dialog closes, and lets go of them. The model is not open after it.
  void close() noexcept;

  // The toolkit's report of a finished action.
  void actionDidFinish(View& sender) noexcept override;

 private:
  void tell(ModelChange what);
  OptionList keptOptions() const;
  // `withBox` is OpenPrinter::keywordsWithBox().
  bool isGenerated(const PpdOption& option, const std::set<std::string>& withBox) const;
  Result<Done> setCustomPaper(const std::string& name);

  PanelSource& mPanelSource;
  AskedSettings mAsked;
  PrintModelListener* mListener = nullptr;
  std::optional<JobLayout> mLayout;  // as set
  std::optional<bool> mIsCollated;   // as set
  struct PickedPages {
    PageSelection selection;
    int documentPages = 0;
    PageList pages;
  };
  mutable PickedPages mPicked;
  std::unique_ptr<OpenPrinter> mPrinter;
};

}  // namespace cutline
