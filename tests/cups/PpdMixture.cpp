#include "tests/cups/PpdMixture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/cups/Fixtures.h"

namespace cutline::test {

std::string optionText(const std::string& name, const std::string& choice) {
  return "*OpenUI *" + name + "/" + name + " text: PickOne\n*Default" + name + ": " + choice +
         "\n*" + name + " A/Aa: \"a\"\n*" + name + " B/Bb: \"b\"\n*CloseUI: *" + name + "\n";
}

std::string optionTexts(int first, int last) {
  std::string text;
  const int step = first < last ? 1 : -1;
  for (int i = first; i != last + step; i += step) text += optionText("Other" + std::to_string(i));
  return text;
}

std::string grouped(const std::string& group, const std::string& text) {
  return "*OpenGroup: " + group + "\n" + text + "*CloseGroup: " + group + "\n";
}

void expectSameLines(const std::vector<std::string>& expected,
                     const std::vector<std::string>& actual, const std::string& ppd) {
  if (expected == actual) return;
  const auto [one, other] = std::ranges::mismatch(expected, actual);
  std::string context;
  for (auto at = expected.begin() + std::max<std::ptrdiff_t>(0, one - expected.begin() - 5);
       at != one; ++at)
    context += *at + '\n';
  ADD_FAILURE() << context << "expected: " << (one == expected.end() ? "end" : *one)
                << "\nactual: " << (other == actual.end() ? "end" : *other) << "\nof:\n"
                << ppd;
}

std::string PpdMixture::text() {
  std::string text = kPpdHeader;
  for (int pieces = 1 + below(8); pieces > 0; --pieces) text += piece();
  if (below(6) == 0) text.insert(text.size() - 1 - below(text.size() / 2), "\"");
  if (below(3) == 0) return replaced(text, "\n", below(2) == 0 ? "\r\n" : "\r");
  return text;
}

std::string PpdMixture::name() {
  if (below(12) == 0)
    return oneOf({"Duplex", "PageSize", "PageRegion", "MediaType", "Resolution", "ColorSpace",
                  "OutputOrder", "Collate", "DefaultOther7", "OTHER5", "OpenGroup", "JCLOther",
                  "Custom", "CustomOther3", "de.Other3", "BlackSubstitution", "Smoothing"});
  return oneOf({"Other", "other", "A", "Zz"}) + std::to_string(below(400));
}

std::string PpdMixture::defaultText(const std::string& name) {
  const std::string value = oneOf({"A", "A", "A", "A", "B", "C", "None", "A ", "True"});
  switch (below(14)) {
    case 0:
      return "";
    case 1:
      return "*Default" + name + ": \"" + value + "\"\n";
    case 2:
      return "*Default" + name + ": " + value + "/Text\n";
    case 3:
      return "*Default" + name + ": A\n*Default" + name + ": " + value + "\n";
    case 4:
      return "*default" + name + ": " + value + "\n";
    default:
      return "*Default" + name + ": " + value + "\n";
  }
}

std::string PpdMixture::choices(const std::string& name) {
  switch (below(12)) {
    case 0:
      return "*" + name + " A: \"\n*Default" + name + ": B\n*CloseUI: *X\n\"\n*End\n";
    case 1:
      return "";
    case 2:
      return "*" + name + " True/<4a61>: \"1\"\n*OrderDependency: 15.5 DocumentSetup *" + name +
             "\n";
    case 3:
      return "*" + name + " A/A: \"1\"\n*de.Translation " + name + "/De: \"\"\n*fr-" + name +
             " A/Fr: \"\"\n";
    case 4:
      return "*" + name + " A/A: \"1\"\n" + other();
    default:
      return "*" + name + " A/A: \"1\"\n*" + name + " B: \"2\"\n";
  }
}

std::string PpdMixture::option(const std::string& keyword) {
  const std::string kind = oneOf({"PickOne", "PickOne", "Boolean", "PickMany"});
  const std::string jcl = below(40) == 0 ? "JCL" : "";
  std::string text = choices(keyword), before;
  switch (below(6)) {
    case 0:
      before = defaultText(keyword);
      break;
    case 1:
      text += defaultText(keyword);
      break;
    default:
      text.insert(0, defaultText(keyword));
  }
  if (below(20) == 0) return text + optionText(name());
  std::string whole = before + "*" + jcl + "OpenUI *" + keyword +
                      oneOf({"/Text", "", "/Größe", "/ "}) + ": " + kind + "\n" + text;
  if (below(30) != 0) whole += "*" + jcl + "CloseUI: *" + keyword + "\n";
  return whole;
}

std::string PpdMixture::other() {
  const std::string keyword = name();
  switch (below(10)) {
    case 0:
      return "*UIConstraints: *" + keyword + " A *" + name() + " B\n";
    case 1:
      return "*Custom" + keyword + " True/Own: \"x\"\n*ParamCustom" + keyword +
             " Value/V: 1 int 1 9\n";
    case 2:
      return "*NonUIOrderDependency: 30 Prolog *" + keyword + "\n";
    case 3:
      return "*" + keyword + " A/A: \"x\"\n";
    case 4:
      return defaultText(keyword);
    case 5:
      return "*% *OpenUI *" + keyword + ": \"\n";
    case 6:
      return "*Fact name: \"x\"\n*PaperDimension A: \"9 9\"\n";
    case 7:
      return "*cupsUIConstraints " + keyword + ": \"*" + keyword + " *Other1 B\"\n";
    default:
      return oneOf({"\n", "\n", "*Fact: \"x\"\n", "*End\n", " \n"});
  }
}

std::string PpdMixture::options() {
  std::string text;
  for (int count = below(25); count > 0; --count) text += below(6) == 0 ? other() : option(name());
  return text;
}

// Of options that stand nowhere else.
std::string PpdMixture::run() {
  const int first = mNext, last = first + below(20);
  mNext = last + 1;
  if (below(4) != 0) return below(2) == 0 ? optionTexts(first, last) : optionTexts(last, first);
  std::string text;
  for (int i = first; i <= last; ++i) text += option("Other" + std::to_string(i));
  return text;
}

std::string PpdMixture::content() { return mIsWild && below(2) == 0 ? options() : run() + other(); }

std::string PpdMixture::piece() {
  std::string group = oneOf(
      {"One/First", "Two", "Extra/More", "General/All", "Three/3", "InstallableOptions/Parts"});
  if (mIsWild && below(3) == 0) group = oneOf({"JCL/J", "Empty/", "Hex/<41>"});
  switch (below(9)) {
    case 0:
      return "*OpenGroup: " + group + "\n" + content();
    case 1:
      return grouped(group, content() + "*OpenSubGroup: Sub/Sub\n" + content() +
                                "*CloseSubGroup: Sub\n" + content());
    case 2:
    case 3:
      return content();
    default:
      return grouped(group, content() + content());
  }
}

}  // namespace cutline::test
