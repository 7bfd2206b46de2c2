// A small sign that says how serious the text beside it is, drawn at any resolution.
#pragma once

#include <QWidget>

namespace cutline {

enum class Severity { good, info, warning, error };

class StatusIcon : public QWidget {
  Q_OBJECT

 public:
  explicit StatusIcon(Severity severity, QWidget* parent = nullptr);

  Severity severity() const noexcept { return mSeverity; }
  void setSeverity(Severity severity);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Severity mSeverity;
};

}  // namespace cutline
