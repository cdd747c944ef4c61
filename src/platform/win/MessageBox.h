#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

/// Styles and answers of the window framework's message boxes.
inline constexpr unsigned MB_OK = 0, MB_YESNO = 4, MB_ICONEXCLAMATION = 48, MB_ICONINFORMATION = 64;
inline constexpr int IDOK = 1, IDCANCEL = 2, IDYES = 6, IDNO = 7;

/// Shows a text to the user through the host that is installed, and gives the answer.
ZVDISP_API int AfxMessageBox(const std::string& text, unsigned style = MB_OK);
/// The same with a title.
ZVDISP_API int MessageBoxA(const std::string& text, const std::string& title, unsigned style);

namespace zv {

/// Who shows message boxes. The window program has its own; tests and the command line use
/// HeadlessMessageHost.
class ZVDISP_API MessageHost {
  public:
    virtual ~MessageHost();
    virtual int Show(const std::string& text, const std::string& title, unsigned style) = 0;
    /// Ends the process (a step without which the screen cannot work has failed).
    [[noreturn]] virtual void ExitProcess(int code);
};

/// Installs a host and gives the one before; null puts the headless default back. Borrowed.
ZVDISP_API MessageHost* SetMessageHost(MessageHost* host);
ZVDISP_API MessageHost& GetMessageHost();

/// Records every text and answers from a script. A question without a scripted answer is answered
/// No, everything else OK; all texts also go to the log at level 101.
class ZVDISP_API HeadlessMessageHost : public MessageHost {
  public:
    struct Shown {
        std::string text, title;
        unsigned style;
        int answer;
    };
    int Show(const std::string& text, const std::string& title, unsigned style) override;
    /// Answers for the next questions (boxes with MB_YESNO), first in, first out.
    void Script(std::vector<int> answers);
    const std::vector<Shown>& GetShown() const { return m_shown; }
    void Clear();

  private:
    std::vector<Shown> m_shown;
    std::vector<int> m_answers;
};

} // namespace zv
