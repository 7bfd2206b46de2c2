// Sentences in the language that is in force.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMap>
#include <QTranslator>

#include "host/dialog/translated.h"

namespace cutline {

namespace {

class TableTranslator : public QTranslator {
 public:
  TableTranslator() { QCoreApplication::installTranslator(this); }

  QString translate(const char* context, const char* source, const char* /*comment*/,
                    int /*number*/) const override {
    return qstrcmp(context, "test") == 0 ? mTexts.value(QString::fromUtf8(source)) : QString();
  }
  bool isEmpty() const override { return false; }

 private:
  const QMap<QString, QString> mTexts = {
      {QStringLiteral("%1 of %2"), QStringLiteral("von %2 die %1")},
      {QStringLiteral("page"), QStringLiteral("seite")},
      {QStringLiteral("it fails"), QStringLiteral("es geht nicht")},
      {QStringLiteral("%1: %2"), QStringLiteral("%1: %2")},
  };
};

TEST(Translated, PlacesFollowTheLanguagesOrder) {
  const TableTranslator german;
  const Sentence sentence(Phrase("test", "%1 of %2"), {Phrase("test", "page"), std::string("A")});
  EXPECT_EQ(translated(sentence), QStringLiteral("von A die seite"));
  EXPECT_EQ(sentence.english(), "page of A");
}

TEST(Translated, WhatIsPutInIsNoPlace) {
  const TableTranslator german;
  const Sentence sentence(Phrase("test", "%1 of %2"), {std::string("%2"), std::string("%1")});
  EXPECT_EQ(translated(sentence), QStringLiteral("von %1 die %2"));
}

TEST(Translated, APhraseThatNoTableHasStaysEnglish) {
  const TableTranslator german;
  EXPECT_EQ(translated(Phrase("test", "unheard of")), QStringLiteral("unheard of"));
  EXPECT_EQ(translated(Phrase("elsewhere", "page")), QStringLiteral("page"));
}

TEST(Translated, WordsThatAreTheSameEverywhereAreLeftAlone) {
  const TableTranslator german;
  EXPECT_EQ(translated(std::string("page")), QStringLiteral("page"));
}

TEST(Translated, ALineBeginsWithACapitalUnlessANameComesFirst) {
  const TableTranslator german;
  const Sentence fails = Phrase("test", "it fails");
  EXPECT_EQ(asLine(fails), QStringLiteral("Es geht nicht"));
  EXPECT_EQ(asLine(Sentence(Phrase("test", "%1: %2"), {std::string("labels.pdf"), fails})),
            QStringLiteral("labels.pdf: es geht nicht"));
  EXPECT_EQ(asLine(Sentence(Phrase("test", "%1: %2"), {fails, std::string("x")})),
            QStringLiteral("Es geht nicht: x"));
  EXPECT_EQ(asLine(Sentence()), QString());
}

}  // namespace

}  // namespace cutline
