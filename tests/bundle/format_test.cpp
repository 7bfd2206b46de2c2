// The formatter: each conversion, what becomes of arguments that don't fit, and formats at random
// against the C library and against nothing but memory errors.
#include <gtest/gtest.h>
#include <locale.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bundle/format/SafeFormat.h"
#include "bundle/format/printed_value.h"
#include "bundle/ppd/PDEChoice.h"
#include "tests/bundle/TestPlatform.h"
#include "tests/support/PpdText.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace std::string_view_literals;

class Tape final : public Describable {
 public:
  std::string description() const noexcept override { return "<tape 24%n>"; }
};
const Tape kTape;
const void* const kAddress = reinterpret_cast<const void*>(0xBEEF);

template <typename Value>
std::string byTheLibrary(const std::string& format, Value value) {
  std::vector<char> text(1024);
  std::snprintf(text.data(), text.size(), format.c_str(), value);
  return text.data();
}

TEST(SafeFormat, PrintsEachConversion) {
  EXPECT_EQ(safeFormat("%@", {"text"}), "text");
  EXPECT_EQ(safeFormat("%@", {kTape}), "<tape 24%n>");
  EXPECT_EQ(safeFormat("%d %i", {-5, 7}), "-5 7");
  EXPECT_EQ(safeFormat("%u", {-1}), "4294967295");
  EXPECT_EQ(safeFormat("%x %X %#x %o %#o", {255, 255, 255, 8, 8}), "ff FF 0xff 10 010");
  EXPECT_EQ(safeFormat("%c%c", {'A', 0xE9}), "A\xC3\xA9");
  EXPECT_EQ(safeFormat("%s", {std::string("abc")}), "abc");
  EXPECT_EQ(safeFormat("%f %g %e", {1.5, 1e10, 12345.678}), "1.500000 1e+10 1.234568e+04");
  EXPECT_EQ(safeFormat("%F %G %E", {1.5F, 1e-10, INFINITY}), "1.500000 1E-10 INF");
  EXPECT_EQ(safeFormat("%p", {reinterpret_cast<const void*>(0xBEEF)}), "0xbeef");
  EXPECT_EQ(safeFormat("100%%", {}), "100%");
}

TEST(SafeFormat, KeepsFlagsWidthAndPrecision) {
  EXPECT_EQ(safeFormat("[%5d|%-5d|%05d|%+d|% d]", {42, 42, 42, 42, 42}),
            "[   42|42   |00042|+42| 42]");
  EXPECT_EQ(safeFormat("[%.3d|%5.3d|%-08.3d|%.0d]", {7, 7, 7, 0}), "[007|  007|007     |]");
  EXPECT_EQ(safeFormat("[%8.3f|%-8.1f|%08.2f|%#.0f]", {3.14159, 2.5, -1.5, 3.0}),
            "[   3.142|2.5     |-0001.50|3.]");
  EXPECT_EQ(safeFormat("[%5s|%-5s|%.2s|%5.1@]", {"abc", "abc", "abc", "abc"}),
            "[  abc|abc  |ab|    a]");
  EXPECT_EQ(safeFormat("[%*d|%-*d|%*d|%.*f]", {4, 1, 4, 2, -4, 3, 1, 2.55}),
            "[   1|2   |3   |2.5]");
  EXPECT_EQ(safeFormat("%'d", {1000000}), "1000000");
}

TEST(SafeFormat, TheAlternativeGeneralFormKeepsItsDigits) {
  EXPECT_EQ(safeFormat("%#g %#g %#g %#g", {0.0, 1.0, 123456.0, 1e-4}),
            "0.00000 1.00000 123456. 0.000100000");
  EXPECT_EQ(safeFormat("%#g %#g %#G %#.0g", {1e-5, 1e6, 999999.5, 3.0}),
            "1.00000e-05 1.00000e+06 1.00000E+06 3.");
}

