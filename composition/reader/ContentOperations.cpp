#include "composition/reader/ContentOperations.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>
#include <qpdf/BufferInputSource.hh>
#include <stdexcept>
#include <utility>

namespace cutline {
namespace {

constexpr char kContent[] = "content";
constexpr std::string_view kContentBlanks("\0\t\n\f\r ", 6);
constexpr std::string_view kContentWordEnds("\0\t\n\f\r ()<>[]{}/%", 16);
constexpr std::string_view kNumberSigns = "+-.0123456789";
constexpr std::string_view kOperatorSigns =
    "'\"*01ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

[[noreturn]] void failAsDamaged() { throw std::runtime_error("the content is damaged"); }

// As PDF has them: without an exponent, with a sign of either kind. Nothing for any other text.
std::optional<double> numberIn(std::string_view text) {
  if (text.find_first_not_of(kNumberSigns) != text.npos) return std::nullopt;
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

bool isOperator(std::string_view text) {
  return !text.empty() && text.find_first_not_of(kOperatorSigns) == text.npos;
}

bool isWord(const QPDFTokenizer::Token& token, const char* word) {
  return token.getType() == QPDFTokenizer::tt_word && token.getValue() == word;
}

}  // namespace

ContentOperations::ContentOperations(std::string content)
    : mContent(std::move(content)),
      mInput(std::make_shared<BufferInputSource>(kContent, mContent)) {
  mTokenizer.allowEOF();
}

ContentOperations::Token ContentOperations::token() {
  mInput->seek(static_cast<qpdf_offset_t>(mAt), SEEK_SET);
  Token token = mTokenizer.readToken(mInput, kContent, /*allow_bad=*/true);
  if (token.getType() == QPDFTokenizer::tt_bad) failAsDamaged();
  mAt = static_cast<std::size_t>(mInput->tell());
  return token;
}

// Up to what ends it; the tokenizer takes several times as long.
std::string_view ContentOperations::word() {
  mAt = std::min(mContent.find_first_not_of(kContentBlanks, mAt), mContent.size());
  const std::size_t end = std::min(mContent.find_first_of(kContentWordEnds, mAt), mContent.size());
  return std::string_view(mContent).substr(mAt, end - mAt);
}

bool ContentOperations::next(Operation& operation) {
  operation.operands.clear();
  while (true) {
    const std::string_view text = word();
    if (const auto number = numberIn(text)) {
      operation.operands.push_back({Operand::Kind::number, *number, {}, {}});
      mAt += text.size();
    } else if (isOperator(text)) {
      operation.name = text;
      mAt += text.size();
      if (text == "BI") skipImage(operation);
      return true;
    } else {
      const Token read = token();
      if (read.getType() == QPDFTokenizer::tt_eof) break;
      operation.operands.push_back(operandOf(read));
    }
  }
  if (!operation.operands.empty()) failAsDamaged();
  return false;
}

Operand ContentOperations::operandOf(const Token& token) {
  switch (token.getType()) {
    case QPDFTokenizer::tt_integer:
    case QPDFTokenizer::tt_real:
      return {Operand::Kind::number, numberIn(token.getValue()).value(), {}, {}};
    case QPDFTokenizer::tt_name:
      return {Operand::Kind::name, 0, token.getValue(), {}};
    case QPDFTokenizer::tt_string:
      return {Operand::Kind::string, 0, token.getValue(), {}};
    case QPDFTokenizer::tt_array_open:
      return list();
    case QPDFTokenizer::tt_dict_open:
      skipDictionary();
      return {};
    case QPDFTokenizer::tt_bool:
    case QPDFTokenizer::tt_null:
      return {};
    default:
      failAsDamaged();
  }
}

// Lists of lists are of no use to any operation.
Operand ContentOperations::list() {
  Operand list{Operand::Kind::list, 0, {}, {}};
  for (Token item = token(); item.getType() != QPDFTokenizer::tt_array_close; item = token()) {
    if (item.getType() == QPDFTokenizer::tt_array_open) failAsDamaged();
    list.items.push_back(operandOf(item));
  }
  return list;
}

void ContentOperations::skipDictionary() {
  for (int depth = 1; depth > 0;) {
    const auto type = token().getType();
    if (type == QPDFTokenizer::tt_eof) failAsDamaged();
    if (type == QPDFTokenizer::tt_dict_open) ++depth;
    if (type == QPDFTokenizer::tt_dict_close) --depth;
  }
}

// Its settings end with ID, and its bytes begin behind the blank that follows.
void ContentOperations::skipImage(Operation& operation) {
  for (Token setting = token(); !isWord(setting, "ID"); setting = token())
    if (setting.getType() == QPDFTokenizer::tt_eof) failAsDamaged();
  ++mAt;
  mInput->seek(static_cast<qpdf_offset_t>(mAt), SEEK_SET);
  mTokenizer.expectInlineImage(mInput);
  if (token().getType() != QPDFTokenizer::tt_inline_image) failAsDamaged();
  if (!isWord(token(), "EI")) failAsDamaged();
  operation.name = "EI";
}

}  // namespace cutline
