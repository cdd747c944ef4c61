#pragma once

#include "platform/win/MessageBox.h"

namespace zv::host {

/// Message boxes on the command line: nobody is there to answer, so a question is answered No, and
/// what would end the process is an error like any other, with the messages as its reason. It is
/// the process's message host as long as it lives; messages that became no error go to the log
/// then.
class Messages : public MessageHost {
  public:
    Messages();
    ~Messages() override;
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    int Show(const std::string& text, const std::string& title, unsigned style) override;
    /// Throws DataError: only the screen's drawing surface ends a process.
    [[noreturn]] void ExitProcess(int code) override;

  private:
    std::string m_texts;
    MessageHost* m_before;
};

} // namespace zv::host