TEST(SafeFormat, WidthAndPrecisionCountCharacters) {
  EXPECT_EQ(safeFormat("[%3s|%.1s]", {"\xC3\xA9", "\xC3\xA9\xC3\xA8"}), "[  \xC3\xA9|\xC3\xA9]");
  EXPECT_EQ(safeFormat("[%.2s|%-3.1@|%.0s]", {"a\xE2\x82\xAC"
                                              "b",
                                              "\xE2\x82\xAC"
                                              "b",
                                              "c"}),
            "[a\xE2\x82\xAC|\xE2\x82\xAC  |]");
  EXPECT_EQ(safeFormat("[%3c|%-3c]", {0xE9, 'x'}), "[  \xC3\xA9|x  ]");
}

TEST(SafeFormat, FlagsThatAConversionLacksChangeNothing) {
  EXPECT_EQ(safeFormat("[%#d|%#i|%+u|% x|%+o|%#u]", {42, 42, 42, 42, 8, 42}),
            "[42|42|42|2a|10|42]");
  EXPECT_EQ(safeFormat("[%05s|%+#5s|%05c|%+p]", {"abc", "abc", 'x', kAddress}),
            "[  abc|  abc|    x|0xbeef]");
  EXPECT_EQ(safeFormat("[%05%|%-%]", {}), "[%|%]");
}

TEST(SafeFormat, WhatIsNoNumberIsNamed) {
  EXPECT_EQ(safeFormat("[%f|%5.1f|%-5g|%+f|%F]", {NAN, NAN, NAN, INFINITY, -INFINITY}),
            "[nan|  nan|nan  |+inf|-INF]");
  EXPECT_EQ(safeFormat("[%06f|%06F|%#.3g|%.40e]", {INFINITY, NAN, INFINITY, -INFINITY}),
            "[   inf|   NAN|inf|-inf]");
}

TEST(SafeFormat, PointersHaveAWidth) {
  EXPECT_EQ(safeFormat("[%8p|%-8p|%.3p|%08p]", {kAddress, kAddress, kAddress, kAddress}),
            "[  0xbeef|0xbeef  |0xbeef|0x00beef]");
  EXPECT_EQ(safeFormat("[%5p|%-5p]", {nullptr, nullptr}), "[  0x0|0x0  ]");
}

TEST(SafeFormat, NumbersReachTheirBounds) {
  EXPECT_EQ(safeFormat("%lld %lld %llu", {INT64_MIN, INT64_MAX, UINT64_MAX}),
            "-9223372036854775808 9223372036854775807 18446744073709551615");
  EXPECT_EQ(safeFormat("%llx %#llo", {UINT64_MAX, UINT64_MAX}),
            "ffffffffffffffff 01777777777777777777777");
  EXPECT_EQ(safeFormat("%d %u %hhd %hhu %hd", {INT32_MIN, UINT32_MAX, 128, 256, 32768}),
            "-2147483648 4294967295 -128 0 -32768");
}

// The process writes numbers with a decimal comma, as most of Europe does.
class DecimalComma {
 public:
  DecimalComma() {
    const std::string source = mFolder.write(
        "source",
        "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n");
    // It warns of all that the source leaves out.
    const std::string command =
        "localedef -c --no-archive -i " + source + " " + mFolder / "comma" + " >/dev/null 2>&1";
    std::system(command.c_str());
    setenv("LOCPATH", mFolder.path().c_str(), 1);
    mLocale = newlocale(LC_NUMERIC_MASK, "comma", nullptr);
    unsetenv("LOCPATH");
    if (mLocale) mBefore = uselocale(mLocale);
  }
  ~DecimalComma() {
    if (!mLocale) return;
    uselocale(mBefore);
    freelocale(mLocale);
  }
  DecimalComma(const DecimalComma&) = delete;
  DecimalComma& operator=(const DecimalComma&) = delete;

