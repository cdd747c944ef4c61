#include <csignal>
#include <cstdio>
#include <exception>
#include <string>

#include "cli/Messages.h"
#include "cli/Options.h"
#include "cli/Verbs.h"

namespace zv::host {
namespace {

void Run(const CommandLine& line) {
    const Messages messages;
    switch (line.verb) {
    case CommandLine::Verb::Render: SetLog(line.render.common.quiet); return Render(line.render);
    case CommandLine::Verb::Info: SetLog(line.info.common.quiet); return Info(line.info);
    case CommandLine::Verb::Symbols:
        SetLog(line.symbols.common.quiet);
        return Symbols(line.symbols);
    }
}

void Answer(int argc, char** argv) {
    try {
        Run(ParseCommandLine(argc, argv));
    } catch (const ExitRequest& request) {
        PutOut(request.text);
    }
}

/// An error's text in one line.
std::string OneLine(std::string text) {
    for (char& c : text)
        if (c == '\n' || c == '\r') c = ' ';
    return text;
}

int Fail(const char* text, int code) {
    std::fprintf(stderr, "zvdisp: %s\n", OneLine(text).c_str());
    return code;
}

} // namespace
} // namespace zv::host

int main(int argc, char** argv) {
    using namespace zv::host;
    std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is a failure to write, like any other
    try {
        Answer(argc, argv);
        return 0;
    } catch (const UsageError& fault) {
        return Fail(fault.what(), 2);
    } catch (const std::exception& fault) {
        return Fail(fault.what(), 1);
    }
}
