// The plan that the program shows is what the printer does with the same words.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/e2e/Program.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/PngPicture.h"

namespace cutline::test {

namespace {

// The object that the program writes for `cutline --plan --json WORDS FILE`.
QJsonObject planFor(const std::string& words) {
  const CommandResult result = runProgram("--plan --json " + words + " " + labels());
  EXPECT_EQ(result.status, 0) << result.errors;
  QJsonParseError problem;
  const QJsonDocument json =
      QJsonDocument::fromJson(QByteArray::fromStdString(result.output), &problem);
  EXPECT_EQ(problem.error, QJsonParseError::NoError) << result.output;
  return json.object();
}

// Of the labels in their order, the pages from which they come.
std::vector<int> pagesOf(const QJsonObject& plan) {
  std::vector<int> pages;
  for (const QJsonValue event : plan["events"].toArray())
    if (event["kind"].toString() == QStringLiteral("label")) pages.push_back(event["page"].toInt());
  return pages;
}

class Plan : public EndToEndTest {
 protected:
  PrintedJob print(const std::string& words) {
    const CommandResult result = runProgram("--print " + words + " " + labels());
    EXPECT_EQ(result.status, 0) << result.errors;
    return newJob();
  }
  // How much is printed on each label, which tells one page from another.
  static std::vector<unsigned> inkOf(const PrintedJob& job) {
    const PngPicture picture(job.picturePath());
    std::vector<unsigned> ink;
    for (int label = 1; label <= job.number("labels"); ++label)
      ink.push_back(picture.inkIn(placeOf(job.fact("label." + std::to_string(label)))));
    return ink;
  }
};

TEST_F(Plan, IsWhatThePrinterDoes) {
  for (const char* words :
       {"-d tape24", "-d tape24 -o LxHalfCut=ON -o LxCutLabel=3",
        "-d tape24 -o LxChainPrint=ON -o LxCutMark=ON -P 2-5", "-d tape24 -o LxSpecialTape=ON",
        "-d tapeb -o LxAutoTapeCut=OFF -o LxHalfCut=ON -o LxCutAtEnd=OFF",
        "-d roll62 -o LxCutLabel=5 -n 2"}) {
    const QJsonObject plan = planFor(words);
    const PrintedJob job = print(words);
    EXPECT_EQ(job.number("labels"), plan["labels"].toInt()) << words;
    EXPECT_EQ(job.number("pieces"), plan["pieces"].toInt()) << words;
    EXPECT_EQ(job.number("full-cuts"), plan["full_cuts"].toInt()) << words;
    EXPECT_EQ(job.number("half-cuts"), plan["half_cuts"].toInt()) << words;
    EXPECT_EQ(job.number("cut-marks"), plan["cut_marks"].toInt()) << words;
    EXPECT_TRUE(plan["tape_mm"].isDouble()) << words;
  }
}

TEST_F(Plan, PutsCopiesInTheOrderOfThePrintSystem) {
  const std::vector<unsigned> ink = inkOf(print("-d tape24"));
  ASSERT_EQ(ink.size(), 12U);
  ASSERT_EQ(std::set<unsigned>(ink.begin(), ink.begin() + 3).size(), 3U);
  for (const char* way : {"", "-o collate=true", "-o collate=false", "-o Collate=True",
                          "-o multiple-document-handling=separate-documents-collated-copies",
                          "-o multiple-document-handling=separate-documents-uncollated-copies",
                          "-o outputorder=reverse"}) {
    const std::string words = std::string("-d tape24 -n 2 -P 1-3 ") + way;
    const std::vector<int> pages = pagesOf(planFor(words));
    std::vector<unsigned> planned;
    for (const int page : pages) planned.push_back(ink.at(static_cast<std::size_t>(page) - 1));
    EXPECT_EQ(inkOf(print(words)), planned) << words;
  }
}

TEST_F(Plan, FirstLineIsTheSentence) {
  const CommandResult result =
      runProgram("--plan -d tape24 -o LxHalfCut=ON -o LxCutLabel=3 " + labels());
  EXPECT_EQ(result.output,
            "12 labels, cut every 3, half cut between: 4 pieces, 612 mm of tape\n"
            "leader: 8 mm, half cut behind it\n"
            "4 pieces of 3 labels, half cut between, cut off\n"
            "feed behind the last label: 4 mm\n");
}

}  // namespace

}  // namespace cutline::test
