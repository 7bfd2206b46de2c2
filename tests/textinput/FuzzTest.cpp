// Sessions of random edits in a text field with a random formatter, against a model. The seed of a
// session that fails is printed; CUTLINE_FUZZ_SEED=n runs sessions from that seed on.
#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdlib>
#include <deque>
#include <random>
#include <span>
#include <sstream>

#include "base/Utf16.h"
#include "bundle/textinput/PDEFormatter.h"
#include "platform/ports/TextField.h"
#include "qt/QtFieldEditor.h"
#include "tests/qt/LineUser.h"
#include "tests/textinput/FieldModel.h"
#include "tests/textinput/TypingPlatform.h"

namespace cutline {
namespace {

constexpr int kEdits = 10000;

// More than one edit adds; those before were compared after their own.
template <class Element>
std::span<const Element> newest(const std::vector<Element>& all) {
  constexpr std::size_t kSome = 5;
  return std::span(all).last(std::min(kSome, all.size()));
}

QString toQString(const std::u16string& text) { return QString::fromStdU16String(text); }

class Session {
 public:
  explicit Session(unsigned seed) : mRandom(seed) {
    chooseSettings();
    mField->setFormatter(mFormatter);
    mField->setAction([this](View*) { ++mActions; });
    mField->setTextDidChange([this] {
      ++mChanges;
      if (!mModel.isClamped) return;
      mField->setStringValue(std::to_string(std::clamp(mField->intValue(), 1, 99)));
    });
    mLine = dynamic_cast<QtFieldEditor*>(QtToolkit::widgetOf(*mField));
    mUser = std::make_unique<LineUser>(mLine);
    mWindow.setLayout(new QVBoxLayout);
    mWindow.layout()->addWidget(mLine);
    mWindow.show();
    mWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&mWindow));
    mLine->setFocus();
  }
  ~Session() { mLine->setParent(nullptr); }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  const FieldModel& model() const { return mModel; }

  // False, with what was done last, when field and model part.
  bool edit() {
    doSomething();
    const std::string expected = stateOfModel();
    const std::string actual = stateOfField();
    EXPECT_EQ(actual, expected) << log();
    return actual == expected;
  }

 private:
  std::size_t below(std::size_t bound) { return mRandom() % bound; }
  bool oneIn(std::size_t count) { return below(count) == 0; }

  void chooseSettings() {
    test::VettingSettings& settings = mModel.settings;
    settings.style = static_cast<int>(below(14));
    if (oneIn(3)) settings.style = static_cast<int>(below(3)) * 2;
    if (oneIn(2)) settings.maxLength = static_cast<int>(1 + below(8));
    if (oneIn(2)) settings.minValue = static_cast<int>(below(30));
    if (oneIn(2)) settings.maxValue = static_cast<int>(20 + below(300));
    for (const char* text : {"7", "a", "ab", "é", "あ", "😀"}) {
      if (oneIn(5)) settings.forbidden.emplace_back(text);
    }
    const bool isNumber = settings.style == 2 || settings.style == 4;
    mModel.showsMillimetres = isNumber && oneIn(2);
    mModel.isClamped = oneIn(4);
    applySettings();
  }

  void applySettings() {
    const test::VettingSettings& settings = mModel.settings;
    mFormatter->initWithStyle(settings.style);
    mFormatter->setMaxLength(settings.maxLength);
    if (settings.minValue) mFormatter->setMinValue(*settings.minValue);
    if (settings.maxValue) mFormatter->setMaxValue(*settings.maxValue);
    for (const auto& text : settings.forbidden) mFormatter->addInvalidCharacter(text);
    if (mModel.showsMillimetres) mFormatter->setFormatString("%d mm");
    mLog.push_back("style " + std::to_string(settings.style) + ", length " +
                   std::to_string(settings.maxLength) +
                   (mModel.showsMillimetres ? ", in millimetres" : "") +
                   (mModel.isClamped ? ", clamped" : ""));
  }

  std::u16string character() {
    static const std::vector<std::u16string> rare = {u"a", u"B", u"z", u".",  u"#", u"$",
                                                     u" ", u"-", u"é", u"あ", u"😀", u"&"};
    if (oneIn(3)) return rare[below(rare.size())];
    return {static_cast<char16_t>(u'0' + below(10))};
  }
  std::u16string word() {
    std::u16string text;
    for (std::size_t count = 1 + below(4); count > 0; --count) text += character();
    return text;
  }
  // A place between two characters of the line.
  std::size_t place() {
    const std::u16string& text = mModel.line().text;
    const std::size_t chosen = below(text.size() + 1);
    const std::size_t before = chosen == 0 ? 0 : placeBefore(text, chosen);
    return placeAfter(text, before) == chosen ? chosen : before;
  }

