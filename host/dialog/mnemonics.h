// Letters that, pressed with Alt, reach a control: they are underlined in its title. '&' stands
// before one in a text for the toolkit, and "&&" for itself.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace cutline {

// Before the letter in a text for the toolkit.
inline constexpr QChar kMnemonicMark = QLatin1Char('&');

// The letter in upper case; null when the text has none.
QChar mnemonicIn(const QString& text);

// Texts for the toolkit of these titles, each with a letter that is neither in `taken` (upper case)
// nor another's: one of its own, the start of a word rather than another. As many titles as
// possible get one. A title without a Latin letter gets a free one in parentheses behind it.
QStringList withMnemonics(const QStringList& titles, const QString& taken);

// For controls that come without a letter: those of a panel, whose titles are a PPD's or a
// bundle's, and those made from a PPD's options.
// Gives the shown buttons, check boxes and captions under `root` letters that nothing in `window`
// has, shown or not, nor `reserved` (upper case). What has a letter keeps it, so this may be called
// again and again. Titles for those who hear them stay as they are.
void assignMnemonics(QWidget& window, QWidget& root, const QString& reserved);

}  // namespace cutline
