// The elements of an XML property list: where each may stand, and the value of its text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/lib/PropertyList.h"

namespace cutline {

struct ListElement {
  enum class Holds { list, key, text, nothing, values, keysAndValues };

  std::string_view name;
  Holds holds;
  // The value of the element's text, which is left as it happens to be; nothing where the text says
  // none. Null for what holds elements, and for a key.
  std::optional<PropertyList::Value> (*valueOf)(std::string& text);
};

// Null when a list has no element of that name.
const ListElement* listElement(std::string_view name) noexcept;

}  // namespace cutline
