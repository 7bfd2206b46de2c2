#include "tests/dialog/DialogTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "platform/lib/Languages.h"
#include "platform/ports/Controls.h"
#include "tests/support/qt/waiting.h"

namespace cutline {

namespace {

constexpr int kPatience = 5000;

// A loaded bundle keeps the language that it was loaded in.
PluginLoader& plugIns() {
  static std::map<std::string, PluginLoader> loaders;
  const std::vector<std::string> directories = {CUTLINE_BUILD_DIR "/lib/cutline/plugins"};
  return loaders.try_emplace(preferredLocalizations().front(), directories).first->second;
}

View* findBox(const View& view, const std::string& keyword) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    const auto* box = dynamic_cast<CheckBox*>(subview.get());
    if (box != nullptr && box->ppdKeyword() == keyword && !box->isHidden()) return subview.get();
    if (View* found = findBox(*subview, keyword)) return found;
  }
  return nullptr;
}

}  // namespace

std::string samplePpd(const std::string& name) {
  return std::string(CUTLINE_SOURCE_DIR "/samples/ppd/") + name + ".ppd";
}

std::string oddPpd(const std::string& name) {
  return std::string(CUTLINE_SOURCE_DIR "/tests/samples/ppd/") + name + ".ppd";
}

bool waitUntil(const std::function<bool()>& condition) {
  return test::waitUntil(condition, kPatience);
}

DialogTest::DialogTest() : mPlatform(mToolkit) {}

DialogTest::~DialogTest() { closeDialog(); }

void DialogTest::closeDialog() {
  mDialog.reset();
  mModel.reset();
}

void DialogTest::openQueue(const std::string& ppdPath, const AskedSettings& asked) {
  mServer->addPrinter("tape", ppdPath);
  const Result<PrinterChoice> choice = mServer->open(mServer->destination("tape"));
  ASSERT_TRUE(choice) << choice.error().message;
  makeDialog(*choice, asked);
}

void DialogTest::openPpd(const std::string& ppdPath, const AskedSettings& asked) {
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(ppdPath);
  ASSERT_TRUE(ppd) << ppd.error().message;
  makeDialog({Destination(), *ppd}, asked);
}

void DialogTest::makeDialog(const PrinterChoice& choice, const AskedSettings& asked) {
  mModel = std::make_unique<PrintModel>(plugIns(), asked);
  mDialog = std::make_unique<PrintDialog>(*mModel, mServer,
                                          PrintSource{mPaths, "labels", mComposer->tools()});
  mDialog->openPrinter(choice);
  for (const std::string& problem : plugIns().takeProblems()) ADD_FAILURE() << problem;
  mDialog->resize(mDialog->sizeHint().expandedTo(QSize(1120, 720)));
  mDialog->show();
  mDialog->activateWindow();
  ASSERT_TRUE(waitUntil([this] { return mDialog->isActiveWindow(); }));
  bool isSettled = false;
  const auto connection = QObject::connect(mDialog.get(), &PrintDialog::becameSettled,
                                           [&isSettled] { isSettled = true; });
  mDialog->loadDocument();
  EXPECT_TRUE(waitUntil([&] { return isSettled; }));
  QObject::disconnect(connection);
}

QWidget* DialogTest::box(const std::string& keyword) {
  for (const PanelEntry& panel : mModel->panels()) {
    if (View* found = findBox(*panel.view, keyword)) return QtToolkit::widgetOf(*found);
  }
  ADD_FAILURE() << "no box for " << keyword;
  return nullptr;
}

void DialogTest::click(QWidget* widget) {
  ASSERT_NE(widget, nullptr);
  ASSERT_TRUE(widget->isVisible() && widget->isEnabled());
  QPoint place = widget->rect().center();
  if (const auto* box = qobject_cast<QCheckBox*>(widget)) {
    QStyleOptionButton option;
    option.initFrom(box);
    place = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
  }
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void DialogTest::clickPastAlert(QWidget* widget) {
  bool isClosed = false;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&] {
    auto* const alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (alert == nullptr) return;
    alert->buttons().front()->click();
    isClosed = true;
  });
  closer.start(10);
  click(widget);
  EXPECT_TRUE(isClosed) << "no alert was shown";
  // A window system gives the keyboard back by itself; the offscreen one has to be asked.
  mDialog->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(mDialog.get()));
}

void DialogTest::press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers) {
  ASSERT_NE(widget, nullptr);
  QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
}

QStringList DialogTest::shownTexts() const {
  QStringList texts;
  for (const QLabel* label : mDialog->findChildren<QLabel*>()) {
    if (label->isVisible()) texts.append(label->text());
  }
  return texts;
}

bool DialogTest::shows(const QString& part) const {
  const QStringList texts = shownTexts();
  return std::any_of(texts.begin(), texts.end(),
                     [&](const QString& text) { return text.contains(part); });
}

std::map<std::string, std::string> DialogTest::sent() const {
  std::map<std::string, std::string> options;
  for (const auto& [name, value] : mModel->jobOptions()) options[name] = value;
  return options;
}

QPushButton* DialogTest::printButton() {
  return mDialog->findChild<QPushButton*>(QStringLiteral("print"));
}

bool DialogTest::waitForPrinted() {
  return waitUntil([this] { return shows(QStringLiteral("Printed")); });
}

void DialogTest::waitForClicks() {
  constexpr int kLongerThanADoubleClick = 600;
  QTest::qWait(kLongerThanADoubleClick);
}

bool DialogTest::waitForClose() {
  return waitUntil([this] { return !mDialog->isVisible(); });
}

}  // namespace cutline
