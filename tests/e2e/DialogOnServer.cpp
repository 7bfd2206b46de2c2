#include "tests/e2e/DialogOnServer.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <QTest>
#include <algorithm>
#include <functional>
#include <limits>
#include <stdexcept>

#include "host/core/Installation.h"
#include "host/core/Module.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrinterSelection.h"
#include "host/dialog/HeldJobPrintServer.h"
#include "host/dialog/PanelViews.h"
#include "platform/ports/Drawing.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"

namespace cutline::test {

namespace {

constexpr QSize kPreferredSize{1120, 780};

PrinterChoice opened(const CommandLine& line) {
  Result<PrinterChoice> choice = selectPrinter(line);
  if (!choice) throw std::runtime_error(choice.error().message);
  return *choice;
}

PrintSource sourceOf(const CommandLine& line, PrintServer& print) {
  PrintSource source{line.files, line.title.value_or("labels.pdf"),
                     documentToolsIn(Installation(built("")).helperDirectory())};
  if (const auto* held = dynamic_cast<HeldJobPrintServer*>(&print))
    source.tools = held->watched(source.tools);
  return source;
}

template <class Kind>
View* findView(const View& view, const std::function<bool(const Kind&)>& isIt) {
  for (const std::shared_ptr<View>& subview : view.subviews()) {
    const auto* candidate = dynamic_cast<Kind*>(subview.get());
    if (candidate != nullptr && isIt(*candidate)) return subview.get();
    if (View* found = findView<Kind>(*subview, isIt)) return found;
  }
  return nullptr;
}

template <class Kind>
View* findView(PrintModel& model, const std::function<bool(const Kind&)>& isIt) {
  for (const PanelEntry& panel : model.panels())
    if (View* found = findView<Kind>(*panel.view, isIt)) return found;
  return nullptr;
}

QPoint indicatorOf(const QCheckBox& box) {
  QStyleOptionButton option;
  option.initFrom(&box);
  return box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box).center();
}

qint64 difference(const QImage& one, const QImage& other) {
  qint64 sum = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
             std::abs(qBlue(a) - qBlue(b));
    }
  }
  return sum;
}

QImage drawn(const QString& svg, const QSize& size, const QColor& ground) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(ground);
  QPainter painter(&image);
  QSvgRenderer(svg).render(&painter);
  return image;
}

}  // namespace

