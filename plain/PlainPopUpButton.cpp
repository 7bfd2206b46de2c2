#include "plain/PlainPopUpButton.h"

#include <algorithm>
#include <utility>

namespace cutline {

void PlainPopUpButton::addItem(PopUpItem item) noexcept {
  mItems.push_back(std::move(item));
  if (mItems.size() == 1) mSelected = 0;
}

void PlainPopUpButton::removeItemWithTitle(const std::string& title) noexcept {
  const auto item = std::find_if(mItems.begin(), mItems.end(),
                                 [&](const PopUpItem& one) { return one.title == title; });
  if (item == mItems.end()) return;
  const auto index = static_cast<std::size_t>(item - mItems.begin());
  mItems.erase(item);
  if (mItems.empty()) {
    mSelected.reset();
  } else if (mSelected == index) {
    mSelected = 0;
  } else if (mSelected > index) {
    --*mSelected;
  }
}

void PlainPopUpButton::setTitleOfItem(std::size_t index, const std::string& title) noexcept {
  if (index < mItems.size()) mItems[index].title = title;
}

void PlainPopUpButton::setItem(std::size_t index, PopUpItem item) noexcept {
  if (index < mItems.size()) mItems[index] = std::move(item);
}

bool PlainPopUpButton::selectItemWithTag(int tag) noexcept {
  const auto item = std::find_if(mItems.begin(), mItems.end(),
                                 [&](const PopUpItem& one) { return one.tag == tag; });
  if (item == mItems.end()) return false;
  mSelected = static_cast<std::size_t>(item - mItems.begin());
  return true;
}

int PlainPopUpButton::selectedTag() const noexcept {
  return mSelected ? mItems[*mSelected].tag : 0;
}

bool PlainPopUpButton::performSelection(int tag) noexcept {
  if (!isEnabled() || !selectItemWithTag(tag)) return false;
  sendAction();
  return true;
}

}  // namespace cutline
