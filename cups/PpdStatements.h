// A PPD's statements, as libcups reads them.
#pragma once

#include <string_view>
#include <vector>

namespace cutline {

// One statement: a line, or all the lines that its quoted value goes over.
struct PpdStatement {
  std::string_view text;     // with what ends its lines
  std::string_view keyword;  // its first word without the sign; empty where libcups skips the line
};

// The statements of a PPD's contents, which they point into. Together they have all of its text.
std::vector<PpdStatement> ppdStatements(std::string_view contents);

// What stands between the keyword and the colon, such as "*Duplex/Two sides" behind OpenUI.
std::string_view nameOf(const PpdStatement& statement);

// Whether there is a colon: libcups skips statements without.
bool hasValue(const PpdStatement& statement);

// What stands behind the colon, without blanks around it; quotes stay. Empty where there is none.
std::string_view valueOf(const PpdStatement& statement);

}  // namespace cutline
