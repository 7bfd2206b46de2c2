// A button on QPushButton.
#pragma once

#include <QPushButton>
#include <memory>

#include "platform/ports/Controls.h"
#include "qt/QtButtonOf.h"

namespace cutline {

class QtButton : public QtButtonOf<Button, QPushButton> {
 public:
  QtButton(const Rect& frame, std::shared_ptr<QtActions> actions);
};

}  // namespace cutline
