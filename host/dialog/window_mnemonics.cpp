#include "host/dialog/window_mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <functional>
#include <vector>

#include "host/dialog/mnemonics.h"
#include "qt/QtText.h"

namespace cutline {
namespace {

// A widget whose title the toolkit reads a mnemonic from.
struct Titled {
  QWidget* widget;
  QString text;
  std::function<void(const QString&)> setText;
};

std::vector<Titled> titledUnder(const QWidget& root) {
  std::vector<Titled> found;
  for (QWidget* each : root.findChildren<QWidget*>()) {
    if (auto* button = qobject_cast<QAbstractButton*>(each); button && !button->text().isEmpty()) {
      found.push_back({button, button->text(), [button](const QString& text) {
                         if (button->accessibleName().isEmpty()) {
                           button->setAccessibleName(withoutMark(button->text()));
                         }
                         button->setText(text);
                       }});
    }
    if (auto* label = qobject_cast<QLabel*>(each); label && label->buddy()) {
      found.push_back(
          {label, label->text(), [label](const QString& text) { label->setText(text); }});
    }
  }
  return found;
}

QString lettersIn(const QWidget& window) {
  QString letters;
  for (const Titled& each : titledUnder(window)) {
    const QChar letter = mnemonicIn(each.text);
    if (!letter.isNull()) letters += letter;
  }
  return letters;
}

}  // namespace

void assignMnemonics(QWidget& window, QWidget& root, const QString& reserved) {
  std::vector<Titled> without;
  QStringList titles;
  for (const Titled& each : titledUnder(root)) {
    if (!each.widget->isVisibleTo(&window) || !mnemonicIn(each.text).isNull()) continue;
    without.push_back(each);
    titles.append(withoutMark(each.text));
  }
  const QStringList texts = withMnemonics(titles, lettersIn(window) + reserved);
  for (std::size_t i = 0; i < without.size(); ++i) {
    without[i].setText(texts[static_cast<qsizetype>(i)]);
  }
}

}  // namespace cutline
