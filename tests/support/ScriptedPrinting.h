// Printing objects that answer what a test tells them: each call's status can be made an error.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports/Printing.h"

namespace cutline::test {

struct ScriptedPrinter : PMPrinterObject {
  OSStatus status = noErr;
  std::optional<std::string> uri = "usb://maker/model";

  OSStatus copyDeviceURI(std::optional<std::string>* out) noexcept override {
    if (status == noErr) *out = uri;
    return status;
  }
};

struct ScriptedPaper : PMPaperObject {
  OSStatus nameStatus = noErr;
  std::optional<std::string> name = "W24";
  OSStatus heightStatus = noErr;
  double height = 283.46;  // points

  OSStatus getPPDPaperName(std::optional<std::string>* out) noexcept override {
    if (nameStatus == noErr) *out = name;
    return nameStatus;
  }
  OSStatus getHeight(double* out) noexcept override {
    if (heightStatus == noErr) *out = height;
    return heightStatus;
  }
};

struct ScriptedPageFormat : PMPageFormatObject {
  OSStatus status = noErr;
  PMPaperObject* paper = nullptr;

  OSStatus getPaper(PMPaperObject** out) noexcept override {
    if (status == noErr) *out = paper;
    return status;
  }
};

struct ScriptedSettings : PMPrintSettingsObject {
  OSStatus valueStatus = noErr;
  std::map<std::string, std::string> values;
  OSStatus getFirstStatus = noErr;
  OSStatus setFirstStatus = noErr;
  OSStatus getLastStatus = noErr;
  OSStatus setLastStatus = noErr;
  std::uint32_t firstPage = 1;
  std::uint32_t lastPage = 1;
  std::vector<std::pair<std::uint32_t, bool>> firstPagesSet;  // page, lock
  std::vector<std::pair<std::uint32_t, bool>> lastPagesSet;

  OSStatus getValue(const std::string& key, std::optional<std::string>* out) noexcept override {
    if (valueStatus != noErr) return valueStatus;
    if (const auto found = values.find(key); found != values.end()) *out = found->second;
    return noErr;
  }
  OSStatus getFirstPage(std::uint32_t* page) noexcept override {
    if (getFirstStatus == noErr) *page = firstPage;
    return getFirstStatus;
  }
  OSStatus setFirstPage(std::uint32_t page, bool lock) noexcept override {
    firstPagesSet.emplace_back(page, lock);
    return setFirstStatus;
  }
  OSStatus getLastPage(std::uint32_t* page) noexcept override {
    if (getLastStatus == noErr) *page = lastPage;
    return getLastStatus;
  }
  OSStatus setLastPage(std::uint32_t page, bool lock) noexcept override {
    lastPagesSet.emplace_back(page, lock);
    return setLastStatus;
  }
  OSStatus createDataRepresentation(std::optional<std::string>* /*xml*/) noexcept override {
    return noErr;
  }
};

struct ScriptedSession : PMPrintSessionObject {
  OSStatus status = noErr;
  std::optional<std::int64_t> number;

  OSStatus getData(const std::string& /*key*/, std::optional<std::int64_t>* out) noexcept override {
    if (status == noErr) *out = number;
    return status;
  }
};

}  // namespace cutline::test
