// The dump of one PPD option.
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>

#include "bundle/diag/diagnostics.h"
#include "bundle/diag/messages.h"
#include "bundle/ppd/text_bytes.h"

namespace {

using cutline::logMessage;

std::optional<std::string> textOf(const char* bytes) {
  return cutline::decodedText(bytes, cutline::TextEncoding::system);
}

// The bytes up to a NUL, or all of them where a damaged record has none.
std::optional<std::string> textWithin(const char* bytes, std::size_t size) {
  return textOf(std::string(bytes, strnlen(bytes, size)).c_str());
}

template <std::size_t size>
std::optional<std::string> textIn(const char (&field)[size]) {
  return textWithin(field, size);
}

// The bytes from the start of the record, which is its flag.
template <typename Record>
std::optional<std::string> textFromFlag(const Record& record) {
  return textWithin(reinterpret_cast<const char*>(&record), sizeof record);
}
static_assert(offsetof(ppd_option_t, conflicted) == 0 && offsetof(ppd_choice_t, marked) == 0);

void logFirstChoice(const ppd_option_t& option) {
  if (option.num_choices < 1 || !option.choices) return;
  const ppd_choice_t& choice = option.choices[0];
  logMessage("***** choices->marked | %@", {textFromFlag(choice)});
  logMessage("***** choices->choice | %@", {textIn(choice.choice)});
  logMessage("***** choices->text | %@", {textIn(choice.text)});
}

void logOption(const ppd_option_t& option) {
  logMessage("***** conflicted | %@", {textFromFlag(option)});
  logMessage("***** keyword | %@", {textIn(option.keyword)});
  logMessage("***** defchoice | %@", {textIn(option.defchoice)});
  logMessage("***** text | %@", {textIn(option.text)});
  logMessage("***** ui == %d", {static_cast<int>(option.ui)});
  logMessage("***** section == %d", {static_cast<int>(option.section)});
  logMessage("***** order == %f", {option.order});
  logMessage("***** num_choices == %d", {option.num_choices});
  logFirstChoice(option);
}

void dump(ppd_file_t* ppd, const char* name) {
  if (!ppd) return logMessage("PPD file is not loaded!!", {});
  if (!name) return logMessage("ppdOptionName is NULL!!", {});
  const auto keyword = textOf(name);
  const ppd_option_t* option = ppdFindOption(ppd, name);
  logMessage("+-+-+-+-+-+-+-+-+-+- start is %@", {keyword});
  if (option) logOption(*option);
  logMessage("+-+-+-+-+-+-+-+-+-+- end is %@", {keyword});
}

}  // namespace

void _PDELog_ppd_option_t(ppd_file_t* ppd, const char* ppdOptionName) noexcept {
  cutline::quietly([&] { dump(ppd, ppdOptionName); });
}
