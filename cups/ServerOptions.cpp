#include "cups/ServerOptions.h"

#include <cups/cups.h>

#include <atomic>

namespace cutline {

namespace {

const char* textOrNull(const std::optional<std::string>& text) {
  return text ? text->c_str() : nullptr;
}

const char* noPassword(const char* /*prompt*/, http_t* /*http*/, const char* /*method*/,
                       const char* /*resource*/, void* /*nothing*/) {
  return nullptr;
}

std::atomic<bool> sIsTerminalLeftAlone = false;

}  // namespace

void leaveTerminalAlone() noexcept { sIsTerminalLeftAlone = true; }

void ServerOptions::applyToThisThread() const {
  cupsSetServer(textOrNull(server));
  cupsSetUser(textOrNull(user));
  if (sIsTerminalLeftAlone) cupsSetPasswordCB2(noPassword, nullptr);
  // There is no way back to what the environment asks for, so an encryption that was insisted on is
  // never lowered again.
  if (encrypt) cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
}

}  // namespace cutline
