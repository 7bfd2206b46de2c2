#include "cups/PrintTicket.h"

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <map>
#include <utility>

namespace cutline {

namespace {

constexpr const char* kFirstPageKey = "org.cutline.print.PrintSettings.FirstPage";
constexpr const char* kLastPageKey = "org.cutline.print.PrintSettings.LastPage";
constexpr std::uint32_t kAllPages = std::numeric_limits<std::uint32_t>::max();

using Values = std::map<std::string, std::string>;

// The calls are made across the bundle's boundary, which nothing may be thrown across.
template <typename Function>
OSStatus guarded(const Function& function) noexcept {
  try {
    return function();
  } catch (...) {
    return kPMGeneralError;
  }
}

class TicketPrinter final : public PMPrinterObject {
 public:
  explicit TicketPrinter(std::string deviceURI) : mDeviceURI(std::move(deviceURI)) {}

  OSStatus copyDeviceURI(std::optional<std::string>* uri) noexcept override {
    return guarded([&] {
      *uri = mDeviceURI.empty() ? std::nullopt : std::optional(mDeviceURI);
      return noErr;
    });
  }

 private:
  std::string mDeviceURI;
};

class TicketPaper final : public PMPaperObject {
 public:
  explicit TicketPaper(std::shared_ptr<PpdFile> ppd) : mPpd(std::move(ppd)) {}

  OSStatus getPPDPaperName(std::optional<std::string>* name) noexcept override {
    return guarded([&] {
      const std::string marked = mPpd->markedPaper().name;
      *name = marked.empty() ? std::nullopt : std::optional(marked);
      return noErr;
    });
  }

  OSStatus getHeight(double* points) noexcept override {
    return guarded([&] {
      *points = mPpd->markedPaper().length;
      return noErr;
    });
  }

 private:
  std::shared_ptr<PpdFile> mPpd;
};

class TicketPageFormat final : public PMPageFormatObject {
 public:
  explicit TicketPageFormat(PMPaper paper) : mPaper(paper) {}

  OSStatus getPaper(PMPaper* paper) noexcept override {
    *paper = mPaper;
    return noErr;
  }

 private:
  PMPaper mPaper;
};

std::string xmlOf(const Values& values, std::uint32_t first, std::uint32_t last) {
  const std::unique_ptr<void, void (*)(plist_t)> root(plist_new_dict(), plist_free);
  plist_dict_set_item(root.get(), kFirstPageKey, plist_new_uint(first));
  plist_dict_set_item(root.get(), kLastPageKey, plist_new_uint(last));
  for (const auto& [key, bytes] : values) {
    plist_dict_set_item(root.get(), key.c_str(), plist_new_data(bytes.data(), bytes.size()));
  }
  char* xml = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root.get(), &xml, &length);
  const std::unique_ptr<char, void (*)(void*)> owner(xml, std::free);
  return xml ? std::string(xml, length) : std::string();
}

class TicketSettings final : public PMPrintSettingsObject {
 public:
  OSStatus getValue(const std::string& key, std::optional<std::string>* bytes) noexcept override {
    return guarded([&] {
      const auto found = mValues.find(key);
      if (found == mValues.end()) return kPMNoSuchEntry;
      *bytes = found->second;
      return noErr;
    });
  }

  OSStatus getFirstPage(std::uint32_t* page) noexcept override {
    *page = mFirstPage;
    return noErr;
  }

  OSStatus setFirstPage(std::uint32_t page, bool) noexcept override {
    return setPage(mFirstPage, page);
  }

  OSStatus getLastPage(std::uint32_t* page) noexcept override {
    *page = mLastPage;
    return noErr;
  }

  OSStatus setLastPage(std::uint32_t page, bool) noexcept override {
    return setPage(mLastPage, page);
  }

  OSStatus createDataRepresentation(std::optional<std::string>* xml) noexcept override {
    return guarded([&] {
      std::string text = xmlOf(mValues, mFirstPage, mLastPage);
      if (text.empty()) return kPMGeneralError;
      *xml = std::move(text);
      return noErr;
    });
  }

  void setValue(const std::string& key, const std::string& bytes) { mValues[key] = bytes; }

 private:
  // Pages are counted from 1.
  static OSStatus setPage(std::uint32_t& field, std::uint32_t page) noexcept {
    if (page == 0) return kPMValueOutOfRange;
    field = page;
    return noErr;
  }

  Values mValues;
  std::uint32_t mFirstPage = 1;
  std::uint32_t mLastPage = kAllPages;
};

class TicketSession final : public PMPrintSessionObject {
 public:
  OSStatus getData(const std::string& key, std::optional<std::int64_t>* number) noexcept override {
    return guarded([&] {
      const auto found = mNumbers.find(key);
      if (found == mNumbers.end()) return kPMNoSuchEntry;
      *number = found->second;
      return noErr;
    });
  }

  void setData(const std::string& key, std::int64_t number) { mNumbers[key] = number; }

 private:
  std::map<std::string, std::int64_t> mNumbers;
};

}  // namespace

struct PrintTicket::Objects {
  Objects(std::shared_ptr<PpdFile> ppd, const std::string& deviceURI)
      : printer(deviceURI), paper(std::move(ppd)), pageFormat(&paper) {}

  TicketSession session;
  TicketSettings settings;
  TicketPrinter printer;
  TicketPaper paper;
  TicketPageFormat pageFormat;
};

PrintTicket::PrintTicket(std::shared_ptr<PpdFile> ppd, const std::string& deviceURI)
    : mObjects(std::make_unique<Objects>(std::move(ppd), deviceURI)) {}

PrintTicket::~PrintTicket() = default;

PMPrintSession PrintTicket::session() noexcept { return &mObjects->session; }
PMPrintSettings PrintTicket::settings() noexcept { return &mObjects->settings; }
PMPageFormat PrintTicket::pageFormat() noexcept { return &mObjects->pageFormat; }
PMPrinter PrintTicket::printer() noexcept { return &mObjects->printer; }

void PrintTicket::setValue(const std::string& key, const std::string& bytes) {
  mObjects->settings.setValue(key, bytes);
}

void PrintTicket::setSessionData(const std::string& key, std::int64_t number) {
  mObjects->session.setData(key, number);
}

}  // namespace cutline