void click(QWidget* widget) {
  ASSERT_NE(widget, nullptr);
  ASSERT_TRUE(widget->isVisible() && widget->isEnabled());
  const auto* box = qobject_cast<QCheckBox*>(widget);
  const QPoint place = box != nullptr ? indicatorOf(*box) : widget->rect().center();
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void type(QWidget* field, const QString& text) {
  ASSERT_NE(field, nullptr);
  field->setFocus();
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(field, text);
}

void choose(QComboBox* list, const QString& data) {
  ASSERT_NE(list, nullptr);
  const int index = list->findData(data);
  ASSERT_GE(index, 0) << data.toStdString();
  list->setFocus();
  const Qt::Key step = index > list->currentIndex() ? Qt::Key_Down : Qt::Key_Up;
  for (int i = 0; list->currentIndex() != index && i < list->count(); ++i)
    QTest::keyClick(list, step);
  ASSERT_EQ(list->currentIndex(), index);
}

CommandLine dialogOn(const std::string& printer) {
  CommandLine line;
  line.destination = DestinationName::parse(printer);
  line.files = {labels()};
  return line;
}

DialogOnServer::DialogOnServer(const std::string& printer) : DialogOnServer(dialogOn(printer)) {}

DialogOnServer::DialogOnServer(const CommandLine& line, std::shared_ptr<PrintServer> print)
    : mPlatform(mToolkit), mModel(std::make_unique<PrintModel>(plugIns(), line.asked)) {
  if (!print) print = std::make_shared<CupsPrintServer>(line.server);
  mDialog = std::make_unique<PrintDialog>(*mModel, print, sourceOf(line, *print));
  QApplication::processEvents();  // as while the program waits for its printer
  mDialog->openPrinter(opened(line));
  for (const std::string& problem : plugIns().takeProblems()) ADD_FAILURE() << problem;
  mDialog->resize(kPreferredSize.expandedTo(mDialog->sizeHint()));
  mDialog->show();
  mDialog->activateWindow();
  if (!waitUntil([this] { return mDialog->isActiveWindow(); }))
    throw std::runtime_error("the dialog does not come up");
  mDialog->loadDocument();
  mDialog->startWatching();
}

DialogOnServer::~DialogOnServer() {
  mDialog.reset();
  mModel.reset();
}

CheckBox* DialogOnServer::checkBox(const std::string& keyword) {
  View* found = findView<CheckBox>(
      *mModel, [&](const CheckBox& box) { return box.ppdKeyword() == keyword && !box.isHidden(); });
  return dynamic_cast<CheckBox*>(found);
}

QWidget* DialogOnServer::box(const std::string& keyword) {
  CheckBox* found = checkBox(keyword);
  if (found != nullptr) return QtToolkit::widgetOf(*found);
  ADD_FAILURE() << "no box for " << keyword;
  return nullptr;
}

void DialogOnServer::press(const char* text) {
  waitForClicks();
  const auto buttons = mDialog->findChildren<QAbstractButton*>();
  const auto found = std::find_if(buttons.begin(), buttons.end(), [&](const QAbstractButton* each) {
    return each->isVisible() && each->text() == QLatin1String(text);
  });
  ASSERT_NE(found, buttons.end()) << "no button says " << text;
  click(*found);
}

void DialogOnServer::waitForClicks() {
  constexpr int kLongerThanADoubleClick = 600;
  QTest::qWait(kLongerThanADoubleClick);
}

QPushButton* DialogOnServer::printButton() const {
  return mDialog->findChild<QPushButton*>(QStringLiteral("print"));
}

bool DialogOnServer::canPrint() const { return printButton()->isEnabled(); }

void DialogOnServer::print() {
  click(printButton());
  ASSERT_TRUE(willShow(QStringLiteral("Printed")));
  mDialog->close();
  ASSERT_TRUE(waitForClose());
}

bool DialogOnServer::waitForClose() {
  return waitUntil([this] { return !mDialog->isVisible(); });
}

bool DialogOnServer::shows(const QString& part) const {
  const auto texts = mDialog->findChildren<QLabel*>();
  return std::any_of(texts.begin(), texts.end(), [&](const QLabel* label) {
    return label->isVisible() && label->text().contains(part);
  });
}

bool DialogOnServer::willShow(const QString& part) const {
  return waitUntil([&] { return shows(part); });
}

Choices DialogOnServer::sent() const { return asChoices(mModel->jobOptions()); }

// Titles and values stand in turn.
Choices DialogOnServer::summary() const {
  Choices lines;
  const auto texts = mDialog->findChild<SummaryView*>()->findChildren<QLabel*>();
  for (int i = 0; i + 1 < texts.size(); i += 2)
    lines[texts[i]->text().chopped(1).toStdString()] = texts[i + 1]->text().toStdString();
  return lines;
}

std::string DialogOnServer::picture() {
  View* view = findView<CustomView>(*mModel, [](const CustomView&) { return true; });
  QWidget* widget = QtToolkit::widgetOf(*view);
  const QImage shown = widget->grab().toImage();
  const QDir folder(
      QString::fromStdString(built("lib/cutline/plugins/CutOptions.plugin/Contents/Resources")));
  std::string nearest;
  qint64 least = std::numeric_limits<qint64>::max();
  for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.svg")})) {
    const QColor ground = widget->palette().color(QPalette::Window);
    const qint64 distance = difference(shown, drawn(file.filePath(), shown.size(), ground));
    if (distance < least) nearest = file.completeBaseName().toStdString();
    least = std::min(least, distance);
  }
  return nearest;
}

}  // namespace cutline::test
