// Text between the ports and Qt: its encoding, its mnemonics, its colours.
#pragma once

#include <QObject>
#include <QPalette>
#include <QString>
#include <QWidget>
#include <string>

#include "platform/ports/Controls.h"

namespace cutline {

// Text is UTF-8 in the ports.
QString toQString(const std::string& utf8) noexcept;
std::string toUtf8(const QString& text) noexcept;

// For texts that Qt reads mnemonics from: '&' stands for itself.
QString withoutMnemonics(QString text) noexcept;

// The other way: such a text as it is read, without the sign of its mnemonic.
QString withoutMark(const QString& text) noexcept;

// Texts of drivers, servers, files and people are no HTML: where the widget is a label, of a tool
// tip or a message too, it shows each as it is. The program's style does this with every widget.
void showTextsAsTheyAre(QWidget& widget) noexcept;

// The two text colours of labels and text fields, taken from the palette and kept in step with it
// (the user may switch between light and dark while the panel is open).
class QtTextColor : public QObject {
 public:
  // `role` is the palette role that the widget draws its text with.
  QtTextColor(QWidget& widget, QPalette::ColorRole role);

  TextColor color() const noexcept { return mColor; }
  // `widget` may be gone by now: null then.
  void setColor(QWidget* widget, TextColor color) noexcept;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void apply(QWidget& widget) const;

  QPalette::ColorRole mRole;
  TextColor mColor = TextColor::controlText;
};

}  // namespace cutline
