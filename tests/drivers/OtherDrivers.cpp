#include "tests/drivers/OtherDrivers.h"

#include <QJsonDocument>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "cups/PpdFile.h"
#include "host/core/CutWordsFiles.h"
#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

constexpr std::chrono::seconds kPatience{30};
constexpr std::chrono::milliseconds kBetweenQuestions{50};

std::unique_ptr<PrivateServer> theLabelServer;

}  // namespace

void OtherDriversTest::SetUpTestSuite() {
  theLabelServer = std::make_unique<PrivateServer>("--backend ipp");
}

void OtherDriversTest::TearDownTestSuite() { theLabelServer.reset(); }

PrivateServer& OtherDriversTest::labelServer() { return *theLabelServer; }

// The server makes the PPD of an IPP printer when it has said that the queue is there.
void OtherDriversTest::addQueue(const std::string& name, const std::string& words) {
  outputOf(labelServer().environment() + "lpadmin -p " + name + " -E " + words);
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!PpdFile::fetch(labelServer().options(), name)) {
    if (std::chrono::steady_clock::now() > end)
      throw std::runtime_error("the queue " + name + " has no PPD");
    std::this_thread::sleep_for(kBetweenQuestions);
  }
}

CommandResult OtherDriversTest::program(const std::string& words) {
  return run(labelServer().environment() + quoted(built("bin/cutline")) + ' ' + words);
}

QJsonObject OtherDriversTest::planFor(const std::string& words) {
  const CommandResult result = program("--plan --json " + words + ' ' + labels());
  EXPECT_EQ(result.status, 0) << result.errors;
  return QJsonDocument::fromJson(QByteArray::fromStdString(result.output)).object();
}

std::vector<CutOffer> OtherDriversTest::offersOf(const std::string& queue,
                                                 const OptionList& marks) {
  const auto ppd = PpdFile::fetch(labelServer().options(), queue);
  if (!ppd) {
    ADD_FAILURE() << ppd.error().message;
    return {};
  }
  (*ppd)->mark({marks});
  return cutMeaningsOf(**ppd, cutWordsFor(**ppd).words).offers;
}

std::string OtherDriversTest::wordsOf(const OptionList& assignment) {
  std::string words;
  for (const auto& [keyword, choice] : assignment)
    words.append(" -o ").append(keyword).append("=").append(choice);
  return words;
}

void OtherDriversTest::print(const std::string& words) {
  const CommandResult result = program("--print " + words + ' ' + labels());
  EXPECT_EQ(result.status, 0) << result.errors;
  labelServer().waitUntilIdle();
}

}  // namespace cutline::test
