#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "platform/lib/InterfaceFile.h"
#include "tests/support/Printers.h"

namespace cutline {
namespace {

std::optional<ViewDescription> interfaceWith(const std::string& viewEntries) {
  const auto list = PropertyList::parseXML("<plist><dict><key>view</key><dict>" + viewEntries +
                                           "</dict></dict></plist>");
  return list ? interfaceInFile(*list) : std::nullopt;
}

std::string entry(const std::string& key, const std::string& value) {
  return "<key>" + key + "</key>" + value;
}

std::string text(const std::string& key, const std::string& value) {
  return entry(key, "<string>" + value + "</string>");
}

const std::string kPlain = text("kind", "View") + text("frame", "{{0, 0}, {560, 284}}");

TEST(InterfaceFile, ReadsEveryEntryOfAControl) {
  const auto view = interfaceWith(
      text("kind", "Stepper") + text("frame", "{{92, -4.5}, {22, 24}}") + text("outlet", "mStpr") +
      text("title", "RS_Title") + text("accessibilityLabel", "RS_Access") +
      text("action", "change:") + entry("delegate", "<true/>") + text("ppdKeyword", "LxCutLabel") +
      entry("minValue", "<integer>1</integer>") + entry("maxValue", "<integer>99</integer>") +
      text("resizing", "minYMargin"));
  ASSERT_TRUE(view);
  EXPECT_EQ(view->kind, ViewKind::stepper);
  EXPECT_EQ(view->frame, (Rect{{92, -4.5}, {22, 24}}));
  EXPECT_EQ(view->outlet, "mStpr");
  EXPECT_EQ(view->title, "RS_Title");
  EXPECT_EQ(view->accessibilityLabel, "RS_Access");
  EXPECT_EQ(view->action, "change:");
  EXPECT_TRUE(view->delegate);
  EXPECT_EQ(view->ppdKeyword, "LxCutLabel");
  EXPECT_EQ(view->minValue, 1);
  EXPECT_EQ(view->maxValue, 99);
  EXPECT_EQ(view->resizing, Autoresizing::minYMargin);
}

TEST(InterfaceFile, ControlsKeepToTheTopUnlessTheFileSaysOtherwise) {
  const auto view =
      interfaceWith(kPlain + entry("subviews", "<array><dict>" + kPlain + "</dict><dict>" + kPlain +
                                                   text("resizing", "none") + "</dict></array>"));
  ASSERT_TRUE(view);
  EXPECT_EQ(view->resizing, Autoresizing::none);
  ASSERT_EQ(view->subviews.size(), 2U);
  EXPECT_EQ(view->subviews[0].resizing, Autoresizing::minYMargin);
  EXPECT_EQ(view->subviews[1].resizing, Autoresizing::none);
}

TEST(InterfaceFile, ReadsTheEntriesOfAPopUpInOrder) {
  const auto view = interfaceWith(
      text("kind", "PopUpButton") + text("frame", "{{0,0},{1,1}}") +
      entry("items", "<array><dict>" + text("title", "B") + entry("tag", "<integer>7</integer>") +
                         text("description", "RS_B") + "</dict><dict>" + text("title", "A") +
                         entry("tag", "<integer>-1</integer>") + "</dict></array>"));
  ASSERT_TRUE(view);
  ASSERT_EQ(view->items.size(), 2U);
  EXPECT_EQ(view->items[0].title, "B");
  EXPECT_EQ(view->items[0].tag, 7);
  EXPECT_EQ(view->items[0].description, "RS_B");
  EXPECT_EQ(view->items[1].tag, -1);
  EXPECT_EQ(view->items[1].description, "");
}

const std::string kField = text("kind", "TextField") + text("frame", "{{0, 0}, {52, 22}}");

std::string formatter(const std::string& entries) {
  return kField + entry("formatter", "<dict>" + entries + "</dict>");
}

TEST(InterfaceFile, ReadsTheClassesOfATextField) {
  const auto view = interfaceWith(
      formatter(
          text("class", "PDEFormatter") + text("formatString", "%d mm") +
          entry("textStyle", "<integer>2</integer>") + entry("maxLength", "<integer>3</integer>") +
          entry("minValue", "<integer>-1</integer>") + entry("maxValue", "<integer>255</integer>") +
          entry("invalidCharacters", "<array><string>a</string><string/></array>")) +
      text("class", "PDETextField13_v400_"));
  ASSERT_TRUE(view);
  EXPECT_EQ(view->className, "PDETextField13_v400_");
  ASSERT_TRUE(view->formatter);
  EXPECT_EQ(view->formatter->className, "PDEFormatter");
  EXPECT_EQ(view->formatter->formatString, "%d mm");
  EXPECT_EQ(view->formatter->textStyle, 2);
  EXPECT_EQ(view->formatter->maxLength, 3);
  EXPECT_EQ(view->formatter->minValue, -1);
  EXPECT_EQ(view->formatter->maxValue, 255);
  EXPECT_EQ(view->formatter->invalidCharacters, (std::vector<std::string>{"a", ""}));
}

TEST(InterfaceFile, ReadsWhetherLimitsAreChecked) {
  const auto view = interfaceWith(
      formatter(text("class", "F") + entry("minValue", "<integer>1</integer>") +
                entry("validityMinValue", "<false/>") + entry("validityMaxValue", "<true/>")));
  ASSERT_TRUE(view && view->formatter);
  EXPECT_EQ(view->formatter->validityMinValue, false);
  EXPECT_EQ(view->formatter->validityMaxValue, true);
  EXPECT_EQ(view->formatter->minValue, 1);
  EXPECT_FALSE(view->formatter->maxValue);
}

TEST(InterfaceFile, ReadsTheDateOfAFormatterAndItsNames) {
  using namespace std::chrono;
  const auto view = interfaceWith(
      formatter(text("class", "F") + entry("calendarDate", "<date>2026-05-01T08:00:00Z</date>") +
                entry("calendarLocale",
                      "<dict><key>NSAMPMDesignation</key><array><string>vorm.</string>"
                      "<string>nachm.</string></array></dict>")));
  ASSERT_TRUE(view && view->formatter);
  EXPECT_EQ(view->formatter->calendarDate, sys_days(2026y / May / 1) + 8h);
  const FormatterDescription::NameLists names = {{"NSAMPMDesignation", {"vorm.", "nachm."}}};
  EXPECT_EQ(view->formatter->calendarLocale, names);
}

std::string about(const std::string& entries) {
  return formatter(text("class", "F") +
                   entry("notificationObject", "<dict>" + entries + "</dict>"));
}

TEST(InterfaceFile, ReadsWhatNotificationsOfAFormatterAreAbout) {
  const auto ofOutlet = interfaceWith(about(text("outlet", "mField")) + text("outlet", "mField"));
  ASSERT_TRUE(ofOutlet && ofOutlet->notificationObject);
  EXPECT_EQ(ofOutlet->notificationObject->outlet, "mField");
  const auto ofOwner = interfaceWith(about(entry("owner", "<true/>")));
  ASSERT_TRUE(ofOwner && ofOwner->notificationObject);
  EXPECT_TRUE(ofOwner->notificationObject->owner);
  const auto ofText = interfaceWith(about(text("text", "")));
  ASSERT_TRUE(ofText && ofText->notificationObject);
  EXPECT_EQ(ofText->notificationObject->text, "");
}

TEST(InterfaceFile, AnOutletThatNotificationsAreAboutMayComeLaterInTheFile) {
  const std::string label = text("kind", "Label") + text("frame", "{{0, 0}, {1, 1}}");
  const std::string subviews = "<array><dict>" + about(text("outlet", "mLabel")) + "</dict><dict>" +
                               label + text("outlet", "mLabel") + "</dict></array>";
  EXPECT_TRUE(interfaceWith(kPlain + entry("subviews", subviews)));
}

TEST(InterfaceFile, SaysNothingOfAFormatterThatTheFileDoesNotSay) {
  const auto view = interfaceWith(formatter(text("class", "PDEFormatter")));
  ASSERT_TRUE(view && view->formatter);
  EXPECT_FALSE(view->formatter->formatString);
  EXPECT_FALSE(view->formatter->textStyle);
  EXPECT_FALSE(view->formatter->maxLength);
  EXPECT_FALSE(view->formatter->minValue);
  EXPECT_FALSE(view->formatter->maxValue);
  EXPECT_FALSE(view->formatter->validityMinValue);
  EXPECT_FALSE(view->formatter->validityMaxValue);
  EXPECT_FALSE(view->formatter->calendarDate);
  EXPECT_FALSE(view->formatter->calendarLocale);
  EXPECT_FALSE(view->notificationObject);
  EXPECT_TRUE(view->formatter->invalidCharacters.empty());
  EXPECT_EQ(view->className, "");
  EXPECT_FALSE(interfaceWith(kField)->formatter);
}

TEST(InterfaceFile, EntriesOfOtherNamesAreIgnored) {
  EXPECT_TRUE(interfaceWith(kPlain + text("note", "x")));
}

struct FrameRow {
  const char* name;
  std::string frame;
  std::optional<Rect> rect;
};

class InterfaceFrames : public testing::TestWithParam<FrameRow> {};

TEST_P(InterfaceFrames, AreReadOrRefused) {
  const auto view = interfaceWith(text("kind", "View") + text("frame", GetParam().frame));
  ASSERT_EQ(view.has_value(), GetParam().rect.has_value());
  if (!view) return;
  EXPECT_EQ(view->frame, *GetParam().rect);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InterfaceFrames,
    testing::Values(FrameRow{"Blanks", " { { 1 , 2 } , { 3 , 4 } } ", Rect{{1, 2}, {3, 4}}},
                    FrameRow{"Tight", "{{1,2},{3,4}}", Rect{{1, 2}, {3, 4}}},
                    FrameRow{"Fractions", "{{0.5, -2}, {3.25, 0}}", Rect{{0.5, -2}, {3.25, 0}}},
                    FrameRow{"Empty", "", std::nullopt},
                    FrameRow{"Flat", "{1, 2, 3, 4}", std::nullopt},
                    FrameRow{"ThreeNumbers", "{{1, 2}, {3}}", std::nullopt},
                    FrameRow{"FiveNumbers", "{{1, 2}, {3, 4, 5}}", std::nullopt},
                    FrameRow{"NotClosed", "{{1, 2}, {3, 4}", std::nullopt},
                    FrameRow{"TextAfter", "{{1, 2}, {3, 4}} x", std::nullopt},
                    FrameRow{"Words", "{{a, b}, {c, d}}", std::nullopt},
                    FrameRow{"Units", "{{1pt, 2}, {3, 4}}", std::nullopt},
                    FrameRow{"NegativeWidth", "{{1, 2}, {-3, 4}}", std::nullopt},
                    FrameRow{"NegativeHeight", "{{1, 2}, {3, -4}}", std::nullopt},
                    FrameRow{"NotANumber", "{{nan, 2}, {3, 4}}", std::nullopt},
                    FrameRow{"Infinite", "{{1, 2}, {inf, 4}}", std::nullopt},
                    FrameRow{"FarAway", "{{1, 2}, {3, 1e9}}", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

struct BadInterface {
  const char* name;
  std::string entries;
};

class DamagedInterfaces : public testing::TestWithParam<BadInterface> {};

TEST_P(DamagedInterfaces, AreRefused) { EXPECT_FALSE(interfaceWith(GetParam().entries)); }

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedInterfaces,
    testing::Values(
        BadInterface{"NoKind", text("frame", "{{0, 0}, {1, 1}}")},
        BadInterface{"NoFrame", text("kind", "View")},
        BadInterface{"UnknownKind", text("kind", "Slider") + text("frame", "{{0, 0}, {1, 1}}")},
        BadInterface{"KindIsANumber",
                     entry("kind", "<integer>1</integer>") + text("frame", "{{0, 0}, {1, 1}}")},
        BadInterface{"FrameIsAnArray", text("kind", "View") + entry("frame", "<array/>")},
        BadInterface{"OutletIsANumber", kPlain + entry("outlet", "<integer>1</integer>")},
        BadInterface{"TitleIsABoolean", kPlain + entry("title", "<true/>")},
        BadInterface{"ActionIsAnArray", kPlain + entry("action", "<array/>")},
        BadInterface{"DelegateIsText", kPlain + text("delegate", "yes")},
        BadInterface{"BoundIsText", kPlain + text("minValue", "1")},
        BadInterface{"BoundIsAFraction", kPlain + entry("maxValue", "<real>1.5</real>")},
        BadInterface{"BoundIsHuge", kPlain + entry("maxValue", "<integer>99999999999</integer>")},
        BadInterface{"BoundsCrossed", kPlain + entry("minValue", "<integer>5</integer>") +
                                          entry("maxValue", "<integer>4</integer>")},
        BadInterface{"UnknownResizing", kPlain + text("resizing", "both")},
        BadInterface{"SubviewsAreADictionary", kPlain + entry("subviews", "<dict/>")},
        BadInterface{"SubviewIsText",
                     kPlain + entry("subviews", "<array><string>x</string></array>")},
        BadInterface{"SubviewIsDamaged", kPlain + entry("subviews", "<array><dict/></array>")},
        BadInterface{"ItemsAreText", kPlain + text("items", "x")},
        BadInterface{
            "ItemWithoutTag",
            kPlain + entry("items", "<array><dict>" + text("title", "A") + "</dict></array>")},
        BadInterface{
            "ItemWithoutTitle",
            kPlain + entry("items", "<array><dict>" + entry("tag", "<integer>1</integer>") +
                                        "</dict></array>")},
        BadInterface{"ClassIsANumber", kField + entry("class", "<integer>1</integer>")},
        BadInterface{"FormatterIsText", kField + text("formatter", "PDEFormatter")},
        BadInterface{"FormatterWithoutClass", formatter(text("formatString", "%@"))},
        BadInterface{"FormatterClassIsABoolean", formatter(entry("class", "<true/>"))},
        BadInterface{"FormatStringIsANumber",
                     formatter(text("class", "F") + entry("formatString", "<integer>1</integer>"))},
        BadInterface{"TextStyleIsText", formatter(text("class", "F") + text("textStyle", "2"))},
        BadInterface{"MaxLengthIsAFraction",
                     formatter(text("class", "F") + entry("maxLength", "<real>1.5</real>"))},
        BadInterface{"MinValueIsABoolean",
                     formatter(text("class", "F") + entry("minValue", "<false/>"))},
        BadInterface{
            "MaxValueIsHuge",
            formatter(text("class", "F") + entry("maxValue", "<integer>99999999999</integer>"))},
        BadInterface{"InvalidCharactersAreText",
                     formatter(text("class", "F") + text("invalidCharacters", "abc"))},
        BadInterface{"InvalidCharacterIsANumber",
                     formatter(text("class", "F") +
                               entry("invalidCharacters", "<array><integer>1</integer></array>"))},
        BadInterface{
            "ValidityIsANumber",
            formatter(text("class", "F") + entry("validityMinValue", "<integer>1</integer>"))},
        BadInterface{"NotificationObjectIsText",
                     formatter(text("class", "F") + text("notificationObject", "mField"))},
        BadInterface{"NotificationObjectIsNothing", about("")},
        BadInterface{"NotificationObjectIsNotTheOwner", about(entry("owner", "<false/>"))},
        BadInterface{"NotificationObjectsAreTwo",
                     about(text("text", "a") + entry("owner", "<true/>"))},
        BadInterface{"NotificationOutletIsANumber", about(entry("outlet", "<integer>1</integer>"))},
        BadInterface{"NotificationOutletIsNowhere", about(text("outlet", "mField"))},
        BadInterface{"DateIsText",
                     formatter(text("class", "F") + text("calendarDate", "2026-05-01"))},
        BadInterface{"LocaleIsAnArray",
                     formatter(text("class", "F") + entry("calendarLocale", "<array/>"))},
        BadInterface{"NamesAreText",
                     formatter(text("class", "F") +
                               entry("calendarLocale",
                                     "<dict>" + text("NSMonthNameArray", "May") + "</dict>"))},
        BadInterface{"OutletTwice",
                     kPlain + text("outlet", "mBox") +
                         entry("subviews", "<array><dict>" + kPlain + text("outlet", "mBox") +
                                               "</dict></array>")}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(InterfaceFile, AFileWithoutAViewIsNoInterface) {
  for (const char* file : {"<plist><dict/></plist>", "<plist><array/></plist>",
                           "<plist><dict><key>view</key><string>x</string></dict></plist>"}) {
    const auto list = PropertyList::parseXML(file);
    ASSERT_TRUE(list) << file;
    EXPECT_FALSE(interfaceInFile(*list)) << file;
  }
}

}  // namespace
}  // namespace cutline
