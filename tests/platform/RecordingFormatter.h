// A formatter that keeps what it is asked, and answers as it is told to.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/Utf16.h"
#include "platform/ports/Formatter.h"

namespace cutline {

// An edit as a formatter is asked about it, in UTF-8, with ranges in UTF-16 units.
struct AskedEdit {
  std::string original;
  TextRange madeAt;
  std::string proposed;
  TextRange selection;

  friend bool operator==(const AskedEdit&, const AskedEdit&) = default;
  friend std::ostream& operator<<(std::ostream& out, const AskedEdit& edit) {
    return out << '"' << edit.original << "\" at " << edit.madeAt.location << '+'
               << edit.madeAt.length << " -> \"" << edit.proposed << "\" at "
               << edit.selection.location << '+' << edit.selection.length;
  }
};

class RecordingFormatter : public Formatter {
 public:
  bool isPartialStringValid(std::optional<std::u16string>* partialString,
                            TextRange* proposedSelectedRange, const std::u16string& originalString,
                            TextRange originalSelectedRange,
                            std::u16string* /*errorDescription*/) noexcept override {
    asked.push_back({utf8FromUtf16(originalString), originalSelectedRange,
                     utf8FromUtf16(**partialString), *proposedSelectedRange});
    return judge(asked.back());
  }

  std::optional<std::string> stringForObjectValue(const std::string& object) noexcept override {
    return show(object);
  }

  bool getObjectValue(std::optional<std::string>* object, const std::optional<std::string>& string,
                      std::string* /*errorDescription*/) noexcept override {
    *object = value(*string);
    return object->has_value();
  }

  void refuseEverything() {
    judge = [](const AskedEdit&) { return false; };
  }
  // Takes texts of digits alone.
  void takeDigits() {
    judge = [](const AskedEdit& edit) {
      return edit.proposed.find_first_not_of("0123456789") == std::string::npos;
    };
  }
  // Shows "12" as "12 mm" and reads both.
  void showMillimetres() {
    value = [](const std::string& text) -> std::optional<std::string> {
      const std::string digits = text.substr(0, text.find_first_not_of("0123456789"));
      return digits.empty() ? std::nullopt : std::optional(digits);
    };
    show = [](const std::string& number) { return std::optional(number + " mm"); };
  }

  using Conversion = std::function<std::optional<std::string>(const std::string&)>;
  std::vector<AskedEdit> asked;
  std::function<bool(const AskedEdit&)> judge = [](const AskedEdit&) { return true; };
  Conversion value = [](const std::string& text) { return std::optional(text); };
  Conversion show = [](const std::string& text) { return std::optional(text); };
};

}  // namespace cutline
