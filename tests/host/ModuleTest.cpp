#include <gtest/gtest.h>

#include <filesystem>

#include "host/core/Installation.h"
#include "host/core/Module.h"
#include "tests/host/TestCode.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

const std::string kModule = test::builtModule("PlainModule");

TEST(Module, AnswersTheSymbolsAddress) {
  const auto address = loadModule(kModule, "TestModuleAnswer");
  ASSERT_TRUE(address) << address.error().message;
  EXPECT_EQ(reinterpret_cast<int (*)()>(*address)(), 42);
}

TEST(Module, RefusesAnotherBuild) {
  const std::string path = test::builtModule("MarkerOtherBuild");
  const auto address = loadModule(path, "TestModuleAnswer");
  ASSERT_FALSE(address);
  EXPECT_EQ(address.error().message,
            path + ": belongs to another build of the program; install the program again");
}

TEST(Module, RefusesAFileThatOthersCanChangeOrThatIsNotWhole) {
  const test::TemporaryFolder folder;
  const std::string path = folder / "Module.so";
  std::filesystem::copy_file(kModule, path);
  std::filesystem::permissions(path, std::filesystem::perms::group_write,
                               std::filesystem::perm_options::add);
  const auto open = loadModule(path, "TestModuleAnswer");
  ASSERT_FALSE(open);
  EXPECT_NE(open.error().message.find("can be changed by other users"), std::string::npos)
      << open.error().message;
  std::filesystem::permissions(path, std::filesystem::perms::group_write,
                               std::filesystem::perm_options::remove);
  std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
  const auto half = loadModule(path, "TestModuleAnswer");
  ASSERT_FALSE(half);
  EXPECT_EQ(half.error().message, path + ": is not whole; install the program again");
}

TEST(Module, RefusesAMissingSymbol) {
  const auto address = loadModule(kModule, "NoSuchAnswer");
  ASSERT_FALSE(address);
  EXPECT_EQ(address.error().message, kModule + ": has no NoSuchAnswer; install the program again");
}

TEST(Module, AMissingModuleIsNamed) {
  const Result<void*> module = loadModule("/usr/lib/some.so", "Answer");
  ASSERT_FALSE(module);
  EXPECT_NE(module.error().message.find("some.so"), std::string::npos);
}

TEST(Installation, IsFoundFromTheProgramsOwnPlace) {
  const Installation installation = Installation::ofThisProgram();
  EXPECT_EQ(installation.prefix(), CUTLINE_BUILD_DIR);
  EXPECT_EQ(installation.modulePath("x.so"), CUTLINE_BUILD_DIR "/lib/cutline/x.so");
  EXPECT_EQ(installation.plugInDirectory(), CUTLINE_BUILD_DIR "/lib/cutline/plugins");
  EXPECT_EQ(installation.sampleDirectory(), CUTLINE_BUILD_DIR "/share/cutline/samples");
}

}  // namespace
}  // namespace cutline
