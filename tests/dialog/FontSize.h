// The program's font in one size, for as long as this lives.
#pragma once

#include <QApplication>
#include <QFont>

namespace cutline {

class FontSize {
 public:
  explicit FontSize(int points) : mBefore(QApplication::font()) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  ~FontSize() { QApplication::setFont(mBefore); }
  FontSize(const FontSize&) = delete;
  FontSize& operator=(const FontSize&) = delete;

 private:
  QFont mBefore;
};

}  // namespace cutline
