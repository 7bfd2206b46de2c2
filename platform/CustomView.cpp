#include "platform/CustomView.h"

namespace cutline {

// Out of line, so that the type's identity is in this library alone.
CustomViewClient::~CustomViewClient() = default;
CustomView::~CustomView() = default;

}  // namespace cutline
