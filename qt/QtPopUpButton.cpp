#include "qt/QtPopUpButton.h"

#include <QSignalBlocker>
#include <algorithm>

#include "qt/PictureComboBox.h"
#include "qt/QtPicture.h"
#include "qt/QtText.h"
#include "qt/accessibility.h"

namespace cutline {

namespace {

template <class Matches>
std::optional<std::size_t> indexWhere(const std::vector<PopUpItem>& items, Matches matches) {
  const auto found = std::find_if(items.begin(), items.end(), matches);
  if (found == items.end()) return std::nullopt;
  return static_cast<std::size_t>(found - items.begin());
}

std::string inWords(const PopUpItem& item) {
  return item.accessibilityLabel.empty() ? item.title : item.accessibilityLabel;
}

std::shared_ptr<QtPicture> pictureOf(const PopUpItem& item) {
  return item.imagePath ? std::make_shared<QtPicture>(*item.imagePath) : nullptr;
}

}  // namespace

QtPopUpButton::QtPopUpButton(const Rect& frame, std::shared_ptr<QtActions> actions)
    : QtControlOf(new PictureComboBox, frame, std::move(actions)) {
  QObject::connect(widget(), &QComboBox::activated, core().connectionContext(),
                   [this](int index) { userDidChoose(index); });
}

void QtPopUpButton::addItem(PopUpItem item) noexcept {
  if (widget()) {
    const QSignalBlocker quiet(widget());
    static_cast<PictureComboBox*>(widget())->addEntry(toQString(item.title),
                                                      toQString(inWords(item)), pictureOf(item));
  }
  mItems.push_back(std::move(item));
  if (mItems.size() == 1) select(0);
}

void QtPopUpButton::removeItemWithTitle(const std::string& title) noexcept {
  const auto index = indexWhere(mItems, [&](const PopUpItem& item) { return item.title == title; });
  if (!index) return;
  mItems.erase(mItems.begin() + static_cast<std::ptrdiff_t>(*index));
  if (widget()) {
    const QSignalBlocker quiet(widget());
    widget()->removeItem(static_cast<int>(*index));
  }
  if (mSelected > index) {
    select(*mSelected - 1);
  } else if (mSelected == index) {
    select(mItems.empty() ? std::nullopt : std::optional<std::size_t>(0));
  }
}

void QtPopUpButton::setTitleOfItem(std::size_t index, const std::string& title) noexcept {
  if (index >= mItems.size()) return;
  mItems[index].title = title;
  if (widget()) widget()->setItemText(static_cast<int>(index), toQString(title));
}

void QtPopUpButton::setItem(std::size_t index, PopUpItem item) noexcept {
  if (index >= mItems.size()) return;
  if (widget()) {
    const QSignalBlocker quiet(widget());
    static_cast<PictureComboBox*>(widget())->setEntry(
        static_cast<int>(index), toQString(item.title), toQString(inWords(item)), pictureOf(item));
  }
  mItems[index] = std::move(item);
  nameCurrent();
}

void QtPopUpButton::setPlaceholder(const std::string& words) noexcept {
  mPlaceholder = words;
  if (widget()) widget()->setPlaceholderText(toQString(words));
  nameCurrent();
}

bool QtPopUpButton::selectItemWithTag(int tag) noexcept {
  const auto index = indexOfTag(tag);
  if (index) select(index);
  return index.has_value();
}

int QtPopUpButton::selectedTag() const noexcept { return mSelected ? mItems[*mSelected].tag : 0; }

bool QtPopUpButton::performSelection(int tag) noexcept {
  if (!isEnabled() || !selectItemWithTag(tag)) return false;
  runAction();
  return true;
}

void QtPopUpButton::setAccessibilityLabel(const std::string& label) noexcept {
  QtControlOf::setAccessibilityLabel(label);
  nameCurrent();
}

void QtPopUpButton::userDidChoose(int index) noexcept {
  select(static_cast<std::size_t>(index));
  runAction();
}

void QtPopUpButton::select(std::optional<std::size_t> index) noexcept {
  mSelected = index;
  nameCurrent();
  const int row = index ? static_cast<int>(*index) : -1;
  if (!widget() || widget()->currentIndex() == row) return;
  const QSignalBlocker quiet(widget());
  widget()->setCurrentIndex(row);
  widget()->update();
}

std::optional<std::size_t> QtPopUpButton::indexOfTag(int tag) const noexcept {
  return indexWhere(mItems, [tag](const PopUpItem& item) { return item.tag == tag; });
}

void QtPopUpButton::nameCurrent() noexcept {
  if (!widget()) return;
  const std::string entry = mSelected ? inWords(mItems[*mSelected]) : mPlaceholder;
  const std::string label = accessibilityLabel();
  const std::string separator = label.empty() || entry.empty() ? "" : ": ";
  tellAccessibleName(*widget(), toQString(label + separator + entry));
}

}  // namespace cutline
