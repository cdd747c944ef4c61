#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/zvlogs/ZvLog.h"

namespace zv::test {

/// Collects every log line until the end of its scope.
class LogLines {
  public:
    struct Line {
        std::string text;
        int level;
        bool flag;
        bool operator==(const Line&) const = default;
    };

    LogLines()
        : m_number(CZvLog::S_AddListener([this](const std::string& text, int level, bool flag) {
              m_lines.push_back({text, level, flag});
          })) {}
    ~LogLines() { CZvLog::S_RemoveListener(m_number); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    const std::vector<Line>& Get() const { return m_lines; }
    bool Holds(const std::string& piece) const {
        return std::any_of(m_lines.begin(), m_lines.end(), [&](const Line& line) {
            return line.text.find(piece) != std::string::npos;
        });
    }

  private:
    std::vector<Line> m_lines;
    int m_number;
};

} // namespace zv::test
