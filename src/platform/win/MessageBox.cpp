#include "platform/win/MessageBox.h"

#include <cstdlib>
#include <utility>

#include "platform/zvlogs/ZvLog.h"

namespace {

constexpr const char* kProgramTitle = "ZvDisp";
constexpr unsigned kButtonsMask = 15; ///< which buttons a box has; the rest of a style is its icon

zv::HeadlessMessageHost& DefaultHost() {
    static zv::HeadlessMessageHost host;
    return host;
}

zv::MessageHost* installed = nullptr;

} // namespace

int AfxMessageBox(const std::string& text, unsigned style) {
    return MessageBoxA(text, kProgramTitle, style);
}

int MessageBoxA(const std::string& text, const std::string& title, unsigned style) {
    return zv::GetMessageHost().Show(text, title, style);
}

namespace zv {

MessageHost::~MessageHost() = default;

void MessageHost::ExitProcess(int code) {
    std::exit(code);
}

MessageHost* SetMessageHost(MessageHost* host) {
    MessageHost* before = &GetMessageHost();
    installed = host;
    return before;
}

MessageHost& GetMessageHost() {
    return installed ? *installed : static_cast<MessageHost&>(DefaultHost());
}

int HeadlessMessageHost::Show(const std::string& text, const std::string& title, unsigned style) {
    int answer = IDOK;
    if ((style & kButtonsMask) == MB_YESNO) {
        answer = IDNO;
        if (!m_answers.empty()) {
            answer = m_answers.front();
            m_answers.erase(m_answers.begin());
        }
    }
    CZvLog::Output(text, 101, false);
    m_shown.push_back({text, title, style, answer});
    return answer;
}

void HeadlessMessageHost::Script(std::vector<int> answers) {
    m_answers.insert(m_answers.end(), answers.begin(), answers.end());
}

void HeadlessMessageHost::Clear() {
    m_shown.clear();
    m_answers.clear();
}

} // namespace zv