 private:
  TemporaryFolder mFolder;
  locale_t mLocale = nullptr;
  locale_t mBefore = nullptr;
};

TEST(SafeFormat, NumbersAreTheSameInEveryLanguage) {
  const DecimalComma comma;
  ASSERT_EQ(byTheLibrary("%.2f", 2.5), "2,50");
  EXPECT_EQ(safeFormat("%.2f %#g %'d", {2.5, 0.5, 1000000}), "2.50 0.500000 1000000");
  EXPECT_EQ(byTheLibrary("%.2f", 2.5), "2,50");
}

TEST(SafeFormat, IntegersAreCutToTheirLength) {
  EXPECT_EQ(safeFormat("%hhx %hx %x %lx", {0x1234567890, 0x1234567890, 0x1234567890, 0x1234567890}),
            "90 7890 34567890 1234567890");
  EXPECT_EQ(safeFormat("%hhd %hd %d %lld", {255, 65535, 4294967295, INT64_MIN}),
            "-1 -1 -1 -9223372036854775808");
  EXPECT_EQ(safeFormat("%qu %ju %zu %td %Lu", {1, 2, 3, 4, UINT64_MAX}),
            "1 2 3 4 18446744073709551615");
  EXPECT_EQ(safeFormat("%lf %Lf", {1.0, 2.0L}), "1.000000 2.000000");
}

TEST(SafeFormat, AMissingArgumentIsNull) {
  for (const std::string type : {"@", "d", "i", "u", "x", "X", "o", "c", "s", "f", "g", "e", "p"})
    EXPECT_EQ(safeFormat("%" + type, {}), "(null)") << type;
  EXPECT_EQ(safeFormat("%d %d", {1}), "1 (null)");
  EXPECT_EQ(safeFormat("%*.*d", {}), "(null)");
}

TEST(SafeFormat, AnArgumentOfAnotherKindIsNullAndTaken) {
  EXPECT_EQ(safeFormat("%s %d", {5, 6}), "(null) 6");
  EXPECT_EQ(safeFormat("%d %f %@ %p %c", {"text", 1, 2.0, "text", 1.0}),
            "(null) (null) (null) (null) (null)");
  EXPECT_EQ(safeFormat("%s", {kTape}), "(null)");
  EXPECT_EQ(safeFormat("%*d", {"wide", 3}), "3");
}

TEST(SafeFormat, NothingIsNull) {
  const char* noText = nullptr;
  const Describable* noObject = nullptr;
  EXPECT_EQ(safeFormat("%@ %@ %s %p", {noText, noObject, noText, nullptr}),
            "(null) (null) (null) 0x0");
  EXPECT_EQ(safeFormat("%@ %@", {std::optional<std::string>(), std::optional<std::string>("x")}),
            "(null) x");
  EXPECT_EQ(safeFormat("[%8@|%-8d]", {nullptr}), "[  (null)|(null)  ]");
}

TEST(SafeFormat, StoresNothingForN) {
  int stored = 7;
  EXPECT_EQ(safeFormat("a%nb%hhn%d", {&stored, &stored, 3}), "ab3");
  EXPECT_EQ(stored, 7);
  EXPECT_EQ(safeFormat("%n", {}), "");
}

TEST(SafeFormat, WhatIsNoConversionStands) {
  constexpr struct {
    std::string_view format;
    std::string_view text;
  } kRows[] = {
      {"", ""},
      {"plain", "plain"},
      {"%", "%"},
      {"100 %", "100 %"},
      {"%-5.3l", "%-5.3l"},
      {"%y %1$d", "%y %1$d"},
      {"%\xC3\xA9", "%\xC3\xA9"},
      {"a\0%\0b"sv, "a\0%\0b"sv},
  };
  for (const auto& row : kRows) EXPECT_EQ(safeFormat(row.format, {}), row.text);
  EXPECT_EQ(safeFormat("%y%d", {1}), "%y1");
}

