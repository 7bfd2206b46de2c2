// Builds the view tree of an interface file through the current toolkit and connects it to its
// owner.
#pragma once

#include "platform/lib/PropertyList.h"

namespace cutline {

class Bundle;
class InterfaceOwner;

// False when the file is not an interface file or the toolkit cannot make its top-level view; then
// nothing was connected. Another view that the toolkit cannot make is left out with its subviews,
// and its outlet stays unconnected. Texts that are keys of the bundle's string table are localized;
// an entry of a pop-up button has the picture of its title's name. A text field whose class or
// formatter the owner's classes don't have is the toolkit's own, and the system log says so. The
// owner is borrowed by the views: it outlives them or removes its handlers.
bool loadInterface(const PropertyList& file, const Bundle& bundle, InterfaceOwner& owner) noexcept;

}  // namespace cutline
