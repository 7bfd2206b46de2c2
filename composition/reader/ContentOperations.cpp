#include "composition/reader/ContentOperations.h"

#include <charconv>
#include <qpdf/BufferInputSource.hh>
#include <stdexcept>
#include <string_view>

namespace cutline {
namespace {

constexpr char kContent[] = "content";

[[noreturn]] void failAsDamaged() { throw std::runtime_error("the content is damaged"); }

// As PDF has them: without an exponent, with a sign of either kind.
double numberIn(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (error != std::errc() || end != text.data() + text.size()) failAsDamaged();
  return number;
}

bool isWord(const QPDFTokenizer::Token& token, const char* word) {
  return token.getType() == QPDFTokenizer::tt_word && token.getValue() == word;
}

}  // namespace

ContentOperations::ContentOperations(const std::string& content)
    : mInput(std::make_shared<BufferInputSource>(kContent, content)) {
  mTokenizer.allowEOF();
}

ContentOperations::Token ContentOperations::token() {
  Token token = mTokenizer.readToken(mInput, kContent, /*allow_bad=*/true);
  if (token.getType() == QPDFTokenizer::tt_bad) failAsDamaged();
  return token;
}

bool ContentOperations::next(Operation& operation) {
  operation.operands.clear();
  while (true) {
    const Token read = token();
    if (read.getType() == QPDFTokenizer::tt_eof) {
      if (!operation.operands.empty()) failAsDamaged();
      return false;
    }
    if (read.getType() != QPDFTokenizer::tt_word) {
      operation.operands.push_back(operandOf(read));
      continue;
    }
    operation.name = read.getValue();
    if (operation.name == "BI") {
      skipImage();
      operation.name = "EI";
    }
    return true;
  }
}

Operand ContentOperations::operandOf(const Token& token) {
  switch (token.getType()) {
    case QPDFTokenizer::tt_integer:
    case QPDFTokenizer::tt_real:
      return {Operand::Kind::number, numberIn(token.getValue()), {}, {}};
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
void ContentOperations::skipImage() {
  for (Token setting = token(); !isWord(setting, "ID"); setting = token())
    if (setting.getType() == QPDFTokenizer::tt_eof) failAsDamaged();
  char blank = 0;
  mInput->read(&blank, 1);
  mTokenizer.expectInlineImage(mInput);
  if (token().getType() != QPDFTokenizer::tt_inline_image) failAsDamaged();
  if (!isWord(token(), "EI")) failAsDamaged();
}

}  // namespace cutline
