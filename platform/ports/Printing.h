// The platform's printing calls as bundles use them. The objects behind the handles are implemented
// by cups/ (real printers) and plain/ (tests); the functions keep the names and status codes that
// panels know. A null handle answers the invalid-object status of its kind.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ports/System.h"

namespace cutline {

class PMPrinterObject {
 public:
  virtual ~PMPrinterObject();
  virtual OSStatus copyDeviceURI(std::optional<std::string>* uri) noexcept = 0;
};

class PMPaperObject {
 public:
  virtual ~PMPaperObject();
  virtual OSStatus getPPDPaperName(std::optional<std::string>* name) noexcept = 0;
  virtual OSStatus getHeight(double* points) noexcept = 0;
};

class PMPageFormatObject {
 public:
  virtual ~PMPageFormatObject();
  virtual OSStatus getPaper(PMPaperObject** paper) noexcept = 0;
};

class PMPrintSettingsObject {
 public:
  virtual ~PMPrintSettingsObject();
  virtual OSStatus getValue(const std::string& key, std::optional<std::string>* bytes) noexcept = 0;
  virtual OSStatus getFirstPage(std::uint32_t* page) noexcept = 0;
  virtual OSStatus setFirstPage(std::uint32_t page, bool lock) noexcept = 0;
  virtual OSStatus getLastPage(std::uint32_t* page) noexcept = 0;
  virtual OSStatus setLastPage(std::uint32_t page, bool lock) noexcept = 0;
  virtual OSStatus createDataRepresentation(std::optional<std::string>* xml) noexcept = 0;
};

class PMPrintSessionObject {
 public:
  virtual ~PMPrintSessionObject();
  virtual OSStatus getData(const std::string& key,
                           std::optional<std::int64_t>* number) noexcept = 0;
};

// Borrowed: the host's session owns the objects.
using PMPrinter = PMPrinterObject*;
using PMPaper = PMPaperObject*;
using PMPageFormat = PMPageFormatObject*;
using PMPrintSettings = PMPrintSettingsObject*;
using PMPrintSession = PMPrintSessionObject*;

// Out values are written only on success; a success without a value writes nothing or null.
OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, std::optional<std::string>* uri) noexcept;
OSStatus PMGetPageFormatPaper(PMPageFormat format, PMPaper* paper) noexcept;
OSStatus PMPaperGetPPDPaperName(PMPaper paper, std::optional<std::string>* name) noexcept;
OSStatus PMPaperGetHeight(PMPaper paper, double* points) noexcept;
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const std::string& key,
                                 std::optional<std::string>* bytes) noexcept;
OSStatus PMSessionGetDataFromSession(PMPrintSession session, const std::string& key,
                                     std::optional<std::int64_t>* number) noexcept;
OSStatus PMGetFirstPage(PMPrintSettings settings, std::uint32_t* page) noexcept;
OSStatus PMSetFirstPage(PMPrintSettings settings, std::uint32_t page, bool lock) noexcept;
OSStatus PMGetLastPage(PMPrintSettings settings, std::uint32_t* page) noexcept;
OSStatus PMSetLastPage(PMPrintSettings settings, std::uint32_t page, bool lock) noexcept;
OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings,
                                                 std::optional<std::string>* xml) noexcept;

}  // namespace cutline
