// No text of the panel is cut off at its place, in any language.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLabel>
#include <QSignalBlocker>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "qt/PictureComboBox.h"
#include "qt/QtText.h"
#include "tests/dialog/FontSize.h"
#include "tests/languages/CutPpds.h"
#include "tests/languages/Language.h"
#include "tests/languages/LanguagePanel.h"
#include "tests/languages/PaintedTexts.h"
#include "tests/languages/StagedBundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

// Between them they show every box and every preset.
struct Printer {
  const char* name;
  std::string (*path)(const std::string& name);
  std::size_t boxes;
  int presets;
};
constexpr Printer kPrinters[] = {
    {"tape-a", samplePpdPath, 8, 8},  // with cut marks
    {"tape-b", samplePpdPath, 7, 9},  // without
    {"tape-all-shown", testPpdPath, 9, 8},
    {"roll", samplePpdPath, 3, 4},
};

class Fit : public testing::TestWithParam<std::tuple<Language, int>> {
 protected:
  // A panel all of whose texts are the string tables'.
  LanguagePanel& open(const Printer& printer) {
    const std::string path = mFolder / "printer.ppd";
    test::writeFile(path, withoutCutTexts(printer.path(printer.name)));
    mPanel.emplace(
        test::ScopedEnvironment::Variables{{"LANG", std::get<Language>(GetParam()).locale}}, path);
    return *mPanel;
  }

 private:
  FontSize mFont{std::get<int>(GetParam())};
  test::TemporaryFolder mFolder;
  std::optional<LanguagePanel> mPanel;
};

TEST_P(Fit, TheBoxesShowTheirWholeTitles) {
  for (const Printer& printer : kPrinters) {
    const auto boxes = open(printer).shown<QCheckBox>();
    EXPECT_EQ(boxes.size(), printer.boxes) << printer.name;
    for (QCheckBox* box : boxes) {
      EXPECT_EQ(paintedTexts(*box), toUtf8(withoutMark(box->text())));
      EXPECT_GE(box->height(), box->fontMetrics().height()) << box->text().toStdString();
    }
  }
}

TEST_P(Fit, TheLabelsHaveTheRoomThatTheyNeed) {
  for (const Printer& printer : kPrinters) {
    for (const QLabel* label : open(printer).shown<QLabel>()) {
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
      EXPECT_GE(label->height(), label->sizeHint().height()) << label->text().toStdString();
    }
  }
}

TEST_P(Fit, TheChosenPresetShowsItsWholeWords) {
  for (const Printer& printer : kPrinters) {
    const auto popUps = open(printer).shown<PictureComboBox>();
    ASSERT_EQ(popUps.size(), 1U);
    PictureComboBox& popUp = *popUps.front();
    EXPECT_EQ(popUp.count(), printer.presets) << printer.name;
    const QSignalBlocker quiet(popUp);
    for (int row = 0; row < popUp.count(); ++row) {
      popUp.setCurrentIndex(row);
      EXPECT_EQ(paintedTexts(popUp), toUtf8(visibleText(popUp.model()->index(row, 0))));
    }
    EXPECT_GE(popUp.height(), popUp.fontMetrics().height());
  }
}

TEST_P(Fit, TheListedPresetsStandInOneLine) {
  for (const Printer& printer : kPrinters) {
    PictureComboBox& popUp = *open(printer).shown<PictureComboBox>().front();
    popUp.showPopup();
    const QAbstractItemView& list = *popUp.view();
    for (int row = 0; row < popUp.count(); ++row) {
      const QModelIndex entry = popUp.model()->index(row, 0);
      EXPECT_LE(PictureRow::widthOf(entry, list.fontMetrics()), list.visualRect(entry).width())
          << visibleText(entry).toStdString();
    }
    popUp.hidePopup();
  }
}

// The stepper reaches a point into the row below it, where a box has nothing to show.
constexpr int kSharedEdge = 1;

TEST_P(Fit, NoControlCoversAnother) {
  for (const Printer& printer : kPrinters) {
    const LanguagePanel& panel = open(printer);
    const QRect room = QtToolkit::widgetOf(*panel.view())->rect();
    std::vector<QRect> places;
    for (const auto& control : panel.view()->subviews()) {
      if (control->isHidden()) continue;
      const QRect place = QtToolkit::widgetOf(*control)->geometry();
      EXPECT_TRUE(room.contains(place)) << printer.name;
      for (const QRect& other : places) {
        EXPECT_LE((place & other).height(), kSharedEdge) << printer.name;
      }
      places.push_back(place);
    }
    EXPECT_GT(places.size(), printer.boxes);
  }
}

INSTANTIATE_TEST_SUITE_P(Every, Fit,
                         testing::Combine(testing::ValuesIn(kLanguages), testing::Values(9, 12)),
                         [](const auto& chosen) {
                           return nameOf(std::get<Language>(chosen.param)) + "At" +
                                  std::to_string(std::get<int>(chosen.param)) + "Points";
                         });

}  // namespace
}  // namespace cutline
