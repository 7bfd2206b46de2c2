// A button that shows and hides what lies below it.
#pragma once

#include <QPushButton>
#include <QString>

namespace cutline {

// Checked while that is shown; `toggled` tells.
QPushButton* makeDisclosure(const QString& title, QWidget* parent);

}  // namespace cutline
