// What the print dialog asks of a panel. Implemented by bundles, called by the host on the main
// thread.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/View.h"

namespace cutline {

using KeywordList = std::vector<std::string>;

// The key of the list of titles in display order within a summary.
inline constexpr char kSummaryDisplayOrderKey[] = "Summary Display Order";
// Titles and their values, and the display order.
using SummaryValue = std::variant<std::string, std::vector<std::string>>;
using SummaryInfo = std::map<std::string, SummaryValue>;

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
