// Whatever stands in a bundle's or the dialog module's place and may not be there: it is refused
// before any of its code runs.
#include <elf.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <functional>

#include "host/core/BuildId.h"
#include "host/core/Module.h"
#include "host/core/PluginLoader.h"
#include "tests/host/TestCode.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kTooLargeAnInfo = std::uintmax_t{17} << 20;
constexpr uid_t kStranger = 12345;

// A folder with code whose constructor leaves a mark, and what is done to it.
struct MarkedPlace {
  fs::path top;   // UP/OWN/Test.plugin or UP/OWN/Module.so
  fs::path path;  // what is loaded

  fs::path up() const { return top / "up"; }
  fs::path own() const { return up() / "own"; }
  fs::path contents() const { return own() / "Test.plugin/Contents"; }
  fs::path folder() const { return test::codeOf(own() / "Test.plugin").parent_path(); }
  fs::path code() const { return folder() / "Test.so"; }
  fs::path module() const { return own() / "Module.so"; }
};

using PartOfPlace = std::function<fs::path(MarkedPlace&)>;
using Spoiling = std::function<void(MarkedPlace&)>;
struct HostileCase {
  std::string name;
  Spoiling spoil;
  std::string reason;
};

fs::path bundleOf(const MarkedPlace& place) { return place.contents().parent_path(); }

HostileCase linked(const std::string& name, const PartOfPlace& part) {
  return {"link at " + name,
          [part](MarkedPlace& place) {
            const fs::path elsewhere = place.top / "elsewhere";
            fs::rename(part(place), elsewhere);
            fs::create_symlink(elsewhere, part(place));
          },
          ""};
}

HostileCase open(const std::string& name, const PartOfPlace& part, fs::perms others) {
  const bool toAll = others == fs::perms::others_write;
  return {name + (toAll ? " for all" : " for a group"),
          [part, others](MarkedPlace& place) {
            fs::permissions(part(place), others, fs::perm_options::add);
          },
          "can be changed by"};
}

HostileCase strange(const std::string& name, const PartOfPlace& part) {
  return {name + " of a stranger",
          [part](MarkedPlace& place) {
            ASSERT_EQ(::chown(part(place).c_str(), kStranger, static_cast<gid_t>(-1)), 0);
          },
          "belongs to another user"};
}

HostileCase missing(const std::string& name, const PartOfPlace& part) {
  return {"no " + name, [part](MarkedPlace& place) { fs::remove_all(part(place)); },
          "No such file"};
}

HostileCase pipeAt(const std::string& name, const PartOfPlace& part) {
  return {"a pipe for " + name,
          [part](MarkedPlace& place) {
            fs::remove_all(part(place));
            ASSERT_EQ(::mkfifo(part(place).c_str(), 0600), 0);
          },
          ""};
}

HostileCase folderAt(const std::string& name, const PartOfPlace& part) {
  return {"a folder for " + name,
          [part](MarkedPlace& place) {
            fs::remove(part(place));
            fs::create_directory(part(place));
          },
          "is no ordinary file"};
}

HostileCase fileAt(const std::string& name, const PartOfPlace& part) {
  return {"a file for " + name,
          [part](MarkedPlace& place) {
            fs::remove_all(part(place));
            std::ofstream(part(place)) << "text";
          },
          "Not a directory"};
}

HostileCase named(const std::string& name, const std::function<fs::path(const fs::path&)>& path,
                  const std::string& reason) {
  return {"named " + name, [path](MarkedPlace& place) { place.path = path(place.path); }, reason};
}

HostileCase informed(const std::string& name, const std::string& info, const std::string& reason) {
  return {"Info.plist " + name,
          [info](MarkedPlace& place) { std::ofstream(place.contents() / "Info.plist") << info; },
          reason};
}

std::string infoNaming(const std::string& principalClass, const std::string& more = {}) {
  return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + more +
         "<key>NSPrincipalClass</key>" + principalClass + "</dict></plist>";
}

// Code whose header says something else at an offset.
HostileCase marred(const std::string& name, const PartOfPlace& part, std::size_t at,
                   const std::string& bytes, const std::string& reason) {
  return {"code of " + name,
          [part, at, bytes](MarkedPlace& place) {
            std::string code = test::contentsOf(part(place));
            test::writeFile(part(place), code.replace(at, bytes.size(), bytes));
          },
          reason};
}

HostileCase cut(const std::string& name, const PartOfPlace& part, std::uintmax_t parts) {
  return {"code cut off, " + name,
          [part, parts](MarkedPlace& place) {
            fs::resize_file(part(place), fs::file_size(part(place)) * parts / 8);
          },
          parts == 0 ? "is no code for this machine" : "is not whole"};
}

HostileCase replaced(const std::string& name, const PartOfPlace& part, const std::string& module,
                     const std::string& reason) {
  return {"code of " + name,
          [part, module](MarkedPlace& place) {
            fs::remove(part(place));
            fs::copy_file(test::builtModule(module), part(place));
            test::makePrivate(part(place));
          },
          reason};
}

