#include "platform/InterfaceClasses.h"

namespace cutline {

InterfaceClasses::~InterfaceClasses() = default;

}  // namespace cutline
