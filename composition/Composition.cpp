#include "composition/Composition.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>

#include "base/Numbers.h"

namespace cutline {
namespace {

// Lines of a name, a blank and values with blanks between; a text is the last value of its line.
class LineWriter {
 public:
  void text(std::string_view name, std::string_view value) {
    mText.append(name).append(" ");
    for (const char c : value) {
      if (c == '\n')
        mText += "\\n";
      else if (c == '\\')
        mText += "\\\\";
      else
        mText += c;
    }
    mText += '\n';
  }

  void numbers(std::string_view name, std::initializer_list<double> values) {
    mText += name;
    for (const double value : values) {
      std::array<char, 32> digits{};
      const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
      mText.append(" ").append(digits.data(), written.ptr);
    }
    mText += '\n';
  }

  std::string take() { return std::move(mText); }

 private:
  std::string mText;
};

std::string unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isEscape = text[at] == '\\' && at + 1 < text.size();
    if (isEscape) ++at;
    plain += isEscape && text[at] == 'n' ? '\n' : text[at];
  }
  return plain;
}

// The values of one line, taken in order; good() is false once one was missing.
class Values {
 public:
  explicit Values(std::string_view line) : mRest(line) {}

  double number() {
    while (mRest.starts_with(' ')) mRest.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(mRest.data(), mRest.data() + mRest.size(), value);
    mIsGood = mIsGood && error == std::errc() && std::isfinite(value);
    mRest.remove_prefix(static_cast<std::size_t>(end - mRest.data()));
    return mIsGood ? value : 0;
  }

  // A number from 0 to `last` that stands for a value of an enumeration.
  template <typename Kind>
  Kind kind(Kind last) {
    const double value = number();
    mIsGood = mIsGood && value >= 0 && value <= static_cast<double>(last);
    return mIsGood ? static_cast<Kind>(static_cast<int>(value)) : Kind{};
  }

  int whole() { return static_cast<int>(std::clamp(number(), -kMostWhole, kMostWhole)); }
  bool flag() { return number() != 0; }
  std::string text() const { return unescaped(mRest.empty() ? mRest : mRest.substr(1)); }
  bool good() const { return mIsGood; }
  void fail() { mIsGood = false; }

 private:
  static constexpr double kMostWhole = 1e9;
  std::string_view mRest;
  bool mIsGood = true;
};

template <typename Form>
struct Field {
  std::string_view name;
  void (*read)(Form&, Values&);
};

template <typename Form, std::size_t Count>
std::optional<Form> parsed(std::string_view text, const std::array<Field<Form>, Count>& fields) {
  Form form;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    const std::string_view name = line.substr(0, line.find(' '));
    const auto* field = std::ranges::find(fields, name, &Field<Form>::name);
    if (field == fields.end()) return std::nullopt;
    Values values(line.substr(name.size()));
    field->read(form, values);
    if (!values.good()) return std::nullopt;
  }
  return form;
}

void writeLabel(LineWriter& writer, const LabelPage& label) {
  writer.numbers("label", {label.width, label.length, label.left, label.bottom, label.right,
                           label.top, static_cast<double>(label.upright),
                           static_cast<double>(label.landscape), label.isContinuous ? 1.0 : 0.0});
}

void readLabel(LabelPage& label, Values& values) {
  for (double* measure :
       {&label.width, &label.length, &label.left, &label.bottom, &label.right, &label.top})
    *measure = values.number();
  label.upright = values.whole();
  label.landscape = values.whole();
  label.isContinuous = values.flag();
}

Turn turnFrom(Values& values) {
  const int number = values.whole();
  if (number == static_cast<int>(Turn::automatic)) return Turn::automatic;
  if (number < static_cast<int>(Turn::portrait) || number > static_cast<int>(Turn::reversePortrait))
    values.fail();
  return static_cast<Turn>(number);
}