TEST(SafeFormat, AFormatCannotAskForEndlessOutput) {
  const std::size_t most = kMostColumns;
  EXPECT_EQ(safeFormat("%999999999d", {1}).size(), most);
  EXPECT_EQ(safeFormat("%99999999999999999999s", {"x"}).size(), most);
  EXPECT_EQ(safeFormat("%*d", {INT_MAX, 1}).size(), most);
  EXPECT_EQ(safeFormat("%*d", {INT_MIN, 1}).size(), most);
  EXPECT_EQ(safeFormat("%.999999999d", {1}).size(), most);
  EXPECT_EQ(safeFormat("%.999999999f", {DBL_MAX}).size(), 309 + 1 + most);
  EXPECT_EQ(safeFormat("%#.2147483647g", {DBL_TRUE_MIN}).size(), most + 5 + 1);
}

TEST(SafeFormat, ALongTextIsNotCut) {
  const std::string text(3 * kMostColumns, 'x');
  EXPECT_EQ(safeFormat("%s|%@", {text, text}), text + "|" + text);
  EXPECT_EQ(safeFormat("%.5000s", {text}).size(), 5000U);
}

TEST(SafeFormat, ATextNeedsNoNulAtItsEnd) {
  const std::vector<char> bytes{'a', 'b', 'c'};
  EXPECT_EQ(safeFormat("%s", {std::string_view(bytes.data(), bytes.size())}), "abc");
  EXPECT_EQ(safeFormat("%s", {"a\0b"sv}), "a\0b"sv);
}

TEST(SafeFormat, AListMadeAtRunTime) {
  const std::vector<FormatArgument> list{1, "two", 3.0};
  EXPECT_EQ(safeFormat("%d %s %.1f", FormatArguments(std::span(list))), "1 two 3.0");
}

TEST(SafeFormat, AChoiceDescribesItself) {
  const TestPlatform platform;
  const OpenPpd ppd = PpdText().onOff("LxHalfCut").open();
  ppd_option_t* option = ppdFindOption(ppd.get(), "LxHalfCut");
  ASSERT_TRUE(option);
  const auto choice = PDEChoice::choiceWithChoice(&option->choices[1]);
  EXPECT_EQ(safeFormat("%@", {*choice}), choice->description());
}

// One of the characters.
char pick(std::mt19937& random, std::string_view from) {
  return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
}

int numberUpTo(std::mt19937& random, int most) {
  return std::uniform_int_distribution<int>(0, most)(random);
}

// "%", flags, a width and a precision.
std::string randomStart(std::mt19937& random, std::string_view flags) {
  std::string format = "%";
  for (int i = numberUpTo(random, 2); i > 0; --i) format += pick(random, flags);
  if (numberUpTo(random, 1)) format += std::to_string(numberUpTo(random, 30));
  if (numberUpTo(random, 1)) format += "." + std::to_string(numberUpTo(random, 20));
  return format;
}

TEST(SafeFormat, PrintsIntegersAsTheCLibraryDoes) {
  std::mt19937 random(1);
  constexpr std::int64_t kEdges[] = {0, 1, -1, 8, 255, INT32_MAX, INT32_MIN, INT64_MAX, INT64_MIN};
  for (int i = 0; i < 20000; ++i) {
    const char type = pick(random, "diuxXo");
    const bool isSigned = type == 'd' || type == 'i';
    const std::string format = randomStart(random, isSigned      ? "-+ 0"
                                                   : type == 'u' ? "-0"
                                                                 : "-#0") +
                               (numberUpTo(random, 1) ? "ll" : "") + type;
    const auto value = numberUpTo(random, 1)
                           ? kEdges[numberUpTo(random, std::size(kEdges) - 1)]
                           : static_cast<std::int64_t>(random()) - (std::int64_t{1} << 31);
    ASSERT_EQ(safeFormat(format, {value}), byTheLibrary(format, value)) << format << " " << value;
  }
}

