// The checked-in pictures are what the program draws, and hold nothing a simple reader cannot show.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <set>

#include "bundle/resources/pictures/Names.h"
#include "tests/pictures/PictureFiles.h"

namespace cutline::pictures {
namespace {

const std::set<std::string> kElements = {"svg", "g", "rect", "circle", "path"};
const std::set<std::string> kAttributes = {"version",
                                           "baseProfile",
                                           "width",
                                           "height",
                                           "viewBox",
                                           "id",
                                           "x",
                                           "y",
                                           "rx",
                                           "ry",
                                           "cx",
                                           "cy",
                                           "r",
                                           "d",
                                           "fill",
                                           "stroke",
                                           "stroke-width",
                                           "stroke-dasharray",
                                           "stroke-linecap",
                                           "stroke-linejoin"};

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList svgFilesIn(const QString& directory) {
  return QDir(directory).entryList({"*.svg"}, QDir::Files, QDir::Name);
}

std::string valueOf(const QXmlStreamReader& reader, const char* attribute) {
  return reader.attributes().value(attribute).toString().toStdString();
}

int programRun(const QStringList& arguments) {
  QProcess process;
  process.start(CUTLINE_PICTURES_PROGRAM, arguments);
  return process.waitForFinished() ? process.exitCode() : -1;
}

TEST(PictureGeneration, TheProgramDrawsTheCheckedInPicturesByteForByte) {
  const QTemporaryDir directory;
  ASSERT_TRUE(directory.isValid());
  ASSERT_EQ(programRun({directory.path()}), 0);
  const QString kept = CUTLINE_SOURCE_DIR "/bundle/resources";
  EXPECT_EQ(svgFilesIn(directory.path()), svgFilesIn(kept));
  for (const QString& file : svgFilesIn(directory.path())) {
    EXPECT_TRUE(contentsOf(directory.filePath(file)) == contentsOf(kept + "/" + file))
        << file.toStdString();
  }
}

TEST(PictureGeneration, ThereIsOneFileForEachOfThe28Names) {
  std::set<QString> names;
  for (const std::string_view name : kPictureNames) {
    EXPECT_TRUE(QFile::exists(pathOf(name))) << name;
    names.insert(pathOf(name));
  }
  EXPECT_EQ(names.size(), 28U);
}

TEST(PictureGeneration, ADirectoryThatDoesNotExistIsAnError) {
  const QTemporaryDir directory;
  EXPECT_EQ(programRun({directory.filePath("missing")}), 1);
}

TEST(PictureGeneration, TheProgramWantsExactlyOneDirectory) {
  EXPECT_EQ(programRun({}), 2);
  EXPECT_EQ(programRun({"one", "two"}), 2);
}

TEST(PictureGeneration, EachFileKeepsToShapesWithPlainAttributes) {
  for (const std::string_view name : kPictureNames) {
    QXmlStreamReader reader(contentsOf(pathOf(name)));
    while (!reader.atEnd()) {
      if (reader.readNext() != QXmlStreamReader::StartElement) continue;
      EXPECT_TRUE(kElements.contains(reader.name().toString().toStdString())) << name;
      for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        const std::string key = attribute.name().toString().toStdString();
        EXPECT_TRUE(kAttributes.contains(key)) << name << ' ' << key;
      }
    }
    EXPECT_FALSE(reader.hasError()) << name << ' ' << reader.errorString().toStdString();
  }
}

TEST(PictureGeneration, NoFileUsesTextClippingStylesOrFilters) {
  for (const std::string_view name : kPictureNames) {
    const QByteArray contents = contentsOf(pathOf(name));
    ASSERT_FALSE(contents.isEmpty()) << name;
    for (const char* const forbidden :
         {"<text", "clip-path", "style", "filter", "<image", "url("}) {
      EXPECT_FALSE(contents.contains(forbidden)) << name << ' ' << forbidden;
    }
  }
}

TEST(PictureGeneration, EachFileIs264PointsWideAnd84High) {
  for (const std::string_view name : kPictureNames) {
    QXmlStreamReader reader(contentsOf(pathOf(name)));
    ASSERT_TRUE(reader.readNextStartElement()) << name;
    EXPECT_EQ(valueOf(reader, "width"), "264") << name;
    EXPECT_EQ(valueOf(reader, "height"), "84") << name;
    EXPECT_EQ(valueOf(reader, "viewBox"), "0 0 264 84") << name;
  }
}

}  // namespace
}  // namespace cutline::pictures
