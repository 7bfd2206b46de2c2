#include "samples/documents/generator/Labels.h"

#include <array>
#include <string>

#include "samples/documents/generator/Barcode.h"

namespace cutline::documents {
namespace {

constexpr double kWidth = 50;
constexpr double kHeight = 24;
constexpr double kEnd = 3;     // the print keeps this far from a label's ends
constexpr double kSide = 2.5;  // and from its sides

constexpr double kTile = 12;
constexpr double kColumn = kEnd + kTile + 2;  // where the texts begin
// Three dots of a print head with 180 to the inch, so that every bar has the same width.
constexpr double kBar = 3 * 25.4 / 180;

struct Asset {
  const char* name;
  const char* place;
};
constexpr std::array<Asset, 12> kAssets = {{{"Microscope", "Room 101"},
                                            {"Oscilloscope", "Room 102"},
                                            {"Centrifuge", "Room 103"},
                                            {"Balance", "Room 104"},
                                            {"Spectrometer", "Room 105"},
                                            {"Incubator", "Room 106"},
                                            {"Water bath", "Room 107"},
                                            {"Fume hood", "Room 108"},
                                            {"Projector", "Room 109"},
                                            {"Camera", "Room 110"},
                                            {"Power supply", "Room 111"},
                                            {"Vacuum pump", "Room 112"}}};
constexpr int kFirstAsset = 104200;

Drawing empty() { return {kWidth, kHeight, {}}; }

void addCentred(Drawing& drawing, const Faces& faces, Text text, double centre) {
  text.x = centre - faces.of(text.bold).width(text.letters) * text.size / 2;
  drawing.marks.emplace_back(std::move(text));
}

void addBarcode(Drawing& drawing, const std::string& digits, double x, double y, double height) {
  bool bar = true;
  for (const int width : barcodeOf(digits)) {
    if (bar) drawing.marks.emplace_back(Box{x, y, width * kBar, height});
    x += width * kBar;
    bar = !bar;
  }
}

std::string twoDigits(std::size_t number) {
  return std::string(number < 10 ? "0" : "") + std::to_string(number);
}

void addTile(Drawing& drawing, const Faces& faces, std::size_t number) {
  const double centre = kEnd + kTile / 2;
  drawing.marks.emplace_back(Box{kEnd, kSide, kTile, kHeight - 2 * kSide});
  addCentred(drawing, faces, {0, 13.4, 7.6, true, twoDigits(number), Shade::White}, centre);
  addCentred(drawing, faces,
             {0, 18.4, 2.5, false, "of " + std::to_string(kAssets.size()), Shade::White}, centre);
}

Drawing assetLabel(const Faces& faces, std::size_t number) {
  const Asset& asset = kAssets.at(number - 1);
  const std::string code = std::to_string(kFirstAsset + static_cast<int>(number));
  Drawing label = empty();
  addTile(label, faces, number);
  label.marks.emplace_back(Text{kColumn, 5.6, 3.8, true, asset.name});
  label.marks.emplace_back(
      Text{kColumn, 9.2, 2.5, false, std::string("Physics Lab, ") + asset.place});
  addBarcode(label, code, kColumn, 11, 6.6);
  label.marks.emplace_back(Text{kColumn, 20.9, 2.5, false, "No. " + code});
  return label;
}

}  // namespace

std::vector<Drawing> assetLabels(const Faces& faces) {
  std::vector<Drawing> labels;
  for (std::size_t number = 1; number <= kAssets.size(); ++number) {
    labels.push_back(assetLabel(faces, number));
  }
  return labels;
}

Drawing parcelLabel(const Faces& faces) {
  Drawing label = empty();
  label.marks.emplace_back(Box{kEnd, kSide, kWidth - 2 * kEnd, kHeight - 2 * kSide});
  label.marks.emplace_back(Box{kEnd + 0.8, kSide + 0.8, kWidth - 2 * kEnd - 1.6,
                               kHeight - 2 * kSide - 1.6, Shade::White});
  addCentred(label, faces, {0, 12.4, 8, true, "FRAGILE", Shade::Black}, kWidth / 2);
  addCentred(label, faces, {0, 18, 3.6, false, "Please handle with care", Shade::Black},
             kWidth / 2);
  return label;
}

}  // namespace cutline::documents
