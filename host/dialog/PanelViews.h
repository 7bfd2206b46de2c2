// What is seen of the panels: their views, and their summary.
#pragma once

#include <QWidget>
#include <vector>

#include "host/core/PrintValues.h"

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace cutline {

// Holds the native views of the panels at their own size, each under its name.
class PanelFrame : public QWidget {
  Q_OBJECT

 public:
  explicit PanelFrame(QWidget* parent = nullptr);

  // Takes out the panels that it holds and puts these in. Also needed after a panel's new layout.
  void setPanels(const std::vector<PanelEntry>& panels);
  // The views belong to their panels: they leave before their panels go.
  void releasePanels();

 private:
  void addPanel(const PanelEntry& panel);
  QWidget* makeHeadingRow(const PanelEntry& panel);
  void sayThatThereAreNone();

  QVBoxLayout* mColumn;
  std::vector<std::shared_ptr<View>> mViews;
};

// The panels' summary: "title: value" lines in two columns, each read from top to bottom.
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
