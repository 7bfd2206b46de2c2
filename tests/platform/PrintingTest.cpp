#include <gtest/gtest.h>

#include "platform/ports/Printing.h"

namespace cutline {
namespace {

TEST(Printing, ANullHandleAnswersTheInvalidObjectStatusOfItsKind) {
  std::optional<std::string> text = "kept";
  std::optional<std::int64_t> number = 5;
  double points = 1.5;
  std::uint32_t page = 7;
  PMPaper paper = nullptr;
  EXPECT_EQ(PMPrinterCopyDeviceURI(nullptr, &text), kPMInvalidPrinter);
  EXPECT_EQ(PMGetPageFormatPaper(nullptr, &paper), kPMInvalidPageFormat);
  EXPECT_EQ(PMPaperGetPPDPaperName(nullptr, &text), kPMInvalidPaper);
  EXPECT_EQ(PMPaperGetHeight(nullptr, &points), kPMInvalidPaper);
  EXPECT_EQ(PMPrintSettingsGetValue(nullptr, "key", &text), kPMInvalidPrintSettings);
  EXPECT_EQ(PMSessionGetDataFromSession(nullptr, "key", &number), kPMInvalidPrintSession);
  EXPECT_EQ(PMGetFirstPage(nullptr, &page), kPMInvalidPrintSettings);
  EXPECT_EQ(PMSetFirstPage(nullptr, 1, false), kPMInvalidPrintSettings);
  EXPECT_EQ(PMGetLastPage(nullptr, &page), kPMInvalidPrintSettings);
  EXPECT_EQ(PMSetLastPage(nullptr, 1, false), kPMInvalidPrintSettings);
  EXPECT_EQ(PMPrintSettingsCreateDataRepresentation(nullptr, &text), kPMInvalidPrintSettings);
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(number, 5);
  EXPECT_EQ(points, 1.5);
  EXPECT_EQ(page, 7U);
}

class Paper : public PMPaperObject {
 public:
  OSStatus getPPDPaperName(std::optional<std::string>* name) noexcept override {
    *name = "Tape24";
    return noErr;
  }
  OSStatus getHeight(double* points) noexcept override {
    *points = 283.5;
    return noErr;
  }
};

class PageFormat : public PMPageFormatObject {
 public:
  OSStatus getPaper(PMPaperObject** result) noexcept override {
    *result = &paper;
    return noErr;
  }
  Paper paper;
};

class Session : public PMPrintSessionObject {
 public:
  OSStatus getData(const std::string& key, std::optional<std::int64_t>* number) noexcept override {
    if (key != "length") return kPMNoSuchEntry;
    *number = 100;
    return noErr;
  }
};

class Printer : public PMPrinterObject {
 public:
  OSStatus copyDeviceURI(std::optional<std::string>* uri) noexcept override {
    *uri = "usb://Maker/Tape";
    return noErr;
  }
};

class Settings : public PMPrintSettingsObject {
 public:
  OSStatus getValue(const std::string& key, std::optional<std::string>* bytes) noexcept override {
    *bytes = key + "=value";
    return noErr;
  }
  OSStatus getFirstPage(std::uint32_t* page) noexcept override {
    *page = first;
    return noErr;
  }
  OSStatus setFirstPage(std::uint32_t page, bool lock) noexcept override {
    first = page;
    return lock ? kPMValueOutOfRange : noErr;
  }
  OSStatus getLastPage(std::uint32_t* page) noexcept override {
    *page = last;
    return noErr;
  }
  OSStatus setLastPage(std::uint32_t page, bool lock) noexcept override {
    last = page;
    return lock ? kPMValueOutOfRange : noErr;
  }
  OSStatus createDataRepresentation(std::optional<std::string>* xml) noexcept override {
    *xml = "<plist/>";
    return noErr;
  }
  std::uint32_t first = 0;
  std::uint32_t last = 0;
};

TEST(Printing, EachCallAsksTheObjectBehindItsHandle) {
  PageFormat format;
  PMPaper paper = nullptr;
  ASSERT_EQ(PMGetPageFormatPaper(&format, &paper), noErr);
  ASSERT_EQ(paper, &format.paper);
  std::optional<std::string> text;
  double points = 0;
  EXPECT_EQ(PMPaperGetPPDPaperName(paper, &text), noErr);
  EXPECT_EQ(text, "Tape24");
  EXPECT_EQ(PMPaperGetHeight(paper, &points), noErr);
  EXPECT_EQ(points, 283.5);
  Printer printer;
  EXPECT_EQ(PMPrinterCopyDeviceURI(&printer, &text), noErr);
  EXPECT_EQ(text, "usb://Maker/Tape");
}

TEST(Printing, SettingsCallsReachTheSettings) {
  Settings settings;
  std::optional<std::string> text;
  std::uint32_t page = 0;
  EXPECT_EQ(PMPrintSettingsGetValue(&settings, "key", &text), noErr);
  EXPECT_EQ(text, "key=value");
  EXPECT_EQ(PMSetFirstPage(&settings, 2, false), noErr);
  EXPECT_EQ(PMSetLastPage(&settings, 9, true), kPMValueOutOfRange);
  EXPECT_EQ(PMGetFirstPage(&settings, &page), noErr);
  EXPECT_EQ(page, 2U);
  EXPECT_EQ(PMGetLastPage(&settings, &page), noErr);
  EXPECT_EQ(page, 9U);
  EXPECT_EQ(PMPrintSettingsCreateDataRepresentation(&settings, &text), noErr);
  EXPECT_EQ(text, "<plist/>");
}

TEST(Printing, AStatusOfTheObjectIsHandedOnUnchanged) {
  Session session;
  std::optional<std::int64_t> number;
  EXPECT_EQ(PMSessionGetDataFromSession(&session, "width", &number), kPMNoSuchEntry);
  EXPECT_FALSE(number);
  EXPECT_EQ(PMSessionGetDataFromSession(&session, "length", &number), noErr);
  EXPECT_EQ(number, 100);
}

}  // namespace
}  // namespace cutline
