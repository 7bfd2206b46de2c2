// The dump of the print settings.
#include <fcntl.h>
#include <unistd.h>

#include <optional>
#include <string>

#include "bundle/diag/diagnostics.h"
#include "bundle/diag/quietly.h"
#include "bundle/diag/settings_file.h"

namespace {

void writeToRootDirectory(const char* name, const std::string& xml) noexcept {
  const int root = open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (root < 0) return;
  cutline::quietly([&] { cutline::writeSettingsFile(root, name, xml); });
  close(root);
}

}  // namespace

void _PDELog_PMPrintSettings_WriteToFile(cutline::PMPrintSettings settings,
                                         const char* name) noexcept {
  if (!settings || !name) return;
  std::optional<std::string> xml;
  if (cutline::PMPrintSettingsCreateDataRepresentation(settings, &xml) != cutline::noErr || !xml)
    return;
  writeToRootDirectory(name, *xml);
}
