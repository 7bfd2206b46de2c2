#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

#include "host/document/FileRenderer.h"

namespace cutline {

namespace {

class DocumentRendererTest : public testing::Test {
 protected:
  std::string path(const char* name) const {
    return mDirectory.filePath(QString::fromLatin1(name)).toStdString();
  }
  std::string write(const char* name, const QByteArray& bytes) const {
    QFile file(QString::fromStdString(path(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path(name);
  }
  // Pages of 50 x 24 mm, each with its left half black.
  std::string writePdf(int pages) const {
    const std::string name = path("labels.pdf");
    QPdfWriter writer(QString::fromStdString(name));
    writer.setPageSize(QPageSize(QSizeF(50, 24), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
      if (page > 0) writer.newPage();
      painter.fillRect(0, 0, writer.width() / 2, writer.height(), Qt::black);
    }
    return name;
  }
  Result<std::shared_ptr<Document>> open(const std::string& name) { return mRenderer.open(name); }
  std::string errorOf(const std::string& name) {
    const Result<std::shared_ptr<Document>> document = open(name);
    return document ? "" : document.error().message;
  }

  QTemporaryDir mDirectory;
  FileRenderer mRenderer;
};

std::uint32_t pixel(const PageImage& image, double x, double y) {
  const auto column = static_cast<std::size_t>(x * image.width);
  const auto row = static_cast<std::size_t>(y * image.height);
  return image.pixels[row * image.width + column];
}

// One page that no password opens: the stored keys belong to none.
QByteArray lockedPdf() {
  const QByteArray key(64, 'a');
  const std::array<QByteArray, 4> objects = {
      "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
      "<</Type/Page/Parent 2 0 R/MediaBox[0 0 142 68]>>",
      "<</Filter/Standard/V 1/R 2/P -4/O<" + key + ">/U<" + key + ">>>"};
  QByteArray pdf = "%PDF-1.4\n";
  QByteArray table = "xref\n0 5\n0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); ++i) {
    table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
    pdf += QByteArray::number(static_cast<int>(i + 1)) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const QByteArray start = QByteArray::number(pdf.size());
  return pdf + table + "trailer\n<</Size 5/Root 1 0 R/Encrypt 4 0 R/ID[<00><00>]>>\nstartxref\n" +
         start + "\n%%EOF\n";
}

TEST_F(DocumentRendererTest, APdfHasItsPagesAtTheirSizes) {
  const auto document = open(writePdf(12));
  ASSERT_TRUE(document) << document.error().message;
  EXPECT_EQ((*document)->pageCount(), 12);
  EXPECT_FALSE((*document)->isPlaceholder());
  EXPECT_NEAR((*document)->pageSize(3).width, 50 * 72 / 25.4, 1);
  EXPECT_NEAR((*document)->pageSize(3).height, 24 * 72 / 25.4, 1);
}

TEST_F(DocumentRendererTest, APdfPageIsDrawnOnWhiteAtTheScale) {
  const auto document = open(writePdf(2));
  ASSERT_TRUE(document);
  const Result<PageImage> image = (*document)->render(1, 2);
  ASSERT_TRUE(image) << image.error().message;
  EXPECT_NEAR(image->width, 2 * 50 * 72 / 25.4, 2);
  EXPECT_EQ(image->pixels.size(), static_cast<std::size_t>(image->width) * image->height);
  EXPECT_EQ(pixel(*image, 0.25, 0.5), 0xff000000u);
  EXPECT_EQ(pixel(*image, 0.75, 0.5), 0xffffffffu);
}

TEST_F(DocumentRendererTest, PagesBeyondTheDocumentAreEmptyAndNotDrawn) {
  const auto document = open(writePdf(2));
  ASSERT_TRUE(document);
  EXPECT_EQ((*document)->pageSize(2), Size{});
  EXPECT_EQ((*document)->pageSize(-1), Size{});
  EXPECT_FALSE((*document)->render(2, 1));
}

TEST_F(DocumentRendererTest, APictureTooLargeForMemoryIsRefused) {
  const auto document = open(writePdf(1));
  ASSERT_TRUE(document);
  EXPECT_FALSE((*document)->render(0, 1e6));
  EXPECT_FALSE((*document)->render(0, 0));
}

TEST_F(DocumentRendererTest, APictureIsOnePageAtItsResolution) {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(Qt::red);
  image.setDotsPerMeterX(8000);
  image.setDotsPerMeterY(8000);
  ASSERT_TRUE(image.save(QString::fromStdString(path("label.png"))));
  const auto document = open(path("label.png"));
  ASSERT_TRUE(document) << document.error().message;
  EXPECT_EQ((*document)->pageCount(), 1);
  EXPECT_NEAR((*document)->pageSize(0).width, 25 * 72 / 25.4, 0.1);
  const Result<PageImage> drawn = (*document)->render(0, 1);
  ASSERT_TRUE(drawn);
  EXPECT_EQ(pixel(*drawn, 0.5, 0.5), 0xffff0000u);
}

TEST_F(DocumentRendererTest, TransparentPicturesLieOnWhite) {
  QImage image(20, 20, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  ASSERT_TRUE(image.save(QString::fromStdString(path("clear.png"))));
  const auto document = open(path("clear.png"));
  ASSERT_TRUE(document);
  EXPECT_EQ(pixel(*(*document)->render(0, 1), 0.5, 0.5), 0xffffffffu);
}

TEST_F(DocumentRendererTest, APictureIsKnownByItsBytesNotItsName) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::blue);
  ASSERT_TRUE(image.save(QString::fromStdString(path("label.txt")), "PNG"));
  const auto document = open(path("label.txt"));
  ASSERT_TRUE(document);
  EXPECT_FALSE((*document)->isPlaceholder());
}

TEST_F(DocumentRendererTest, PostScriptAndTextArePlaceholders) {
  for (const QByteArray& bytes :
       {QByteArray("%!PS-Adobe-3.0\nshowpage\n"), QByteArray("hello\n")}) {
    const auto document = open(write("some", bytes));
    ASSERT_TRUE(document) << document.error().message;
    EXPECT_TRUE((*document)->isPlaceholder());
    EXPECT_EQ((*document)->pageCount(), 1);
  }
}

TEST_F(DocumentRendererTest, APlaceholderSaysSomethingOnItsPage) {
  const auto document = open(write("some.ps", "%!PS\n"));
  ASSERT_TRUE(document);
  const Result<PageImage> image = (*document)->render(0, 2);
  ASSERT_TRUE(image);
  const auto inked = std::count_if(image->pixels.begin(), image->pixels.end(),
                                   [](std::uint32_t each) { return each != 0xffffffffu; });
  EXPECT_GT(inked, 200);
}

TEST_F(DocumentRendererTest, AMissingFileIsNamed) {
  const std::string message = errorOf(path("nothing.pdf"));
  EXPECT_NE(message.find("nothing.pdf"), std::string::npos) << message;
  EXPECT_NE(message.find("No such file"), std::string::npos) << message;
}

TEST_F(DocumentRendererTest, ADirectoryIsNoDocument) {
  EXPECT_NE(errorOf(mDirectory.path().toStdString()).find("it is a folder"), std::string::npos);
}

TEST_F(DocumentRendererTest, AnEmptyFileIsNoDocument) {
  EXPECT_NE(errorOf(write("empty.pdf", "")).find("empty"), std::string::npos);
}

TEST_F(DocumentRendererTest, ADamagedPdfIsNamedWithARemedy) {
  const std::string message = errorOf(write("damaged.pdf", "%PDF-1.7\nnothing of it\n"));
  EXPECT_NE(message.find("damaged.pdf"), std::string::npos) << message;
  EXPECT_NE(message.find("save it again"), std::string::npos) << message;
}

TEST_F(DocumentRendererTest, ADamagedPictureIsNamed) {
  QImage image(60, 60, QImage::Format_RGB32);
  image.fill(Qt::blue);
  ASSERT_TRUE(image.save(QString::fromStdString(path("whole.png"))));
  QFile whole(QString::fromStdString(path("whole.png")));
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray bytes = whole.readAll();
  const std::string message = errorOf(write("half.png", bytes.left(bytes.size() / 2)));
  EXPECT_NE(message.find("half.png"), std::string::npos) << message;
}

TEST_F(DocumentRendererTest, APdfLockedWithAPasswordIsNamedWithARemedy) {
  const std::string message = errorOf(write("locked.pdf", lockedPdf()));
  EXPECT_NE(message.find("password"), std::string::npos) << message;
}

}  // namespace

}  // namespace cutline
