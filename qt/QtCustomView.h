// A widget whose drawing is a client's.
#pragma once

#include <memory>
#include <string>

#include "platform/ports/Drawing.h"
#include "qt/ClientWidget.h"
#include "qt/QtViewOf.h"

namespace cutline {

class QtCustomView : public QtViewOf<CustomView, ClientWidget> {
 public:
  QtCustomView(const Rect& frame, CustomViewClient* client, std::shared_ptr<QtActions> actions);
  ~QtCustomView() override;

  void setClient(CustomViewClient* client) noexcept override;
  void drawSuper(const Rect& dirty, DrawingContext& context) noexcept override;
  void setNeedsDisplay(bool needsDisplay) noexcept override;
  // The label that was set, or else what the client says of its drawing.
  std::string accessibilityLabel() const noexcept override;

 private:
  CustomViewClient* mClient;
};

}  // namespace cutline
