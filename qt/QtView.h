// A view on an empty QWidget. As the root of a tree it reports what its window does.
#pragma once

#include <memory>

#include "qt/QtViewOf.h"
#include "qt/QtWindowWatcher.h"

namespace cutline {

class QtView : public QtViewOf<View, QWidget> {
 public:
  QtView(const Rect& frame, std::shared_ptr<QtActions> actions);

 private:
  QtWindowWatcher mWindowWatcher;
};

}  // namespace cutline
