// The panels' summary: "title: value" lines in two columns, each read from top to bottom.
#pragma once

#include <QWidget>
#include <vector>

#include "host/core/PrintModel.h"

class QGridLayout;
class QLabel;

namespace cutline {

class SummaryView : public QWidget {
  Q_OBJECT

 public:
  explicit SummaryView(QWidget* parent = nullptr);

  void setLines(const std::vector<SummaryLine>& lines);

 private:
  struct Row {
    QLabel* title;
    QLabel* value;
  };
  void makeRows(std::size_t count);
  Row makeRow(int row, int column);

  QGridLayout* mGrid;
  std::vector<Row> mRows;
};

}  // namespace cutline
