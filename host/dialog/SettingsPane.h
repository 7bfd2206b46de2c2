// Where the dialog's settings lie: groups on quiet cards, in two columns where there is room, else
// one below the other. What does not fit is scrolled.
#pragma once

#include <QScrollArea>
#include <QWidget>

class QBoxLayout;
class QVBoxLayout;

namespace cutline {

// Holds what belongs together.
class Card : public QWidget {
  Q_OBJECT

 public:
  explicit Card(QWidget* parent = nullptr);

  // Below what it has.
  void add(QWidget* part);
  // What comes after it lies at the card's foot.
  void addStretch();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QVBoxLayout* mColumn;
};

class SettingsPane : public QScrollArea {
  Q_OBJECT

 public:
  // Takes all three over and lays the columns out in `content`. `second` keeps its width, `first`
  // takes what is left.
  SettingsPane(QWidget* content, QWidget* first, QWidget* second, QWidget* parent = nullptr);

  // All settings, without having to scroll.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // Chooses the columns by the width that it has. Needed only before it is shown.
  void arrange();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* mFirst;
  QWidget* mSecond;
  QBoxLayout* mColumns;
};

}  // namespace cutline
