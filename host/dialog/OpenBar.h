// Where documents are opened: with the desktop's file dialog, or one of those that were printed
// last.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QPushButton;
class QToolButton;

namespace cutline {

class OpenBar : public QWidget {
  Q_OBJECT

 public:
  explicit OpenBar(QWidget* parent = nullptr);

  // Paths, newest first; without any there is nothing to click for them.
  void setRecent(const std::vector<std::string>& paths);

 signals:
  void documentsChosen(const std::vector<std::string>& paths);

 private:
  void ask();

  QPushButton* mOpen;
  QToolButton* mRecent;
};

}  // namespace cutline
