// The plug-in as a host finds it: the module in its bundle directory, loaded at run time.
#include <dlfcn.h>
#include <elf.h>
#include <gtest/gtest.h>
#include <link.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "platform/lib/DirectoryBundle.h"
#include "platform/ports/Controls.h"
#include "platform/ports/PrintDialogPlugIn.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/TestCallback.h"

namespace cutline::test {
namespace {

constexpr char kEntry[] = "CutlinePrincipalClass_LXKMWNOptions14PlugIn13_v400_";
constexpr char kBundle[] = CUTLINE_BUILD_DIR "/lib/cutline/plugins/CutOptions.plugin";

// The dynamic section and symbols of a shared object file.
class SharedObject {
 public:
  explicit SharedObject(const char* path) {
    std::ifstream file(path, std::ios::binary);
    mBytes.assign(std::istreambuf_iterator<char>(file), {});
  }

  bool isComplete() const { return mBytes.size() > sizeof(ElfW(Ehdr)) && !dynamic().empty(); }

  std::vector<std::string> needed() const {
    std::vector<std::string> names;
    for (const ElfW(Dyn) & entry : dynamic()) {
      if (entry.d_tag == DT_NEEDED) names.emplace_back(dynamicText(entry.d_un.d_val));
    }
    return names;
  }
  std::vector<ElfW(Sxword)> tags() const {
    std::vector<ElfW(Sxword)> found;
    for (const ElfW(Dyn) & entry : dynamic()) found.push_back(entry.d_tag);
    return found;
  }
  ElfW(Xword) flags1() const {
    for (const ElfW(Dyn) & entry : dynamic()) {
      if (entry.d_tag == DT_FLAGS_1) return entry.d_un.d_val;
    }
    return 0;
  }
  std::vector<std::string> exported() const {
    std::vector<std::string> names;
    for (const ElfW(Sym) & symbol : rowsOf<ElfW(Sym)>(SHT_DYNSYM)) {
      if (symbol.st_shndx == SHN_UNDEF || symbol.st_name == 0) continue;
      names.emplace_back(dynamicText(symbol.st_name));
    }
    return names;
  }

 private:
  template <typename Row>
  std::vector<Row> rowsAt(std::size_t offset, std::size_t count) const {
    std::vector<Row> rows(count);
    if (offset + count * sizeof(Row) <= mBytes.size()) {
      std::memcpy(rows.data(), mBytes.data() + offset, count * sizeof(Row));
    }
    return rows;
  }
  std::vector<ElfW(Shdr)> sections() const {
    const auto header = rowsAt<ElfW(Ehdr)>(0, 1).front();
    return rowsAt<ElfW(Shdr)>(header.e_shoff, header.e_shnum);
  }
  template <typename Row>
  std::vector<Row> rowsOf(ElfW(Word) sectionType) const {
    for (const ElfW(Shdr) & section : sections()) {
      if (section.sh_type != sectionType) continue;
      return rowsAt<Row>(section.sh_offset, section.sh_size / sizeof(Row));
    }
    return {};
  }
  std::vector<ElfW(Dyn)> dynamic() const { return rowsOf<ElfW(Dyn)>(SHT_DYNAMIC); }
  std::string dynamicText(std::size_t offset) const {
    const auto all = sections();
    for (const ElfW(Shdr) & section : all) {
      if (section.sh_type == SHT_DYNSYM) {
        return mBytes.data() + all[section.sh_link].sh_offset + offset;
      }
    }
    return {};
  }

