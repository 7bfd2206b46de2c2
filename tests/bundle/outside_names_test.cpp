// Names that others hold, too: the host, the printer's driver, the print system. They stand here in
// full, because the product's own constants would follow a slip of the pen.
#include "bundle/plugin/LXKMWNOptions14PlugIn13_v400_.h"
#include "tests/bundle/PanelTest.h"

namespace cutline::test {
namespace {

class OutsideNames : public PanelTest {
 protected:
  bool isOnUSB(const std::string& uri) {
    callback->printer.uri = uri;
    makePanel(PpdText());
    return panel->usb_dec == 1;
  }
  // The paper's name as a ticket with this key and entry gives it.
  std::optional<std::string> nameFromTicket(const std::string& key, const std::string& entry) {
    ScriptedSettings settings;
    settings.values[key] =
        "<plist version=\"1.0\"><dict><key>" + entry + "</key><string>HS12</string></dict></plist>";
    TapeInfo info;
    EXPECT_EQ(GetTapeInfo2(nullptr, &settings, &info), noErr);
    return info.paperName;
  }
};

constexpr char kTicketKey[] = "org.cutline.print.PrintSettingsTicket.KmR3";

TEST_F(OutsideNames, TwoSchemesMeanUSB) {
  EXPECT_TRUE(isOnUSB("usb://x"));
  EXPECT_TRUE(isOnUSB("LXKMUSB://x"));
  for (const char* other : {"Usb://x", "USB://x", "lxkmusb://x", "LXKMUSB2://x", "LXKMUS://x",
                            "us://x", "usbx://x", "ausb://x", "LXKMusb://x"}) {
    EXPECT_FALSE(isOnUSB(other)) << other;
  }
}

TEST_F(OutsideNames, TheTicketsKeyAndEntry) {
  EXPECT_EQ(nameFromTicket(kTicketKey, "KmPaperName2"), "HS12");
  EXPECT_FALSE(nameFromTicket(kTicketKey, "KmPaperName"));
  EXPECT_FALSE(nameFromTicket(kTicketKey, "kmPaperName2"));
  EXPECT_FALSE(nameFromTicket("org.cutline.print.PrintSettingsTicket.KmR2", "KmPaperName2"));
  EXPECT_FALSE(nameFromTicket("PrintSettingsTicket.KmR3", "KmPaperName2"));
}

TEST_F(OutsideNames, TheTypeOfPrintDialogPanels) {
  makePanel(PpdText());
  LXKMWNOptions14PlugIn13_v400_ plugIn;
  ASSERT_TRUE(plugIn.initWithBundle(bundle.get()));
  const auto panels = plugIn.PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603277", callback);
  ASSERT_TRUE(panels);
  EXPECT_EQ(panels->size(), 1U);
  EXPECT_TRUE(plugIn.PDEPanelsForType("bdb091f4-e57f-11d3-b5cc-0050e4603277", callback)->empty());
}

TEST_F(OutsideNames, ThePanelsKind) {
  makePanel(PpdText());
  const std::string kind = panel->panelKind();
  EXPECT_TRUE(kind.ends_with(".printer.cups.pde.OptionPDEKind")) << kind;
}

TEST_F(OutsideNames, ThePaperNotification) {
  makePanel(PpdText().onOff("LxAutoTapeCut", "ON"));
  callback->paper.name = "HS24";
  platform.center.postNotificationName("PMPrintDestinationPaperDidChange", {});
  EXPECT_EQ(marked("LxAutoTapeCut"), "ON");
  platform.center.postNotificationName("PMPrintDestinationPaperDidChangeNotification",
                                       std::string("any sender"));
  EXPECT_EQ(marked("LxAutoTapeCut"), "OFF");
}

TEST_F(OutsideNames, TheBitsOfTheItems) {
  const std::vector<std::pair<OptionId, std::uint32_t>> expected = {
      {OptionId::cutEvery, 0x100},     {OptionId::cutEnd, 0x200},
      {OptionId::mirror, 0x400},       {OptionId::autoCut, 0x800},
      {OptionId::halfCut, 0x1000},     {OptionId::chainPrint, 0x2000},
      {OptionId::specialTape, 0x4000}, {OptionId::removeBlkSpace, 0x10000},
      {OptionId::cutMark, 0x80000}};
  for (const auto& [id, bit] : expected) EXPECT_EQ(rowOf(id).item, bit) << rowOf(id).keyword;
  EXPECT_EQ(kItemOptionPopUp, 0x40000U);
}

}  // namespace
}  // namespace cutline::test
