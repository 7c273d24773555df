#pragma once

/// Marks what the library `LmSdpObject` exports; all else stays hidden.
#define LMSDP_API __attribute__((visibility("default")))

/// Keeps a private member of an exported class within the library.
#define LMSDP_LOCAL __attribute__((visibility("hidden")))
