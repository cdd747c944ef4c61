#include "platform/win/Cursor.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Numbers of the system's cursors; a handle is the address of a number here.
constexpr std::array kSystemCursors = {32512, 32513, 32514, 32515, 32516, 32642, 32643,
                                       32644, 32645, 32646, 32648, 32649, 32650, 32651};

HCURSOR shown = nullptr;

std::function<void(int)>& Listener() {
    static std::function<void(int)> listener;
    return listener;
}

} // namespace

HCURSOR LoadCursor(void* instance, int number) {
    const auto found = std::find(kSystemCursors.begin(), kSystemCursors.end(), number);
    return instance || found == kSystemCursors.end() ? nullptr : &*found;
}

HCURSOR SetCursor(HCURSOR cursor) {
    const HCURSOR before = std::exchange(shown, cursor);
    if (Listener()) {
        Listener()(zv::CursorNumber(cursor));
    }
    return before;
}

namespace zv {

int CursorNumber(HCURSOR cursor) {
    for (const int& number : kSystemCursors) {
        if (cursor == &number) {
            return number;
        }
    }
    return 0;
}

void SetCursorListener(std::function<void(int number)> listener) {
    Listener() = std::move(listener);
}

} // namespace zv
