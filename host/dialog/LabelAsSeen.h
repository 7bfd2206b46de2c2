// A label as a reader holds it. The paper is turned back by as much as a reader's page is turned
// onto it: after a quarter its top lies left, as a tape leaves the printer. Points, y downwards.
#pragma once

#include <QRectF>
#include <QSizeF>

#include "composition/LabelPage.h"

namespace cutline {

// Whether a label is read along its length, as on a tape, so that its strip runs across the view.
bool runsAcross(const LabelPage& label) noexcept;

QSizeF sizeAsSeen(const LabelPage& label) noexcept;
// What can be printed of it, from the upper left corner.
QRectF printableAsSeen(const LabelPage& label) noexcept;

}  // namespace cutline
