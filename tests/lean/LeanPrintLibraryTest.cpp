// The lean print library in a process: it shows what the installed one shows, and what it seldom
// needs is there when it is called. What a command does without, tests/e2e sees.
#include <cups/cups.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <thread>

#include "cups/DeviceFacts.h"
#include "lean/LeanOrigins.h"
#include "lean/cups/ServiceName.h"
#include "lean/deferred/DeferredCalls.h"
#include "tests/support/Command.h"
#include "tests/support/LoadedLibraries.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/qt/IppPrinter.h"

namespace cutline::test {
namespace {

std::string bytesOf(const ObjectIdentifier& identifier) {
  return {static_cast<const char*>(identifier.elements), identifier.length};
}

class LeanPrintLibrary : public testing::Test {
 protected:
  // Where certificates are kept.
  void SetUp() override {
    ::setenv("HOME", mHome.path().c_str(), 1);
    ASSERT_TRUE(isLoaded(kLeanPrintLibrary));
  }

  TemporaryFolder mHome;
};

TEST_F(LeanPrintLibrary, EncryptsWhatItIsAskedTo) {
  const IppPrinter printer(3);
  const std::string uri = "ipps" + printer.uri().substr(3);
  const DeviceFacts facts = askDevice(uri);
  const DeviceFacts plain = askDevice(printer.uri());
  EXPECT_FALSE(plain.ready.empty());
  EXPECT_EQ(facts.ready, plain.ready);
}

TEST_F(LeanPrintLibrary, ManyThreadsMayBeTheFirst) {
  std::vector<std::jthread> threads;
  for (int at = 0; at < 8; ++at)
    threads.emplace_back([] {
      const std::string text = "abc";
      unsigned char hash[32];
      EXPECT_EQ(cupsHashData("sha2-256", text.data(), text.size(), hash, sizeof hash), 32);
      EXPECT_EQ(hash[0], 0xba);
      EXPECT_EQ(hash[31], 0xad);
    });
}

TEST_F(LeanPrintLibrary, ShowsWhatTheInstalledOneShows) {
  const auto shown = [](const std::string& file) {
    return outputOf("nm -D --defined-only " + file + " | cut -d' ' -f3 | sort");
  };
  const std::string names = shown(originsOf(LeanPart::printLibrary).front().library);
  EXPECT_NE(names.find("ppdOpenFile\n"), std::string::npos);
  EXPECT_EQ(shown(built("lib/cutline/") + kLeanPrintLibrary), names);
}

TEST_F(LeanPrintLibrary, FindsEachFunctionThatWaits) {
  ASSERT_GT(kDeferredCallCount, 50U);
  for (std::size_t number = 0; number < kDeferredCallCount; ++number) {
    const auto [name, library] = deferredCall(number);
    void* const loaded = ::dlopen(library, RTLD_LAZY | RTLD_LOCAL);
    ASSERT_NE(loaded, nullptr) << library;
    EXPECT_NE(::dlsym(loaded, name), nullptr) << name;
    ::dlclose(loaded);
  }
}

TEST_F(LeanPrintLibrary, NamesServicesAsKerberosDoes) {
  void* const loaded = ::dlopen("libgssapi_krb5.so.2", RTLD_LAZY | RTLD_LOCAL);
  ASSERT_NE(loaded, nullptr);
  auto* const name =
      static_cast<const ObjectIdentifier**>(::dlsym(loaded, "GSS_C_NT_HOSTBASED_SERVICE"));
  ASSERT_NE(name, nullptr);
  EXPECT_EQ(bytesOf(**name), bytesOf(kServiceName));
  ::dlclose(loaded);
}

TEST_F(LeanPrintLibrary, LooksForPrintersOnTheNetwork) {
  ASSERT_FALSE(isLoaded("libavahi-client"));
  const auto take = [](void*, unsigned, cups_dest_t*) { return 1; };
  cupsEnumDests(CUPS_DEST_FLAGS_NONE, 50, nullptr, 0, 0, take, nullptr);
  EXPECT_TRUE(isLoaded("libavahi-client"));
}

}  // namespace
}  // namespace cutline::test
