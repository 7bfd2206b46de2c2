// A label whose text goes over several lines.
#pragma once

#include <QFont>
#include <QHash>
#include <QLabel>

namespace cutline {

// Layouts ask a dozen times for its height at the same few widths, and each answer of the toolkit's
// own lays the text out anew; this one remembers them.
class WrappedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit WrappedLabel(QWidget* parent = nullptr);

  int heightForWidth(int width) const override;

 private:
  mutable QString mText;
  mutable QFont mFont;
  mutable QHash<int, int> mHeights;
};

// The place of such a label in a layout. Each new text of a label alone has the whole window laid
// out again; the room asks for that when it has to become higher or lower. It takes any width.
class LabelRoom : public QWidget {
  Q_OBJECT

 public:
  explicit LabelRoom(QWidget* parent = nullptr);

  // For its font and colours.
  QLabel& label() const noexcept { return *mLabel; }
  QString text() const { return mLabel->text(); }
  void setText(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return mLabel->heightForWidth(width); }

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void askForHeight();

  WrappedLabel* mLabel;
};

}  // namespace cutline
