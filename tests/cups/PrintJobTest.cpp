#include <cups/cups.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

#include "cups/PrintJob.h"
#include "tests/cups/ServerTest.h"
#include "tests/support/Command.h"

namespace cutline {
namespace {

using test::outputOf;
using test::TemporaryFolder;

constexpr std::size_t kManyBlocks = 8U << 20U;

class PrintJobTest : public test::ServerTest {
 protected:
  PrintRequest request(const std::string& text) const {
    return {{printer(), std::nullopt}, mFolder.write("label.txt", text), "A label", {}};
  }
  DestinationName destination() const { return {printer(), std::nullopt}; }

  JobStatus finalStatus(int jobId) const {
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    JobStatus status;
    while (!status.isFinal() && std::chrono::steady_clock::now() < deadline) {
      status = *jobStatus({}, destination(), jobId);
      std::this_thread::sleep_for(20ms);
    }
    return status;
  }

  static int countJobs(int which) {
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, which);
    cupsFreeJobs(count, jobs);
    return count;
  }

  // An attribute of the job as the server keeps it.
  static std::string attribute(int jobId, const char* name) {
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://localhost/jobs/" + std::to_string(jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    const std::unique_ptr<ipp_t, void (*)(ipp_t*)> answer(
        cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete);
    ipp_attribute_t* found = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    std::string text(256, '\0');
    text.resize(found ? ippAttributeString(found, text.data(), text.size()) : 0);
    return text;
  }

  TemporaryFolder mFolder;
};

// Keeps the printer from printing while a test looks at a job.
class PausedPrinter {
 public:
  explicit PausedPrinter(const std::string& printer) : mPrinter(printer) {
    outputOf("cupsdisable " + mPrinter);
  }
  ~PausedPrinter() { outputOf("cupsenable " + mPrinter); }
  PausedPrinter(const PausedPrinter&) = delete;
  PausedPrinter& operator=(const PausedPrinter&) = delete;

 private:
  std::string mPrinter;
};

TEST_F(PrintJobTest, ADocumentIsPrinted) {
  const auto job = submitJob({}, request("Shelf 12\n"), nullptr);
  ASSERT_TRUE(job) << job.error().message;
  EXPECT_GT(*job, 0);
  EXPECT_EQ(finalStatus(*job).text().english(), "Printed");
  EXPECT_TRUE(server().hasPrinted(*job));
}

TEST_F(PrintJobTest, OptionsTitleUserAndFormatArriveAsTheyAre) {
  const PausedPrinter paused(printer());
  PrintRequest wanted = request("Shelf 12\n");
  wanted.options = {{"LxHalfCut", "ON"}, {"copies", "1"}, {"copies", "3"}, {"page-ranges", "1-2"}};
  const ServerOptions asAnna{std::nullopt, "anna", false};
  const auto job = submitJob(asAnna, wanted, nullptr);
  ASSERT_TRUE(job) << job.error().message;
  EXPECT_EQ(attribute(*job, "LxHalfCut"), "ON");
  EXPECT_EQ(attribute(*job, "copies"), "3");
  EXPECT_EQ(attribute(*job, "page-ranges"), "1-2");
  EXPECT_EQ(attribute(*job, "job-name"), "A label");
  EXPECT_EQ(attribute(*job, "job-originating-user-name"), "anna");
  EXPECT_EQ(attribute(*job, "document-format-supplied"), "text/plain");
  EXPECT_TRUE(cancelJob(asAnna, destination(), *job));
}

