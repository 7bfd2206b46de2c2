#include "host/core/PanelHost.h"

#include <utility>

namespace cutline {

PanelHostOwner::~PanelHostOwner() = default;

PanelHost::PanelHost(PanelHostOwner* owner, std::shared_ptr<PrintTicket> ticket,
                     std::shared_ptr<PpdFile> ppd)
    : mOwner(owner), mTicket(std::move(ticket)), mPpd(std::move(ppd)) {}

PMPrintSession PanelHost::printSession() noexcept { return mTicket->session(); }
PMPrintSettings PanelHost::printSettings() noexcept { return mTicket->settings(); }
PMPageFormat PanelHost::pageFormat() noexcept { return mTicket->pageFormat(); }
cutline::PMPrinter PanelHost::PMPrinter() noexcept { return mTicket->printer(); }
ppd_file_s* PanelHost::ppdFile() noexcept { return mPpd->get(); }

void PanelHost::willChangePPDOptionKeyValue(const std::string& key,
                                            const std::optional<std::string>& ppdChoice) noexcept {
  if (mOwner == nullptr || !ppdChoice) return;
  mPpd->markChoice(key, *ppdChoice);
  mOwner->panelWillChange(*this, key, *ppdChoice);
}

bool PanelHost::respondsToPanelViewDidResize() const noexcept { return true; }

void PanelHost::panelViewDidResize() noexcept {
  if (mOwner != nullptr) mOwner->panelDidResize();
}

}  // namespace cutline
