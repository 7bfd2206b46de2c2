// A widget whose drawing is a client's.
#pragma once

#include <memory>

#include "platform/CustomView.h"
#include "qt/QtViewOf.h"

namespace cutline {

class QtCustomView : public QtViewOf<CustomView, QWidget> {
 public:
  QtCustomView(const Rect& frame, CustomViewClient* client, std::shared_ptr<QtActions> actions);
  ~QtCustomView() override;

  void setClient(CustomViewClient* client) noexcept override;
  void drawSuper(const Rect& dirty, DrawingContext& context) noexcept override;
};

}  // namespace cutline
