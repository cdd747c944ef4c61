#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Export.h"

/// The window framework's string: a type of its own beside std::string, since overloads tell the
/// two apart. Single-byte text (code page 1252).
class ZVDISP_API CString {
  public:
    CString() = default;
    CString(const char* text) : m_text(text ? text : "") {}
    explicit CString(std::string_view text) : m_text(text) {}
    explicit CString(std::string text) : m_text(std::move(text)) {}

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    /// Borrowed until the string changes.
    const char* GetString() const { return m_text.c_str(); }
    operator const char*() const { return m_text.c_str(); }
    const std::string& Str() const { return m_text; }

    CString& operator+=(const CString& more) {
        m_text += more.m_text;
        return *this;
    }
    friend CString operator+(CString a, const CString& b) { return a += b; }
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator<(const CString& a, const CString& b) { return a.m_text < b.m_text; }

  private:
    std::string m_text;
};

template<>
struct std::hash<CString> {
    std::size_t operator()(const CString& s) const noexcept {
        return std::hash<std::string>{}(s.Str());
    }
};
