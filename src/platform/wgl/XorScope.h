#pragma once

#include "platform/Export.h"

namespace zv {

/// Draws with exclusive or as long as it lives, so that what is drawn twice disappears. Works on
/// the rendering context that is current; without one it does nothing.
class ZVDISP_API XorScope {
  public:
    XorScope();
    /// Flushes what was drawn and turns the logic operation off.
    ~XorScope();
    XorScope(const XorScope&) = delete;
    XorScope& operator=(const XorScope&) = delete;

  private:
    bool m_on;
};

} // namespace zv