TEST_F(PrintJobTest, ControlCharactersAreRefusedInOptionsAndWrittenOutInNames) {
  const PausedPrinter paused(printer());
  PrintRequest wanted = request("Shelf 12\n");
  wanted.title = "a\nb\x1b[31m";
  wanted.documentName = "c\td\xff";
  const auto job = submitJob({}, wanted, nullptr);
  ASSERT_TRUE(job) << job.error().message;
  // As the library writes attributes: with a backslash before each of some characters.
  EXPECT_EQ(attribute(*job, "job-name"), R"(a\\nb\\x1b\[31m)");
  EXPECT_EQ(attribute(*job, "document-name-supplied"), R"(c\\td\\xff)");
  EXPECT_TRUE(cancelJob({}, destination(), *job));
  const int before = countJobs(CUPS_WHICHJOBS_ALL);
  for (const auto& option :
       OptionList{{"job-billing", "a\nb"}, {"job-billing\x1b", "a"}, {"job-billing", "\xc2\x9b"}}) {
    wanted.options = {option};
    const auto refused = submitJob({}, wanted, nullptr);
    ASSERT_FALSE(refused);
    EXPECT_NE(refused.error().message.find("control characters"), std::string::npos);
  }
  EXPECT_EQ(countJobs(CUPS_WHICHJOBS_ALL), before);
}

TEST_F(PrintJobTest, ProgressRunsFromNothingToAll) {
  const std::string text(200000, 'x');
  std::vector<std::uint64_t> steps;
  const PausedPrinter paused(printer());
  const auto job = submitJob({}, request(text), [&](std::uint64_t sent, std::uint64_t total) {
    EXPECT_EQ(total, text.size());
    steps.push_back(sent);
    return true;
  });
  ASSERT_TRUE(job) << job.error().message;
  EXPECT_TRUE(cancelJob({}, destination(), *job));
  ASSERT_GT(steps.size(), 2U);
  EXPECT_EQ(steps.front(), 0U);
  EXPECT_EQ(steps.back(), text.size());
  EXPECT_TRUE(std::ranges::is_sorted(steps));
}

TEST_F(PrintJobTest, AWaitingJobIsShownAndCancelled) {
  const PausedPrinter paused(printer());
  const auto job = submitJob({}, request("Shelf 12\n"), nullptr);
  ASSERT_TRUE(job) << job.error().message;
  const auto waiting = jobStatus({}, destination(), *job);
  ASSERT_TRUE(waiting) << waiting.error().message;
  EXPECT_FALSE(waiting->isFinal());
  EXPECT_EQ(waiting->text().english(), "Waiting - the printer is paused");
  const auto cancelled = cancelJob({}, destination(), *job);
  ASSERT_TRUE(cancelled) << cancelled.error().message;
  EXPECT_EQ(finalStatus(*job).text().english(), "Cancelled");
  const auto again = cancelJob({}, destination(), *job);
  ASSERT_FALSE(again);
  EXPECT_NE(again.error().message.find("the job " + printer() + '-' + std::to_string(*job) +
                                       " cannot be cancelled"),
            std::string::npos)
      << again.error().message;
}

TEST_F(PrintJobTest, GivingUpBeforeTheStartMakesNoJob) {
  const int before = countJobs(CUPS_WHICHJOBS_ALL);
  const auto job = submitJob({}, request("Shelf 12\n"), [](auto, auto) { return false; });
  ASSERT_FALSE(job);
  EXPECT_EQ(job.error().message, "printing was cancelled, nothing was printed");
  EXPECT_EQ(countJobs(CUPS_WHICHJOBS_ALL), before);
}

TEST_F(PrintJobTest, GivingUpInTheMiddlePrintsNothing) {
  server().waitUntilIdle();
  const int jobsBefore = countJobs(CUPS_WHICHJOBS_ALL);
  std::uint64_t reached = 0;
  const auto job = submitJob({}, request(std::string(kManyBlocks, 'x')),
                             [&](std::uint64_t sent, std::uint64_t total) {
                               reached = sent;
                               return sent < total / 2;
                             });
  ASSERT_FALSE(job);
  EXPECT_EQ(job.error().message, "printing was cancelled, nothing was printed");
  EXPECT_LT(reached, kManyBlocks);
  EXPECT_EQ(countJobs(CUPS_WHICHJOBS_ALL), jobsBefore);
  const auto next = submitJob({}, request("Shelf 12\n"), nullptr);
  ASSERT_TRUE(next) << next.error().message;
  EXPECT_EQ(finalStatus(*next).state, JobState::completed);
  EXPECT_TRUE(server().hasPrinted(*next));
}