  void note(const std::string& what, const std::u16string& text = {}) {
    mLog.push_back(what + " \"" + utf8FromUtf16(text) + "\"");
  }

  void doSomething() {
    static constexpr void (Session::*kUsual[])() = {
        &Session::type,      &Session::type,       &Session::type,   &Session::type,
        &Session::backspace, &Session::deleteNext, &Session::paste,  &Session::cut,
        &Session::drop,      &Session::select,     &Session::select, &Session::compose,
        &Session::commit,    &Session::commitOver, &Session::assist, &Session::undo,
        &Session::undo,      &Session::redo,       &Session::go,     &Session::set,
        &Session::leave,     &Session::pressReturn};
    static constexpr void (Session::*kComposing[])() = {
        &Session::compose, &Session::compose, &Session::commit, &Session::commit, &Session::cancel};
    // An input method has its user mostly to itself.
    if (mModel.isComposing() && !oneIn(4)) {
      (this->*kComposing[below(std::size(kComposing))])();
    } else {
      (this->*kUsual[below(std::size(kUsual))])();
    }
  }

  void type() {
    const std::u16string text = character();
    note("type", text);
    mUser->type(toQString(text));
    mModel.type(text);
  }
  void backspace() {
    note("backspace");
    mUser->press(Qt::Key_Backspace);
    mModel.deleteBackward();
  }
  void deleteNext() {
    note("delete");
    mUser->press(Qt::Key_Delete);
    mModel.deleteForward();
  }
  void paste() {
    const std::u16string text = word();
    note("paste", text);
    mUser->paste(toQString(text));
    mModel.paste(text);
  }
  void cut() {
    note("cut");
    mUser->cut();
    mModel.cut();
  }
  void drop() {
    if (mModel.isComposing()) cancel();
    const std::u16string text = word();
    const std::size_t position = place();
    note("drop at " + std::to_string(position), text);
    mUser->drop(toQString(text), static_cast<int>(position));
    mModel.drop(text, position);
  }
  void select() {
    const std::size_t anchor = place();
    const std::size_t caret = oneIn(2) ? anchor : place();
    note("select " + std::to_string(anchor) + " to " + std::to_string(caret));
    if (anchor == caret) {
      mLine->setCursorPosition(static_cast<int>(caret));
    } else {
      mLine->setSelection(static_cast<int>(anchor),
                          static_cast<int>(caret) - static_cast<int>(anchor));
    }
    mModel.select(anchor, caret);
  }
  void go() {
    const bool extending = oneIn(2);
    const Qt::KeyboardModifiers modifiers = extending ? Qt::ShiftModifier : Qt::NoModifier;
    if (oneIn(2)) {
      note(extending ? "shift home" : "home");
      mUser->press(Qt::Key_Home, modifiers);
      mModel.home(extending);
    } else {
      note(extending ? "shift end" : "end");
      mUser->press(Qt::Key_End, modifiers);
      mModel.end(extending);
    }
  }
  void compose() {
    const std::u16string preedit = word();
    note("compose", preedit);
    mUser->compose(toQString(preedit));
    mModel.compose(preedit);
  }
  void cancel() {
    note("cancel");
    mUser->compose({});
    mModel.compose({});
  }
  void commit() {
    const std::u16string text = word();
    const std::u16string preedit = oneIn(3) ? word() : std::u16string();
    note("commit", text + u"|" + preedit);
    mUser->commit(toQString(text), toQString(preedit));
    mModel.commit(text, preedit);
  }
  void commitOver() {
    const LineState& line = mModel.line();
    if (mModel.isComposing() || line.anchor != line.caret || line.caret == 0) return type();
    const std::size_t count = line.caret - placeBefore(line.text, line.caret);
    const std::u16string text = word();
    note("commit over " + std::to_string(count), text);
    mUser->commitOver(static_cast<int>(count), toQString(text));
    mModel.commitOver(count, text);
  }
  void assist() {
    const std::size_t from = place();
    const std::size_t to = std::max(from, place());
    const std::u16string text = oneIn(3) ? std::u16string() : word();
    note("assist " + std::to_string(from) + " to " + std::to_string(to), text);
    mUser->assisted().replaceText(static_cast<int>(from), static_cast<int>(to), toQString(text));
    mModel.assist(std::u16string(mModel.line().text).replace(from, to - from, text));
  }
  void undo() {
    note("undo");
    mUser->undo();
    mModel.undo();
  }
  void redo() {
    note("redo");
    mUser->redo();
    mModel.redo();
  }
  void set() {
    const std::u16string text = oneIn(4) ? mModel.text() : word();
    note("set", text);
    mField->setStringValue(utf8FromUtf16(text));
    mModel.set(text);
  }
  void leave() {
    note("leave and come back");
    mLine->clearFocus();
    mLine->setFocus();
    mModel.leave();
  }
  void pressReturn() {
    note("return");
    mUser->press(Qt::Key_Return);
    mModel.pressReturn();
  }

