#include "cli/Messages.h"

#include <utility>

#include "platform/Error.h"
#include "platform/zvlogs/ZvLog.h"

namespace zv::host {

Messages::Messages() : m_before(SetMessageHost(this)) {}

Messages::~Messages() {
    SetMessageHost(m_before);
    if (!m_texts.empty()) CZvLog::Output(m_texts, 101, false);
}

int Messages::Show(const std::string& text, const std::string&, unsigned style) {
    if (!m_texts.empty()) m_texts += ' ';
    for (const char c : text)
        m_texts += c == '\n' || c == '\r' ? ' ' : c;
    return (style & MB_YESNO) != 0 ? IDNO : IDOK;
}

void Messages::ExitProcess(int) {
    throw DataError("drawing surface", "",
                    "cannot be made; a smaller --size may help (" + std::exchange(m_texts, {}) +
                        ")");
}

} // namespace zv::host