// Code in which a name of a section or of a function is another.
HostileCase renamed(const std::string& name, const PartOfPlace& part, const std::string& from,
                    const std::string& reason) {
  return {"code of " + name,
          [part, from](MarkedPlace& place) {
            std::string code = test::contentsOf(part(place));
            for (std::size_t at = 0; (at = code.find(from, at)) != std::string::npos;)
              code.replace(at, from.size(), from.size(), '?');
            test::writeFile(part(place), code);
          },
          reason};
}

// What a file of code can be, wherever it stands.
std::vector<HostileCase> spoiltCode(const PartOfPlace& part) {
  constexpr char kNoCode[] = "is no code for this machine";
  return {cut("nothing", part, 0),
          cut("an eighth", part, 1),
          cut("a half", part, 4),
          cut("all but an eighth", part, 7),
          marred("another machine", part, offsetof(Elf64_Ehdr, e_machine), "\x08", kNoCode),
          marred("another class", part, EI_CLASS, "\x03", kNoCode),
          marred("the other order of bytes", part, EI_DATA, "\x03", kNoCode),
          marred("a program", part, offsetof(Elf64_Ehdr, e_type), "\x02", kNoCode),
          marred("a script", part, 0, "#!/bin/sh\n", kNoCode),
          linked("code", part),
          pipeAt("code", part),
          folderAt("code", part),
          missing("code", part),
          open("code", part, fs::perms::group_write),
          open("code", part, fs::perms::others_write)};
}

void add(std::vector<HostileCase>& to, std::vector<HostileCase> more) {
  to.insert(to.end(), more.begin(), more.end());
}

fs::path upOf(MarkedPlace& place) { return place.up(); }
fs::path ownOf(MarkedPlace& place) { return place.own(); }
fs::path contentsOf(MarkedPlace& place) { return place.contents(); }
fs::path infoOf(MarkedPlace& place) { return place.contents() / "Info.plist"; }
fs::path resourcesOf(MarkedPlace& place) { return place.contents() / "Resources"; }
fs::path folderOf(MarkedPlace& place) { return place.folder(); }
fs::path codeOf(MarkedPlace& place) { return place.code(); }
fs::path moduleOf(MarkedPlace& place) { return place.module(); }

// What is wrong above whatever is loaded.
std::vector<HostileCase> wrongWays() {
  constexpr char kNoPath[] = "is no whole path";
  const auto name = [](const fs::path& path) { return path.filename(); };
  const auto back = [](const fs::path& path) {
    return path.parent_path() / "../own" / path.filename();
  };
  const auto dot = [](const fs::path& path) { return path.parent_path() / "." / path.filename(); };
  std::vector<HostileCase> cases = {
      named("without a folder", name, kNoPath),
      named("with ..", back, kNoPath),
      named("with .", dot, kNoPath),
      named(
          "as nothing", [](const fs::path&) { return fs::path(); }, kNoPath),
      named(
          "with a slash behind", [](const fs::path& path) { return path / ""; }, ""),
      linked("a folder above", upOf),
      linked("its folder", ownOf),
      open("a folder above", upOf, fs::perms::others_write),
      open("its folder", ownOf, fs::perms::others_write),
      open("its folder", ownOf, fs::perms::group_write)};
  if (::geteuid() == 0) add(cases, {strange("a folder above", upOf), strange("its folder", ownOf)});
  return cases;
}

std::vector<HostileCase> hostileModules() {
  std::vector<HostileCase> cases = wrongWays();
  add(cases, spoiltCode(moduleOf));
  add(cases, {replaced("another build", moduleOf, "MarkerOtherBuild", "another build"),
              renamed("no build", moduleOf, kBuildIdSection, "another build"),
              renamed("no function", moduleOf, "TestModuleAnswer", "has no TestModuleAnswer")});
  if (::geteuid() == 0) add(cases, {strange("code", moduleOf)});
  return cases;
}

std::vector<HostileCase> hostileParts() {
  std::vector<HostileCase> cases;
  const std::pair<const char*, fs::path (*)(MarkedPlace&)> folders[] = {
      {"the bundle", [](MarkedPlace& place) { return bundleOf(place); }},
      {"Contents", contentsOf},
      {"Resources", resourcesOf},
      {"the folder of code", folderOf}};
  for (const auto& [name, part] : folders)
    add(cases,
        {linked(name, part), missing(name, part), fileAt(name, part),
         open(name, part, fs::perms::group_write), open(name, part, fs::perms::others_write)});
  add(cases,
      {linked("Info.plist", infoOf), missing("Info.plist", infoOf), pipeAt("Info.plist", infoOf),
       folderAt("Info.plist", infoOf), open("Info.plist", infoOf, fs::perms::group_write),
       open("Info.plist", infoOf, fs::perms::others_write)});
  if (::geteuid() != 0) return cases;
  for (const auto& [name, part] : folders) add(cases, {strange(name, part)});
  add(cases, {strange("Info.plist", infoOf), strange("code", codeOf)});
  return cases;
}

