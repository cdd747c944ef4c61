#include <cstdio>
#include <exception>
#include <string>

#include "cli/Options.h"
#include "cli/Verbs.h"

namespace zv::host {
namespace {

void Run(const CommandLine& line) {
    switch (line.verb) {
    case CommandLine::Verb::Render: SetLog(line.render.common.quiet); return Render(line.render);
    case CommandLine::Verb::Info: SetLog(line.info.common.quiet); return Info(line.info);
    case CommandLine::Verb::Symbols:
        SetLog(line.symbols.common.quiet);
        return Symbols(line.symbols);
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
    try {
        Run(ParseCommandLine(argc, argv));
        return 0;
    } catch (const ExitRequest& request) {
        std::fputs(request.text.c_str(), stdout);
        return 0;
    } catch (const UsageError& fault) {
        return Fail(fault.what(), 2);
    } catch (const std::exception& fault) {
        return Fail(fault.what(), 1);
    }
}
