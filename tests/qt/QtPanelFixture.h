// A panel in a shown window, with a record of what ran.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/ports/Controls.h"
#include "platform/ports/Toolkit.h"
#include "platform/ports/View.h"
#include "qt/QtToolkit.h"

namespace cutline {

struct RecordingObserver : ActionObserver {
  explicit RecordingObserver(std::vector<std::string>& ran) : events(ran) {}
  void actionDidFinish(View& sender) noexcept override {
    events.emplace_back("observer");
    lastSender = &sender;
  }
  std::vector<std::string>& events;
  View* lastSender = nullptr;
};

// How often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
  int count = 0;
  // Of what waits to be painted, too.
  int afterAll() {
    QApplication::processEvents();
    return count;
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
};

class QtPanelFixture : public testing::Test {
 protected:
  QtPanelFixture() {
    toolkit.setActionObserver(&observer);
    window->setLayout(new QVBoxLayout);
    window->layout()->addWidget(QtToolkit::widgetOf(*root));
  }

  void show() {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  // To another widget of the window.
  void giveKeyboardElsewhere() {
    auto* const other = new QLineEdit(window.get());
    window->layout()->addWidget(other);
    other->show();
    other->setFocus();
    ASSERT_TRUE(other->hasFocus());
  }

  // Adds the control to the panel and answers its widget.
  template <class Widget, class Control>
  Widget* put(const std::shared_ptr<Control>& control) {
    root->addSubview(control);
    auto* const widget = dynamic_cast<Widget*>(QtToolkit::widgetOf(*control));
    EXPECT_NE(widget, nullptr);
    return widget;
  }

  // An action that is recorded as "action".
  ActionHandler recorded() {
    return [this](View* sender) {
      events.emplace_back("action");
      actionSender = sender;
    };
  }

  using Events = std::vector<std::string>;
  Events events;
  View* actionSender = nullptr;
  RecordingObserver observer{events};
  QtToolkit toolkit;
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  std::shared_ptr<View> root = toolkit.createView({{0, 0}, {300, 200}});
};

// A directory of picture files made for a test, some in folders of it.
class PictureFiles {
 public:
  std::string add(const QString& name, const QByteArray& content) {
    QFile file(mDirectory.filePath(name));
    EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName().toStdString();
  }
  // A vector picture of 40 x 20 points in one colour.
  std::string addPlain(const QString& name, const char* colour) {
    return add(name,
               QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"20\" "
                          "viewBox=\"0 0 40 20\"><rect width=\"40\" height=\"20\" fill=\"") +
                   colour + "\"/></svg>");
  }

 private:
  QTemporaryDir mDirectory;
};

}  // namespace cutline
