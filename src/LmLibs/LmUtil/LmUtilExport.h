#pragma once

/// Marks what the library `LmUtil` exports; all else stays hidden.
#define LMUTIL_API __attribute__((visibility("default")))
