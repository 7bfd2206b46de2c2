#include <gtest/gtest.h>

#include <limits>

#include "cups/PrintTicket.h"
#include "platform/lib/PropertyList.h"
#include "tests/cups/Fixtures.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

class PrintTicketTest : public testing::Test {
 protected:
  PrintTicketTest() { mPpd->mark({}); }

  std::optional<std::string> paperName() {
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(mTicket.pageFormat(), &paper), noErr);
    std::optional<std::string> name;
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &name), noErr);
    return name;
  }
  double paperHeight() {
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(mTicket.pageFormat(), &paper), noErr);
    double height = -1;
    EXPECT_EQ(PMPaperGetHeight(paper, &height), noErr);
    return height;
  }

  std::shared_ptr<PpdFile> mPpd = *PpdFile::open(test::fixturePath("tape.ppd"));
  PrintTicket mTicket{mPpd, "usb://Cutline/Tape"};
};

TEST_F(PrintTicketTest, ThePaperIsThePageSizeThatIsMarkedNow) {
  EXPECT_EQ(paperName(), "W24H100");
  EXPECT_NEAR(paperHeight(), 283.46, 0.001);
  mPpd->markChoice("PageSize", "DC24");
  EXPECT_EQ(paperName(), "DC24");
  EXPECT_NEAR(paperHeight(), 170.08, 0.001);
  mPpd->markChoice("PageSize", "Custom.68x200");
  EXPECT_EQ(paperName(), "Custom.68x200");
  EXPECT_NEAR(paperHeight(), 200, 0.001);
}

TEST_F(PrintTicketTest, ThePrinterTellsItsDeviceOrThatItHasNone) {
  std::optional<std::string> uri;
  EXPECT_EQ(PMPrinterCopyDeviceURI(mTicket.printer(), &uri), noErr);
  EXPECT_EQ(uri, "usb://Cutline/Tape");
  PrintTicket unknown(mPpd, "");
  EXPECT_EQ(PMPrinterCopyDeviceURI(unknown.printer(), &uri), noErr);
  EXPECT_EQ(uri, std::nullopt);
}

TEST_F(PrintTicketTest, PagesBeginAsAllAndAreCountedFromOne) {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  EXPECT_EQ(PMGetFirstPage(mTicket.settings(), &first), noErr);
  EXPECT_EQ(PMGetLastPage(mTicket.settings(), &last), noErr);
  EXPECT_EQ(first, 1U);
  EXPECT_EQ(last, std::numeric_limits<std::uint32_t>::max());
  EXPECT_EQ(PMSetFirstPage(mTicket.settings(), 3, false), noErr);
  EXPECT_EQ(PMSetLastPage(mTicket.settings(), 7, false), noErr);
  EXPECT_EQ(PMSetFirstPage(mTicket.settings(), 0, false), kPMValueOutOfRange);
  EXPECT_EQ(PMSetLastPage(mTicket.settings(), 0, false), kPMValueOutOfRange);
  EXPECT_EQ(PMGetFirstPage(mTicket.settings(), &first), noErr);
  EXPECT_EQ(PMGetLastPage(mTicket.settings(), &last), noErr);
  EXPECT_EQ(first, 3U);
  EXPECT_EQ(last, 7U);
}

TEST_F(PrintTicketTest, ASettingIsFoundOnceItWasPutThere) {
  std::optional<std::string> bytes;
  EXPECT_EQ(PMPrintSettingsGetValue(mTicket.settings(), "org.example.Ticket", &bytes),
            kPMNoSuchEntry);
  EXPECT_EQ(bytes, std::nullopt);
  mTicket.setValue("org.example.Ticket", std::string("a\0b", 3));
  EXPECT_EQ(PMPrintSettingsGetValue(mTicket.settings(), "org.example.Ticket", &bytes), noErr);
  EXPECT_EQ(bytes, std::string("a\0b", 3));
}

TEST_F(PrintTicketTest, ANumberOfTheSessionIsFoundOnceItWasPutThere) {
  std::optional<std::int64_t> number;
  EXPECT_EQ(PMSessionGetDataFromSession(mTicket.session(), "tape", &number), kPMNoSuchEntry);
  EXPECT_EQ(number, std::nullopt);
  mTicket.setSessionData("tape", 42);
  EXPECT_EQ(PMSessionGetDataFromSession(mTicket.session(), "tape", &number), noErr);
  EXPECT_EQ(number, 42);
}

TEST_F(PrintTicketTest, TheSettingsAreWrittenAsAPropertyList) {
  PMSetFirstPage(mTicket.settings(), 2, false);
  PMSetLastPage(mTicket.settings(), 5, false);
  mTicket.setValue("org.example.<Ticket>", "<&>");
  std::optional<std::string> xml;
  ASSERT_EQ(PMPrintSettingsCreateDataRepresentation(mTicket.settings(), &xml), noErr);
  const auto list = PropertyList::parseXML(xml.value_or(""));
  ASSERT_TRUE(list);
  const auto numberOf = [&](const char* key) { return list->objectForKey(key)->number(); };
  EXPECT_EQ(numberOf("org.cutline.print.PrintSettings.FirstPage"), 2);
  EXPECT_EQ(numberOf("org.cutline.print.PrintSettings.LastPage"), 5);
  EXPECT_NE(list->objectForKey("org.example.<Ticket>"), nullptr);
}

}  // namespace
}  // namespace cutline
