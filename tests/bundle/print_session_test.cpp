#include "bundle/ppd/print_session.h"

#include <gtest/gtest.h>

#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/ScriptedPrinting.h"

namespace cutline::test {
namespace {

constexpr OSStatus kFailure = -1234;

class PrintSession : public testing::Test {
 protected:
  PrintSession() { format.paper = &paper; }

  OSStatus query() { return GetTapeInfo(&session, &settings, &format, ppd.get(), &info); }
  void setTicket(const std::string& xml) { settings.values[kPrintSettingsTicketKey] = xml; }
  void setTicketPaper(const std::string& name) {
    setTicket(
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>KmPaperName2</key><string>" +
        name + "</string></dict></plist>");
  }

  ScriptedSession session;
  ScriptedSettings settings;
  ScriptedPaper paper;
  ScriptedPageFormat format;
  OpenPpd ppd = PpdText().pageSizes({"W24", "DC24x100", "AV24x50", "dc24", "HS24"}).open();
  // Filled with something else than the defaults, so that those are seen to be set.
  TapeInfo info{.tapeLength = 7, .tapeState = 7, .paperName = "old"};
};

TEST_F(PrintSession, RoundsHalfAwayFromZero) {
  EXPECT_EQ(RoundDouble(2.5), 3);
  EXPECT_EQ(RoundDouble(-2.5), -3);
  EXPECT_EQ(RoundDouble(2.49), 2);
  EXPECT_EQ(RoundDouble(-2.49), -2);
  EXPECT_EQ(RoundDouble(0.5), 1);
  EXPECT_EQ(RoundDouble(-0.5), -1);
  EXPECT_EQ(RoundDouble(0), 0);
}

TEST_F(PrintSession, ConvertsMillimetresAndInches) {
  EXPECT_DOUBLE_EQ(MiriToInch(100), 3.93701);
  EXPECT_DOUBLE_EQ(InchToMiri(3.93701), 100);
}

TEST_F(PrintSession, LengthComesFromThePapersHeight) {
  paper.height = 283.46;
  EXPECT_EQ(query(), noErr);
  EXPECT_NEAR(info.tapeLength, 100.0, 0.01);
  EXPECT_EQ(info.paperName, "W24");
}

TEST_F(PrintSession, HeightZeroKeepsTheDefaultLength) {
  paper.name = "DC24x100";
  paper.height = 0;
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.tapeLength, 100.0);
  EXPECT_EQ(info.tapeState, 0);
  EXPECT_EQ(info.paperName, "DC24x100");
}

TEST_F(PrintSession, TapeStateIsOneForDCAndAVSizesOfThePPD) {
  const std::vector<std::pair<std::string, int>> expected = {
      {"W24", 0}, {"DC24x100", 1}, {"AV24x50", 1}, {"dc24", 0},      {"HS24", 0},
      {"DC9", 0}, {"AV9", 0},      {"DC24x10", 0}, {"DC24x1000", 0}, {"", 0}};
  for (const auto& [name, state] : expected) {
    paper.name = name;
    EXPECT_EQ(query(), noErr);
    EXPECT_EQ(info.tapeState, state) << name;
    EXPECT_EQ(info.paperName, name);
  }
}

TEST_F(PrintSession, TheFirstAndTheLastSizeOfThePPDCountToo) {
  ppd = PpdText().pageSizes({"DC24first", "W24", "AV24last"}).open();
  for (const char* name : {"DC24first", "AV24last"}) {
    paper.name = name;
    EXPECT_EQ(query(), noErr);
    EXPECT_EQ(info.tapeState, 1) << name;
  }
}

TEST_F(PrintSession, WithoutAPPDTheTapeStateIsZero) {
  ppd.reset();
  paper.name = "DC24x100";
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.tapeState, 0);
}