TEST_F(PrintJobTest, GivingUpWhenAllIsSentPrintsNothing) {
  const PausedPrinter paused(printer());
  const int jobsBefore = countJobs(CUPS_WHICHJOBS_ACTIVE);
  const auto job = submitJob({}, request("Shelf 12\n"),
                             [](std::uint64_t sent, std::uint64_t) { return sent == 0; });
  ASSERT_FALSE(job);
  EXPECT_EQ(job.error().message, "printing was cancelled, nothing was printed");
  EXPECT_EQ(countJobs(CUPS_WHICHJOBS_ACTIVE), jobsBefore);
}

// What the driver could not read would be printed as it is.
TEST_F(PrintJobTest, ARawDocumentIsNotFiltered) {
  const PausedPrinter paused(printer());
  PrintRequest wanted = request("Shelf 12\n");
  wanted.options = {{"raw", "true"}};
  const auto job = submitJob({}, wanted, nullptr);
  ASSERT_TRUE(job) << job.error().message;
  EXPECT_EQ(attribute(*job, "document-format-supplied"), "application/vnd.cups-raw");
  EXPECT_TRUE(cancelJob({}, destination(), *job));
}

TEST_F(PrintJobTest, AServerThatEndsInTheMiddleIsReported) {
  test::PrivateServer ending;
  const ServerOptions options = ending.options();
  PrintRequest wanted = request(std::string(kManyBlocks, 'x'));
  wanted.destination.printer = printer();
  const auto job = submitJob(options, wanted, [&](std::uint64_t sent, std::uint64_t) {
    if (sent > kManyBlocks / 2) ending.stop();
    return true;
  });
  ASSERT_FALSE(job);
  EXPECT_NE(job.error().message.find("could not be sent to \"" + printer() + "\""),
            std::string::npos)
      << job.error().message;
  EXPECT_EQ(job.error().message.find("may have arrived"), std::string::npos) << job.error().message;
}

TEST_F(PrintJobTest, AFileThatShrinksWhileItIsSentIsNotPrinted) {
  const PrintRequest wanted = request(std::string(kManyBlocks, 'x'));
  const auto job = submitJob({}, wanted, [&](std::uint64_t sent, std::uint64_t) {
    if (sent > 0) mFolder.write("label.txt", "x");
    return true;
  });
  ASSERT_FALSE(job);
  EXPECT_NE(job.error().message.find("it changed while it was sent"), std::string::npos)
      << job.error().message;
  EXPECT_EQ(countJobs(CUPS_WHICHJOBS_ACTIVE), 0);
}

TEST_F(PrintJobTest, WhatCannotBeReadIsNamed) {
  struct Row {
    std::string path, reason;
  };
  for (const Row& row : {Row{"/nowhere/label.pdf", "No such file or directory"},
                         Row{mFolder.path(), "it is a folder"},
                         Row{mFolder.write("empty.pdf", ""), "it is empty"}}) {
    const auto job = submitJob({}, {destination(), row.path, "t", {}}, nullptr);
    ASSERT_FALSE(job);
    EXPECT_EQ(job.error().message, "cannot read the document \"" + row.path + "\": " + row.reason);
  }
}

TEST_F(PrintJobTest, AClosedQueueAndAnUnknownPrinterTakeNoJob) {
  outputOf("cupsreject " + printer());
  const auto closed = submitJob({}, request("Shelf 12\n"), nullptr);
  outputOf("cupsaccept " + printer());
  ASSERT_FALSE(closed);
  EXPECT_NE(closed.error().message.find("not accepting jobs"), std::string::npos)
      << closed.error().message;
  PrintRequest wanted = request("Shelf 12\n");
  wanted.destination.printer = "nope";
  const auto unknown = submitJob({}, wanted, nullptr);
  ASSERT_FALSE(unknown);
  EXPECT_NE(unknown.error().message.find("\"nope\" takes no job"), std::string::npos)
      << unknown.error().message;
}

TEST_F(PrintJobTest, AnUnknownJobHasNoState) {
  const auto status = jobStatus({}, destination(), 999999);
  ASSERT_FALSE(status);
  EXPECT_NE(status.error().message.find(printer() + "-999999 is not known"), std::string::npos)
      << status.error().message;
}

}  // namespace
}  // namespace cutline
