// What Kerberos is told that a name is: that of a service on a host. A value of its library, and no
// function, so it cannot wait for it.
#pragma once

#include <cstdint>

namespace cutline {

// An object identifier, as RFC 2744 has it for C.
struct ObjectIdentifier {
  std::uint32_t length;
  const void* elements;
};

// 1.2.840.113554.1.2.1.4, GSS_C_NT_HOSTBASED_SERVICE there.
inline constexpr char kServiceNameElements[] = "\x2a\x86\x48\x86\xf7\x12\x01\x02\x01\x04";
inline constexpr ObjectIdentifier kServiceName = {sizeof kServiceNameElements - 1,
                                                  kServiceNameElements};

}  // namespace cutline
