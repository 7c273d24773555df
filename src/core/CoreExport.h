#pragma once

/// Marks what the library `harnwick-core` exports; all else stays hidden.
#define HARNWICK_CORE_API __attribute__((visibility("default")))