std::vector<HostileCase> hostileInfos() {
  constexpr char kDamaged[] = "Info.plist is damaged";
  constexpr char kNoClass[] = "has no principal class";
  const std::string elsewhere =
      "<key>CFBundleExecutable</key><string>../../../../elsewhere/Test.so</string>";
  return {
      informed("empty", "", kDamaged),
      informed("of text", "no property list", kDamaged),
      informed("cut off", infoNaming("<string>TestPlugIn</string>").substr(0, 90), kDamaged),
      informed("of an array", "<plist><array/></plist>", kDamaged),
      informed("too large", std::string(kTooLargeAnInfo, ' '), kDamaged),
      informed("without a class", "<plist version=\"1.0\"><dict/></plist>", kNoClass),
      informed("with a number for a class", infoNaming("<integer>1</integer>"), kNoClass),
      informed("with an empty class", infoNaming("<string></string>"), kNoClass),
      informed("with another class", infoNaming("<string>Other</string>"), kNoClass),
      informed("with a path for a class", infoNaming("<string>../TestPlugIn</string>"), kNoClass),
      informed("with a very long class",
               infoNaming("<string>" + std::string(1 << 20, 'T') + "</string>"), kNoClass),
      {"code named elsewhere",
       [elsewhere](MarkedPlace& place) {
         const std::string info = infoNaming("<string>TestPlugIn</string>", elsewhere);
         std::ofstream(place.contents() / "Info.plist") << info;
         fs::create_directory(place.top / "elsewhere");
         fs::rename(place.code(), place.top / "elsewhere/Test.so");
       },
       "No such file"}};
}

std::vector<HostileCase> hostileBundles() {
  std::vector<HostileCase> cases = wrongWays();
  add(cases, spoiltCode(codeOf));
  add(cases, hostileParts());
  add(cases, hostileInfos());
  add(cases, {replaced("another version", codeOf, "MarkerOtherAbi", "another version"),
              renamed("no version", codeOf, kPlugInAbiSection, "another version")});
  return cases;
}

class HostileCode : public testing::Test {
 protected:
  HostileCode() { ::setenv("CUTLINE_TEST_MARKS", (mDirectory / "marks").c_str(), 1); }
  ~HostileCode() override { ::unsetenv("CUTLINE_TEST_MARKS"); }

  std::size_t marks() const { return test::contentsOf(mDirectory / "marks").size(); }

  MarkedPlace place() {
    MarkedPlace place{mDirectory / std::to_string(++mPlaces), {}};
    fs::create_directories(place.own());
    test::makeBundle(place.own(), "MarkerPlugIn");
    fs::copy_file(test::builtModule("MarkerPlugIn"), place.module());
    test::makePrivate(place.top);
    return place;
  }

  template <typename Loaded>
  void expectRefused(const HostileCase& hostile, MarkedPlace place, const Loaded& load) {
    SCOPED_TRACE(hostile.name);
    hostile.spoil(place);
    const auto loaded = load(place.path);
    ASSERT_FALSE(loaded);
    EXPECT_NE(loaded.error().message.find(hostile.reason), std::string::npos)
        << loaded.error().message;
    EXPECT_EQ(marks(), 0U);
  }

  test::TemporaryFolder mDirectory;
  int mPlaces = 0;
};

TEST_F(HostileCode, IsRefusedInABundleBeforeItRuns) {
  const std::vector<HostileCase> cases = hostileBundles();
  ASSERT_GE(cases.size(), 60U);
  for (const HostileCase& hostile : cases) {
    MarkedPlace spoilt = place();
    spoilt.path = bundleOf(spoilt);
    expectRefused(hostile, spoilt, LoadedBundle::load);
  }
}

TEST_F(HostileCode, IsRefusedInAModuleBeforeItRuns) {
  const std::vector<HostileCase> cases = hostileModules();
  ASSERT_GE(cases.size(), 25U);
  for (const HostileCase& hostile : cases) {
    MarkedPlace spoilt = place();
    spoilt.path = spoilt.module();
    expectRefused(hostile, spoilt,
                  [](const fs::path& path) { return loadModule(path, "TestModuleAnswer"); });
  }
}

// What makes the two above worth something.
TEST_F(HostileCode, LeavesItsMarkWhereNothingIsWrong) {
  EXPECT_TRUE(LoadedBundle::load(bundleOf(place())));
  EXPECT_EQ(marks(), 1U);
  EXPECT_TRUE(loadModule(place().module(), "TestModuleAnswer"));
  EXPECT_EQ(marks(), 2U);
}

}  // namespace
}  // namespace cutline
