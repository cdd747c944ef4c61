#pragma once

#include <array>
#include <string>
#include <string_view>

#include "context/DrawSink.h"
#include "platform/wgl/Wgl.h"

namespace zv {

/// One face in four styles (plain, bold, italic, both), each with a list of the rendering context
/// for every character.
class OutlineFont {
  public:
    OutlineFont() = default;
    /// Deletes the lists when their rendering context is current.
    ~OutlineFont();
    OutlineFont(const OutlineFont&) = delete;
    OutlineFont& operator=(const OutlineFont&) = delete;

    /// Compiles the lists on the current rendering context. False when the face has no outlines, or
    /// without a context, which a message tells.
    bool Create(const std::string& face);
    /// `style`: 100 plain, 101 bold, 102 italic, 103 bold italic.
    void DrawString(int style, std::string_view text, DrawSink& sink) const;

  private:
    bool CreateLogFont(const std::string& face);
    bool CreateGLList(std::size_t style);

    std::array<FontRequest, 4> m_fonts;
    unsigned m_base = 0;
    HGLRC m_rc = nullptr;
};

/// Style of a text from its line width.
constexpr int OutlineStyle(unsigned char lineWidth) {
    return lineWidth >= 1 && lineWidth <= 3 ? 100 + lineWidth : 100;
}

} // namespace zv
