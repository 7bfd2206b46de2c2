#include "host/dialog/mnemonics.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QSet>
#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "qt/QtText.h"

namespace cutline {

namespace {

constexpr char16_t kAlphabet[] = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool isLetter(QChar character) {
  return QStringView(kAlphabet).contains(character.toUpper()) && character.unicode() < 0x80;
}

bool startsWord(const QString& title, qsizetype at) {
  return at == 0 || !title[at - 1].isLetterOrNumber();
}

// Places of letters in the title, the best first, each letter once.
std::vector<qsizetype> candidates(const QString& title, const QString& taken) {
  std::vector<qsizetype> places;
  QSet<QChar> seen(taken.begin(), taken.end());
  for (const bool atStart : {true, false}) {
    for (qsizetype at = 0; at < title.size(); ++at) {
      const QChar letter = title[at].toUpper();
      if (!isLetter(letter) || startsWord(title, at) != atStart || seen.contains(letter)) continue;
      seen.insert(letter);
      places.push_back(at);
    }
  }
  return places;
}

// Deals letters out so that as many titles as possible have one: a title whose letters are all
// given away makes another one change, where that one can.
class Dealer {
 public:
  Dealer(const QStringList& titles, const QString& taken) : mTitles(titles) {
    for (const QString& title : titles) mCandidates.push_back(candidates(title, taken));
    for (qsizetype each = 0; each < titles.size(); ++each) {
      QSet<QChar> tried;
      deal(each, tried);
    }
  }

  // Place of the title's letter; -1 when it has none.
  qsizetype placeIn(qsizetype title) const {
    const auto owner = std::find_if(mOwners.begin(), mOwners.end(),
                                    [&](const auto& entry) { return entry.second.title == title; });
    return owner != mOwners.end() ? owner->second.place : -1;
  }
  bool isGiven(QChar letter) const { return mOwners.contains(letter); }

 private:
  struct Owner {
    qsizetype title;
    qsizetype place;
  };

  bool deal(qsizetype title, QSet<QChar>& tried) {
    for (const qsizetype place : mCandidates[static_cast<std::size_t>(title)]) {
      const QChar letter = mTitles[title][place].toUpper();
      if (tried.contains(letter)) continue;
      tried.insert(letter);
      const auto owner = mOwners.find(letter);
      if (owner != mOwners.end() && !deal(owner->second.title, tried)) continue;
      mOwners[letter] = {title, place};
      return true;
    }
    return false;
  }

  const QStringList& mTitles;
  std::vector<std::vector<qsizetype>> mCandidates;
  std::map<QChar, Owner> mOwners;
};

bool hasLetters(const QString& title) { return std::any_of(title.begin(), title.end(), isLetter); }

// Before the colon of a caption.
QString withLetterBehind(const QString& title, QChar letter) {
  const bool isCaption = title.endsWith(QLatin1Char(':')) || title.endsWith(QChar(0xff1a));
  return withoutMnemonics(title.chopped(isCaption ? 1 : 0)) + QStringLiteral("(&%1)").arg(letter) +
         title.right(isCaption ? 1 : 0);
}

QString marked(const QString& title, qsizetype place) {
  return withoutMnemonics(title.left(place)) + kMnemonicMark + withoutMnemonics(title.mid(place));
}

}  // namespace

QChar mnemonicIn(const QString& text) {
  const QString keys = QKeySequence::mnemonic(text).toString();
  return keys.isEmpty() ? QChar() : keys.back();
}

QStringList withMnemonics(const QStringList& titles, const QString& taken) {
  const Dealer dealer(titles, taken);
  QString free;
  for (const QChar letter : QStringView(kAlphabet)) {
    if (!taken.contains(letter) && !dealer.isGiven(letter)) free += letter;
  }
  QStringList texts;
  for (qsizetype each = 0; each < titles.size(); ++each) {
    const qsizetype place = dealer.placeIn(each);
    if (place >= 0) {
      texts.append(marked(titles[each], place));
    } else if (!hasLetters(titles[each]) && !free.isEmpty()) {
      texts.append(withLetterBehind(titles[each], free.front()));
      free.remove(0, 1);
    } else {
      texts.append(withoutMnemonics(titles[each]));
    }
  }
  return texts;
}

namespace {

// A widget whose title the toolkit reads a mnemonic from.
struct Titled {
  QWidget* widget;
  QString text;
  std::function<void(const QString&)> setText;
};

std::vector<Titled> titledUnder(const QWidget& root) {
  std::vector<Titled> found;
  for (QWidget* each : root.findChildren<QWidget*>()) {
    if (auto* button = qobject_cast<QAbstractButton*>(each); button && !button->text().isEmpty()) {
      found.push_back({button, button->text(), [button](const QString& text) {
                         if (button->accessibleName().isEmpty()) {
                           button->setAccessibleName(withoutMark(button->text()));
                         }
                         button->setText(text);
                       }});
    }
    if (auto* label = qobject_cast<QLabel*>(each); label && label->buddy()) {
      found.push_back(
          {label, label->text(), [label](const QString& text) { label->setText(text); }});
    }
  }
  return found;
}

QString lettersIn(const QWidget& window) {
  QString letters;
  for (const Titled& each : titledUnder(window)) {
    const QChar letter = mnemonicIn(each.text);
    if (!letter.isNull()) letters += letter;
  }
  return letters;
}

}  // namespace

void assignMnemonics(QWidget& window, QWidget& root, const QString& reserved) {
  std::vector<Titled> without;
  QStringList titles;
  for (const Titled& each : titledUnder(root)) {
    if (!each.widget->isVisibleTo(&window) || !mnemonicIn(each.text).isNull()) continue;
    without.push_back(each);
    titles.append(withoutMark(each.text));
  }
  const QStringList texts = withMnemonics(titles, lettersIn(window) + reserved);
  for (std::size_t i = 0; i < without.size(); ++i) {
    without[i].setText(texts[static_cast<qsizetype>(i)]);
  }
}

}  // namespace cutline
