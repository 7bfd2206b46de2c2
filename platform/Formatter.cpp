#include "platform/Formatter.h"

namespace cutline {

Formatter::~Formatter() = default;

}  // namespace cutline
