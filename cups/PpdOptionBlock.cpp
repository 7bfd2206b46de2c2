#include "cups/PpdOptionBlock.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

#include "base/CharacterSet.h"
#include "cups/PpdWords.h"

namespace cutline {

namespace {

constexpr CharacterSet kGaps(" \t");
// They mean the same in every encoding of PPDs, and nothing to libcups.
constexpr CharacterSet kPlainSigns = CharacterSet::of([](char c) {
  return c >= ' ' && c < '\x7f' && std::string_view("\"<:\\~").find(c) == std::string_view::npos;
});
constexpr CharacterSet kInCodes = CharacterSet::of([](char c) {
  const auto sign = static_cast<unsigned char>(c);
  return (sign >= ' ' && c != '"') || c == '\t' || c == '\n';
});
constexpr std::string_view kOrderDependency = "OrderDependency";

// libcups makes something else of choices of options with these names, or of their texts.
constexpr std::array kKnown = std::to_array<std::string_view>({
    "AccurateScreensSupport",
    "ColorDevice",
    "ColorModel",
    "ColorSpace",
    "ContoneOnly",
    "Emulators",
    "End",
    "Font",
    "HWMargins",
    "ImageableArea",
    "InputSlot",
    "JCLBegin",
    "JCLEnd",
    "JCLToPSInterpreter",
    "JobPatchFile",
    "LandscapeOrientation",
    "LanguageEncoding",
    "LanguageLevel",
    "LanguageVersion",
    "Manufacturer",
    "MediaType",
    "ModelName",
    "NickName",
    "NonUIConstraints",
    kOrderDependency,
    "PCFileName",
    "PageRegion",
    "PageSize",
    "PaperDimension",
    "Product",
    "Protocols",
    "Resolution",
    "ShortNickName",
    "TTRasterizer",
    "Throughput",
    "UIConstraints",
    "cupsColorProfile",
    "cupsFilter",
    "cupsFlipDuplex",
    "cupsManualCopies",
    "cupsModelNumber",
});
static_assert(std::ranges::is_sorted(kKnown));
// So do all that begin with these.
constexpr std::array kKnownStarts =
    std::to_array<std::string_view>({"Custom", "ParamCustom", "Default"});

constexpr std::array kKinds = std::to_array<std::pair<std::string_view, ppd_ui_t>>(
    {{"PickOne", PPD_UI_PICKONE}, {"PickMany", PPD_UI_PICKMANY}, {"Boolean", PPD_UI_BOOLEAN}});

// Codes of the missing section are written in another way.
constexpr std::array kSections = std::to_array<std::pair<std::string_view, ppd_section_t>>(
    {{"AnySetup", PPD_ORDER_ANY},
     {"DocumentSetup", PPD_ORDER_DOCUMENT},
     {"ExitServer", PPD_ORDER_EXIT},
     {"PageSetup", PPD_ORDER_PAGE},
     {"Prolog", PPD_ORDER_PROLOG}});

template <typename Table>
auto valueIn(const Table& table, std::string_view key)
    -> std::optional<typename Table::value_type::second_type> {
  const auto found = std::ranges::find(table, key, &Table::value_type::first);
  if (found == table.end()) return std::nullopt;
  return found->second;
}

bool isKnown(std::string_view keyword) {
  return std::ranges::binary_search(kKnown, keyword) || isTranslation(keyword) ||
         std::ranges::any_of(kKnownStarts, [keyword](std::string_view start) {
           return isSameName(keyword.substr(0, start.size()), start);
         });
}

// libcups takes it for a choice whose value is given, and renames others that are called so.
bool isCustom(std::string_view choice) {
  constexpr std::string_view kCustom = "custom";
  return isSameName(choice.substr(0, kCustom.size()), kCustom);
}

bool isPlainText(std::string_view text) {
  return text.size() < PPD_MAX_TEXT && kPlainSigns.hasAll(text);
}

// libcups refuses lines that are longer, and values of very many.
bool hasShortLines(std::string_view text) {
  constexpr std::size_t kLongestLine = 255;
  constexpr std::size_t kLongestValue = 65536;
  if (text.size() > kLongestValue) return false;
  while (text.size() > kLongestLine) {
    const auto end = text.substr(0, kLongestLine).rfind('\n');
    if (end == text.npos) return false;
    text.remove_prefix(end + 1);
  }
  return true;
}

bool isSkipped(const PpdStatement& statement) {
  const std::string_view text = statement.text().substr(0, statement.text().find_first_of("\r\n"));
  return kGaps.hasAll(text) || text.starts_with("*%") || text == "*End";
}

struct NameAndText {
  std::string_view name, text;
};

// "A" and "Text" of `*Option A/Text: "..."`. Blanks in a text are its own.
NameAndText nameAndText(const PpdStatement& statement) {
  std::string_view whole = statement.text().substr(0, statement.text().find(':'));
  whole.remove_prefix(std::min(statement.keyword().size() + 1, whole.size()));
  whole.remove_prefix(kGaps.firstNotIn(whole));
  const auto slash = whole.find('/');
  if (slash == whole.npos) return {whole, {}};
  return {whole.substr(0, slash), whole.substr(slash + 1)};
}

// What stands between the only two quotes.
std::optional<std::string_view> quoted(std::string_view value) {
  if (value.size() < 2 || !value.starts_with('"') || !value.ends_with('"')) return std::nullopt;
  value = value.substr(1, value.size() - 2);
  return kInCodes.hasAll(value) ? std::optional(value) : std::nullopt;
}

std::optional<float> number(std::string_view text) {
  if (text.find_first_not_of("0123456789.") != text.npos) return std::nullopt;
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return static_cast<float>(value);
}

class BlockReader {
 public:
  BlockReader(std::string_view keyword, OptionBlock& block) : mBlock(block) {
    block.choices.clear();
    block.others.clear();
    // Their memory is good for another option.
    block = {keyword, {}, PPD_UI_PICKONE,           PPD_ORDER_ANY,
             0,       {}, std::move(block.choices), std::move(block.others)};
  }

