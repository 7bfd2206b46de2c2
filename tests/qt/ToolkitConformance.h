// Tests of one text that run with every toolkit.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plain/PlainToolkit.h"
#include "platform/ports/PopUpButton.h"
#include "qt/QtToolkit.h"
#include "tests/qt/QtPanelFixture.h"

namespace cutline {

template <class AnyToolkit>
class ToolkitConformance : public testing::Test {
 protected:
  ToolkitConformance() { toolkit.setActionObserver(&observer); }
  ActionHandler recorded() {
    return [this](View*) { events.emplace_back("action"); };
  }
  void addThree(PopUpButton& popUp) {
    int tag = 0;
    for (const char* title : {"A", "B", "C"}) popUp.addItem({title, ++tag, {}, {}});
  }

  std::vector<std::string> events;
  RecordingObserver observer{events};
  AnyToolkit concrete;
  Toolkit& toolkit = concrete;
};

using Toolkits = testing::Types<PlainToolkit, QtToolkit>;

}  // namespace cutline
