// What a panel and the print dialog ask of each other.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/ports/Printing.h"
#include "platform/ports/View.h"

struct ppd_file_s;

namespace cutline {

// The host's callback object, through which panels reach the print job. Implemented by the host and
// by tests.
class PDEPluginCallback13_v400_ {
 public:
  virtual ~PDEPluginCallback13_v400_();

  // Borrowed, all of them; each may be null.
  virtual PMPrintSession printSession() noexcept = 0;
  virtual PMPrintSettings printSettings() noexcept = 0;
  virtual PMPageFormat pageFormat() noexcept = 0;
  virtual cutline::PMPrinter PMPrinter() noexcept = 0;
  virtual ppd_file_s* ppdFile() noexcept = 0;

  // willChangePPDOptionKeyValue:ppdChoice:  Marks the choice for the job, on behalf of the user.
  // Without a choice nothing is marked.
  virtual void willChangePPDOptionKeyValue(
      const std::string& key, const std::optional<std::string>& ppdChoice) noexcept = 0;

  // A host that does not lay panels out again answers false and is never told.
  virtual bool respondsToPanelViewDidResize() const noexcept = 0;
  virtual void panelViewDidResize() noexcept = 0;
};

// Posted by the host, about no object, when the dialog's paper is another one.
inline constexpr char kPaperDidChangeNotification[] =
    "PMPrintDestinationPaperDidChangeNotification";

using KeywordList = std::vector<std::string>;

// The key of the list of titles in display order within a summary.
inline constexpr char kSummaryDisplayOrderKey[] = "Summary Display Order";
// Titles and their values, and the display order.
using SummaryValue = std::variant<std::string, std::vector<std::string>>;
using SummaryInfo = std::map<std::string, SummaryValue>;

// What the print dialog asks of a panel. Implemented by bundles, called by the host on the main
// thread.
class PrintDialogPanel {
 public:
  PrintDialogPanel() = default;
  PrintDialogPanel(const PrintDialogPanel&) = delete;
  PrintDialogPanel& operator=(const PrintDialogPanel&) = delete;
  virtual ~PrintDialogPanel();

  // The panel's view, loaded at the first call; null when it could not be loaded.
  virtual std::shared_ptr<View> panelView() noexcept = 0;
  virtual std::string panelName() noexcept = 0;
  virtual std::string panelKind() noexcept = 0;
  // The PPD keywords that the panel takes care of; null for none.
  virtual std::shared_ptr<const KeywordList> supportedPPDOptionKeys() noexcept = 0;
  virtual void printWindowWillClose() noexcept = 0;  // printWindowWillClose:
  virtual void willShow() noexcept = 0;
  virtual bool shouldHide() noexcept = 0;
  virtual bool shouldPrint() noexcept = 0;
  virtual bool shouldShowHelp() noexcept = 0;
  // PPDOptionKeyValueDidChange:ppdChoice:  Reports a change that another panel or the host made.
  virtual void PPDOptionKeyValueDidChange(const std::optional<std::string>& key,
                                          const std::optional<std::string>& ppdChoice) noexcept = 0;
  // Both answer success; on failure `error`, if given, says why.
  virtual bool restoreValuesAndReturnError(std::string* error) noexcept = 0;
  virtual bool saveValuesAndReturnError(std::string* error) noexcept = 0;
  // Null when the panel has no summary.
  virtual std::shared_ptr<SummaryInfo> summaryInfo() noexcept = 0;
};

}  // namespace cutline
