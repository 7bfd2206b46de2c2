// The program itself follows the user's language in the dialog, and speaks English on the command
// line, which scripts read.
#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "tests/dialog/DialogTest.h"

namespace cutline {

namespace {

struct Outcome {
  int status = -1;
  QByteArray output;
};

Outcome runProgram(const QStringList& arguments, const QString& locale, const QString& language) {
  QProcess program;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LC_CTYPE"}) {
    environment.remove(QLatin1String(name));
  }
  environment.insert(QStringLiteral("LANG"), locale);
  environment.insert(QStringLiteral("LANGUAGE"), language);
  program.setProcessEnvironment(environment);
  program.setProcessChannelMode(QProcess::MergedChannels);
  program.start(QStringLiteral(CUTLINE_BUILD_DIR "/bin/cutline"), arguments);
  if (!program.waitForFinished()) return {};
  return {program.exitCode(), program.readAll()};
}

QImage pictureIn(const QString& locale, const QString& language) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("dialog.png"));
  const Outcome outcome =
      runProgram({QStringLiteral("--ppd"), QString::fromStdString(oddPpd("without-cut-options")),
                  QStringLiteral("--snapshot"), path},
                 locale, language);
  EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
  return QImage(path);
}

TEST(ProgramLanguage, IsTheUsersEvenWhereItsLocaleIsNotInstalled) {
  const QImage english = pictureIn(QStringLiteral("C"), QString());
  ASSERT_FALSE(english.isNull());
  const QImage german = pictureIn(QStringLiteral("de_DE.UTF-8"), QString());
  EXPECT_NE(german, english);
  EXPECT_EQ(pictureIn(QStringLiteral("en_US.UTF-8"), QStringLiteral("de")), german);
  EXPECT_EQ(pictureIn(QStringLiteral("de_DE.UTF-8"), QStringLiteral("en:de")), english);
  EXPECT_EQ(pictureIn(QStringLiteral("C"), QStringLiteral("de")), english);
}

TEST(ProgramLanguage, TheCommandLineStaysEnglish) {
  const QStringList unknown = {QStringLiteral("--ppd"), QString::fromStdString(samplePpd("tape-a")),
                               QStringLiteral("--options"), QStringLiteral("-o"),
                               QStringLiteral("LxHalfCut=perhaps")};
  const Outcome english = runProgram(unknown, QStringLiteral("C"), QString());
  EXPECT_TRUE(english.output.contains("the option LxHalfCut has no choice \"perhaps\""));
  for (const char* language : {"de", "ja"}) {
    const Outcome outcome =
        runProgram(unknown, QStringLiteral("de_DE.UTF-8"), QLatin1String(language));
    EXPECT_EQ(outcome.status, english.status);
    EXPECT_EQ(outcome.output, english.output);
  }
}

}  // namespace

}  // namespace cutline
