#include "platform/lib/InterfaceLoader.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/lib/InterfaceFile.h"
#include "platform/ports/Bundle.h"
#include "platform/ports/Controls.h"
#include "platform/ports/Formatter.h"
#include "platform/ports/Interface.h"
#include "platform/ports/Platform.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/System.h"
#include "platform/ports/TextField.h"
#include "platform/ports/Toolkit.h"

namespace cutline {
namespace {

constexpr char kControlTextDidChange[] = "NSControlTextDidChangeNotification";

std::shared_ptr<View> createView(Toolkit& toolkit, ViewKind kind, const Rect& frame) {
  switch (kind) {
    case ViewKind::view:
      return toolkit.createView(frame);
    case ViewKind::button:
      return toolkit.createButton(frame);
    case ViewKind::checkBox:
      return toolkit.createCheckBox(frame);
    case ViewKind::label:
      return toolkit.createLabel(frame);
    case ViewKind::textField:
      return toolkit.createTextField(frame);
    case ViewKind::stepper:
      return toolkit.createStepper(frame);
    case ViewKind::popUpButton:
      return toolkit.createPopUpButton(frame);
  }
  return nullptr;
}

void logMissingClass(const std::string& className, const std::string& outlet) {
  SystemLog* log = currentPlatform().systemLog;
  if (log) log->log("interface file: no class \"" + className + "\" for \"" + outlet + "\"");
}

void logMissingObject(const std::string& outlet) {
  SystemLog* log = currentPlatform().systemLog;
  if (log) log->log("interface file: no view \"" + outlet + "\" for notifications to be about");
}

// Makes the views of a file, gives text fields their classes, which may speak of other views, then
// connects everything: an owner never sees half a tree.
class InterfaceBuilder {
 public:
  InterfaceBuilder(Toolkit& toolkit, const Bundle& bundle, const InterfaceClasses* classes)
      : mToolkit(toolkit), mBundle(bundle), mClasses(classes) {}

  // Null when the toolkit cannot make the view.
  std::shared_ptr<View> build(const ViewDescription& description) {
    auto view = createView(mToolkit, description.kind, description.frame);
    if (!view) return nullptr;
    fill(*view, description);
    mMade.emplace_back(&description, view);
    for (const ViewDescription& subview : description.subviews) {
      if (auto made = build(subview)) view->addSubview(std::move(made));
    }
    return view;
  }

  void attachClasses(const InterfaceOwner& owner) const {
    for (const auto& [description, view] : mMade) {
      auto* field = dynamic_cast<TextField*>(view.get());
      if (!field) continue;
      attachFormatter(*field, *description, owner);
      attachClient(*field, *description);
      // A text is shown as the formatter has it, so it comes last.
      field->setStringValue(localized(description->title));
    }
  }

  void connect(InterfaceOwner& owner) const {
    for (const auto& [description, view] : mMade) {
      if (!description->outlet.empty()) owner.connectOutlet(description->outlet, view);
    }
    for (const auto& [description, view] : mMade) connectActions(*description, *view, owner);
  }

 private:
  std::string localized(const std::string& key) const {
    return key.empty() ? key : mBundle.localizedStringForKey(key, std::nullopt, std::nullopt);
  }

  void fill(View& view, const ViewDescription& description) const {
    view.setAutoresizing(description.resizing);
    if (!description.accessibilityLabel.empty()) {
      view.setAccessibilityLabel(localized(description.accessibilityLabel));
    }
    fillTitle(view, localized(description.title));
    if (auto* box = dynamic_cast<CheckBox*>(&view)) box->setPPDKeyword(description.ppdKeyword);
    if (auto* stepper = dynamic_cast<Stepper*>(&view)) {
      stepper->setRange(description.minValue, description.maxValue);
    }
    if (auto* popUp = dynamic_cast<PopUpButton*>(&view)) addItems(*popUp, description.items);
  }

  void attachFormatter(TextField& field, const ViewDescription& description,
                       const InterfaceOwner& owner) const {
    if (!description.formatter) return;
    FormatterDescription wanted = *description.formatter;
    if (description.notificationObject) {
      wanted.notificationObject = objectOf(*description.notificationObject, owner);
    }
    auto made = mClasses ? mClasses->formatter(wanted) : nullptr;
    if (!made) logMissingClass(wanted.className, description.outlet);
    field.setFormatter(std::move(made));
  }

  NotificationObject objectOf(const ObjectDescription& object, const InterfaceOwner& owner) const {
    if (object.text) return *object.text;
    if (object.owner) return static_cast<const void*>(&owner);
    for (const auto& [description, view] : mMade) {
      if (description->outlet == object.outlet) return static_cast<const void*>(view.get());
    }
    logMissingObject(object.outlet.value_or(std::string()));
    return {};
  }

  void attachClient(TextField& field, const ViewDescription& description) const {
    if (description.className.empty()) return;
    auto client = mClasses ? mClasses->textField(description.className, field) : nullptr;
    if (!client) logMissingClass(description.className, description.outlet);
    field.setClient(std::move(client));
  }

  static void fillTitle(View& view, const std::string& title) {
    if (auto* button = dynamic_cast<Button*>(&view)) button->setTitle(title);
    if (auto* label = dynamic_cast<Label*>(&view)) label->setStringValue(title);
  }

  void addItems(PopUpButton& popUp, const std::vector<ItemDescription>& items) const {
    for (const auto& [title, tag, description] : items) {
      popUp.addItem({title, tag, mBundle.pathForImageResource(title), localized(description)});
    }
  }

  static void connectActions(const ViewDescription& description, View& view,
                             InterfaceOwner& owner) {
    auto* control = dynamic_cast<Control*>(&view);
    if (control && !description.action.empty()) {
      control->setAction(owner.actionNamed(description.action));
    }
    auto* field = dynamic_cast<TextField*>(&view);
    if (!field || !description.delegate) return;
    const void* object = &view;
    field->setTextDidChange([&owner, object] {
      owner.controlTextDidChange({kControlTextDidChange, object});
    });
  }

  Toolkit& mToolkit;
  const Bundle& mBundle;
  const InterfaceClasses* mClasses;
  std::vector<std::pair<const ViewDescription*, std::shared_ptr<View>>> mMade;
};

}  // namespace

bool loadInterface(const PropertyList& file, const Bundle& bundle, InterfaceOwner& owner) noexcept {
  Toolkit* toolkit = currentPlatform().toolkit;
  const auto description = interfaceInFile(file);
  if (!toolkit || !description) return false;
  InterfaceBuilder builder(*toolkit, bundle, owner.interfaceClasses());
  if (!builder.build(*description)) return false;
  builder.attachClasses(owner);
  builder.connect(owner);
  owner.awakeFromNib();
  return true;
}

}  // namespace cutline
