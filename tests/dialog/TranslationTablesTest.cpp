// The tables of the dialog's texts: whole, and true to the sources.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <vector>

#include "tests/dialog/languages.h"

namespace cutline {

namespace {

struct Message {
  QString context;
  QString source;
  QString translation;
  bool isFinished = false;
};

struct Table {
  QString language;
  std::vector<Message> messages;
};

void readMessage(QXmlStreamReader& xml, Message& message) {
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("source")) {
      message.source = xml.readElementText();
    } else if (xml.name() == QLatin1String("translation")) {
      message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
      message.translation = xml.readElementText();
    } else {
      xml.skipCurrentElement();
    }
  }
}

void readContext(QXmlStreamReader& xml, Table& table) {
  QString context;
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("name")) {
      context = xml.readElementText();
    } else if (xml.name() == QLatin1String("message")) {
      table.messages.push_back({context, {}, {}, false});
      readMessage(xml, table.messages.back());
    } else {
      xml.skipCurrentElement();
    }
  }
}

Table readTable(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  QXmlStreamReader xml(&file);
  Table table;
  xml.readNextStartElement();
  table.language = xml.attributes().value(QLatin1String("language")).toString();
  while (xml.readNextStartElement()) readContext(xml, table);
  EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
  return table;
}

QString sourceDirectory() { return QStringLiteral(CUTLINE_SOURCE_DIR "/host/translations/"); }
QString fileOf(const char* language) {
  return QStringLiteral("cutline_%1.ts").arg(QLatin1String(language));
}

QSet<QString> placesIn(const QString& text) {
  static const QRegularExpression kPlace(QStringLiteral("%[1-9n]"));
  QSet<QString> places;
  for (auto match = kPlace.globalMatch(text); match.hasNext();)
    places.insert(match.next().captured());
  return places;
}

class TranslationTable : public testing::TestWithParam<const char*> {
 protected:
  Table mTable = readTable(sourceDirectory() + fileOf(GetParam()));
};

TEST_P(TranslationTable, SaysItsLanguage) { EXPECT_EQ(mTable.language, QLatin1String(GetParam())); }

TEST_P(TranslationTable, IsBuiltToWhereAnInstallationHasIt) {
  const QString built = QStringLiteral("/cutline_%1.qm").arg(QLatin1String(GetParam()));
  EXPECT_TRUE(QFile::exists(tableDirectory() + built));
}

TEST_P(TranslationTable, SaysEveryTextOfTheSources) {
  EXPECT_GT(mTable.messages.size(), 200u);
  for (const Message& message : mTable.messages) {
    EXPECT_TRUE(message.isFinished) << message.source.toStdString();
    EXPECT_FALSE(message.translation.trimmed().isEmpty()) << message.source.toStdString();
  }
}

TEST_P(TranslationTable, KeepsPlacesAndMnemonics) {
  for (const Message& message : mTable.messages) {
    EXPECT_EQ(placesIn(message.translation), placesIn(message.source))
        << message.translation.toStdString();
    EXPECT_EQ(message.translation.count(QLatin1Char('&')), message.source.count(QLatin1Char('&')))
        << message.translation.toStdString();
  }
}

// What lupdate finds in the sources is what the table has: nothing new, nothing gone.
TEST_P(TranslationTable, IsUpToDate) {
  const QTemporaryDir directory;
  const QString copy = directory.filePath(fileOf(GetParam()));
  ASSERT_TRUE(QFile::copy(sourceDirectory() + fileOf(GetParam()), copy));
  QProcess update;
  QStringList arguments = QStringLiteral(CUTLINE_LUPDATE_ARGUMENTS).split(QLatin1Char('|'));
  update.start(QStringLiteral(CUTLINE_LUPDATE), arguments << QStringLiteral("-ts") << copy);
  ASSERT_TRUE(update.waitForFinished(60000));
  ASSERT_EQ(update.exitCode(), 0);
  const Table updated = readTable(copy);
  EXPECT_EQ(updated.messages.size(), mTable.messages.size());
  for (const Message& message : updated.messages) {
    EXPECT_TRUE(message.isFinished) << "new: " << message.source.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationTable,
                         testing::ValuesIn(kDialogLanguages.begin() + 1, kDialogLanguages.end()),
                         [](const auto& language) { return std::string(language.param); });

TEST(TranslationTables, AreTheLanguagesThatTheDialogIsTestedIn) {
  const QStringList files = QDir(sourceDirectory()).entryList({QStringLiteral("*.ts")});
  EXPECT_EQ(files.size(), static_cast<qsizetype>(kDialogLanguages.size()) - 1);
}

}  // namespace

}  // namespace cutline
