#include "tests/support/FigureFiles.h"

#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>
#include <webp/encode.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace cutline::test {

namespace {

constexpr double kDotsPerPoint = 180.0 / 72;
constexpr int kDotsPerInch = 180;

// A black part of the page, as shares of its sides, from its upper left corner.
struct Part {
  double left, top, width, height;
};
// An F, and a bar at the lower right.
constexpr std::array kParts = std::to_array<Part>({{0.10, 0.10, 0.08, 0.80},
                                                   {0.10, 0.10, 0.45, 0.14},
                                                   {0.10, 0.42, 0.30, 0.12},
                                                   {0.70, 0.78, 0.25, 0.14}});

struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;  // rows from top to bottom
};

bool isBlack(double x, double y) {
  for (const Part& part : kParts)
    if (x >= part.left && x < part.left + part.width && y >= part.top && y < part.top + part.height)
      return true;
  return false;
}

Pixels figure(FigureSize size) {
  Pixels pixels{static_cast<int>(std::lround(size.width * kDotsPerPoint)),
                static_cast<int>(std::lround(size.height * kDotsPerPoint)),
                {}};
  for (int y = 0; y < pixels.height; ++y)
    for (int x = 0; x < pixels.width; ++x) {
      const bool black = isBlack((x + 0.5) / pixels.width, (y + 0.5) / pixels.height);
      pixels.rgb.insert(pixels.rgb.end(), 3, black ? 0 : 255);
    }
  return pixels;
}

// Turned counter-clockwise by a quarter: a reader that heeds EXIF's orientation 6 turns it back.
Pixels lyingOnItsSide(const Pixels& upright) {
  Pixels turned{upright.height, upright.width, {}};
  for (int y = 0; y < turned.height; ++y)
    for (int x = 0; x < turned.width; ++x) {
      const int from = (x * upright.width + (upright.width - 1 - y)) * 3;
      turned.rgb.insert(turned.rgb.end(), upright.rgb.begin() + from,
                        upright.rgb.begin() + from + 3);
    }
  return turned;
}

void writeText(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  if (!(file << text)) throw std::runtime_error(path + " cannot be written");
}

std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(const std::string& path) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"),
                                                       &std::fclose);
  if (!file) throw std::runtime_error(path + " cannot be written");
  return file;
}

// The parts as operators of a page description, whose origin is the lower left corner.
std::string rectangles(FigureSize size, const char* after) {
  std::ostringstream text;
  for (const Part& part : kParts)
    text << part.left * size.width << " " << (1 - part.top - part.height) * size.height << " "
         << part.width * size.width << " " << part.height * size.height << " " << after << "\n";
  return text.str();
}

void writePdfFigure(const std::string& path, FigureSize size) {
  const std::string content = rectangles(size, "re f");
  std::ostringstream text;
  text << "%PDF-1.4\n";
  std::vector<long> offsets;
  const auto add = [&](const std::string& body) {
    offsets.push_back(text.tellp());
    text << offsets.size() << " 0 obj\n" << body << "\nendobj\n";
  };
  add("<</Type/Catalog/Pages 2 0 R>>");
  add("<</Type/Pages/Kids[3 0 R]/Count 1>>");
  std::ostringstream page;
  page << "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " << size.width << " " << size.height
       << "]/Contents 4 0 R/Resources<<>>>>";
  add(page.str());
  add("<</Length " + std::to_string(content.size()) + ">>\nstream\n" + content + "endstream");
  const long start = text.tellp();
  text << "xref\n0 5\n0000000000 65535 f \n";
  for (const long offset : offsets) {
    std::array<char, 24> line{};
    std::snprintf(line.data(), line.size(), "%010ld 00000 n \n", offset);
    text << line.data();
  }
  text << "trailer\n<</Size 5/Root 1 0 R>>\nstartxref\n" << start << "\n%%EOF\n";
  writeText(path, text.str());
}

void writePostScript(const std::string& path, FigureSize size) {
  std::ostringstream text;
  text << "%!PS-Adobe-3.0\n<< /PageSize [" << size.width << " " << size.height
       << "] >> setpagedevice\n"
       << rectangles(size, "rectfill") << "showpage\n";
  writeText(path, text.str());
}

void writeSvg(const std::string& path, FigureSize size) {
  std::ostringstream text;
  text << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << size.width << "pt\" height=\""
       << size.height << "pt\" viewBox=\"0 0 " << size.width << " " << size.height << "\">\n";
  for (const Part& part : kParts)
    text << "<rect x=\"" << part.left * size.width << "\" y=\"" << part.top * size.height
         << "\" width=\"" << part.width * size.width << "\" height=\"" << part.height * size.height
         << "\"/>\n";
  text << "</svg>\n";
  writeText(path, text.str());
}

