#include "platform/lib/InterfaceFile.h"

#include <array>
#include <cmath>
#include <limits>
#include <set>
#include <string_view>
#include <utility>

#include "base/Numbers.h"

namespace cutline {
namespace {

constexpr std::pair<std::string_view, ViewKind> kKinds[] = {
    {"View", ViewKind::view},
    {"Button", ViewKind::button},
    {"CheckBox", ViewKind::checkBox},
    {"Label", ViewKind::label},
    {"TextField", ViewKind::textField},
    {"Stepper", ViewKind::stepper},
    {"PopUpButton", ViewKind::popUpButton},
};

constexpr std::pair<std::string_view, Autoresizing> kResizings[] = {
    {"none", Autoresizing::none},
    {"minYMargin", Autoresizing::minYMargin},
};

// A coordinate beyond this is a mistake, and no toolkit could place it.
constexpr double kFarthest = 100000;

// Reads `{{x, y}, {width, height}}` from left to right.
class FrameReader {
 public:
  explicit FrameReader(std::string_view text) : mText(text) {}

  std::optional<Rect> read() {
    std::array<double, 4> values{};
    const bool complete = take('{') && takePair(&values[0]) && take(',') && takePair(&values[2]) &&
                          take('}') && isAtEnd();
    if (!complete || values[2] < 0 || values[3] < 0) return std::nullopt;
    return Rect{{values[0], values[1]}, {values[2], values[3]}};
  }

 private:
  void skipBlanks() {
    while (!mText.empty() && mText.front() == ' ') mText.remove_prefix(1);
  }

  bool isAtEnd() {
    skipBlanks();
    return mText.empty();
  }

  bool take(char expected) {
    skipBlanks();
    if (!mText.starts_with(expected)) return false;
    mText.remove_prefix(1);
    return true;
  }

  bool takeNumber(double* value) {
    skipBlanks();
    const auto number = cutline::takeNumber(mText);
    if (!number || !(std::abs(*number) <= kFarthest)) return false;
    *value = *number;
    return true;
  }

  bool takePair(double* values) {
    return take('{') && takeNumber(&values[0]) && take(',') && takeNumber(&values[1]) && take('}');
  }

  std::string_view mText;
};

// Each `read` answers false when the entry exists and is not as it must be; an absent entry leaves
// the value as it is.

bool read(const PropertyList& from, const char* key, std::string* value) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  if (!entry->string()) return false;
  *value = *entry->string();
  return true;
}

bool read(const PropertyList& from, const char* key, bool* value) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  if (!entry->boolean()) return false;
  *value = *entry->boolean();
  return true;
}

bool read(const PropertyList& from, const char* key, int* value) {
  using Limits = std::numeric_limits<int>;
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  const auto number = entry->number();
  if (!number || std::trunc(*number) != *number) return false;
  if (*number < Limits::min() || *number > Limits::max()) return false;
  *value = static_cast<int>(*number);
  return true;
}

bool read(const PropertyList& from, const char* key, PropertyList::Date* value) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  if (!entry->date()) return false;
  *value = *entry->date();
  return true;
}

template <typename Value>
bool read(const PropertyList& from, const char* key, std::optional<Value>* value) {
  return !from.objectForKey(key) || read(from, key, &value->emplace());
}

template <typename Value, std::size_t rows>
bool read(const PropertyList& from, const char* key,
          const std::pair<std::string_view, Value> (&names)[rows], Value* value) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  for (const auto& [name, meaning] : names) {
    if (!entry->string() || *entry->string() != name) continue;
    *value = meaning;
    return true;
  }
  return false;
}

bool read(const PropertyList& from, const char* key, Rect* value) {
  const PropertyList* entry = from.objectForKey(key);
  const auto frame = entry && entry->string() ? FrameReader(*entry->string()).read() : std::nullopt;
  if (frame) *value = *frame;
  return frame.has_value();
}

bool readOne(const PropertyList& from, std::string* text) {
  if (from.string()) *text = *from.string();
  return from.string() != nullptr;
}

bool readOne(const PropertyList& from, ItemDescription* item) {
  return from.objectForKey("title") && from.objectForKey("tag") &&
         read(from, "title", &item->title) && read(from, "tag", &item->tag) &&
         read(from, "description", &item->description);
}

bool readOne(const PropertyList& from, ViewDescription* view);

