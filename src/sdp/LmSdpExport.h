#pragma once

/// Marks what the library `LmSdpObject` exports; all else stays hidden.
#define LMSDP_API __attribute__((visibility("default")))
