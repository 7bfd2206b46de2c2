// Where one row of buttons comes in the place of another, the second click of a double click finds
// a button that it was not meant for.
#pragma once

#include <QDeadlineTimer>
#include <QObject>

class QWidget;

namespace cutline {

// Keeps clicks and keys from the buttons in a place for a moment after they were exchanged. What
// assistive technology presses it lets through: that is never pressed twice by a twitch.
class ClickGuard : public QObject {
  Q_OBJECT

 public:
  // Guards what is in `place`, its parent, and the window's default button, which Return presses
  // wherever it is.
  explicit ClickGuard(QWidget* place);

  // Other buttons stand there from now on.
  void noteExchange();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isForPlace(QObject* watched) const;
  bool isUnmeant(QObject* watched, QEvent* event) const;

  QWidget& mPlace;
  QDeadlineTimer mMoment{0};
};

}  // namespace cutline
