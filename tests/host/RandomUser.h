// A user at work on printers of every make-up: clicks, counts, presets of the pop-up, other
// options, papers, presets kept and chosen, undo, in whatever order the dice say; and what must
// come of each.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/host/Dialog.h"
#include "tests/support/TestPrinter.h"

namespace cutline {

// Printers are numbered: a bit for each of the nine options, one for the family, two for the
// attribute that hides automatic cutting, and one for third choices.
inline constexpr unsigned kUsersPrinters = 512U * 2 * 4 * 2;

class RandomUser {
 public:
  // Answers a number below the limit, which is not 0.
  using Dice = std::function<unsigned(std::size_t limit)>;

  explicit RandomUser(Dice dice) : mDice(std::move(dice)) {}

  void usePrinter(unsigned number);
  // Does one thing; tells it in story().
  void act();
  // Fails the running test unless everything is as what was done asks for.
  void check() { mDialog.expectHeldTogether(*mWishes); }
  // Fails the running test unless some control reaches each choice of the cut options: a box's two,
  // a number that can be typed, or a list of their own.
  void expectAllReachable();
  const std::string& story() const { return mStory; }

 private:
  unsigned below(std::size_t limit) { return mDice(limit); }
  bool coin() { return below(2) == 1; }
  bool showsAutoCutBox() const;
  test::TestPrinter printerOf(unsigned number);
  void addThirdChoices(test::TestPrinter& printer);
  void clickSomeBox();
  void typeCount();
  void choosePaper();
  void choosePreset();
  void chooseInTheList();
  void keepAndChoose();
  void remember() { mSteps.emplace_back(mDialog.model().settings(), *mWishes); }
  void goBack();

  Dice mDice;
  std::vector<std::pair<Settings, Wishes>> mSteps;
  Dialog mDialog;
  test::TestPrinter mPrinter;
  std::optional<Wishes> mWishes;
  std::string mStory;
};

}  // namespace cutline
