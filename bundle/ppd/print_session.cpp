#include "bundle/ppd/print_session.h"

#include <cmath>

#include "platform/lib/PropertyList.h"

namespace cutline {
namespace {

constexpr std::size_t kLongestNameBytes = 255;

// A name as the byte string that is compared with the PPD's; one that is too long becomes empty.
std::string asByteString(const std::string& name) {
  return name.size() > kLongestNameBytes ? std::string() : name;
}

bool hasPageSize(const ppd_file_t* ppd, const std::string& name) noexcept {
  if (!ppd) return false;
  for (int i = 0; i < ppd->num_sizes; ++i) {
    if (name == ppd->sizes[i].name) return true;
  }
  return false;
}

std::int32_t tapeStateOf(const ppd_file_t* ppd, const std::string& name) noexcept {
  return hasPageSize(ppd, name) && beginsWithDCOrAV(name) ? 1 : 0;
}

}  // namespace

long RoundDouble(double value) noexcept {
  const double whole = std::trunc(value);
  const double fraction = value - whole;
  if (fraction >= 0.5) return static_cast<long>(whole) + 1;
  if (fraction <= -0.5) return static_cast<long>(whole) - 1;
  return static_cast<long>(whole);
}

double MiriToInch(double millimetres) noexcept { return millimetres * kInchesPerMillimetre; }

double InchToMiri(double inches) noexcept { return inches / kInchesPerMillimetre; }

OSStatus GetTapeInfo(PMPrintSession session, PMPrintSettings settings, PMPageFormat format,
                     ppd_file_t* ppd, TapeInfo* info) noexcept {
  *info = TapeInfo();
  PMPaper paper = nullptr;
  const OSStatus paperStatus = PMGetPageFormatPaper(format, &paper);
  if (paperStatus != noErr) return paperStatus;
  if (!paper) return noErr;

  std::optional<std::string> name;
  if (PMPaperGetPPDPaperName(paper, &name) != noErr) name.reset();
  if (name) {
    info->paperName = name;
  } else {
    GetTapeInfo2(session, settings, info);
  }

  double height = 0;
  const OSStatus heightStatus = PMPaperGetHeight(paper, &height);
  if (heightStatus != noErr) return heightStatus;
  if (height == 0) return noErr;
  info->tapeLength = InchToMiri(height / kPointsPerInch);

  // A name from the ticket says nothing about the PPD's sizes.
  if (name) info->tapeState = tapeStateOf(ppd, asByteString(*name));
  return noErr;
}

OSStatus GetTapeInfo2(PMPrintSession /*session*/, PMPrintSettings settings,
                      TapeInfo* info) noexcept {
  info->paperName.reset();
  if (!settings) return noErr;
  std::optional<std::string> ticket;
  if (PMPrintSettingsGetValue(settings, kPrintSettingsTicketKey, &ticket) != noErr) return noErr;
  if (!ticket) return noErr;

  const auto list = PropertyList::parseXML(*ticket);
  const PropertyList* entry = list ? list->objectForKey(kTicketPaperNameKey) : nullptr;
  if (entry && entry->string()) info->paperName = *entry->string();
  return noErr;
}

OSStatus GetTicketFromSession(PMPrintSession session, const std::string& key,
                              std::int32_t* number) noexcept {
  std::optional<std::int64_t> data;
  const OSStatus status = PMSessionGetDataFromSession(session, key, &data);
  if (status != noErr || !data) return kPMInvalidTicket;
  *number = static_cast<std::int32_t>(*data);
  return noErr;
}

OSStatus GetTapeInfo3(PMPrintSettings settings, PageRange* range) noexcept {
  *range = PageRange();
  std::uint32_t page = 0;
  if (PMGetFirstPage(settings, &page) == noErr) {
    PMSetFirstPage(settings, page, false);
    range->firstPage = static_cast<std::int32_t>(page);
  }
  const OSStatus status = PMGetLastPage(settings, &page);
  if (status != noErr) return status;
  range->lastPage = static_cast<std::int32_t>(page);
  return PMSetLastPage(settings, page, false);
}

std::string paperNameOfPageFormat(PMPageFormat format) noexcept {
  PMPaper paper = nullptr;
  if (PMGetPageFormatPaper(format, &paper) != noErr || !paper) return {};
  std::optional<std::string> name;
  if (PMPaperGetPPDPaperName(paper, &name) != noErr || !name) return {};
  return asByteString(*name);
}

}  // namespace cutline
