#pragma once

#include <functional>

#include "platform/Export.h"

/// Numbers of the system cursors.
inline constexpr int IDC_ARROW = 32512, IDC_WAIT = 32514;

using HCURSOR = const void*;

/// Handle of a system cursor by its number.
ZVDISP_API HCURSOR LoadCursor(void* instance, int number);
/// Shows a cursor and gives the one before (null at first).
ZVDISP_API HCURSOR SetCursor(HCURSOR cursor);

namespace zv {
/// Number of the system cursor behind a handle, 0 for null.
ZVDISP_API int CursorNumber(HCURSOR cursor);
/// Installs who hears of every SetCursor (a window; tests); an empty function takes it away.
ZVDISP_API void SetCursorListener(std::function<void(int number)> listener);
} // namespace zv