  std::vector<char> mBytes;
};

TEST(Module, NeedsThePlatformAndLibcupsAndNoToolkit) {
  const SharedObject module(CUTLINE_MODULE);
  ASSERT_TRUE(module.isComplete());
  const auto needed = module.needed();
  EXPECT_NE(std::find(needed.begin(), needed.end(), "libcutline-platform.so"), needed.end());
  EXPECT_NE(std::find(needed.begin(), needed.end(), "libcups.so.2"), needed.end());
  for (const std::string& name : needed) EXPECT_EQ(name.find("Qt"), name.npos) << name;
}

TEST(Module, ExportsItsEntryAndTheDiagnosticFunctions) {
  auto exported = SharedObject(CUTLINE_MODULE).exported();
  std::sort(exported.begin(), exported.end());
  EXPECT_EQ(exported, (std::vector<std::string>{kEntry, "_PDEEpilog", "_PDELog",
                                                "_PDELog_PMPrintSettings_WriteToFile",
                                                "_PDELog_ppd_option_t", "_PDEProlog", "debugLog",
                                                "debugLogFd", "memoryCheck", "memoryCheckFd"}));
}

TEST(Module, HasNoSearchPathOfItsOwnAndIsNeverUnloaded) {
  const SharedObject module(CUTLINE_MODULE);
  for (const auto tag : module.tags()) {
    EXPECT_NE(tag, DT_RPATH);
    EXPECT_NE(tag, DT_RUNPATH);
  }
  EXPECT_TRUE(module.flags1() & DF_1_NODELETE);
}

// The libraries of this process.
std::vector<std::string> loadedLibraries() {
  std::vector<std::string> names;
  dl_iterate_phdr(
      [](dl_phdr_info* info, std::size_t, void* data) {
        static_cast<std::vector<std::string>*>(data)->emplace_back(info->dlpi_name);
        return 0;
      },
      &names);
  return names;
}

class LoadedModule : public testing::Test {
 protected:
  LoadedModule() {
    module = dlopen(CUTLINE_MODULE, RTLD_NOW | RTLD_LOCAL);
    EXPECT_TRUE(module) << dlerror();
    if (!module) return;
    using Entry = const PrincipalClassEntry* (*)();
    const auto function = reinterpret_cast<Entry>(dlsym(module, kEntry));
    EXPECT_TRUE(function) << dlerror();
    if (function) entry = function();
  }
  ~LoadedModule() override {
    if (module) dlclose(module);
  }

  TestPlatform platform;
  void* module = nullptr;
  const PrincipalClassEntry* entry = nullptr;
};

TEST_F(LoadedModule, BringsNoToolkitLibraryWithIt) {
  ASSERT_TRUE(module);
  for (const std::string& name : loadedLibraries())
    EXPECT_EQ(name.find("libQt"), name.npos) << name;
}

TEST_F(LoadedModule, StaysWhenItIsClosed) {
  ASSERT_TRUE(module);
  dlclose(module);
  module = dlopen(CUTLINE_MODULE, RTLD_NOW | RTLD_NOLOAD);
  EXPECT_TRUE(module);
}

TEST_F(LoadedModule, TheEntryMakesAPanelThatMarksWhatIsClicked) {
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->abi, kPlugInAbiVersion);
  const auto bundle = DirectoryBundle::open(kBundle);
  ASSERT_TRUE(bundle);
  EXPECT_EQ(bundle->bundleIdentifier(), "org.cutline.CutOptions");
  EXPECT_EQ(std::string(kPrincipalClassSymbolPrefix) + bundle->principalClassName(), kEntry);

  const OpenPpd ppd = allNine().open();
  const auto callback = std::make_shared<TestCallback>();
  callback->ppd = ppd.get();
  const std::unique_ptr<PrintDialogPlugIn, void (*)(PrintDialogPlugIn*) noexcept> plugIn(
      entry->create(), entry->destroy);
  ASSERT_TRUE(plugIn->initWithBundle(bundle.get()));
  const auto panels = plugIn->PDEPanelsForType(kPrintDialogPanelType, callback);
  ASSERT_TRUE(panels);
  PrintDialogPanel& panel = *panels->front();
  EXPECT_EQ(*panel.supportedPPDOptionKeys(), nineKeywords());
  const auto view = panel.panelView();
  ASSERT_TRUE(view);
  panel.willShow();
  for (const auto& subview : view->subviews()) {
    auto* box = dynamic_cast<CheckBox*>(subview.get());
    if (box && box->ppdKeyword() == "LxHalfCut") box->performClick();
  }
  EXPECT_EQ(markedChoice(ppd.get(), "LxHalfCut"), "ON");
}

}  // namespace
}  // namespace cutline::test
