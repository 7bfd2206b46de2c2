// The arguments of a format: a typed list, so that a format can ask for anything without reaching
// what isn't there.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "bundle/format/Describable.h"

namespace cutline {

// One argument of a format: a value and its kind. A conversion reads the value only as what it is.
// Laid out as the C structure { int32_t kind; union { 64 bits or a pointer } value; size_t length;
// }. Made from a value of one of the kinds; text and objects are borrowed.
class FormatArgument {
 public:
  enum class Kind : std::int32_t { signedInteger, unsignedInteger, real, pointer, text, object };

  template <std::signed_integral Integer>
  constexpr FormatArgument(Integer value) noexcept
      : mKind(Kind::signedInteger), mValue{.integer = static_cast<std::uint64_t>(value)} {}
  template <std::unsigned_integral Integer>
  constexpr FormatArgument(Integer value) noexcept
      : mKind(Kind::unsignedInteger), mValue{.integer = value} {}
  template <std::floating_point Real>
  constexpr FormatArgument(Real value) noexcept
      : mKind(Kind::real), mValue{.real = static_cast<double>(value)} {}
  constexpr FormatArgument(const void* address) noexcept
      : mKind(Kind::pointer), mValue{.pointer = address} {}
  constexpr FormatArgument(std::nullptr_t) noexcept
      : FormatArgument(static_cast<const void*>(nullptr)) {}
  // UTF-8, with a NUL at the end; null is no text.
  constexpr FormatArgument(const char* text) noexcept
      : mKind(Kind::text),
        mValue{.text = text},
        mLength(text ? std::char_traits<char>::length(text) : 0) {}
  constexpr FormatArgument(std::string_view text) noexcept
      : mKind(Kind::text), mValue{.text = text.data()}, mLength(text.size()) {}
  FormatArgument(const std::string& text) noexcept : FormatArgument(std::string_view(text)) {}
  // No text where there is none.
  FormatArgument(const std::optional<std::string>& text) noexcept
      : mKind(Kind::text),
        mValue{.text = text ? text->data() : nullptr},
        mLength(text ? text->size() : 0) {}
  // Null is no object.
  constexpr FormatArgument(const Describable* object) noexcept
      : mKind(Kind::object), mValue{.object = object} {}
  constexpr FormatArgument(const Describable& object) noexcept : FormatArgument(&object) {}

  // Each answers nothing when the value is of another kind.

  // An integer of either sign; a negative one in two's complement.
  constexpr std::optional<std::uint64_t> integer() const noexcept {
    if (mKind != Kind::signedInteger && mKind != Kind::unsignedInteger) return std::nullopt;
    return mValue.integer;
  }
  constexpr std::optional<double> real() const noexcept {
    return mKind == Kind::real ? std::optional(mValue.real) : std::nullopt;
  }
  // A pointer, or where an object is.
  constexpr std::optional<const void*> address() const noexcept {
    if (mKind == Kind::object) return mValue.object;
    return mKind == Kind::pointer ? std::optional(mValue.pointer) : std::nullopt;
  }
  // Nothing for a null text, too.
  constexpr std::optional<std::string_view> text() const noexcept {
    if (mKind != Kind::text || !mValue.text) return std::nullopt;
    return std::string_view(mValue.text, mLength);
  }
  // Null for a null object, too.
  constexpr const Describable* object() const noexcept {
    return mKind == Kind::object ? mValue.object : nullptr;
  }

 private:
  union Value {
    std::uint64_t integer;
    double real;
    const void* pointer;
    const char* text;
    const Describable* object;
  };

  Kind mKind;
  Value mValue;
  std::size_t mLength = 0;  // of a text, in bytes
};

static_assert(std::is_standard_layout_v<FormatArgument>);
static_assert(std::is_trivially_copyable_v<FormatArgument>);

// The arguments of a format, in order. Laid out as the C structure { const FormatArgument* items;
// size_t count; }, and passed as it is.
class FormatArguments {
 public:
  constexpr FormatArguments() noexcept = default;
  // Borrows the list: written out in a call, as in {5, "text"}, it lives as long as the call.
  constexpr FormatArguments(std::initializer_list<FormatArgument> list) noexcept
      : FormatArguments(std::span(std::data(list), list.size())) {}
  constexpr FormatArguments(std::span<const FormatArgument> list) noexcept
      : mItems(list.data()), mCount(list.size()) {}

  // Null behind the last.
  constexpr const FormatArgument* at(std::size_t index) const noexcept {
    return mItems && index < mCount ? mItems + index : nullptr;
  }

 private:
  const FormatArgument* mItems = nullptr;
  std::size_t mCount = 0;
};

static_assert(std::is_standard_layout_v<FormatArguments>);
static_assert(std::is_trivially_copyable_v<FormatArguments>);

}  // namespace cutline
