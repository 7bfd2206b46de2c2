// Where all of the dialog lies when it is seen for the first time.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <map>

#include "host/dialog/PanelViews.h"
#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

using Places = std::map<QWidget*, QRect>;

Places placesIn(const QWidget& window) {
  Places places;
  for (QWidget* each : window.findChildren<QWidget*>())
    if (each->isVisible()) places[each] = {each->mapTo(&window, QPoint()), each->size()};
  return places;
}

class FirstLayout : public DialogTest, public testing::WithParamInterface<QSize> {};

// In two columns, in one, and where not all is seen.
INSTANTIATE_TEST_SUITE_P(EachSize, FirstLayout,
                         testing::Values(QSize(1120, 780), QSize(1024, 700), QSize(860, 1000),
                                         QSize(820, 540)),
                         [](const auto& info) {
                           return "Of" + std::to_string(info.param.width());
                         });

TEST_P(FirstLayout, IsTheOneThatStays) {
  const auto ppd = PpdFile::open(samplePpd("tape-a"));
  ASSERT_TRUE(ppd);
  PluginLoader plugIns({CUTLINE_BUILD_DIR "/lib/cutline/plugins"});
  PrintModel model(plugIns, {});
  PrintDialog dialog(model, std::make_shared<FakePrintServer>(),
                     PrintSource{{}, "labels", composer().tools()});
  dialog.openPrinter({Destination(), *ppd});
  dialog.layOut(GetParam());
  const QPoint place = dialog.pos();
  dialog.show();
  EXPECT_EQ(dialog.pos(), place);
  const Places first = placesIn(dialog);
  EXPECT_GE(dialog.findChild<PanelFrame*>()->height(), 200);
  for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
  for (const auto& [widget, place] : placesIn(dialog))
    EXPECT_TRUE(first.contains(widget) && first.at(widget) == place)
        << widget->metaObject()->className() << ' ' << widget->accessibleName().toStdString();
}

}  // namespace
}  // namespace cutline
