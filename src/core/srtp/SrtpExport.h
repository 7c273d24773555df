#pragma once

/// Marks what the library `harnwick-srtp` exports; all else stays hidden.
#define HARNWICK_SRTP_API __attribute__((visibility("default")))
