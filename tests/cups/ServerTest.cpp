#include "tests/cups/ServerTest.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

namespace cutline::test {

namespace {

std::unique_ptr<PrivateServer> theServer;

}  // namespace

ServerTest::ServerTest() { std::filesystem::remove(server().home() + "/.cups/lpoptions"); }

PrivateServer& ServerTest::server() { return *theServer; }

const std::string& ServerTest::printer() {
  static const std::string name = findDestination({}, std::nullopt)->name.printer;
  return name;
}

const std::string& ServerTest::otherPrinter() {
  static const std::string name = [] {
    const auto list = *listDestinations({});
    return list[list[0].name.printer == printer() ? 1 : 0].name.printer;
  }();
  return name;
}

std::string ServerTest::savedText() const {
  std::ifstream file(server().home() + "/.cups/lpoptions");
  return {std::istreambuf_iterator<char>(file), {}};
}

void ServerTest::writeSaved(const std::string& text) const {
  std::filesystem::create_directories(server().home() + "/.cups");
  std::ofstream(server().home() + "/.cups/lpoptions") << text;
}

}  // namespace cutline::test

// The environment is entered before the first call of libcups, which reads it once a thread.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  cutline::test::theServer = std::make_unique<cutline::test::PrivateServer>();
  cutline::test::theServer->enterEnvironment();
  const int status = RUN_ALL_TESTS();
  cutline::test::theServer.reset();
  return status;
}
