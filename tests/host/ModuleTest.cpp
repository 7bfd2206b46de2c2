#include <gtest/gtest.h>

#include <filesystem>

#include "host/core/Installation.h"
#include "host/core/Module.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr char kModule[] = CUTLINE_BUILD_DIR "/tests/modules/PlainModule.so";

TEST(Module, AnswersTheSymbolsAddress) {
  const auto address = loadModule(kModule, "TestModuleBuild", "TestModuleAnswer");
  ASSERT_TRUE(address) << address.error().message;
  EXPECT_EQ(reinterpret_cast<int (*)()>(*address)(), 42);
}

TEST(Module, RefusesAnotherBuild) {
  const auto address = loadModule(kModule, "TestModuleOtherBuild", "TestModuleAnswer");
  ASSERT_FALSE(address);
  EXPECT_EQ(address.error().message, std::string(kModule) +
                                         ": belongs to another build of the program; install the "
                                         "program again");
}

TEST(Module, RefusesAFileThatOthersCanChangeOrThatIsNotWhole) {
  const test::TemporaryFolder folder;
  const std::string path = folder / "Module.so";
  std::filesystem::copy_file(kModule, path);
  std::filesystem::permissions(path, std::filesystem::perms::group_write,
                               std::filesystem::perm_options::add);
  const auto open = loadModule(path, "TestModuleBuild", "TestModuleAnswer");
  ASSERT_FALSE(open);
  EXPECT_NE(open.error().message.find("can be changed by other users"), std::string::npos)
      << open.error().message;
  std::filesystem::permissions(path, std::filesystem::perms::group_write,
                               std::filesystem::perm_options::remove);
  std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
  const auto half = loadModule(path, "TestModuleBuild", "TestModuleAnswer");
  ASSERT_FALSE(half);
  EXPECT_EQ(half.error().message, path + ": is not whole; install the program again");
}

TEST(Module, RefusesAMissingSymbol) {
  EXPECT_FALSE(loadModule(kModule, "NoSuchBuild", "TestModuleAnswer"));
  EXPECT_FALSE(loadModule(kModule, "TestModuleBuild", "NoSuchAnswer"));
}

TEST(Module, AMissingModuleIsNamed) {
  const Result<void*> module = loadModule("/nonexistent/some.so", "Build", "Answer");
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
