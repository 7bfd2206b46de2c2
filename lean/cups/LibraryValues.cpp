// What the print library asks of others for every connection, and what is no function: it cannot
// wait.
#include "lean/cups/ServiceName.h"

extern "C" {

int gnutls_global_init();
extern const cutline::ObjectIdentifier* const GSS_C_NT_HOSTBASED_SERVICE;

// Called for every connection, encrypted or not; the library begins by itself once it is loaded.
int gnutls_global_init() { return 0; }

const cutline::ObjectIdentifier* const GSS_C_NT_HOSTBASED_SERVICE = &cutline::kServiceName;

}  // extern "C"
