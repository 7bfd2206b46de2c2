// The desktop's messages.
#pragma once

#include <QString>

namespace cutline {

// Shows a message until somebody has seen it, in the place of the one with that number unless that
// is 0; the new one's number, 0 where the session has nobody who shows messages.
unsigned showMessage(const QString& title, const QString& text, unsigned inPlaceOf);

}  // namespace cutline
