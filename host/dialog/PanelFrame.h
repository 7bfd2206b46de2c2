// Holds the native views of the panels at their own size, each under its name.
#pragma once

#include <QWidget>
#include <vector>

#include "host/core/PrintModel.h"

class QVBoxLayout;

namespace cutline {

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
  void sayThatThereAreNone();

  QVBoxLayout* mColumn;
  std::vector<std::shared_ptr<View>> mViews;
};

}  // namespace cutline
