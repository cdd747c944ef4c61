#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
}

namespace zv::host {

/// What every verb takes.
struct CommonOptions {
    bool json = false;
    bool quiet = false;
    bool dryRun = false;
};

struct RenderOptions {
    CommonOptions common;
    std::string map;
    std::string output;
    std::string data;
    std::optional<std::pair<int, int>> size; ///< pixels
    std::vector<double> view;                ///< x1, y1, x2, y2, or empty
    std::vector<int> layers;
    int post = 99;
    int uset = 99;
    std::optional<int> culture;
    std::string font; ///< empty: the project's
    std::optional<int> background, backgroundBrightness, fillBrightness;
};

struct InfoOptions {
    CommonOptions common;
    std::string map;
    std::string data;
};

struct SymbolsOptions {
    CommonOptions common;
    std::optional<std::string> output;
};

/// What the command line asks for.
struct CommandLine {
    enum class Verb { Render, Info, Symbols } verb = Verb::Render;
    RenderOptions render;
    InfoOptions info;
    SymbolsOptions symbols;
};

/// Parses the command line. Throws UsageError; help is an ExitRequest.
CommandLine ParseCommandLine(int argc, const char* const* argv);

/// Thrown for a wrong command line; what() is one line.
struct UsageError : std::exception {
    explicit UsageError(std::string text) : m_text(std::move(text)) {}
    const char* what() const noexcept override { return m_text.c_str(); }

  private:
    std::string m_text;
};

/// Thrown when the answer is a text (help, version) and nothing else is to be done.
struct ExitRequest {
    std::string text;
};

} // namespace zv::host
