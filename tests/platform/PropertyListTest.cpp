#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/lib/PropertyList.h"

namespace cutline {
namespace {

std::optional<PropertyList> parseValue(const std::string& value) {
  return PropertyList::parseXML(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + value + "</plist>\n");
}

std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

struct TextRow {
  const char* name;
  std::string xml;
  std::string text;
};

class PropertyListTexts : public testing::TestWithParam<TextRow> {};

TEST_P(PropertyListTexts, AreRead) {
  const auto list = parseValue(GetParam().xml);
  ASSERT_TRUE(list);
  ASSERT_TRUE(list->string());
  EXPECT_EQ(*list->string(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PropertyListTexts,
    testing::Values(TextRow{"Plain", "<string>Half cut</string>", "Half cut"},
                    TextRow{"Empty", "<string/>", ""},
                    TextRow{"Entities", "<string>&lt;&amp;&gt;&quot;</string>", "<&>\""},
                    TextRow{"CharacterReferences", "<string>&#65;&#x42;</string>", "AB"},
                    TextRow{"Unicode", "<string>Bänder 라벨 \xF0\x9F\x8F\xB7</string>",
                            "Bänder 라벨 \xF0\x9F\x8F\xB7"},
                    TextRow{"CharacterData", "<string><![CDATA[<x>]]></string>", "<x>"},
                    TextRow{"AfterAComment", "<!-- a title --><string>x</string>", "x"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PropertyList, ReadsNumbersOfBothKinds) {
  EXPECT_EQ(parseValue("<integer>284</integer>")->number(), 284);
  EXPECT_EQ(parseValue("<integer>-5</integer>")->number(), -5);
  EXPECT_EQ(parseValue("<real>2.5</real>")->number(), 2.5);
  EXPECT_FALSE(parseValue("<string>7</string>")->number());
}

TEST(PropertyList, ReadsBooleans) {
  EXPECT_EQ(*parseValue("<true/>")->boolean(), true);
  EXPECT_EQ(*parseValue("<false/>")->boolean(), false);
  EXPECT_FALSE(parseValue("<integer>1</integer>")->boolean());
}

TEST(PropertyList, ReadsNestedContainersInOrder) {
  const auto list = parseValue(
      "<dict><key>view</key><dict><key>subviews</key><array><string>a</string><string>b</string>"
      "</array></dict></dict>");
  ASSERT_TRUE(list);
  const PropertyList* subviews = list->objectForKey("view")->objectForKey("subviews");
  ASSERT_TRUE(subviews && subviews->array());
  ASSERT_EQ(subviews->array()->size(), 2U);
  EXPECT_EQ(*(*subviews->array())[0].string(), "a");
  EXPECT_EQ(*(*subviews->array())[1].string(), "b");
}

TEST(PropertyList, AnswersNullForAMissingEntryAndForNoDictionary) {
  EXPECT_EQ(parseValue("<dict/>")->objectForKey("view"), nullptr);
  EXPECT_EQ(parseValue("<true/>")->objectForKey("view"), nullptr);
  EXPECT_EQ(PropertyList().objectForKey("view"), nullptr);
}

TEST(PropertyList, ReadsDates) {
  using namespace std::chrono;
  const auto list = parseValue(
      "<array><date>2020-02-29T12:34:56Z</date><date>2001-01-01T00:00:00Z</date>"
      "<date>1999-12-31T23:59:59Z</date><string>2020-02-29T12:34:56Z</string></array>");
  ASSERT_TRUE(list && list->array());
  const auto& dates = *list->array();
  ASSERT_EQ(dates.size(), 4U);
  EXPECT_EQ(*dates[0].date(), sys_days(2020y / February / 29) + 12h + 34min + 56s);
  EXPECT_EQ(*dates[1].date(), sys_days(2001y / January / 1));
  EXPECT_EQ(*dates[2].date(), sys_days(2000y / January / 1) - 1s);
  EXPECT_FALSE(dates[0].string());
  EXPECT_FALSE(dates[3].date());
}

const std::string kLabel = "<plist><string>B\xC3\xA4nder</string></plist>";

struct DocumentRow {
  const char* name;
  std::string xml;
};

class PropertyListDocuments : public testing::TestWithParam<DocumentRow> {};

TEST_P(PropertyListDocuments, OfEveryFormAreRead) {
  const auto list = PropertyList::parseXML(GetParam().xml);
  ASSERT_TRUE(list && list->string());
  EXPECT_EQ(*list->string(), "Bänder");
}

// The text behind a declaration of that encoding.
std::string declared(const std::string& encoding, const std::string& text) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + text;
}

// ASCII with each character in two bytes.
std::string wide(const std::string& text, bool lowFirst) {
  std::string units;
  for (const char c : text) units += lowFirst ? std::string{c, '\0'} : std::string{'\0', c};
  return units;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PropertyListDocuments,
    testing::Values(
        DocumentRow{"Bare", kLabel}, DocumentRow{"ByteOrderMark", "\xEF\xBB\xBF" + kLabel},
        DocumentRow{"ByteOrderMarkAndDeclaration",
                    "\xEF\xBB\xBF" + declared("utf-8", "\r\n" + kLabel)},
        DocumentRow{"CommentAfterTheEnd", kLabel + "<!-- translated in May -->\n"},
        DocumentRow{"CommentAboutTheEnd", "<!-- ends with </plist> -->" + kLabel},
        DocumentRow{"CommentAboutAnotherList", kLabel + "<!-- <plist> of </plist> -->"},
        DocumentRow{"CommentsWithin",
                    "<plist><!-- </plist> --><string>B\xC3\xA4n<!-- x -->der</string></plist>"},
        DocumentRow{"BlankInTheLastTag", "<plist><string>B\xC3\xA4nder</string></plist >"},
        DocumentRow{"Instructions", "<?edit here?>" + kLabel + "<?edit there?>"},
        DocumentRow{
            "DocumentType",
            "<!DOCTYPE plist PUBLIC \"-//List//EN\" \"http://localhost/list.dtd\">" + kLabel},
        DocumentRow{"EntityThatIsNotUsed", "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + kLabel},
        DocumentRow{"Latin1", declared("ISO-8859-1", "<plist><string>B\xE4nder</string></plist>")},
        DocumentRow{"Windows1252",
                    declared("windows-1252", "<plist><string>B\xE4nder</string></plist>")},
        DocumentRow{"Ascii", declared("US-ASCII", "<plist><string>B&#228;nder</string></plist>")},
        DocumentRow{"Utf16LowFirst", "\xFF\xFE" + wide("<plist><string>B", true) +
                                         std::string("\xE4\0", 2) +
                                         wide("nder</string></plist>", true)},
        DocumentRow{
            "Utf16HighFirst",
            "\xFE\xFF" +
                wide(declared("UTF-16", "<plist><string>B&#xE4;nder</string></plist>"), false)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PropertyList, ReadsAnEncodingOfSeveralBytesACharacter) {
  const auto list = PropertyList::parseXML(
      declared("EUC-KR", "<plist><string>\xB6\xF3\xBA\xA7</string></plist>"));
  ASSERT_TRUE(list && list->string());
  EXPECT_EQ(*list->string(), "라벨");
}

struct BadList {
  const char* name;
  std::string xml;
};

class DamagedPropertyLists : public testing::TestWithParam<BadList> {};

// Nothing is said on standard error, which may be a terminal.
TEST_P(DamagedPropertyLists, AreRefusedSilently) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(PropertyList::parseXML(GetParam().xml));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedPropertyLists,
    testing::Values(
        BadList{"Empty", ""}, BadList{"Blank", " \n"}, BadList{"Words", "no property list at all"},
        BadList{"OtherXml", "<svg width=\"1\"/>"}, BadList{"NoValue", "<plist></plist>"},
        BadList{"NoRoot", "<string>a</string>"}, BadList{"NotClosed", "<plist><string>a</string>"},
        BadList{"ContainerNotClosed", "<plist><array><string>a</string></plist>"},
        BadList{"Crossed", "<plist><dict><key>a</key><true/></array></plist>"},
        BadList{"WrongClose", "<plist><string>x</key></plist>"},
        BadList{"ValueWithoutKey", "<plist><dict><string>a</string></dict></plist>"},
        BadList{"UnknownElement", "<plist><colour/></plist>"},
        BadList{"UnknownEntity", "<plist><string>&cut;</string></plist>"},
        BadList{"OwnEntity",
                "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>"},
        BadList{"EndlessEntity",
                "<!DOCTYPE plist [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]>"
                "<plist><string>&a;</string></plist>"},
        BadList{"EntityOfAFile",
                "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/hostname\">]>"
                "<plist><string>&a;</string></plist>"},
        BadList{"UnknownEncoding",
                "<?xml version=\"1.0\" encoding=\"no-such\"?><plist><true/></plist>"},
        BadList{
            "NotInTheDeclaredEncoding",
            "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><plist><string>\xE4</string></plist>"},
        BadList{"CutUtf16", std::string("\xFF\xFE<\0p\0l\0\0\xDA\0\xDA", 12)},
        BadList{"NotInTheDeclaredEncodingLater",
                "<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><string>" +
                    repeated("s\xDA\xDA\xDA", 3000) + "</string></plist>"},
        BadList{"NulReference", "<plist><string>a&#0;b</string></plist>"},
        BadList{"TwoValues", "<plist><true/><true/></plist>"},
        BadList{"CommentNotClosed", "<plist><true/></plist><!-- "},
        BadList{"TextAfterTheEnd", "<plist><true/></plist>more"},
        BadList{"TwoLists", "<plist><true/></plist><plist><true/></plist>"},
        BadList{"ListInAList", "<plist><plist><true/></plist></plist>"},
        BadList{"NotUtf8", "<plist><string>\xFF\xFE</string></plist>"},
        BadList{"OverlongUtf8", "<plist><string>\xC0\xAF</string></plist>"},
        BadList{"SurrogateUtf8", "<plist><string>\xED\xA0\x80</string></plist>"},
        BadList{"CutUtf8", "<plist><string>\xE2\x82</string></plist>"},
        BadList{"Nul", std::string("<plist><string>a\0b</string></plist>", 35)},
        BadList{"Binary", std::string("bplist00\xD0\x08", 10)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PropertyList, ReadsContainersNestedSixtyFourDeepAndRefusesDeeperOnes) {
  const auto nested = [](int depth) {
    return parseValue(repeated("<array>", depth) + "<true/>" + repeated("</array>", depth));
  };
  EXPECT_TRUE(nested(64));
  EXPECT_FALSE(nested(65));
}

TEST(PropertyList, EndlessNestingDoesNotExhaustTheStack) {
  EXPECT_FALSE(parseValue(repeated("<array>", 300000)));
  EXPECT_FALSE(parseValue(repeated("<dict><key>a</key>", 300000)));
  EXPECT_FALSE(parseValue(repeated("<!-- </array> --><array>", 300000)));
}

TEST(PropertyList, EntitiesMadeOfEntitiesDoNotExhaustTheMemory) {
  std::string entities = "<!ENTITY e0 \"labels\">";
  for (int i = 1; i < 40; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    entities += "<!ENTITY e" + std::to_string(i) + " \"" + repeated(inner, 10) + "\">";
  }
  EXPECT_FALSE(PropertyList::parseXML("<!DOCTYPE plist [" + entities +
                                      "]><plist><string>&e39;</string></plist>"));
}

TEST(PropertyList, ReadsALongListAndRefusesAHugeFile) {
  const auto list = parseValue("<array>" + repeated("<string>x</string>", 100000) + "</array>");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->array()->size(), 100000U);
  EXPECT_FALSE(parseValue("<string>" + std::string(17 << 20, 'x') + "</string>"));
}

TEST(PropertyList, EveryCutOfAFileIsRefusedOrReadWithoutHarm) {
  const std::string whole =
      "<plist version=\"1.0\"><dict><key>a</key><array><integer>1</integer><data>AQID</data>"
      "<string>&amp;</string></array></dict></plist>";
  ASSERT_TRUE(PropertyList::parseXML(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(PropertyList::parseXML(std::string_view(whole).substr(0, length))) << length;
  }
}

}  // namespace
}  // namespace cutline