using Request = CompositionRequest;
constexpr std::array kRequestFields = std::to_array<Field<Request>>({
    {"label", [](Request& request, Values& values) { readLabel(request.label, values); }},
    {"length",
     [](Request& request, Values& values) {
       request.lengthBounds.emplace();
       request.lengthBounds->shortest = values.number();
       request.lengthBounds->longest = values.number();
     }},
    {"layout",
     [](Request& request, Values& values) {
       request.layout.scaling = values.kind(Scaling::percent);
       request.layout.percent = values.number();
       request.layout.turn = turnFrom(values);
       request.layout.position = values.kind(Position::bottomRight);
     }},
    {"text",
     [](Request& request, Values& values) {
       request.text.unit = values.kind(TextUnit::line);
       request.text.size = values.number();
     }},
    {"font", [](Request& request, Values& values) { request.text.font = values.text(); }},
    {"pages",
     [](Request& request, Values& values) {
       request.pages.set = values.kind(PageSet::even);
       request.pages.isReversed = values.flag();
       request.pages.most = values.whole();
     }},
    {"ranges",
     [](Request& request, Values& values) {
       const Result<PageRanges> ranges = PageRanges::parse(values.text());
       if (!ranges) return values.fail();
       request.pages.ranges = *ranges;
     }},
    {"allwherefew",
     [](Request& request, Values& values) { request.takesAllWhereFew = values.flag(); }},
    {"mirrored",
     [](Request& request, Values& values) { request.isMirrored = values.flag(); }},
    {"seeksink", [](Request& request, Values& values) { request.seeksInk = values.flag(); }},
    {"document", [](Request& request, Values& values) { request.names.push_back(values.text()); }},
});

using Report = CompositionReport;
constexpr std::array kReportFields = std::to_array<Field<Report>>({
    {"label", [](Report& report, Values& values) { readLabel(report.label, values); }},
    {"documentpages",
     [](Report& report, Values& values) {
       report.documentPages = values.whole();
       report.isPartial = values.flag();
     }},
    {"page",
     [](Report& report, Values& values) {
       ComposedPage page;
       page.size.width = values.number();
       page.size.height = values.number();
       page.size.isStated = values.flag();
       page.scale = values.number();
       page.turn = values.whole();
       page.hasPrintableInk = values.flag();
       report.pages.push_back(page);
     }},
    {"failure",
     [](Report& report, Values& values) {
       report.failure.emplace();
       report.failure->problem = values.kind(DocumentProblem::broken);
       report.failure->document = values.whole();
     }},
    {"detail",
     [](Report& report, Values& values) {
       if (!report.failure) return values.fail();
       report.failure->detail = values.text();
     }},
});

template <typename Kind>
double numberOf(Kind kind) {
  return static_cast<double>(kind);
}

}  // namespace

int PageSelection::neededFirst() const {
  const bool isFromBeginning = ranges.text().empty() && set == PageSet::all && !isReversed;
  return isFromBeginning ? most : 0;
}

std::string CompositionRequest::asText() const {
  LineWriter writer;
  writeLabel(writer, label);
  if (lengthBounds) writer.numbers("length", {lengthBounds->shortest, lengthBounds->longest});
  writer.numbers("layout", {numberOf(layout.scaling), layout.percent, numberOf(layout.turn),
                            numberOf(layout.position)});
  writer.numbers("text", {numberOf(text.unit), text.size});
  writer.text("font", text.font);
  writer.numbers("pages", {numberOf(pages.set), numberOf(pages.isReversed), numberOf(pages.most)});
  writer.text("ranges", pages.ranges.text());
  writer.numbers("allwherefew", {numberOf(takesAllWhereFew)});
  writer.numbers("mirrored", {numberOf(isMirrored)});
  writer.numbers("seeksink", {numberOf(seeksInk)});
  for (const std::string& name : names) writer.text("document", name);
  return writer.take();
}

std::optional<CompositionRequest> CompositionRequest::parse(std::string_view text) {
  return parsed<CompositionRequest>(text, kRequestFields);
}

std::string CompositionReport::asText() const {
  LineWriter writer;
  if (failure) {
    writer.numbers("failure", {numberOf(failure->problem), numberOf(failure->document)});
    writer.text("detail", failure->detail);
    return writer.take();
  }
  writeLabel(writer, label);
  writer.numbers("documentpages", {numberOf(documentPages), numberOf(isPartial)});
  for (const ComposedPage& page : pages)
    writer.numbers("page", {page.size.width, page.size.height, numberOf(page.size.isStated),
                            page.scale, numberOf(page.turn), numberOf(page.hasPrintableInk)});
  return writer.take();
}

std::optional<CompositionReport> CompositionReport::parse(std::string_view text) {
  return parsed<CompositionReport>(text, kReportFields);
}

}  // namespace cutline
