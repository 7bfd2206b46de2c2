#include "host/core/PanelSet.h"

#include <utility>

#include "platform/ports/Controls.h"

namespace cutline {

namespace {

void collectBoxes(const View& view, std::vector<CheckBox*>& boxes) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    if (subview->isHidden()) continue;
    auto* box = dynamic_cast<CheckBox*>(subview.get());
    if (box != nullptr && !box->ppdKeyword().empty()) boxes.push_back(box);
    collectBoxes(*subview, boxes);
  }
}

void appendLines(const SummaryInfo& info, std::vector<SummaryLine>& lines) {
  const auto order = info.find(kSummaryDisplayOrderKey);
  if (order == info.end()) return;
  const auto* titles = std::get_if<std::vector<std::string>>(&order->second);
  if (titles == nullptr) return;
  for (const std::string& title : *titles) {
    const auto entry = info.find(title);
    if (entry == info.end()) continue;
    const auto* value = std::get_if<std::string>(&entry->second);
    if (value != nullptr) lines.push_back({title, *value});
  }
}

}  // namespace

PanelSet::PanelSet(PanelSource& source, PanelHostOwner* owner,
                   const std::shared_ptr<PrintTicket>& ticket,
                   const std::shared_ptr<PpdFile>& ppd) {
  for (std::shared_ptr<PrintDialogPlugIn>& plugIn : source.plugInsForPpd(*ppd))
    addPlugIn(std::move(plugIn), std::make_shared<PanelHost>(owner, ticket, ppd));
}

PanelSet::~PanelSet() {
  for (const PanelEntry& entry : mEntries) entry.panel->printWindowWillClose();
  for (const std::shared_ptr<PanelHost>& host : mHosts) host->detach();
}

void PanelSet::addPlugIn(std::shared_ptr<PrintDialogPlugIn> plugIn,
                         std::shared_ptr<PanelHost> host) {
  const std::shared_ptr<PanelList> panels = plugIn->PDEPanelsForType(kPrintDialogPanelType, host);
  if (panels == nullptr) return;
  for (const std::shared_ptr<PrintDialogPanel>& panel : *panels) {
    mEntries.push_back({panel->panelName(), nullptr, panel});
    mHostOfEntry.push_back(host.get());
  }
  mPlugIns.push_back(std::move(plugIn));
  mHosts.push_back(std::move(host));
}

void PanelSet::show() {
  for (const PanelEntry& entry : mEntries) {
    const auto keywords = entry.panel->supportedPPDOptionKeys();
    if (keywords != nullptr) mKeywords.insert(keywords->begin(), keywords->end());
  }
  for (PanelEntry& entry : mEntries) {
    entry.view = entry.panel->panelView();
    entry.panel->willShow();
  }
}

void PanelSet::restore() {
  for (const PanelEntry& entry : mEntries) entry.panel->restoreValuesAndReturnError(nullptr);
}

void PanelSet::save() {
  for (const PanelEntry& entry : mEntries) entry.panel->saveValuesAndReturnError(nullptr);
}

Result<Done> PanelSet::askToPrint() {
  for (const PanelEntry& entry : mEntries)
    if (!entry.panel->shouldPrint())
      return Error{Sentence(Phrase("host",
                                   "the panel \"%1\" does not agree to print with these settings; "
                                   "change them and print again"),
                            {entry.name})};
  return Done{};
}

void PanelSet::report(const PDEPluginCallback13_v400_* from, const std::string& key,
                      const std::string& choice) {
  for (std::size_t i = 0; i < mEntries.size(); ++i)
    if (mHostOfEntry[i] != from) mEntries[i].panel->PPDOptionKeyValueDidChange(key, choice);
}

std::vector<SummaryLine> PanelSet::summary() const {
  std::vector<SummaryLine> lines;
  for (const PanelEntry& entry : mEntries) {
    const std::shared_ptr<SummaryInfo> info = entry.panel->summaryInfo();
    if (info != nullptr) appendLines(*info, lines);
  }
  return lines;
}

std::vector<CheckBox*> PanelSet::boxes() const {
  std::vector<CheckBox*> boxes;
  for (const PanelEntry& entry : mEntries)
    if (entry.view != nullptr) collectBoxes(*entry.view, boxes);
  return boxes;
}

std::set<std::string> PanelSet::boxKeywords() const {
  std::set<std::string> keywords;
  for (const CheckBox* box : boxes()) keywords.insert(box->ppdKeyword());
  return keywords;
}

}  // namespace cutline