  bool take(const PpdStatement& statement) {
    if (statement.keyword().empty()) return isSkipped(statement);
    if (statement.keyword() == "OpenUI") return takeOpening(statement);
    if (statement.keyword() == mBlock.keyword) return takeChoice(statement);
    if (statement.keyword() == kOrderDependency) return takeOrder(valueOf(statement));
    if (isDefault(statement.keyword())) return takeDefault(statement);
    mBlock.others.push_back(statement.text());
    return true;
  }

 private:
  bool takeOpening(const PpdStatement& statement) {
    const auto kind = valueIn(kKinds, valueOf(statement));
    const auto [name, text] = nameAndText(statement);
    if (!kind || name.size() != mBlock.keyword.size() + 1 || !isPlainText(text)) return false;
    mBlock.text = text;
    mBlock.ui = *kind;
    return true;
  }

  bool takeChoice(const PpdStatement& statement) {
    const auto [name, text] = nameAndText(statement);
    const auto code = quoted(valueOf(statement));
    if (!code || !isPpdWord(name) || isCustom(name) || !isPlainText(text)) return false;
    mBlock.choices.push_back({name, text, *code});
    return true;
  }

  bool takeDefault(const PpdStatement& statement) {
    const std::string_view choice = valueOf(statement);
    const bool isPlain = statement.keyword().starts_with("Default") &&
                         isPpdWord(statement.keyword()) && nameOf(statement).empty() &&
                         isPpdWord(choice) && !isCustom(choice);
    if (!isPlain || !mBlock.defaultChoice.empty()) return false;
    mBlock.defaultChoice = choice;
    return true;
  }

  bool takeOrder(std::string_view value) {
    const auto order = number(nextWord(value));
    const auto section = valueIn(kSections, nextWord(value));
    const std::string_view option = nextWord(value);
    if (!order || !section) return false;
    mBlock.order = *order;
    mBlock.section = *section;
    return option.starts_with('*') && option.substr(1) == mBlock.keyword && value.empty();
  }

  OptionBlock& mBlock;
};

}  // namespace

bool readOptionBlock(std::string_view keyword, std::span<const PpdStatement> statements,
                     OptionBlock& block) {
  BlockReader reader(keyword, block);
  const bool isLong = !std::ranges::all_of(
      statements, [](const PpdStatement& each) { return hasShortLines(each.text()); });
  if (isLong || isKnown(keyword)) return false;
  return std::ranges::all_of(statements.first(statements.size() - 1),
                             [&reader](const PpdStatement& each) { return reader.take(each); });
}

}  // namespace cutline
