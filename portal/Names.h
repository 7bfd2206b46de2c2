// Names on the session's bus.
#pragma once

namespace cutline::portal {

inline constexpr char kServiceName[] = "org.freedesktop.impl.portal.desktop.cutline";
inline constexpr char kBackendPath[] = "/org/freedesktop/portal/desktop";
inline constexpr char kPrintInterface[] = "org.freedesktop.impl.portal.Print";
inline constexpr char kRequestInterface[] = "org.freedesktop.impl.portal.Request";

}  // namespace cutline::portal
