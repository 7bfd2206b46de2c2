#include <gtest/gtest.h>

#include "base/Sentence.h"
#include "base/Visible.h"

namespace cutline {
namespace {

TEST(Visible, WhatIsReadStaysAsItIs) {
  EXPECT_EQ(visible("Étiquette 24 mm \"x\" \\ ラベル"), "Étiquette 24 mm \"x\" \\ ラベル");
  EXPECT_EQ(visible(""), "");
}

TEST(Visible, WhatATerminalWouldObeyIsWrittenOut) {
  EXPECT_EQ(visible("a\x1b[31mb"), "a\\x1b[31mb");
  EXPECT_EQ(visible("a\ncutline: b\r\t"), "a\\ncutline: b\\x0d\\t");
  EXPECT_EQ(visible("\xc2\x9b"
                    "31m\x7f"),
            "\\x9b31m\\x7f");
  EXPECT_EQ(visible("\xe2\x80\xae"
                    "gnp"),
            "\\u202egnp");
  EXPECT_EQ(visible(std::string("a\0b", 3)), "a\\x00b");
}

TEST(Visible, BytesThatAreNoTextAreWrittenOut) {
  EXPECT_EQ(visible("a\xff\xc3"), "a\\xff\\xc3");
  EXPECT_EQ(visible("\xed\xa0\x80"), "\\xed\\xa0\\x80");
}

TEST(Visible, APlainLineHasNoControlsAndIsUtf8) {
  EXPECT_TRUE(isPlainLine("Étiquette 24 mm \"x\" \\ ラベル"));
  EXPECT_TRUE(isPlainLine(""));
  EXPECT_TRUE(isPlainLine("\u0646\u200c\u0627")) << "what joins letters is a part of words";
  for (const char* text : {"a\n", "a\x1b[31mb", "a\tb", "\x7f", "\xc2\x9b", "\xff", "\xc3"})
    EXPECT_FALSE(isPlainLine(text)) << visible(text);
  EXPECT_FALSE(isPlainLine(std::string_view("a\0b", 3)));
}

TEST(Visible, ALongTextIsCutBetweenCharacters) {
  EXPECT_EQ(shortened("abc", 3), "abc");
  EXPECT_EQ(shortened("abcd", 3), "abc...");
  EXPECT_EQ(shortened("aéd", 2), "a...");
}

// Ten megabytes of a name are no help to anybody.
TEST(Visible, ASentenceCutsLongNames) {
  std::string name;
  name.resize(10000000, 'x');
  const Sentence sentence(Phrase("test", "no \"%1\" here"), {name});
  EXPECT_LT(sentence.english().size(), 3000U);
  EXPECT_TRUE(sentence.english().ends_with("...\" here"));
}

}  // namespace
}  // namespace cutline
