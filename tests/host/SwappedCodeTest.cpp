// Somebody changes what a bundle or a module is made of while it is loaded: what may be loaded is,
// and what may not be never runs.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>

#include "host/core/Module.h"
#include "host/core/PluginLoader.h"
#include "tests/host/TestCode.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

namespace fs = std::filesystem;

// Each load keeps a descriptor for good, so that a process makes a few of them alone.
constexpr int kLoadsOfAProcess = 100;
// On a machine whose processors are busy, who swaps may have to wait for his turn.
constexpr int kMostLoads = 100'000;

int swappedLoads() { return std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 10'000 : 300; }

struct SwapCounts {
  std::atomic<int> loaded;
  std::atomic<int> refused;
};

// Exchanges the two for as long as it runs, in a process of its own.
class Swapper {
 public:
  Swapper(const fs::path& one, const fs::path& other) : mProcess(::fork()) {
    while (mProcess == 0)
      if (::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) != 0)
        ::_exit(1);
  }
  // Whether it went well.
  bool end() const {
    int status = 0;
    ::kill(mProcess, SIGKILL);
    return ::waitpid(mProcess, &status, 0) == mProcess && WIFSIGNALED(status);
  }

 private:
  pid_t mProcess;
};

class SwappedCode : public testing::Test {
 protected:
  SwappedCode() { ::setenv("CUTLINE_TEST_MARKS", (mDirectory / "marks").c_str(), 1); }
  ~SwappedCode() override {
    ::munmap(mCounts, sizeof *mCounts);
    ::unsetenv("CUTLINE_TEST_MARKS");
  }

  fs::path makeTree(const std::string& name, const std::string& plugIn, const std::string& module) {
    const fs::path top = mDirectory / name;
    fs::create_directories(top / "up/own");
    test::makeBundle(top / "up/own", plugIn);
    fs::copy_file(test::builtModule(module), top / "up/own/Module.so");
    test::makePrivate(top);
    return top;
  }

  // A good tree, and beside its part `part` a bad one of code that leaves marks: everybody can
  // write it, or it is reached by a link.
  void makeTrees(const fs::path& part, bool byLink) {
    fs::remove_all(mDirectory / "good");
    fs::remove_all(mDirectory / "bad");
    mGood = makeTree("good", "GoodPlugIn", "PlainModule");
    const fs::path bad = makeTree("bad", "MarkerPlugIn", "MarkerPlugIn") / part;
    mPart = mGood / part;
    mOther = mPart.string() + ".other";
    if (byLink) return fs::create_symlink(bad, mOther);
    fs::rename(bad, mOther);
    fs::permissions(mOther, fs::perms::others_write, fs::perm_options::add);
  }

  template <typename Load>
  void loadInAChild(const Load& load) {
    const pid_t child = ::fork();
    for (int i = 0; child == 0 && i < kLoadsOfAProcess; ++i)
      ++(load() ? mCounts->loaded : mCounts->refused);
    if (child == 0) ::_exit(0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << status;
  }

  bool sawBoth() const { return mCounts->loaded > 0 && mCounts->refused > 0; }

  template <typename Load>
  void expectNoMarks(const Load& load) {
    mCounts->loaded = mCounts->refused = 0;
    const Swapper swapper(mPart, mOther);
    for (int i = 0; i < swappedLoads() || (!sawBoth() && i < kMostLoads); i += kLoadsOfAProcess)
      loadInAChild(load);
    EXPECT_TRUE(swapper.end());
    EXPECT_TRUE(sawBoth()) << mCounts->loaded << " loaded, " << mCounts->refused << " refused";
    EXPECT_FALSE(fs::exists(mDirectory / "marks"));
  }

  test::TemporaryFolder mDirectory;
  fs::path mGood;
  fs::path mPart;
  fs::path mOther;
  SwapCounts* mCounts = static_cast<SwapCounts*>(::mmap(
      nullptr, sizeof(SwapCounts), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
};

TEST_F(SwappedCode, OfABundleNeverRuns) {
  const fs::path code = test::codeOf("up/own/Test.plugin");
  const fs::path parts[] = {
      "up", "up/own", "up/own/Test.plugin", "up/own/Test.plugin/Contents", code.parent_path(),
      code};
  for (const fs::path& part : parts) {
    for (const bool byLink : {false, true}) {
      SCOPED_TRACE(part.string() + (byLink ? ", a link" : ", for all"));
      makeTrees(part, byLink);
      const std::string path = mGood / "up/own/Test.plugin";
      expectNoMarks([&path] { return static_cast<bool>(LoadedBundle::load(path)); });
    }
  }
}

TEST_F(SwappedCode, OfAModuleNeverRuns) {
  for (const char* part : {"up", "up/own", "up/own/Module.so"}) {
    for (const bool byLink : {false, true}) {
      SCOPED_TRACE(part + std::string(byLink ? ", a link" : ", for all"));
      makeTrees(part, byLink);
      const std::string path = mGood / "up/own/Module.so";
      expectNoMarks([&path] { return static_cast<bool>(loadModule(path, "TestModuleAnswer")); });
    }
  }
}

}  // namespace
}  // namespace cutline
