#include "tests/access/ScreenReaderTest.h"

#include "tests/support/qt/waiting.h"

namespace cutline::test {

namespace {

constexpr int kReaderPatience = 20000;

}  // namespace

const QString ScreenReaderTest::kTitle = QStringLiteral("Print labels.pdf");

ScreenReaderTest::~ScreenReaderTest() {
  if (HasFailure()) ADD_FAILURE() << "The program as it was heard:\n" << describeTree(program());
  mProgram.kill();
  mProgram.waitForFinished(kReaderPatience);
}

void ScreenReaderTest::startDialog(const char* printer, const QStringList& words) {
  const QStringList all = QStringList{QStringLiteral("-d"), QString::fromLatin1(printer)} + words +
                          QStringList{QString::fromStdString(labels())};
  mDisplay.start(mProgram, QString::fromStdString(built("bin/cutline")), all);
  ASSERT_TRUE(waitUntil([this] { return dialog().is(ATSPI_STATE_SHOWING); }))
      << "the dialog does not come up";
}

int ScreenReaderTest::exitStatus() {
  if (!mProgram.waitForFinished(kReaderPatience)) return -1;
  EXPECT_EQ(mProgram.exitStatus(), QProcess::NormalExit);
  return mProgram.exitCode();
}

Accessible ScreenReaderTest::program() const {
  for (const Accessible& each : desktop().children())
    if (each.processId() == mProgram.processId()) return each;
  return {};
}

Accessible ScreenReaderTest::dialog() const {
  for (const Accessible& each : program().children())
    if (each.role() == ATSPI_ROLE_DIALOG) return each;
  return {};
}

Accessible ScreenReaderTest::question() const {
  for (const Accessible& each : program().children())
    if (each.role() == ATSPI_ROLE_ALERT && each.is(ATSPI_STATE_SHOWING)) return each;
  return {};
}

Accessible ScreenReaderTest::control(AtspiRole role, const std::string& name) const {
  Accessible found;
  EXPECT_TRUE(waitUntil([&] {
    found = find(dialog(), role, name);
    return bool(found);
  })) << "nothing is called "
      << name;
  return found;
}

std::string ScreenReaderTest::picture() const {
  return find(find(dialog(), ATSPI_ROLE_PANEL, "Cut Options"), ATSPI_ROLE_IMAGE).name();
}

std::string ScreenReaderTest::summary(const std::string& title) const {
  const Accessible disclosure = find(dialog(), ATSPI_ROLE_CHECK_BOX, "Summary");
  if (!disclosure.is(ATSPI_STATE_CHECKED)) {
    EXPECT_TRUE(disclosure.press());
    EXPECT_TRUE(waitUntil([&] { return disclosure.is(ATSPI_STATE_CHECKED); }));
  }
  const std::vector<Accessible> labels = find(dialog(), ATSPI_ROLE_PANEL, "Summary").children();
  for (std::size_t i = 0; i + 1 < labels.size(); ++i)
    if (labels[i].name() == title + ":") return labels[i + 1].name();
  return {};
}

}  // namespace cutline::test
