#include <gtest/gtest.h>

#include "lean/LeanOrigins.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

constexpr std::string_view kId{"\x01\x00\xff identity", 12};

class LeanParts : public testing::Test {
 protected:
  std::string libraryWith(std::string_view id, std::size_t before = 600) const {
    return mFolder.write("lib.so", std::string(before, 'x') + std::string(id) + "code");
  }
  static bool isInstalled(const std::string& library) {
    const LeanOrigin origin[] = {{library.c_str(), kId}};
    return areInstalled(origin);
  }

  test::TemporaryFolder mFolder;
};

TEST_F(LeanParts, CountWhileTheirLibraryIsTheOneTheyWereMadeWith) {
  EXPECT_TRUE(isInstalled(libraryWith(kId)));
  EXPECT_FALSE(isInstalled(libraryWith({"\x01\x00\xff identitz", 12})));
  EXPECT_FALSE(isInstalled(libraryWith({"\x01\x00\xff identit", 11})));
}

TEST_F(LeanParts, AreLookedUpWhereTheLinkerPutsTheIdentityAlone) {
  EXPECT_TRUE(isInstalled(libraryWith(kId, 0)));
  EXPECT_FALSE(isInstalled(libraryWith(kId, 8000)));
}

TEST_F(LeanParts, DoNotCountWithoutTheirLibrary) {
  EXPECT_FALSE(isInstalled(mFolder / "none.so"));
  EXPECT_FALSE(isInstalled(mFolder.path()));
  EXPECT_FALSE(isInstalled(mFolder.write("empty.so", "")));
  EXPECT_FALSE(areInstalled({}));
}

TEST_F(LeanParts, NeedAllOfTheirLibraries) {
  const std::string library = libraryWith(kId);
  const std::string other = mFolder / "none.so";
  const LeanOrigin both[] = {{library.c_str(), kId}, {library.c_str(), kId}};
  EXPECT_TRUE(areInstalled(both));
  const LeanOrigin oneMissing[] = {{library.c_str(), kId}, {other.c_str(), kId}};
  EXPECT_FALSE(areInstalled(oneMissing));
}

TEST_F(LeanParts, GiveWayToLibrariesThatTheEnvironmentNames) {
  const std::string none = mFolder / "none";
  const std::string before = none + ':' + mFolder.path();
  for (const std::string& folders : {none, std::string(), ':' + none, before}) {
    ::setenv("LD_LIBRARY_PATH", folders.c_str(), 1);
    EXPECT_EQ(mayBeLean(LeanPart::composer), CUTLINE_HAS_LEAN_PARTS) << folders;
    EXPECT_EQ(mayBeLean(LeanPart::printLibrary), CUTLINE_HAS_LEAN_PARTS) << folders;
  }
  mFolder.write("libcups.so.2", "another");
  for (const std::string& folders : {before, mFolder.path() + ';' + none, mFolder.path()}) {
    ::setenv("LD_LIBRARY_PATH", folders.c_str(), 1);
    EXPECT_EQ(mayBeLean(LeanPart::composer), CUTLINE_HAS_LEAN_PARTS) << folders;
    EXPECT_FALSE(mayBeLean(LeanPart::printLibrary)) << folders;
  }
  ::unsetenv("LD_LIBRARY_PATH");
  EXPECT_EQ(mayBeLean(LeanPart::printLibrary), CUTLINE_HAS_LEAN_PARTS);
}

}  // namespace
}  // namespace cutline
