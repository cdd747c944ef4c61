#pragma once

/// Marks what is part of the library's interface; everything else stays hidden in the shared
/// library.
#if defined(__GNUC__)
#define ZVDISP_API __attribute__((visibility("default")))
#else
#define ZVDISP_API
#endif