  std::string stateOfModel() const {
    std::ostringstream out;
    const LineState& line = mModel.line();
    out << '"' << utf8FromUtf16(line.text) << "\" " << line.anchor << "->" << line.caret << " of \""
        << utf8FromUtf16(mModel.text()) << "\", undo " << mModel.history().canUndo() << ", redo "
        << mModel.history().canRedo() << ", changes " << mModel.changes() << ", actions "
        << mModel.actions() << ", beeps " << mModel.refusals().size();
    for (const test::Refusal& refusal : newest(mModel.refusals())) {
      out << ", " << refusal.name << " about " << refusal.character.value_or("the formatter");
    }
    return out.str();
  }

  std::string stateOfField() const {
    std::ostringstream out;
    const int caret = mLine->cursorPosition();
    int anchor = caret;
    if (mLine->hasSelectedText()) {
      anchor = mLine->selectionStart() == caret ? mLine->selectionEnd() : mLine->selectionStart();
    }
    out << '"' << mLine->text().toStdString() << "\" " << anchor << "->" << caret << " of \""
        << mField->stringValue() << "\", undo " << mLine->canUndo() << ", redo " << mLine->canRedo()
        << ", changes " << mChanges << ", actions " << mActions << ", beeps "
        << mPlatform.toolkit.beeps;
    for (const Notification& posted : newest(mPlatform.posted)) {
      out << ", " << posted.name << " about " << describe(posted.object);
    }
    return out.str();
  }

  std::string describe(const NotificationObject& object) const {
    if (const auto* text = std::get_if<std::string>(&object)) return *text;
    const void* const formatter = mFormatter.get();
    return object == NotificationObject(formatter) ? "the formatter" : "something else";
  }

  // The settings and the last things that were done.
  std::string log() const {
    std::string text = mLog.front();
    const std::size_t first =
        std::max<std::size_t>(1, mLog.size() - std::min<std::size_t>(mLog.size(), 15));
    for (std::size_t i = first; i < mLog.size(); ++i) text += "\n  " + mLog[i];
    return text;
  }

  std::mt19937 mRandom;
  std::vector<std::string> mLog;
  FieldModel mModel;
  TypingPlatform mPlatform;
  std::shared_ptr<PDEFormatter> mFormatter = std::make_shared<PDEFormatter>();
  std::shared_ptr<TextField> mField = mPlatform.toolkit.createTextField({{0, 0}, {400, 22}});
  QWidget mWindow;
  QtFieldEditor* mLine = nullptr;
  std::unique_ptr<LineUser> mUser;
  int mChanges = 0;
  int mActions = 0;
};

// Many fields, each with a formatter of its own; and one field that is edited for long.
struct Effort {
  const char* name;
  unsigned sessions;
  int editsInASession;
};

class TextFieldFuzz : public testing::TestWithParam<Effort> {};

TEST_P(TextFieldFuzz, RandomEditsMatchTheModel) {
  const auto& [name, sessions, editsInASession] = GetParam();
  const char* const chosen = std::getenv("CUTLINE_FUZZ_SEED");
  const unsigned first = chosen ? static_cast<unsigned>(std::atoi(chosen)) : 1;
  std::size_t changes = 0;
  std::size_t refusals = 0;
  for (unsigned seed = first; seed < first + sessions; ++seed) {
    Session session(seed);
    for (int i = 0; i < editsInASession; ++i) {
      ASSERT_TRUE(session.edit()) << "seed " << seed << ", edit " << i;
    }
    changes += session.model().changes();
    refusals += session.model().refusals().size();
  }
  // Otherwise there was little to compare.
  EXPECT_GT(changes, kEdits / 10);
  EXPECT_GT(refusals, kEdits / 20);
  RecordProperty("changes", static_cast<int>(changes));
  RecordProperty("refusals", static_cast<int>(refusals));
}

INSTANTIATE_TEST_SUITE_P(Sessions, TextFieldFuzz,
                         testing::Values(Effort{"Many", 50, kEdits / 50},
                                         Effort{"OneThatIsLong", 1, kEdits}),
                         [](const auto& effort) { return std::string(effort.param.name); });

}  // namespace
}  // namespace cutline
