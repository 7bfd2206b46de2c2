// The host's callback object for the panels of one plug-in.
#pragma once

#include <memory>

#include "cups/PpdFile.h"
#include "cups/PrintTicket.h"
#include "platform/ports/PrintDialogPanel.h"

namespace cutline {

// What the print dialog does for its panels.
class PanelHostOwner {
 public:
  virtual ~PanelHostOwner();
  virtual void panelWillChange(const PDEPluginCallback13_v400_& from, const std::string& key,
                               const std::string& choice) = 0;
  virtual void panelDidResize() = 0;
};

class PanelHost final : public PDEPluginCallback13_v400_ {
 public:
  // Shares the ticket and the PPD, because a panel may borrow their records for as long as it holds
  // this object. The owner is borrowed.
  PanelHost(PanelHostOwner* owner, std::shared_ptr<PrintTicket> ticket,
            std::shared_ptr<PpdFile> ppd);

  // The owner goes: panels that live on change nothing any more.
  void detach() noexcept { mOwner = nullptr; }

  PMPrintSession printSession() noexcept override;
  PMPrintSettings printSettings() noexcept override;
  PMPageFormat pageFormat() noexcept override;
  cutline::PMPrinter PMPrinter() noexcept override;
  ppd_file_s* ppdFile() noexcept override;
  void willChangePPDOptionKeyValue(const std::string& key,
                                   const std::optional<std::string>& ppdChoice) noexcept override;
  bool respondsToPanelViewDidResize() const noexcept override;
  void panelViewDidResize() noexcept override;

 private:
  PanelHostOwner* mOwner;
  std::shared_ptr<PrintTicket> mTicket;
  std::shared_ptr<PpdFile> mPpd;
};

}  // namespace cutline
