// A label in memory.
#pragma once

#include "plain/PlainText.h"
#include "platform/ports/Controls.h"

namespace cutline {

class PlainLabel final : public PlainText<Label> {
 public:
  using PlainText<Label>::PlainText;
};

}  // namespace cutline
