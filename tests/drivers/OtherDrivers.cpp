#include "tests/drivers/OtherDrivers.h"

#include <QJsonDocument>

#include "tests/support/Command.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

std::unique_ptr<PrivateServer> theLabelServer;

}  // namespace

void OtherDriversTest::SetUpTestSuite() {
  theLabelServer = std::make_unique<PrivateServer>("--backend ipp");
}

void OtherDriversTest::TearDownTestSuite() { theLabelServer.reset(); }

PrivateServer& OtherDriversTest::labelServer() { return *theLabelServer; }

void OtherDriversTest::addQueue(const std::string& name, const std::string& words) {
  outputOf(labelServer().environment() + "lpadmin -p " + name + " -E " + words);
}

CommandResult OtherDriversTest::program(const std::string& words) {
  return run(labelServer().environment() + quoted(built("bin/cutline")) + ' ' + words);
}

QJsonObject OtherDriversTest::planFor(const std::string& words) {
  const CommandResult result = program("--plan --json " + words + ' ' + labels());
  EXPECT_EQ(result.status, 0) << result.errors;
  return QJsonDocument::fromJson(QByteArray::fromStdString(result.output)).object();
}

void OtherDriversTest::print(const std::string& words) {
  const CommandResult result = program("--print " + words + ' ' + labels());
  EXPECT_EQ(result.status, 0) << result.errors;
  labelServer().waitUntilIdle();
}

}  // namespace cutline::test
