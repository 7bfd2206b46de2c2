// The description of a view tree as an interface file gives it: a property list whose entry `view`
// is the top-level view. A view is a dictionary with these entries, of which only `kind` and
// `frame` must be there:
//
// - kind: string, one of View, Button, CheckBox, Label, TextField, Stepper, PopUpButton
// - frame: string "{{x, y}, {width, height}}" in the superview's coordinates
// - outlet: string, the owner's field; no two the same
// - title: string, text or a key of the string table
// - accessibilityLabel: string, text or a key of the string table
// - action: string, the owner's action by its full name
// - delegate: boolean, the owner hears of changes to the text
// - class: string, the bundle's own class of a text field
// - formatter: dictionary, the formatter of a text field
// - ppdKeyword: string
// - minValue, maxValue: integers, the bounds of a stepper
// - resizing: string, "none" or "minYMargin"; "minYMargin" when absent, except that the top-level
//   view has "none"
// - items: array of dictionaries, the entries of a pop-up button: strings `title` and
//   `description` (may be absent), integer `tag`
// - subviews: array of views
//
// A formatter is a dictionary with these entries, of which only `class` must be there:
//
// - class: string, the bundle's own class
// - formatString: string
// - textStyle, maxLength: integers
// - minValue, maxValue: integers; a limit that is given is checked
// - validityMinValue, validityMaxValue: booleans, whether the limit is checked, where that is to
//   differ from whether it is given
// - invalidCharacters: array of strings
// - notificationObject: dictionary, what the formatter's notifications are about in place of the
//   formatter itself: one entry of `outlet` (string, the view at this outlet of the file), `owner`
//   (true, the file's owner) or `text` (string)
// - calendarDate: date, what a style for dates shows, in UTC
// - calendarLocale: dictionary, the names of months, days and halves of the day: arrays of strings
//   under the names that CalendarDate reads
//
// Entries of other names are ignored.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/lib/PropertyList.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Interface.h"
#include "platform/ports/View.h"

namespace cutline {

enum class ViewKind { view, button, checkBox, label, textField, stepper, popUpButton };

struct ItemDescription {
  std::string title;  // also the name of the entry's picture
  int tag = 0;
  std::string description;  // a key of the string table
};

// Which object of a file is meant; one of the three.
struct ObjectDescription {
  std::optional<std::string> outlet;
  bool owner = false;
  std::optional<std::string> text;
};

struct ViewDescription {
  ViewKind kind = ViewKind::view;
  Rect frame;
  std::string outlet;
  std::string title;
  std::string accessibilityLabel;
  std::string action;
  std::string className;                          // of a text field; empty for the toolkit's own
  std::optional<FormatterDescription> formatter;  // its notification object is still to be found
  std::optional<ObjectDescription> notificationObject;  // of the formatter
  bool delegate = false;
  std::string ppdKeyword;
  int minValue = 0;
  int maxValue = 100;
  Autoresizing resizing = Autoresizing::minYMargin;
  std::vector<ItemDescription> items;
  std::vector<ViewDescription> subviews;
};

// The top-level view; nothing when any part of the file is not as described above.
std::optional<ViewDescription> interfaceInFile(const PropertyList& file) noexcept;

}  // namespace cutline
