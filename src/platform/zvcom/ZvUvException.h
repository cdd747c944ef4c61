#pragma once

#include <exception>
#include <string>

#include "platform/Export.h"

/// The one exception class of the library's interface. Kind 6 is a file fault.
class ZVDISP_API CZvUvException : public std::exception {
  public:
    CZvUvException(int kind, std::string message, std::string source, int line);
    ~CZvUvException() override;

    int GetKind() const { return m_kind; }
    const std::string& GetMessage() const { return m_message; }
    const std::string& GetSource() const { return m_source; }
    int GetLine() const { return m_line; }
    const char* what() const noexcept override { return m_message.c_str(); }

  private:
    int m_kind;
    std::string m_message;
    std::string m_source;
    int m_line;
};
