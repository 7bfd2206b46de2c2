// The help text, the manual page and the shells' completions know the same options.
#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "tests/support/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using Names = std::set<std::string>;

// What `pattern` finds; `before` is put in front of what its groups have.
Names namesIn(const std::string& text, const std::string& pattern, const std::string& before = {}) {
  const std::regex expression(pattern, std::regex::ECMAScript | std::regex::multiline);
  Names names;
  for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
    for (std::size_t group = 1; group < at->size(); ++group)
      if ((*at)[group].matched) names.insert(before + at->str(group));
  return names;
}

std::string helpText() { return outputOf(built("bin/cutline") + " --help"); }

// The options of the program: what its help text lists.
const Names& options() {
  static const Names names = namesIn(helpText(), "^  (-[A-Za-z]|--[a-z-]+)(?:, (--[a-z-]+))?[ ,]");
  return names;
}

// What -o takes for the layout, as the help text has it.
Names layoutNames() {
  const std::string help = helpText();
  Names names = namesIn(help.substr(help.find("labels is said with -o:")), "([a-z-]+)=");
  return names;
}

std::string file(const std::string& path) { return contentsOf(source("packaging/" + path)); }

// Bash parts the line's words at "=", too.
CommandResult inBash(const std::string& line) {
  return run("PATH=" + built("bin") + ":$PATH; . " + source("packaging/completions/cutline.bash") +
             "; COMP_LINE=" + quoted(line) +
             R"(; COMP_POINT=${#COMP_LINE}; COMP_WORDS=(${COMP_LINE//=/ = })
                [[ $COMP_LINE != *' ' ]] || COMP_WORDS+=('')
                COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
                _cutline cutline "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
                printf '%s\n' "${COMPREPLY[@]}")");
}

CommandResult inFish(const std::string& line) {
  const TemporaryFolder home;  // it writes into it
  return run("PATH=" + built("bin") + ":$PATH HOME=" + home.path() + " fish -N -c " +
             quoted("source " + source("packaging/completions/cutline.fish") + "; complete -C " +
                    quoted(line)));
}

std::string samplePpd() { return built("share/cutline/samples/ppd/tape-a.ppd"); }

TEST(OptionNames, AreInTheHelpText) {
  EXPECT_THAT(options(), testing::IsSupersetOf({"-d", "-o", "--print", "--help", "--version"}));
  EXPECT_GE(options().size(), 20U);
}

TEST(OptionNames, AreThoseOfTheManualPage) {
  const std::string page = file("man/cutline.1");
  Names names = namesIn(page, "^\\.It Fl (-?[A-Za-z-]+)(?: , Fl (-[a-z-]+))?", "-");
  EXPECT_EQ(names, options());
  for (const std::string& name : layoutNames())
    EXPECT_TRUE(std::regex_search(page, std::regex("\\.It Cm .*" + name))) << name;
}

TEST(OptionNames, AreThoseOfBash) {
  const CommandResult result = inBash("cutline -");
  EXPECT_EQ(namesIn(result.output, "^(-.*)$"), options()) << result.errors;
}

TEST(OptionNames, AreThoseOfFish) {
  const std::string text = file("completions/cutline.fish");
  Names names = namesIn(text, "^complete -c cutline -s ([A-Za-z]) ", "-");
  names.merge(namesIn(text, "^complete -c cutline -l ([a-z-]+) ", "--"));
  EXPECT_EQ(names, options());
  const CommandResult result = inFish("cutline --");
  EXPECT_EQ(namesIn(result.output, "^(--[a-z-]+)"), namesIn(text, "cutline -l ([a-z-]+) ", "--"))
      << result.errors;
}

TEST(OptionNames, AreThoseOfZsh) {
  EXPECT_EQ(namesIn(file("completions/_cutline"), "^  '\\*?(-[A-Za-z]|--[a-z-]+)\\["), options());
  const CommandResult result = run("zsh -n " + source("packaging/completions/_cutline"));
  EXPECT_EQ(result.status, 0) << result.errors;
}

TEST(OptionNames, OfTheLayoutAreCompleted) {
  const std::string bash = inBash("cutline -o ").output;
  const std::string fish = inFish("cutline -o ").output;
  const std::string zsh = file("completions/_cutline");
  ASSERT_GE(layoutNames().size(), 7U);
  for (const std::string& name : layoutNames()) {
    EXPECT_NE(bash.find(name + "=\n"), std::string::npos) << name;
    EXPECT_NE(fish.find(name + "="), std::string::npos) << name;
    EXPECT_NE(zsh.find(' ' + name), std::string::npos) << name;
  }
}

TEST(Completion, AsksThePrinterForItsChoices) {
  const std::string start = "cutline --ppd " + samplePpd() + " -o ";
  EXPECT_EQ(inBash(start + "LxHalfC").output, "LxHalfCut=\n");
  EXPECT_EQ(inBash(start + "LxHalfCut=").output, "OFF\nON\n");
  EXPECT_EQ(inBash(start + "LxHalfCut=OF").output, "OFF\n");
  EXPECT_EQ(inFish(start + "LxHalfCut=").output, "LxHalfCut=OFF\tOff\nLxHalfCut=ON\tOn\n");
}

}  // namespace
}  // namespace cutline::test
