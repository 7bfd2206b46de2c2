#include "tests/e2e/presser/Presser.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

namespace cutline::test {

namespace {

constexpr int kBetweenLooks = 5;

// Its text tells how many labels there are, once that is known.
QPushButton* readyButton() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* button = window->findChild<QPushButton*>(QStringLiteral("print"));
    const bool isReady = button != nullptr && button->isVisible() && button->isEnabled();
    if (isReady && button->text().contains(QStringLiteral("labels"))) return button;
  }
  return nullptr;
}

void pressPrint(QTimer& looks) {
  QPushButton* button = readyButton();
  if (button == nullptr) return;
  looks.stop();
  button->click();
}

void closeWindow(QTimer& looks) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    looks.stop();
    window->close();
  }
}

}  // namespace

QObject* Presser::create(const QString& /*key*/, const QString& words) {
  auto* const looks = new QTimer;
  const auto act = words == QLatin1String("close") ? closeWindow : pressPrint;
  QObject::connect(looks, &QTimer::timeout, [looks, act] { act(*looks); });
  looks->start(kBetweenLooks);
  return looks;
}

}  // namespace cutline::test