TEST_F(PrintSession, FailingPageFormatAnswersItsStatusAndKeepsDefaults) {
  format.status = kFailure;
  EXPECT_EQ(query(), kFailure);
  EXPECT_EQ(info.tapeLength, 100.0);
  EXPECT_EQ(info.tapeState, 0);
  EXPECT_FALSE(info.paperName);
}

TEST_F(PrintSession, NoPageFormatAnswersItsStatus) {
  EXPECT_EQ(GetTapeInfo(&session, &settings, nullptr, ppd.get(), &info), kPMInvalidPageFormat);
  EXPECT_EQ(info.tapeLength, 100.0);
}

TEST_F(PrintSession, PageFormatWithoutPaperIsNoError) {
  format.paper = nullptr;
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.tapeLength, 100.0);
  EXPECT_FALSE(info.paperName);
}

TEST_F(PrintSession, FailingHeightAnswersItsStatusAfterTheNameIsSet) {
  paper.name = "DC24x100";
  paper.heightStatus = kFailure;
  EXPECT_EQ(query(), kFailure);
  EXPECT_EQ(info.tapeLength, 100.0);
  EXPECT_EQ(info.tapeState, 0);
  EXPECT_EQ(info.paperName, "DC24x100");
}

TEST_F(PrintSession, APaperWithoutPPDNameTakesTheTicketsName) {
  setTicketPaper("DC24x100");
  paper.name.reset();
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.paperName, "DC24x100");
  EXPECT_EQ(info.tapeState, 0) << "a name from the ticket never makes a tape state";
  EXPECT_NEAR(info.tapeLength, 100.0, 0.01);
}

TEST_F(PrintSession, AFailingPaperNameTakesTheTicketsName) {
  setTicketPaper("HS12");
  paper.nameStatus = kFailure;
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.paperName, "HS12");
  EXPECT_EQ(info.tapeState, 0);
}

TEST_F(PrintSession, ThePapersOwnNameGoesBeforeTheTickets) {
  setTicketPaper("HS12");
  EXPECT_EQ(query(), noErr);
  EXPECT_EQ(info.paperName, "W24");
}

TEST_F(PrintSession, ATicketThatIsNoPropertyListGivesNoName) {
  for (const char* damaged :
       {"not a property list", "", "<plist><dict>", "<plist><string>x</string></plist>"}) {
    setTicket(damaged);
    paper.name.reset();
    EXPECT_EQ(query(), noErr) << damaged;
    EXPECT_FALSE(info.paperName) << damaged;
  }
}

TEST_F(PrintSession, ATicketWithoutTheNameOrWithANumberGivesNone) {
  for (const char* entry :
       {"<key>Other</key><string>x</string>", "<key>KmPaperName2</key><integer>3</integer>"}) {
    setTicket("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + std::string(entry) +
              "</dict></plist>");
    EXPECT_EQ(GetTapeInfo2(&session, &settings, &info), noErr);
    EXPECT_FALSE(info.paperName) << entry;
  }
}

TEST_F(PrintSession, TheTicketQueryForgetsTheOldNameAndNeverFails) {
  EXPECT_EQ(GetTapeInfo2(nullptr, nullptr, &info), noErr);
  EXPECT_FALSE(info.paperName);
  EXPECT_EQ(info.tapeLength, 7) << "nothing else is touched";

  info.paperName = "old";
  setTicketPaper("HS12");
  settings.valueStatus = kFailure;
  EXPECT_EQ(GetTapeInfo2(&session, &settings, &info), noErr);
  EXPECT_FALSE(info.paperName);

  info.paperName = "old";
  settings.valueStatus = noErr;
  settings.values.clear();
  EXPECT_EQ(GetTapeInfo2(&session, &settings, &info), noErr);
  EXPECT_FALSE(info.paperName);
}

TEST_F(PrintSession, SessionDataIsReadAs32Bits) {
  std::int32_t number = 5;
  session.number = (std::int64_t{1} << 32) + 42;
  EXPECT_EQ(GetTicketFromSession(&session, "key", &number), noErr);
  EXPECT_EQ(number, 42);
}

