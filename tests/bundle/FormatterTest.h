// A formatter, an ear for its notifications, and a user who edits.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bundle/textinput/PDEFormatter.h"
#include "tests/bundle/TestPlatform.h"

namespace cutline::test {

class FormatterTest : public testing::Test {
 protected:
  explicit FormatterTest(const std::string& systemCodeset = "UTF-8") : platform(systemCodeset) {
    for (const char* name : {"InvalidCharacterNotification", "FormatErrorNotification"}) {
      platform.center.addObserver(
          this, [this](const Notification& notification) { posted.push_back(notification); }, name,
          {});
    }
    formatter->init();
  }

  void useStyle(std::int32_t style) {
    formatter = std::make_shared<PDEFormatter>();
    formatter->initWithStyle(style);
  }

  // Whether the edit may stand that leads from a text with a selection to another with one. Checks
  // on the way that nothing was written, and that a refusal beeps and posts exactly once.
  bool edit(const std::u16string& original, TextRange selection, const std::u16string& proposed,
            TextRange proposedSelection) {
    const auto beepsBefore = platform.toolkit.beepCount();
    const auto postedBefore = posted.size();
    std::optional<std::u16string> text = proposed;
    TextRange range = proposedSelection;
    std::u16string error = u"untouched";
    const bool stands = formatter->isPartialStringValid(&text, &range, original, selection, &error);
    EXPECT_EQ(text, proposed);
    EXPECT_EQ(range, proposedSelection);
    EXPECT_EQ(error, u"untouched");
    EXPECT_EQ(platform.toolkit.beepCount() - beepsBefore, stands ? 0 : 1);
    EXPECT_EQ(posted.size() - postedBefore, stands ? 0U : 1U);
    return stands;
  }

  // Typing in place of the selection.
  bool replace(const std::u16string& original, TextRange selection, const std::u16string& typed) {
    std::u16string proposed = original;
    proposed.replace(selection.location, selection.length, typed);
    return edit(original, selection, proposed, {selection.location + typed.size(), 0});
  }

  // Typing behind the text.
  bool type(const std::u16string& original, const std::u16string& typed) {
    return replace(original, {original.size(), 0}, typed);
  }

  std::string lastName() const { return posted.empty() ? "" : posted.back().name; }
  NotificationObject lastObject() const {
    return posted.empty() ? NotificationObject() : posted.back().object;
  }
  NotificationObject formatterItself() const { return static_cast<const void*>(formatter.get()); }

  // A text in quotes would become an address.
  static NotificationObject characterAsObject(const std::string& character) { return character; }

  TestPlatform platform;
  std::vector<Notification> posted;
  std::shared_ptr<PDEFormatter> formatter = std::make_shared<PDEFormatter>();
};

}  // namespace cutline::test
