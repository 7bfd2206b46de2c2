// Mnemonics for controls that come without: those of a panel, whose titles are a PPD's or a
// bundle's, and those made from a PPD's options.
#pragma once

#include <QString>

class QWidget;

namespace cutline {

// Gives the shown buttons, check boxes and captions under `root` letters that nothing in `window`
// has, shown or not, nor `reserved` (upper case). What has a letter keeps it, so this may be called
// again and again. Titles for those who hear them stay as they are.
void assignMnemonics(QWidget& window, QWidget& root, const QString& reserved);

}  // namespace cutline