TEST(SafeFormat, PrintsRealsAsTheCLibraryDoes) {
  std::mt19937 random(2);
  constexpr double kEdges[] = {0.0,          -0.0,     1.0,      0.5,          2.5,
                               99999.5,      999999.5, DBL_MAX,  DBL_TRUE_MIN, 1e-5,
                               0.0001234567, INFINITY, -INFINITY};
  for (int i = 0; i < 20000; ++i) {
    // The library's "%#g" drops digits of a value that it rounds up to the next power of ten.
    const char type = pick(random, "fFeEgG");
    const bool isGeneral = type == 'g' || type == 'G';
    const std::string format = randomStart(random, isGeneral ? "-+ 0" : "-+ #0") + type;
    const double value = numberUpTo(random, 1) ? kEdges[numberUpTo(random, std::size(kEdges) - 1)]
                                               : std::ldexp(static_cast<double>(random()) - 2e9,
                                                            numberUpTo(random, 200) - 100);
    ASSERT_EQ(safeFormat(format, {value}), byTheLibrary(format, value)) << format << " " << value;
  }
}

TEST(SafeFormat, PrintsTextsAndPointersAsTheCLibraryDoes) {
  std::mt19937 random(3);
  for (int i = 0; i < 2000; ++i) {
    const std::string format = randomStart(random, "-") + "s";
    const std::string text(static_cast<std::size_t>(numberUpTo(random, 40)), 'x');
    ASSERT_EQ(safeFormat(format, {text}), byTheLibrary(format, text.c_str())) << format;
  }
  EXPECT_EQ(safeFormat("%p", {&random}), byTheLibrary("%p", static_cast<const void*>(&random)));
  EXPECT_EQ(safeFormat("%20p|", {&random}),
            byTheLibrary("%20p|", static_cast<const void*>(&random)));
}

FormatArgument randomArgument(std::mt19937& random) {
  switch (numberUpTo(random, 6)) {
    case 0:
      return static_cast<std::int64_t>(random()) - (std::int64_t{1} << 31);
    case 1:
      return numberUpTo(random, 40) - 20;
    case 2:
      return random();
    case 3:
      return std::ldexp(static_cast<double>(random()), numberUpTo(random, 2000) - 1000);
    case 4:
      return reinterpret_cast<const void*>(std::uintptr_t{16});  // nothing is there
    case 5:
      return numberUpTo(random, 1) ? "text%s%n" : static_cast<const char*>(nullptr);
    default:
      return numberUpTo(random, 1) ? &kTape : static_cast<const Describable*>(nullptr);
  }
}

// Run under the sanitizers this finds reads and writes that it must not do; everywhere, that a
// format's length bounds its output and that plain text stays.
TEST(SafeFormat, AnyFormatWithAnyArgumentsOnlyPrints) {
  std::mt19937 random(4);
  constexpr std::string_view kAlphabet =
      "%%%%@diuxXocsfFeEgGpn$*.-+ #0123456789hlqjztL'yz\xC3\xA9\0"sv;
  constexpr std::size_t kMostOfOneArgument = 2 * kMostColumns + 400;
  for (int i = 0; i < 100000; ++i) {
    std::string format;
    for (int left = numberUpTo(random, 24); left > 0; --left) format += pick(random, kAlphabet);
    std::vector<FormatArgument> list;
    for (int left = numberUpTo(random, 6); left > 0; --left) list.push_back(randomArgument(random));
    const std::string text = safeFormat("<" + format + ">", FormatArguments(std::span(list)));
    ASSERT_EQ(text.front(), '<') << format;
    ASSERT_LE(text.size(), 2 + format.size() * kMostOfOneArgument) << format;
    const bool isPlain = format.find('%') == format.npos;
    ASSERT_TRUE(!isPlain || text == "<" + format + ">") << format;
  }
}

}  // namespace
}  // namespace cutline::test
