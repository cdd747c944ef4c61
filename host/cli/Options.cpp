#include "cli/Options.h"

#include <CLI/CLI.hpp>

#include "platform/Numbers.h"
#include "platform/zvcom/ZvColor.h"

namespace zv::host {
namespace {

/// "1600x1200".
std::pair<int, int> ParseSize(const std::string& text) {
    const std::size_t cross = text.find('x');
    const auto digits = [](const std::string& part) {
        return !part.empty() && part.size() <= 5 &&
               part.find_first_not_of("0123456789") == std::string::npos;
    };
    if (cross == std::string::npos || !digits(text.substr(0, cross)) ||
        !digits(text.substr(cross + 1)))
        throw CLI::ValidationError("--size", "must be WIDTHxHEIGHT, as in 1600x1200");
    const std::pair size(ParseInt(text), ParseInt(text.substr(cross + 1)));
    if (size.first < 16 || size.second < 16 || size.first > 16384 || size.second > 16384)
        throw CLI::ValidationError("--size", "must be from 16 to 16384 pixels each way");
    return size;
}

/// Number or name of a colour of the palette.
int ParseColour(const std::string& text) {
    const bool number = !text.empty() && text.size() <= 3 &&
                        text.find_first_not_of("0123456789") == std::string::npos;
    const int index = number ? ParseInt(text) : CZvColor::S_Find(text);
    if (index < 0 || index > 255)
        throw CLI::ValidationError("--background",
                                   "must be 0 to 255 or the name of a palette's colour");
    return index;
}

void AddCommon(CLI::App& verb, CommonOptions& options) {
    verb.add_flag("--json", options.json, "Print the result as JSON");
    verb.add_flag("--quiet", options.quiet, "No progress and no log on standard error");
}

void AddMap(CLI::App& verb, std::string& map, std::string& data) {
    verb.add_option("MAP", map, "Map project (.json) or drawing file")->required();
    verb.add_option("--data", data, "Folder of the project's sources")
        ->check(CLI::ExistingDirectory);
}

void AddRender(CLI::App& app, RenderOptions& options) {
    CLI::App* verb = app.add_subcommand("render", "Draw a map into a PNG file");
    AddMap(*verb, options.map, options.data);
    AddCommon(*verb, options.common);
    verb->add_option("-o,--output", options.output, "PNG file to write")->required();
    verb->add_flag("--dry-run", options.common.dryRun, "List what would be written, write nothing");
    verb->add_option_function<std::string>(
        "--size", [&options](const std::string& text) { options.size = ParseSize(text); },
        "Pixels, WIDTHxHEIGHT");
    verb->add_option("--view", options.view, "x1,y1,x2,y2 in map units")
        ->delimiter(',')
        ->expected(4);
    verb->add_option("--layer", options.layers, "Only these layers (may be repeated)")
        ->allow_extra_args(false);
    verb->add_option("--post", options.post, "Only this post");
    verb->add_option("--uset", options.uset, "Only this user set");
    verb->add_option("--culture", options.culture, "Only this culture");
    verb->add_option("--font", options.font, "stroke, or the name of an outline face");
    verb->add_option_function<std::string>(
        "--background",
        [&options](const std::string& text) { options.background = ParseColour(text); },
        "Background colour, 0 to 255 or its name");
    verb->add_option("--background-brightness", options.backgroundBrightness,
                     "0 (full) to 9 (a tenth)")
        ->check(CLI::Range(0, 9));
    verb->add_option("--fill-brightness", options.fillBrightness,
                     "Opacity of fills, 0 (full) to 9 (a tenth)")
        ->check(CLI::Range(0, 9));
}

void AddInfo(CLI::App& app, InfoOptions& options) {
    CLI::App* verb = app.add_subcommand("info", "Print the tree of a map with its counts");
    AddMap(*verb, options.map, options.data);
    AddCommon(*verb, options.common);
}

void AddSymbols(CLI::App& app, SymbolsOptions& options) {
    CLI::App* verb = app.add_subcommand("symbols", "Draw the symbol library as a chart");
    AddCommon(*verb, options.common);
    verb->add_option("-o,--output", options.output, "PNG file to write");
    verb->add_flag("--dry-run", options.common.dryRun, "List what would be written, write nothing");
}

bool IsVerb(CLI::App& app, const std::string& word) {
    for (const CLI::App* verb : app.get_subcommands({}))
        if (verb->get_name() == word) return true;
    return false;
}

bool IsNumber(const std::string& word) {
    return !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
}

/// The words, last first as the parser takes them, with "--layer 3 25" spelled out as "--layer 3
/// --layer 25", so that a list of layers ends where the numbers do.
std::vector<std::string> Words(int argc, const char* const* argv) {
    std::vector<std::string> words;
    bool inLayers = false;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        const bool number = IsNumber(word);
        if (inLayers && number && words.back() != "--layer") words.emplace_back("--layer");
        inLayers = word == "--layer" || (inLayers && number);
        words.push_back(word);
    }
    return {words.rbegin(), words.rend()};
}

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

} // namespace

CommandLine ParseCommandLine(int argc, const char* const* argv) {
    CommandLine line;
    CLI::App app("zvdisp: draws and inspects maps of oil and gas exploration", "zvdisp");
    app.require_subcommand(1);
    app.set_version_flag("--version", "zvdisp " ZVDISP_VERSION);
    AddRender(app, line.render);
    AddInfo(app, line.info);
    AddSymbols(app, line.symbols);
    try {
        app.parse(Words(argc, argv));
    } catch (const CLI::CallForHelp&) {
        const auto chosen = app.get_subcommands();
        throw ExitRequest{chosen.empty() ? app.help() : chosen.front()->help()};
    } catch (const CLI::CallForVersion& version) {
        throw ExitRequest{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& fault) {
        const std::string verb = argc > 1 && argv[1][0] != '-' ? argv[1] : "";
        if (verb.empty() || IsVerb(app, verb)) throw UsageError(FirstLine(fault.what()));
        throw UsageError("there is no verb \"" + verb + "\" (render, info, symbols)");
    }
    using Verb = CommandLine::Verb;
    const std::string verb = app.get_subcommands().front()->get_name();
    line.verb = verb == "render" ? Verb::Render : verb == "info" ? Verb::Info : Verb::Symbols;
    return line;
}

} // namespace zv::host
