// The panels of one opened printer, with what keeps them alive: one principal object a bundle and
// one callback object each.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "host/core/PanelHost.h"
#include "host/core/PanelSource.h"
#include "host/core/PrintValues.h"

namespace cutline {

class CheckBox;

class PanelSet {
 public:
  // Makes the panels. They read the PPD's marks now, so these are set before.
  PanelSet(PanelSource& source, PanelHostOwner* owner, const std::shared_ptr<PrintTicket>& ticket,
           const std::shared_ptr<PpdFile>& ppd);
  ~PanelSet();
  PanelSet(const PanelSet&) = delete;
  PanelSet& operator=(const PanelSet&) = delete;

  // Asks each panel for its keywords, then loads its view and shows it for the first time.
  void show();

  const std::vector<PanelEntry>& entries() const noexcept { return mEntries; }
  bool declares(const std::string& keyword) const { return mKeywords.contains(keyword); }
  const std::set<std::string>& keywords() const noexcept { return mKeywords; }

  void restore();
  void save();
  // A refusal names the panel.
  Result<Done> askToPrint();
  // Tells every panel but those of `from` (null: all of them) of a change.
  void report(const PDEPluginCallback13_v400_* from, const std::string& key,
              const std::string& choice);
  std::vector<SummaryLine> summary() const;
  // The check boxes that are not hidden and name a PPD option. Borrowed from the views.
  std::vector<CheckBox*> boxes() const;
  // The PPD options that these name.
  std::set<std::string> boxKeywords() const;

 private:
  void addPlugIn(std::shared_ptr<PrintDialogPlugIn> plugIn, std::shared_ptr<PanelHost> host);

  // In the order of ownership: panels (in the entries) go before what they borrow.
  std::vector<std::shared_ptr<PrintDialogPlugIn>> mPlugIns;
  std::vector<std::shared_ptr<PanelHost>> mHosts;
  std::vector<const PanelHost*> mHostOfEntry;
  std::vector<PanelEntry> mEntries;
  std::set<std::string> mKeywords;
};

}  // namespace cutline
