#include "tests/access/Accessible.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <sstream>

namespace cutline::test {

namespace {

struct FreeText {
  void operator()(char* text) const noexcept { g_free(text); }
};
struct FreeArray {
  void operator()(GArray* array) const noexcept { g_array_free(array, TRUE); }
};
struct ReleaseObject {
  void operator()(gpointer object) const noexcept { g_object_unref(object); }
};
using Text = std::unique_ptr<char, FreeText>;
using Array = std::unique_ptr<GArray, FreeArray>;
using StateSet = std::unique_ptr<AtspiStateSet, ReleaseObject>;

// What libatspi puts a failure into; the answer says it too.
class Failure {
 public:
  Failure() = default;
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  ~Failure() { g_clear_error(&mError); }
  operator GError**() { return &mError; }

 private:
  GError* mError = nullptr;
};

std::string taken(char* text) {
  const Text owned(text);
  return owned ? std::string(owned.get()) : std::string();
}

struct StateRow {
  AtspiStateType state;
  const char* name;
};
constexpr StateRow kDescribedStates[] = {
    {ATSPI_STATE_FOCUSABLE, "focusable"}, {ATSPI_STATE_FOCUSED, "focused"},
    {ATSPI_STATE_CHECKABLE, "checkable"}, {ATSPI_STATE_CHECKED, "checked"},
    {ATSPI_STATE_INDETERMINATE, "mixed"}, {ATSPI_STATE_EDITABLE, "editable"},
    {ATSPI_STATE_SELECTED, "selected"},   {ATSPI_STATE_EXPANDABLE, "expandable"},
    {ATSPI_STATE_MODAL, "modal"},         {ATSPI_STATE_IS_DEFAULT, "default"}};

std::string quoted(const std::string& text) { return '"' + text + '"'; }

void describe(std::ostream& line, const Accessible& object) {
  line << object.roleName() << ' ' << quoted(object.name());
  if (const std::string more = object.description(); !more.empty()) line << " (" << more << ')';
  if (object.hasText()) line << " text " << quoted(object.text());
  if (object.hasValue())
    line << " value " << object.value() << " of " << object.minimum() << " to " << object.maximum();
  if (!object.isUsable()) line << " greyed";
  if (!object.is(ATSPI_STATE_SHOWING)) line << " hidden";
  for (const StateRow& row : kDescribedStates)
    if (object.is(row.state)) line << ' ' << row.name;
  for (const std::string& action : object.actions()) line << " <" << action << '>';
  for (const std::string& label : object.labels()) line << " labelled by " << quoted(label);
}

}  // namespace

Accessible::Accessible(AtspiAccessible* object)
    : mObject(object, [](AtspiAccessible* each) {
        if (each) g_object_unref(each);
      }) {}

std::string Accessible::name() const {
  if (!mObject) return {};
  return taken(atspi_accessible_get_name(mObject.get(), Failure()));
}

std::string Accessible::description() const {
  if (!mObject) return {};
  return taken(atspi_accessible_get_description(mObject.get(), Failure()));
}

AtspiRole Accessible::role() const {
  return mObject ? atspi_accessible_get_role(mObject.get(), Failure()) : ATSPI_ROLE_INVALID;
}

std::string Accessible::roleName() const {
  return mObject ? taken(atspi_accessible_get_role_name(mObject.get(), Failure())) : std::string();
}

bool Accessible::is(AtspiStateType state) const {
  if (!mObject) return false;
  const StateSet states(atspi_accessible_get_state_set(mObject.get()));
  return states && atspi_state_set_contains(states.get(), state);
}

int Accessible::processId() const {
  if (!mObject) return 0;
  return static_cast<int>(atspi_accessible_get_process_id(mObject.get(), Failure()));
}

std::vector<Accessible> Accessible::children() const {
  std::vector<Accessible> all;
  if (!mObject) return all;
  const int count = atspi_accessible_get_child_count(mObject.get(), Failure());
  for (int i = 0; i < count; ++i) {
    Accessible child(atspi_accessible_get_child_at_index(mObject.get(), i, Failure()));
    if (child) all.push_back(std::move(child));
  }
  return all;
}

std::vector<std::string> Accessible::labels() const {
  std::vector<std::string> names;
  if (!mObject) return names;
  const Array relations(atspi_accessible_get_relation_set(mObject.get(), Failure()));
  for (guint i = 0; relations && i < relations->len; ++i) {
    const std::unique_ptr<AtspiRelation, ReleaseObject> relation(
        g_array_index(relations.get(), AtspiRelation*, i));
    if (atspi_relation_get_relation_type(relation.get()) != ATSPI_RELATION_LABELLED_BY) continue;
    for (int target = 0; target < atspi_relation_get_n_targets(relation.get()); ++target)
      names.push_back(Accessible(atspi_relation_get_target(relation.get(), target)).name());
  }
  return names;
}

bool Accessible::has(const char* interface) const {
  if (!mObject) return false;
  const Array interfaces(atspi_accessible_get_interfaces(mObject.get()));
  bool found = false;
  for (guint i = 0; interfaces && i < interfaces->len; ++i) {
    const Text name(g_array_index(interfaces.get(), char*, i));
    found = found || std::strcmp(name.get(), interface) == 0;
  }
  return found;
}

std::vector<std::string> Accessible::actions() const {
  std::vector<std::string> names;
  if (!has("Action")) return names;
  const int count = atspi_action_get_n_actions(action(), Failure());
  for (int i = 0; i < count; ++i)
    names.push_back(taken(atspi_action_get_action_name(action(), i, Failure())));
  return names;
}

bool Accessible::perform(const std::string& name) const {
  const std::vector<std::string> names = actions();
  const auto found = std::find(names.begin(), names.end(), name);
  return found != names.end() &&
         atspi_action_do_action(action(), static_cast<int>(found - names.begin()), Failure());
}

bool Accessible::press() const {
  return has("Action") && atspi_action_do_action(action(), 0, Failure());
}

bool Accessible::hasText() const { return has("Text"); }

std::string Accessible::text() const {
  return hasText() ? taken(atspi_text_get_text(textual(), 0, -1, Failure())) : std::string();
}

bool Accessible::setText(const std::string& text) const {
  return has("EditableText") && atspi_editable_text_set_text_contents(
                                    ATSPI_EDITABLE_TEXT(mObject.get()), text.c_str(), Failure());
}

bool Accessible::hasValue() const { return has("Value"); }

double Accessible::value() const {
  return hasValue() ? atspi_value_get_current_value(numeric(), Failure()) : 0;
}

double Accessible::minimum() const {
  return hasValue() ? atspi_value_get_minimum_value(numeric(), Failure()) : 0;
}

double Accessible::maximum() const {
  return hasValue() ? atspi_value_get_maximum_value(numeric(), Failure()) : 0;
}

bool Accessible::setValue(double value) const {
  return hasValue() && atspi_value_set_current_value(numeric(), value, Failure());
}

bool Accessible::grabFocus() const {
  return has("Component") && atspi_component_grab_focus(ATSPI_COMPONENT(mObject.get()), Failure());
}

// What libatspi has once been told it believes until an event says otherwise; tests ask again.
Accessible desktop() {
  AtspiAccessible* object = atspi_get_desktop(0);
  atspi_accessible_set_cache_mask(object, ATSPI_CACHE_NONE);
  return Accessible(object);
}

std::vector<Accessible> allOf(const Accessible& object) {
  std::vector<Accessible> all{object};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::vector<Accessible> children = all[i].children();
    all.insert(all.end(), children.begin(), children.end());
  }
  return all;
}

// What a hidden object holds is not on the screen, whatever it says of itself.
Accessible findShown(const Accessible& within, const std::function<bool(const Accessible&)>& isIt) {
  if (!within.is(ATSPI_STATE_SHOWING)) return {};
  if (isIt(within)) return within;
  for (const Accessible& child : within.children())
    if (const Accessible found = findShown(child, isIt)) return found;
  return {};
}

Accessible find(const Accessible& within, AtspiRole role, const std::string& name) {
  return findShown(
      within, [&](const Accessible& each) { return each.role() == role && each.name() == name; });
}

Accessible find(const Accessible& within, AtspiRole role) {
  return findShown(within, [&](const Accessible& each) { return each.role() == role; });
}

std::string describeTree(const Accessible& object, int depth) {
  std::ostringstream lines;
  lines << std::string(static_cast<std::size_t>(2 * depth), ' ');
  describe(lines, object);
  lines << '\n';
  for (const Accessible& child : object.children()) lines << describeTree(child, depth + 1);
  return lines.str();
}

}  // namespace cutline::test