void writePng(const std::string& path, FigureSize size) {
  const Pixels pixels = figure(size);
  const auto file = opened(path);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file.get());
  png_set_IHDR(png, info, pixels.width, pixels.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  constexpr double kInchesPerMetre = 1 / 0.0254;
  const auto density = static_cast<png_uint_32>(std::lround(kDotsPerInch * kInchesPerMetre));
  png_set_pHYs(png, info, density, density, PNG_RESOLUTION_METER);
  png_write_info(png, info);
  for (int y = 0; y < pixels.height; ++y)
    png_write_row(png, pixels.rgb.data() + static_cast<std::size_t>(y) * pixels.width * 3);
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
}

// An EXIF block that says nothing but the orientation.
constexpr std::array<std::uint8_t, 32> kLiesOnItsSide = {
    'E',  'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0,
    0x12, 1,   3,   0,   1, 0, 0,   0,   6,  0, 0, 0, 0, 0, 0, 0};

void writeJpeg(const std::string& path, const Pixels& pixels, bool saysOrientation) {
  const auto file = opened(path);
  jpeg_compress_struct jpeg{};
  jpeg_error_mgr errors{};
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  jpeg_stdio_dest(&jpeg, file.get());
  jpeg.image_width = pixels.width;
  jpeg.image_height = pixels.height;
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 95, TRUE);
  jpeg.density_unit = 1;
  jpeg.X_density = jpeg.Y_density = kDotsPerInch;
  jpeg_start_compress(&jpeg, TRUE);
  if (saysOrientation)
    jpeg_write_marker(&jpeg, JPEG_APP0 + 1, kLiesOnItsSide.data(), kLiesOnItsSide.size());
  for (int y = 0; y < pixels.height; ++y) {
    auto* row =
        const_cast<JSAMPROW>(pixels.rgb.data() + static_cast<std::size_t>(y) * pixels.width * 3);
    jpeg_write_scanlines(&jpeg, &row, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
}

void writePlainJpeg(const std::string& path, FigureSize size) {
  writeJpeg(path, figure(size), false);
}

void writeTurnedJpeg(const std::string& path, FigureSize size) {
  writeJpeg(path, lyingOnItsSide(figure(size)), true);
}

void writeTiff(const std::string& path, FigureSize size) {
  const Pixels pixels = figure(size);
  const std::unique_ptr<TIFF, void (*)(TIFF*)> tiff(TIFFOpen(path.c_str(), "w"), &TIFFClose);
  if (!tiff) throw std::runtime_error(path + " cannot be written");
  for (int page = 0; page < 2; ++page) {
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, pixels.width);
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, pixels.height);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff.get(), TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(tiff.get(), TIFFTAG_XRESOLUTION, static_cast<double>(kDotsPerInch));
    TIFFSetField(tiff.get(), TIFFTAG_YRESOLUTION, static_cast<double>(kDotsPerInch));
    for (int y = 0; y < pixels.height; ++y) {
      auto* row = const_cast<std::uint8_t*>(pixels.rgb.data() +
                                            static_cast<std::size_t>(y) * pixels.width * 3);
      TIFFWriteScanline(tiff.get(), row, y);
    }
    TIFFWriteDirectory(tiff.get());
  }
}

void writeWebp(const std::string& path, FigureSize size) {
  const Pixels pixels = figure(size);
  std::uint8_t* bytes = nullptr;
  const std::size_t count = WebPEncodeLosslessRGB(pixels.rgb.data(), pixels.width, pixels.height,
                                                  pixels.width * 3, &bytes);
  const std::unique_ptr<std::uint8_t, void (*)(void*)> owner(bytes, &WebPFree);
  if (count == 0) throw std::runtime_error(path + " cannot be encoded");
  writeText(path, std::string(reinterpret_cast<const char*>(bytes), count));
}

void writeWords(const std::string& path, FigureSize size) {
  const bool isWide = size.width > size.height;
  writeText(path, isWide ? "Shelf 12, left\n\nBolts M4\nNuts M4\n" : "A\nB\nC\nD\n\nE\nF\nG\n");
}

}  // namespace

const std::vector<FigureKind>& figureKinds() {
  static const std::vector<FigureKind> kinds = {
      {"pdf", writePdfFigure},  {"ps", writePostScript},   {"png", writePng},
      {"jpeg", writePlainJpeg}, {"exif", writeTurnedJpeg}, {"tiff", writeTiff, 2},
      {"webp", writeWebp},      {"svg", writeSvg},         {"txt", writeWords, 2}};
  return kinds;
}

}  // namespace cutline::test
