// PPDs of options: made one by one, or at random of all that libcups makes something of.
#pragma once

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace cutline::test {

inline constexpr const char* kPpdHeader =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: UTF-8\n*LanguageVersion: "
    "English\n*ModelName: \"Tape\"\n*Product: \"(Tape)\"\n*Other: \"x\"\n*zLast: \"x\"\n";

// An option with the choices A and B.
std::string optionText(const std::string& name, const std::string& choice = "A");
// Options with numbers in their names, up or down.
std::string optionTexts(int first, int last);
std::string grouped(const std::string& group, const std::string& text);

// Fails with the first line that differs, some lines before it, and the PPD.
void expectSameLines(const std::vector<std::string>& expected,
                     const std::vector<std::string>& actual, const std::string& ppd);

// Half of them have much that is hard to read; many of those libcups refuses.
class PpdMixture {
 public:
  explicit PpdMixture(unsigned seed) : mRandom(seed) {}

  std::string text();

 private:
  int below(std::size_t limit) { return static_cast<int>(mRandom() % limit); }
  std::string oneOf(std::initializer_list<const char*> list) {
    return list.begin()[below(list.size())];
  }
  std::string name();
  std::string defaultText(const std::string& name);
  std::string choices(const std::string& name);
  std::string option(const std::string& keyword);
  std::string other();
  std::string options();
  std::string run();
  std::string content();
  std::string piece();

  std::mt19937 mRandom;
  const bool mIsWild = below(2) == 0;
  int mNext = 500;  // more than the other numbers in names
};

}  // namespace cutline::test
