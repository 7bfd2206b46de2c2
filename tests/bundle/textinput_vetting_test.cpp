// Which edits the formatter refuses, with which notification, about which object.
#include <climits>
#include <cstdint>

#include "tests/bundle/FormatterTest.h"

namespace cutline::test {
namespace {

constexpr char kInvalid[] = "InvalidCharacterNotification";
constexpr char kFormatError[] = "FormatErrorNotification";

class Vetting : public FormatterTest {
 protected:
  using FormatterTest::FormatterTest;

  void useStrictest() {
    useStyle(2);
    formatter->setMaxLength(1);
    formatter->setMaxValue(-1);
    formatter->setMinValue(INT_MAX);
    formatter->addInvalidCharacter("1");
  }
};

TEST_F(Vetting, DeletingIsAlwaysAccepted) {
  useStrictest();
  EXPECT_TRUE(replace(u"あbc!", {1, 1}, u""));
  EXPECT_TRUE(edit(u"abc", {3, 0}, u"ab", {2, 0}));  // the key that deletes backwards
  EXPECT_TRUE(edit(u"abc", {0, 0}, u"bc", {0, 0}));  // the one that deletes forwards
}

TEST_F(Vetting, ClearingTheFieldIsAlwaysAccepted) {
  useStrictest();
  EXPECT_TRUE(replace(u"abc", {0, 3}, u""));
  EXPECT_TRUE(edit(u"", {0, 0}, u"", {5, 0}));
}

TEST_F(Vetting, AChangeThatEndsWhereItBeganIsAccepted) {
  useStrictest();
  EXPECT_TRUE(edit(u"12", {2, 0}, u"xx", {2, 0}));
  EXPECT_TRUE(edit(u"12", {2, 0}, u"xxx", {1, 0}));
}

TEST_F(Vetting, WithoutATextOrASelectionThereIsNothingToVet) {
  useStrictest();
  std::optional<std::u16string> text = u"x";
  std::optional<std::u16string> absent;
  TextRange range{1, 0};
  EXPECT_TRUE(formatter->isPartialStringValid(nullptr, &range, u"", {}, nullptr));
  EXPECT_TRUE(formatter->isPartialStringValid(&absent, &range, u"", {}, nullptr));
  EXPECT_TRUE(formatter->isPartialStringValid(&text, nullptr, u"", {}, nullptr));
  EXPECT_FALSE(formatter->isPartialStringValid(&text, &range, u"", {}, nullptr));
  EXPECT_EQ(absent, std::nullopt);
  EXPECT_EQ(posted.size(), 1U);
  EXPECT_EQ(platform.toolkit.beepCount(), 1);
}

TEST_F(Vetting, WhatLiesOutsideTheTextCannotBeTakenAndIsAccepted) {
  useStrictest();
  EXPECT_TRUE(edit(u"", {0, 0}, u"x", {2, 0}));
  EXPECT_TRUE(edit(u"", {1, 0}, u"x", {2, 0}));
  EXPECT_TRUE(edit(u"", {7, 0}, u"x", {9, 0}));
  EXPECT_TRUE(edit(u"", {0, 0}, u"x", {SIZE_MAX, 0}));
  EXPECT_TRUE(edit(u"", {SIZE_MAX - 1, 5}, u"x", {SIZE_MAX, SIZE_MAX}));
  EXPECT_FALSE(edit(u"", {0, 0}, u"x", {1, 0}));
}

TEST_F(Vetting, OnlyTheTypedCharactersAreChecked) {
  useStyle(2);
  EXPECT_TRUE(type(u"あx", u"1"));
  EXPECT_TRUE(edit(u"ab", {1, 0}, u"a1b", {2, 0}));
  EXPECT_FALSE(edit(u"ab", {0, 0}, u"a1b", {2, 0}));
  EXPECT_TRUE(replace(u"x1x", {0, 2}, u"3"));
}

TEST_F(Vetting, APasteWithOneBadCharacterIsRefusedWholeWithOneBeepAndOneNotification) {
  useStyle(2);
  EXPECT_FALSE(type(u"", u"12x34"));
  EXPECT_FALSE(type(u"", u"x1"));
  EXPECT_FALSE(type(u"", u"xyz"));
  EXPECT_EQ(posted.size(), 3U);
  EXPECT_EQ(platform.toolkit.beepCount(), 3);
  for (const Notification& notification : posted) {
    EXPECT_EQ(notification.name, kInvalid);
    EXPECT_EQ(notification.object, formatterItself());
  }
  EXPECT_TRUE(type(u"", u"1234"));
}

TEST_F(Vetting, AMaximumIsComparedWhenTheLengthIsReached) {
  useStyle(2);
  formatter->setMaxLength(3);
  formatter->setMaxValue(255);
  EXPECT_FALSE(type(u"25", u"6"));
  EXPECT_EQ(lastName(), kFormatError);
  EXPECT_EQ(lastObject(), formatterItself());
  EXPECT_TRUE(type(u"25", u"5"));
  EXPECT_TRUE(type(u"2", u"9"));
  EXPECT_FALSE(type(u"", u"999"));
  EXPECT_EQ(lastName(), kFormatError);
}

TEST_F(Vetting, ALongerTextIsTooLongBeforeItIsTooLarge) {
  useStyle(2);
  formatter->setMaxLength(3);
  formatter->setMaxValue(255);
  EXPECT_FALSE(type(u"999", u"9"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(Vetting, AMinimumIsComparedAtOnceWithoutALengthLimit) {
  useStyle(2);
  formatter->setMinValue(10);
  EXPECT_FALSE(type(u"", u"5"));
  EXPECT_EQ(lastName(), kFormatError);
  EXPECT_EQ(lastObject(), formatterItself());
  EXPECT_TRUE(type(u"", u"10"));
  formatter->setMaxLength(2);
  EXPECT_TRUE(type(u"", u"5"));
  EXPECT_FALSE(type(u"0", u"5"));
}

TEST_F(Vetting, LimitsAreInclusiveAndCanBeSwitchedOff) {
  useStyle(2);
  formatter->setMinValue(10);
  formatter->setMaxValue(20);
  EXPECT_TRUE(type(u"", u"10"));
  EXPECT_TRUE(type(u"", u"20"));
  EXPECT_FALSE(type(u"", u"9"));
  EXPECT_FALSE(type(u"", u"21"));
  formatter->setValidityMinValue(false);
  EXPECT_TRUE(type(u"", u"9"));
  EXPECT_FALSE(type(u"", u"21"));
  formatter->setValidityMaxValue(false);
  EXPECT_TRUE(type(u"", u"21"));
}

TEST_F(Vetting, ALimitOfZeroIsALimitWhenItWasSet) {
  useStyle(2);
  EXPECT_TRUE(type(u"", u"1"));
  formatter->setMaxValue(0);
  EXPECT_FALSE(type(u"", u"1"));
  EXPECT_TRUE(type(u"", u"0"));
}

TEST_F(Vetting, TheValueIsTheWholeTextsLeadingInteger) {
  useStyle(4);
  formatter->setMaxValue(19);
  EXPECT_TRUE(type(u"19", u".99"));
  EXPECT_FALSE(type(u"20.", u"1"));
  EXPECT_EQ(lastName(), kFormatError);
  EXPECT_FALSE(replace(u"9", {0, 0}, u"9"));
  EXPECT_TRUE(replace(u"x9", {2, 0}, u"9"));
  EXPECT_TRUE(replace(u"-9", {2, 0}, u"9"));
  EXPECT_FALSE(replace(u" \t9", {3, 0}, u"9"));
  EXPECT_TRUE(type(u"", u"."));
}

TEST_F(Vetting, AValueBeyond32BitsIsTheLargest) {
  useStyle(2);
  formatter->setMaxValue(INT_MAX);
  EXPECT_TRUE(type(u"", u"99999999999999999999"));
  formatter->setMaxValue(INT_MAX - 1);
  EXPECT_FALSE(type(u"", u"99999999999999999999"));
  EXPECT_FALSE(type(u"", u"4294967296"));
  EXPECT_TRUE(type(u"", u"2147483646"));
}

TEST_F(Vetting, OtherStylesHaveNoValue) {
  for (const std::int32_t style : {0, 1, 3, 5, 6, 7, 8, 9, 10, 11, 12}) {
    useStyle(style);
    formatter->setMaxValue(1);
    formatter->setMinValue(3);
    EXPECT_TRUE(type(u"", u"2")) << style;
  }
}

TEST_F(Vetting, TheLastFaultOfAPasteCounts) {
  useStyle(2);
  formatter->setMaxValue(5);
  EXPECT_FALSE(type(u"", u"9x"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_FALSE(type(u"7", u"x9"));
  EXPECT_EQ(lastName(), kFormatError);
}

TEST_F(Vetting, TextThatIsNotAsciiIsRefusedAsAWholeBeforeItsValueIs) {
  useStyle(2);
  formatter->setMaxValue(5);
  EXPECT_FALSE(type(u"", u"é9"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_FALSE(type(u"7", u"é9"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(Vetting, ASecondDecimalPointIsRefused) {
  useStyle(4);
  EXPECT_FALSE(type(u"1.5", u"."));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), formatterItself());
  EXPECT_TRUE(type(u"", u"."));
  EXPECT_TRUE(type(u"15", u"."));
  EXPECT_FALSE(type(u".", u"."));
}

TEST_F(Vetting, APointIsSecondWhereTheTextBeforeHadOne) {
  useStyle(4);
  EXPECT_TRUE(type(u"", u"1.2.3"));               // there was none yet
  EXPECT_FALSE(replace(u"1.5", {0, 3}, u"2.5"));  // though the first goes with the selection
  EXPECT_TRUE(replace(u"1.5", {0, 3}, u"25"));
  formatter->setMaxValue(0);
  EXPECT_FALSE(type(u"1.5", u"."));
  EXPECT_EQ(lastName(), kInvalid);  // the point comes before the value
}

TEST_F(Vetting, OtherStylesTakeASecondPoint) {
  for (const std::int32_t style : {0, 1, 7, 8, 9, 10, 11}) {
    useStyle(style);
    EXPECT_TRUE(type(u"1.5", u".")) << style;
  }
}

TEST_F(Vetting, StyleSevenTakesLowerCaseAndRefusesTheNumberSign) {
  useStyle(7);
  EXPECT_TRUE(type(u"", u"a"));
  EXPECT_FALSE(type(u"", u"#"));
  EXPECT_EQ(lastName(), kInvalid);
}

TEST_F(Vetting, StyleZeroTakesAnyCharacter) {
  useStyle(0);
  for (const char16_t* text : {u"あ", u"😀", u"\u00AD", u"x\n\t", u"é"}) {
    EXPECT_TRUE(type(u"", text));
  }
  EXPECT_TRUE(type(u"", {0xD83D}));
  EXPECT_TRUE(type(u"", {u'\0'}));
}

TEST_F(Vetting, StyleZeroRefusesTheForbiddenAndTheTooLong) {
  useStyle(0);
  formatter->addInvalidCharacter("あ");
  EXPECT_FALSE(type(u"", u"あ"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), characterAsObject("あ"));
  formatter->setMaxLength(4);
  EXPECT_TRUE(type(u"a", u"い"));
  EXPECT_FALSE(type(u"ab", u"い"));
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(Vetting, AForbiddenStringIsRefusedWhenTypedAsOnePiece) {
  useStyle(10);
  formatter->addInvalidCharacter("a");
  formatter->addInvalidCharacter("xy");
  EXPECT_FALSE(type(u"b", u"a"));
  EXPECT_EQ(lastObject(), characterAsObject("a"));
  EXPECT_TRUE(type(u"", u"ab"));
  EXPECT_TRUE(type(u"x", u"y"));
  EXPECT_FALSE(type(u"", u"xy"));
  EXPECT_EQ(lastObject(), characterAsObject("y"));
  formatter->removeInvalidCharacter("xy");
  EXPECT_TRUE(type(u"", u"xy"));
}

TEST_F(Vetting, AForbiddenPairIsNamedByWhatUtf8CanHold) {
  formatter->addInvalidCharacter("😀");
  formatter->addInvalidCharacter("\uFFFD");
  EXPECT_FALSE(type(u"", u"😀"));
  EXPECT_EQ(lastObject(), characterAsObject("\uFFFD"));
  // Half a pair is no entry, not even the one that stands in its place in notifications.
  EXPECT_TRUE(type(u"", {0xD83D}));
  EXPECT_FALSE(type(u"", u"\uFFFD"));
}

TEST_F(Vetting, AnEmptyForbiddenStringForbidsNothing) {
  formatter->addInvalidCharacter("");
  EXPECT_TRUE(type(u"", u"a"));
}

TEST_F(Vetting, TheEncodingNamesTheCharacterAlsoWhereTheLengthIsExceeded) {
  useStyle(1);
  formatter->setMaxLength(1);
  EXPECT_FALSE(type(u"ab", u"あ"));
  EXPECT_EQ(lastObject(), characterAsObject("あ"));
  EXPECT_FALSE(type(u"ab", u"é"));  // in Mac Roman: only the length and ASCII are against it
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(Vetting, TheLengthIsThatOfTheWholeTextAndZeroIsNoLimit) {
  useStyle(6);
  EXPECT_TRUE(type(std::u16string(5000, u'a'), u"b"));
  formatter->setMaxLength(3);
  EXPECT_TRUE(type(u"ab", u"c"));
  EXPECT_FALSE(type(u"abc", u"d"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), formatterItself());
  EXPECT_TRUE(replace(u"abc", {1, 1}, u"d"));
  EXPECT_FALSE(replace(u"abc", {1, 1}, u"de"));
  EXPECT_TRUE(edit(u"abcdef", {6, 0}, u"abcde", {5, 0}));
}

TEST_F(Vetting, ANegativeLimitIsExceededByAnyText) {
  formatter->setMaxLength(-1);
  EXPECT_FALSE(type(u"", u"a"));
}

class JapaneseVetting : public Vetting {
 protected:
  JapaneseVetting() : Vetting("Shift_JIS") {}
};

TEST_F(JapaneseVetting, ACharacterOfTwoBytesCountsAsTwo) {
  formatter->setMaxLength(4);
  EXPECT_TRUE(type(u"あ", u"い"));
  EXPECT_FALSE(type(u"あい", u"a"));
  EXPECT_TRUE(type(u"aあ", u"b"));
  EXPECT_FALSE(type(u"aあ", u"い"));
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(JapaneseVetting, ANumberIsCompleteWhenItsBytesReachTheLength) {
  useStyle(2);
  formatter->setMaxLength(4);
  formatter->setMaxValue(20);
  EXPECT_TRUE(type(u"3", u"0"));
  EXPECT_FALSE(type(u"30あ", u"1"));  // five bytes
  EXPECT_EQ(lastName(), kInvalid);
  EXPECT_FALSE(edit(u"3あ", {1, 0}, u"30あ", {2, 0}));  // four
  EXPECT_EQ(lastName(), kFormatError);
}

TEST_F(JapaneseVetting, TextOutsideTheSystemsEncodingIsCountedInCharacters) {
  formatter->setMaxLength(4);
  ASSERT_FALSE(platform.encodings.encode("é", TextEncoding::system));
  EXPECT_TRUE(type(u"éああ", u"あ"));
  EXPECT_FALSE(type(u"ééあa", u"b"));
  EXPECT_TRUE(type(u"é", u"😀"));  // a pair is two
  EXPECT_FALSE(type(u"éab", u"😀"));
}

TEST_F(Vetting, UTF8CountsItsBytesAndHalfAPairMakesItCountCharacters) {
  formatter->setMaxLength(4);
  EXPECT_TRUE(type(u"", u"😀"));
  EXPECT_FALSE(type(u"a", u"😀"));
  EXPECT_TRUE(type(u"あ", {u'a'}));
  EXPECT_FALSE(type(u"あ", {u'a', u'b'}));
  EXPECT_TRUE(type(u"あ", {u'a', u'b', 0xD83D}));
  EXPECT_FALSE(type(u"あ", {u'a', u'b', u'c', 0xD83D}));
}

TEST_F(Vetting, NotificationsAreAboutTheObjectThatWasSet) {
  const auto object = std::make_shared<const int>(1);
  useStyle(2);
  formatter->setMaxValue(5);
  formatter->setNotificationObject(object);
  const NotificationObject expected = static_cast<const void*>(object.get());
  EXPECT_FALSE(type(u"", u"x"));
  EXPECT_EQ(lastObject(), expected);
  EXPECT_FALSE(type(u"", u"6"));
  EXPECT_EQ(lastName(), kFormatError);
  EXPECT_EQ(lastObject(), expected);
  EXPECT_FALSE(type(u"", u"あ"));
  EXPECT_EQ(lastObject(), characterAsObject("あ"));
  formatter->setNotificationObject(nullptr);
  EXPECT_FALSE(type(u"", u"x"));
  EXPECT_EQ(lastObject(), formatterItself());
}

TEST_F(Vetting, TheBeepSoundsBeforeTheNotificationAndAListenerMayLetTheFormatterGo) {
  useStyle(2);
  int beepsWhenHeard = 0;
  platform.center.addObserver(&beepsWhenHeard,
                              [&](const Notification&) {
                                beepsWhenHeard = platform.toolkit.beepCount();
                                formatter.reset();
                              },
                              kInvalid, {});
  std::optional<std::u16string> text = u"x";
  TextRange range{1, 0};
  EXPECT_FALSE(formatter->isPartialStringValid(&text, &range, u"", {}, nullptr));
  EXPECT_EQ(beepsWhenHeard, 1);
  EXPECT_FALSE(formatter);
}

TEST_F(Vetting, WithoutAToolkitARefusalIsSilentAndStillReported) {
  useStyle(2);
  platform.dropToolkit();
  std::optional<std::u16string> text = u"x";
  TextRange range{1, 0};
  EXPECT_FALSE(formatter->isPartialStringValid(&text, &range, u"", {}, nullptr));
  EXPECT_EQ(lastName(), kInvalid);
}

TEST_F(Vetting, WithoutEncodingsNothingIsInThem) {
  platform.dropTextEncodings();
  useStyle(1);
  EXPECT_FALSE(type(u"", u"a"));
  EXPECT_EQ(lastObject(), characterAsObject("a"));
  useStyle(0);
  formatter->setMaxLength(2);
  EXPECT_TRUE(type(u"あ", u"い"));  // counted in characters
  EXPECT_FALSE(type(u"あい", u"う"));
}

TEST_F(Vetting, WithoutAPlatformTheProcessesOwnCentreHears) {
  const Platform before = setCurrentPlatform({});
  NotificationCenter& center = NotificationCenter::defaultCenter();
  int heard = 0;
  center.addObserver(
      &heard, [&](const Notification&) { ++heard; }, kInvalid, formatterItself());
  formatter->setMaxLength(1);
  std::optional<std::u16string> text = u"ab";
  TextRange range{2, 0};
  EXPECT_FALSE(formatter->isPartialStringValid(&text, &range, u"a", {1, 0}, nullptr));
  center.removeObserver(&heard, kInvalid, {});
  setCurrentPlatform(before);
  EXPECT_EQ(heard, 1);
  EXPECT_TRUE(posted.empty());
}

TEST_F(Vetting, ALongPasteIsVettedInNoTime) {
  useStyle(4);
  formatter->setMaxValue(5);
  EXPECT_FALSE(type(u"1", std::u16string(200000, u'1') + std::u16string(200000, u'.')));
  EXPECT_EQ(lastName(), kFormatError);
}

}  // namespace
}  // namespace cutline::test
