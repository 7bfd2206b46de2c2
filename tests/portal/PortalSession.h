// A desktop's session without a screen: a display, a message bus on which the real portal, our
// backend and the accessibility bus start by themselves, and another desktop's print dialog.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>
#include <memory>

#include "tests/portal/OtherDialog.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/qt/Display.h"

namespace cutline::test {

class PortalSession : public testing::Environment {
 public:
  // Once the print server is there: everything on the bus is its client.
  void SetUp() override;
  void TearDown() override;

  // The session of this program's tests.
  static PortalSession& current();

  const Display& display() const { return *mDisplay; }
  OtherDialog& otherDialog() { return *mOther; }

 private:
  void writeFiles() const;
  void startBus();

  TemporaryFolder mFolder;
  std::unique_ptr<Display> mDisplay;
  std::unique_ptr<OtherDialog> mOther;
  QProcess mBus;
};

}  // namespace cutline::test
