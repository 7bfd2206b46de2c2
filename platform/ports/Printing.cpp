#include "platform/ports/Printing.h"

namespace cutline {

PMPrinterObject::~PMPrinterObject() = default;
PMPaperObject::~PMPaperObject() = default;
PMPageFormatObject::~PMPageFormatObject() = default;
PMPrintSettingsObject::~PMPrintSettingsObject() = default;
PMPrintSessionObject::~PMPrintSessionObject() = default;

OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, std::optional<std::string>* uri) noexcept {
  return printer ? printer->copyDeviceURI(uri) : kPMInvalidPrinter;
}

OSStatus PMGetPageFormatPaper(PMPageFormat format, PMPaper* paper) noexcept {
  return format ? format->getPaper(paper) : kPMInvalidPageFormat;
}

OSStatus PMPaperGetPPDPaperName(PMPaper paper, std::optional<std::string>* name) noexcept {
  return paper ? paper->getPPDPaperName(name) : kPMInvalidPaper;
}

OSStatus PMPaperGetHeight(PMPaper paper, double* points) noexcept {
  return paper ? paper->getHeight(points) : kPMInvalidPaper;
}

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const std::string& key,
                                 std::optional<std::string>* bytes) noexcept {
  return settings ? settings->getValue(key, bytes) : kPMInvalidPrintSettings;
}

OSStatus PMSessionGetDataFromSession(PMPrintSession session, const std::string& key,
                                     std::optional<std::int64_t>* number) noexcept {
  return session ? session->getData(key, number) : kPMInvalidPrintSession;
}

OSStatus PMGetFirstPage(PMPrintSettings settings, std::uint32_t* page) noexcept {
  return settings ? settings->getFirstPage(page) : kPMInvalidPrintSettings;
}

OSStatus PMSetFirstPage(PMPrintSettings settings, std::uint32_t page, bool lock) noexcept {
  return settings ? settings->setFirstPage(page, lock) : kPMInvalidPrintSettings;
}

OSStatus PMGetLastPage(PMPrintSettings settings, std::uint32_t* page) noexcept {
  return settings ? settings->getLastPage(page) : kPMInvalidPrintSettings;
}

OSStatus PMSetLastPage(PMPrintSettings settings, std::uint32_t page, bool lock) noexcept {
  return settings ? settings->setLastPage(page, lock) : kPMInvalidPrintSettings;
}

OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings,
                                                 std::optional<std::string>* xml) noexcept {
  return settings ? settings->createDataRepresentation(xml) : kPMInvalidPrintSettings;
}

}  // namespace cutline
