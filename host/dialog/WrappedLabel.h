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

}  // namespace cutline
