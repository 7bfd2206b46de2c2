// What must hold of every window that a person works with: its controls are reached and told apart
// by keyboard, and its texts are whole.
#pragma once

#include <QString>
#include <QWidget>
#include <set>
#include <string>
#include <vector>

class QComboBox;

namespace cutline {

// Kind and name of a control, for a test's message.
std::string describe(const QWidget& widget);

// The shown and enabled controls that take keys.
std::vector<QWidget*> controlsOf(const QWidget& window);
// Where the tab key gets from the focused control on, once around.
std::set<QWidget*> reachedByTab();
void expectTabReachesEveryControl(const QWidget& window);

// The shown texts that can have a mnemonic: those of buttons, and captions of other controls.
std::vector<QString> titlesOf(const QWidget& window);
// Each of these texts has no mnemonic or one of its own.
void expectNoSharedMnemonic(const QWidget& window);

// Labels, buttons, check boxes and placeholders have room for their whole texts. Not so the entries
// of combo boxes, which are a printer's own words and may be as long as they like.
void expectNothingCutOff(const QWidget& window);
// The chosen entry has.
void expectWholeEntry(const QComboBox& combo);

}  // namespace cutline