TEST_F(PrintSession, AbsentSessionDataHasItsOwnStatus) {
  std::int32_t number = 5;
  EXPECT_EQ(GetTicketFromSession(&session, "key", &number), -30891);
  session.status = kFailure;
  session.number = 1;
  EXPECT_EQ(GetTicketFromSession(&session, "key", &number), -30891);
  EXPECT_EQ(GetTicketFromSession(nullptr, "key", &number), -30891);
  EXPECT_EQ(number, 5);
}

TEST_F(PrintSession, ThePageRangeIsWrittenBackAsItIs) {
  settings.firstPage = 2;
  settings.lastPage = 9;
  PageRange range{5, 5};
  EXPECT_EQ(GetTapeInfo3(&settings, &range), noErr);
  EXPECT_EQ(range.firstPage, 2);
  EXPECT_EQ(range.lastPage, 9);
  using Writes = std::vector<std::pair<std::uint32_t, bool>>;
  EXPECT_EQ(settings.firstPagesSet, (Writes{{2, false}}));
  EXPECT_EQ(settings.lastPagesSet, (Writes{{9, false}}));
}

TEST_F(PrintSession, AFailingFirstPageIsIgnored) {
  settings.getFirstStatus = kFailure;
  settings.lastPage = 9;
  PageRange range{5, 5};
  EXPECT_EQ(GetTapeInfo3(&settings, &range), noErr);
  EXPECT_EQ(range.firstPage, 0);
  EXPECT_EQ(range.lastPage, 9);
  EXPECT_TRUE(settings.firstPagesSet.empty());

  settings.getFirstStatus = noErr;
  settings.setFirstStatus = kFailure;
  EXPECT_EQ(GetTapeInfo3(&settings, &range), noErr);
  EXPECT_EQ(range.firstPage, 1);
}

TEST_F(PrintSession, AFailingLastPageAnswersItsStatus) {
  settings.getLastStatus = kFailure;
  PageRange range{5, 5};
  EXPECT_EQ(GetTapeInfo3(&settings, &range), kFailure);
  EXPECT_EQ(range.firstPage, 1);
  EXPECT_EQ(range.lastPage, 0);
  EXPECT_TRUE(settings.lastPagesSet.empty());

  settings.getLastStatus = noErr;
  settings.setLastStatus = kFailure;
  EXPECT_EQ(GetTapeInfo3(&settings, &range), kFailure);
  EXPECT_EQ(range.lastPage, 1);
}

TEST_F(PrintSession, WithoutSettingsThePageRangeIsZero) {
  PageRange range{5, 5};
  EXPECT_EQ(GetTapeInfo3(nullptr, &range), kPMInvalidPrintSettings);
  EXPECT_EQ(range.firstPage, 0);
  EXPECT_EQ(range.lastPage, 0);
}

TEST_F(PrintSession, ThePaperNameIsEmptyWheneverItCannotBeRead) {
  EXPECT_EQ(paperNameOfPageFormat(&format), "W24");
  EXPECT_EQ(paperNameOfPageFormat(nullptr), "");
  paper.name = std::string(255, 'x');
  EXPECT_EQ(paperNameOfPageFormat(&format), *paper.name);
  paper.name = std::string(256, 'x');
  EXPECT_EQ(paperNameOfPageFormat(&format), "");
  paper.name.reset();
  EXPECT_EQ(paperNameOfPageFormat(&format), "");
  paper.nameStatus = kFailure;
  EXPECT_EQ(paperNameOfPageFormat(&format), "");
  format.paper = nullptr;
  EXPECT_EQ(paperNameOfPageFormat(&format), "");
  format.status = kFailure;
  EXPECT_EQ(paperNameOfPageFormat(&format), "");
}

}  // namespace
}  // namespace cutline::test
