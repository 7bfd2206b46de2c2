#include "platform/ports/View.h"

namespace cutline {

View::~View() = default;

void View::setFrameOrigin(const Point& origin) noexcept { setFrame({origin, frame().size}); }

void View::setFrameSize(const Size& size) noexcept { setFrame({frame().origin, size}); }

}  // namespace cutline
