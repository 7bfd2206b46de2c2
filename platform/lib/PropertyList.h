// A property list value (strings, numbers, booleans, data, dates, arrays and dictionaries), read
// from its XML form. A value of our own, so that no caller depends on the parsing library.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace cutline {

class PropertyList {
 public:
  using Array = std::vector<PropertyList>;
  using Dictionary = std::map<std::string, PropertyList>;
  using Data = std::vector<std::uint8_t>;
  using Date = std::chrono::sys_time<std::chrono::milliseconds>;
  using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, Data, Date,
                             Array, Dictionary>;

  PropertyList() = default;
  explicit PropertyList(Value value) : mValue(std::move(value)) {}

  // Nothing when the bytes are not a well-formed XML property list.
  static std::optional<PropertyList> parseXML(std::string_view xml) noexcept;

  // Each answers null when the value is of another kind.
  const std::string* string() const noexcept { return std::get_if<std::string>(&mValue); }
  const Array* array() const noexcept { return std::get_if<Array>(&mValue); }
  const Dictionary* dictionary() const noexcept { return std::get_if<Dictionary>(&mValue); }
  const bool* boolean() const noexcept { return std::get_if<bool>(&mValue); }
  const Date* date() const noexcept { return std::get_if<Date>(&mValue); }
  // Integers and reals alike.
  std::optional<double> number() const noexcept;

  // The entry of a dictionary; null when there is none or the value is no dictionary.
  const PropertyList* objectForKey(const std::string& key) const noexcept;

 private:
  Value mValue;
};

}  // namespace cutline
