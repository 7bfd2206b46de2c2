// The platform's printing objects of one print dialog (session, settings, page format, paper,
// printer) on a PPD and a destination. The page format's paper is always the page size that the PPD
// has marked now.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cups/Destination.h"
#include "cups/PpdFile.h"
#include "platform/ports/Printing.h"

namespace cutline {

class PrintTicket {
 public:
  // `deviceURI` may be empty: the printer then answers that it has none.
  PrintTicket(std::shared_ptr<PpdFile> ppd, const std::string& deviceURI);
  ~PrintTicket();
  PrintTicket(const PrintTicket&) = delete;
  PrintTicket& operator=(const PrintTicket&) = delete;

  // Borrowed, never null, and they live as long as the ticket. The page range begins as all pages
  // (1 to the highest number); page 0 is out of range. A key or session datum that nobody set is
  // "no such entry".
  PMPrintSession session() noexcept;
  PMPrintSettings settings() noexcept;
  PMPageFormat pageFormat() noexcept;
  PMPrinter printer() noexcept;

  // Puts bytes into the settings under a key, where PMPrintSettingsGetValue finds them. A ticket
  // begins without any.
  void setValue(const std::string& key, const std::string& bytes);
  // Puts a number into the session, where PMSessionGetDataFromSession finds it.
  void setSessionData(const std::string& key, std::int64_t number);

 private:
  struct Objects;
  std::unique_ptr<Objects> mObjects;
};

}  // namespace cutline
