#include "cups/ServerOptions.h"

#include <cups/cups.h>

namespace cutline {

namespace {

const char* textOrNull(const std::optional<std::string>& text) {
  return text ? text->c_str() : nullptr;
}

}  // namespace

void ServerOptions::applyToThisThread() const {
  cupsSetServer(textOrNull(server));
  cupsSetUser(textOrNull(user));
  // There is no way back to what the environment asks for, so an encryption that was insisted on is
  // never lowered again.
  if (encrypt) cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
}

}  // namespace cutline
