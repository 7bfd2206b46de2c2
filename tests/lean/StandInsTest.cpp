// Stand-ins in a process: they show what their libraries show, and pass on what they are called
// with. What a dialog does without, tests/e2e sees.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "lean/LeanOrigins.h"
#include "lean/StandIns.h"
#include "tests/lean/Sample.h"
#include "tests/support/Command.h"
#include "tests/support/LoadedLibraries.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

namespace fs = std::filesystem;

// With its version; but for what the linker adds to every library.
std::string shownBy(const std::string& library) {
  return outputOf("nm -D --defined-only --with-symbol-versions " + library +
                  " | cut -d' ' -f3 | grep -vxE '_init|_fini|_edata|_end|__bss_start' | sort");
}

std::string standInFor(const LeanOrigin& origin) {
  return built("lib/cutline/lean/") + fs::path(origin.library).filename().string();
}

template <typename Function>
Function* functionOf(void* library, const char* name) {
  return reinterpret_cast<Function*>(::dlsym(library, name));
}

TEST(StandIns, ShowWhatTheirLibrariesShow) {
  ASSERT_GE(standInOrigins().size(), 2U);
  for (const LeanOrigin& origin : standInOrigins()) {
    const std::string shown = shownBy(origin.library);
    EXPECT_GT(shown.size(), 100U) << origin.library;
    EXPECT_EQ(shownBy(standInFor(origin)), shown) << origin.library;
  }
}

TEST(StandIns, NeedNotBeThere) {
  const TemporaryFolder empty;
  loadStandIns(empty.path().c_str());
  EXPECT_FALSE(isLoaded("libb2"));
}

TEST(StandIns, LoadTheirLibraryWhenItIsCalled) {
  loadStandIns(built("lib/cutline").c_str());
  ASSERT_TRUE(isLoaded("lean/libb2.so.1"));
  // As the loader finds it for whoever needs it.
  void* const library = ::dlopen("libb2.so.1", RTLD_LAZY);
  ASSERT_NE(library, nullptr);
  auto* const hash = functionOf<int(unsigned char*, const void*, const void*, std::size_t,
                                    std::size_t, std::size_t)>(library, "blake2b");
  ASSERT_NE(hash, nullptr);
  EXPECT_FALSE(isLoaded("libb2.so.1."));
  EXPECT_FALSE(isLoaded("libgomp"));
  unsigned char result[64];
  EXPECT_EQ(hash(result, "abc", nullptr, sizeof result, 3, 0), 0);
  EXPECT_TRUE(isLoaded("libb2.so.1."));
  // RFC 7693's own example.
  EXPECT_EQ(result[0], 0xba);
  EXPECT_EQ(result[63], 0x23);
}

TEST(StandIns, HaveTheConstantsOfTheirLibrary) {
  constexpr char kConstant[] = "sd_bus_object_vtable_format";
  const LeanOrigin& origin = standInOrigins().front();
  void* const library = ::dlopen(origin.library, RTLD_LAZY);
  void* const standIn = ::dlopen(standInFor(origin).c_str(), RTLD_LAZY);
  ASSERT_NE(library, nullptr);
  ASSERT_NE(standIn, nullptr);
  const auto* const own = static_cast<const unsigned*>(::dlsym(library, kConstant));
  const auto* const copy = static_cast<const unsigned*>(::dlsym(standIn, kConstant));
  ASSERT_NE(own, nullptr);
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(own, copy);
  EXPECT_EQ(*own, *copy);
}

class SampleStandIn : public testing::Test {
 protected:
  SampleStandIn() : mLibrary(::dlopen(CUTLINE_SAMPLE_STAND_IN, RTLD_LAZY | RTLD_LOCAL)) {}

  void* mLibrary;
};

TEST_F(SampleStandIn, PassesOnEveryKindOfArgument) {
  ASSERT_NE(mLibrary, nullptr) << ::dlerror();
  EXPECT_EQ(*static_cast<int*>(::dlsym(mLibrary, "kSampleYear")), 2026);
  EXPECT_FALSE(isLoaded("sample/libsample"));
  auto* const sum = functionOf<decltype(sampleSum)>(mLibrary, "sampleSum");
  auto* const row = functionOf<decltype(sampleRow)>(mLibrary, "sampleRow");
  auto* const any = functionOf<decltype(sampleAny)>(mLibrary, "sampleAny");
  // The first time, and then without asking for the library.
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(sum(1, 2, 3, 4, 5, 6, 7, 8, 9), 285);
    EXPECT_THAT(row(1, 2, 3, 4, 5, 6, 7).values, ElementsAre(5, 25, 61, 49));
    EXPECT_EQ(any(3, 0.5, 0.25, 2.0), 7);
  }
  EXPECT_TRUE(isLoaded("sample/libsample"));
}

TEST(StandIns, AreRefusedToWhatShowsAValueThatMayChange) {
  const TemporaryFolder folder;
  const fs::path libraries = fs::path(standInOrigins().front().library).parent_path();
  const CommandResult result = run(CUTLINE_SOURCE_DIR "/lean/deferred/deferred-calls shown " +
                                   folder.path() + " " + (libraries / "libstdc++.so.6").string());
  EXPECT_NE(result.status, 0);
  EXPECT_THAT(result.errors, HasSubstr("nothing can stand in for"));
  EXPECT_TRUE(folder.isEmpty());
}

}  // namespace
}  // namespace cutline::test
