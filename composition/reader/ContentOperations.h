// A content stream of a PDF, operation by operation (ISO 32000, 7.8.2).
#pragma once

#include <memory>
#include <qpdf/InputSource.hh>
#include <qpdf/QPDFTokenizer.hh>
#include <string>
#include <string_view>
#include <vector>

namespace cutline {

struct Operand {
  enum class Kind { number, name, string, list, other };
  Kind kind = Kind::other;
  double number = 0;
  std::string text;            // a name with its slash, or a string's bytes
  std::vector<Operand> items;  // of a list
};

struct Operation {
  std::string name;
  std::vector<Operand> operands;
};

class ContentOperations {
 public:
  // The stream's content, unpacked.
  explicit ContentOperations(std::string content);

  // The next operation; false at the end. An inline image is one operation, "EI", without operands.
  // Throws std::runtime_error where the content is damaged.
  bool next(Operation& operation);

 private:
  using Token = QPDFTokenizer::Token;

  Token token();
  std::string_view word();
  Operand operandOf(const Token& token);
  Operand list();
  void skipDictionary();
  void skipImage(Operation& operation);

  std::string mContent;
  std::size_t mAt = 0;
  // For what is neither a number nor an operator.
  QPDFTokenizer mTokenizer;
  std::shared_ptr<InputSource> mInput;
};

}  // namespace cutline