template <typename Element>
bool read(const PropertyList& from, const char* key, std::vector<Element>* elements) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  if (!entry->array()) return false;
  for (const PropertyList& one : *entry->array()) {
    if (!readOne(one, &elements->emplace_back())) return false;
  }
  return true;
}

bool read(const PropertyList& from, const char* key,
          std::optional<FormatterDescription::NameLists>* lists) {
  const PropertyList* entry = from.objectForKey(key);
  if (!entry) return true;
  if (!entry->dictionary()) return false;
  lists->emplace();
  for (const auto& [name, list] : *entry->dictionary()) {
    if (!read(*entry, name.c_str(), &(**lists)[name])) return false;
  }
  return true;
}

bool read(const PropertyList& from, std::optional<ObjectDescription>* object) {
  const PropertyList* entry = from.objectForKey("notificationObject");
  if (!entry) return true;
  auto& [outlet, owner, text] = object->emplace();
  const bool isRead = entry->dictionary() && read(*entry, "outlet", &outlet) &&
                      read(*entry, "owner", &owner) && read(*entry, "text", &text);
  return isRead && outlet.has_value() + owner + text.has_value() == 1;
}

bool read(const PropertyList& from, FormatterDescription* formatter) {
  return from.objectForKey("class") && read(from, "class", &formatter->className) &&
         read(from, "formatString", &formatter->formatString) &&
         read(from, "textStyle", &formatter->textStyle) &&
         read(from, "maxLength", &formatter->maxLength) &&
         read(from, "minValue", &formatter->minValue) &&
         read(from, "maxValue", &formatter->maxValue) &&
         read(from, "validityMinValue", &formatter->validityMinValue) &&
         read(from, "validityMaxValue", &formatter->validityMaxValue) &&
         read(from, "invalidCharacters", &formatter->invalidCharacters) &&
         read(from, "calendarDate", &formatter->calendarDate) &&
         read(from, "calendarLocale", &formatter->calendarLocale);
}

bool readTextInput(const PropertyList& from, ViewDescription* view) {
  const PropertyList* formatter = from.objectForKey("formatter");
  return read(from, "delegate", &view->delegate) && read(from, "class", &view->className) &&
         (!formatter || (read(*formatter, &view->formatter.emplace()) &&
                         read(*formatter, &view->notificationObject)));
}

bool readTexts(const PropertyList& from, ViewDescription* view) {
  return read(from, "outlet", &view->outlet) && read(from, "title", &view->title) &&
         read(from, "accessibilityLabel", &view->accessibilityLabel) &&
         read(from, "action", &view->action) && read(from, "ppdKeyword", &view->ppdKeyword);
}

bool readOne(const PropertyList& from, ViewDescription* view) {
  if (!from.objectForKey("kind")) return false;
  return read(from, "kind", kKinds, &view->kind) && read(from, "frame", &view->frame) &&
         readTexts(from, view) && readTextInput(from, view) &&
         read(from, "minValue", &view->minValue) && read(from, "maxValue", &view->maxValue) &&
         view->minValue <= view->maxValue && read(from, "resizing", kResizings, &view->resizing) &&
         read(from, "items", &view->items) && read(from, "subviews", &view->subviews);
}

// Two controls of one name: the owner would keep the later one and lose the other in silence.
bool hasDistinctOutlets(const ViewDescription& view, std::set<std::string>& seen) {
  if (!view.outlet.empty() && !seen.insert(view.outlet).second) return false;
  for (const ViewDescription& subview : view.subviews) {
    if (!hasDistinctOutlets(subview, seen)) return false;
  }
  return true;
}

// An object that isn't there would leave a formatter speaking about itself, in silence.
bool hasNamedObjects(const ViewDescription& view, const std::set<std::string>& outlets) {
  const auto& object = view.notificationObject;
  if (object && object->outlet && !outlets.contains(*object->outlet)) return false;
  for (const ViewDescription& subview : view.subviews) {
    if (!hasNamedObjects(subview, outlets)) return false;
  }
  return true;
}

}  // namespace

std::optional<ViewDescription> interfaceInFile(const PropertyList& file) noexcept {
  const PropertyList* top = file.objectForKey("view");
  ViewDescription view;
  view.resizing = Autoresizing::none;
  if (!top || !readOne(*top, &view)) return std::nullopt;
  std::set<std::string> outlets;
  if (!hasDistinctOutlets(view, outlets) || !hasNamedObjects(view, outlets)) return std::nullopt;
  return view;
}

}  // namespace cutline
