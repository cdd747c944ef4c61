#include <filesystem>

#include "data/MapDocument.h"
#include "platform/Error.h"
#include "platform/Numbers.h"
#include "platform/Share.h"

namespace zv::host {
namespace {

constexpr int kLastRecordCode = 23;

/// Whether a text begins with the head of a drawing record: a word of up to 4 letters, a colon, 3
/// columns, and 2 columns with the record's code.
bool BeginsLikeDrawing(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return false;
    text.remove_prefix(first);
    const std::size_t colon = text.find(':');
    if (colon == 0 || colon > 4 || text.size() < colon + 6) return false;
    const int code = ParseInt(text.substr(colon + 4, 2));
    return code >= 1 && code <= kLastRecordCode;
}

void CheckFile(const std::string& path, const std::string& pointer, const std::string& project) {
    std::error_code fault;
    if (!std::filesystem::exists(path, fault))
        throw DataError(project, pointer, "the file \"" + path + "\" cannot be found");
}

} // namespace

MapKind KindOf(const std::string& path) {
    if (std::filesystem::path(path).extension() == ".json") return MapKind::Project;
    if (BeginsLikeDrawing(ReadWholeFile(path))) return MapKind::Drawing;
    throw DataError(path, "", "is neither a map project (.json) nor a drawing file");
}

std::string DataFolder(const std::string& projectPath, const std::string& data) {
    if (!data.empty()) return data;
    const std::string folder = std::filesystem::path(projectPath).parent_path().string();
    return folder.empty() ? "." : folder;
}

std::vector<std::string> CheckFiles(const Project& project, const std::string& projectPath,
                                    const std::string& data) {
    std::vector<std::string> files;
    const auto check = [&](const std::string& file, const std::string& folder,
                           const std::string& pointer) {
        files.push_back(SourcePath(file, "", folder));
        CheckFile(files.back(), pointer, projectPath);
    };
    const std::string own = DataFolder(projectPath, "");
    const std::string sources = DataFolder(projectPath, data);
    if (!project.settingsFile.empty()) check(project.settingsFile, own, "/settings");
    for (std::size_t i = 0; i < project.symbolFiles.size(); ++i)
        check(project.symbolFiles[i], own, "/symbols/" + std::to_string(i));
    for (const Source& source : project.sources) {
        if (source.drawing.empty())
            check(source.file, sources, source.pointer);
        else
            check(source.drawing, sources, source.pointer + "/drawing");
        for (const Join& join : source.joins)
            check(join.file, sources, source.pointer + "/joins");
    }
    return files;
}

} // namespace zv::host
