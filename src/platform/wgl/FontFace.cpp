#include "platform/wgl/FontFace.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <string_view>

namespace zv {

namespace {

/// Families that have the same metrics, so that one may stand for the other. The rows of one family
/// are tried in their order.
struct Replacement {
    std::string_view family, stand;
};
constexpr Replacement kReplacements[] = {
    {"Arial", "Liberation Sans"},
    {"Arial", "Arimo"},
    {"Arial Narrow", "Liberation Sans Narrow"},
    {"Helvetica", "Liberation Sans"},
    {"Helvetica", "Arimo"},
    {"Helvetica", "Nimbus Sans"},
    {"Times", "Times New Roman"},
    {"Times", "Liberation Serif"},
    {"Times", "Tinos"},
    {"Times", "Nimbus Roman"},
    {"Times New Roman", "Liberation Serif"},
    {"Courier", "Courier New"},
    {"Courier", "Liberation Mono"},
    {"Courier", "Cousine"},
    {"Courier", "Nimbus Mono PS"},
    {"Courier New", "Liberation Mono"},
};

struct PatternCloser {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternPtr = std::unique_ptr<FcPattern, PatternCloser>;

struct FontSetCloser {
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};

FcConfig* Config() {
    static FcConfig* config = FcInitLoadConfigAndFonts();
    return config;
}

PatternPtr ScalablePattern(const std::string& family) {
    PatternPtr pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    return pattern;
}

bool IsInstalled(const std::string& family) {
    const auto pattern = ScalablePattern(family);
    const std::unique_ptr<FcFontSet, FontSetCloser> found(
        FcFontList(Config(), pattern.get(), nullptr));
    return found && found->nfont > 0;
}

/// The family itself or the first of its stand-ins that is installed; empty for none.
std::string InstalledFamily(const std::string& family) {
    if (IsInstalled(family)) return family;
    for (const auto& row : kReplacements)
        if (row.family == family && IsInstalled(std::string(row.stand)))
            return std::string(row.stand);
    return {};
}

PatternPtr Match(const FontRequest& request) {
    const auto installed = InstalledFamily(request.face);
    const auto pattern = ScalablePattern(installed.empty() ? request.face : installed);
    // Weight 100 is a plain face here as it is on every system that lacks a thin one.
    FcPatternAddInteger(pattern.get(), FC_WEIGHT,
                        FcWeightFromOpenType(std::max(request.weight, 400)));
    FcPatternAddInteger(pattern.get(), FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcConfigSubstitute(Config(), pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    return PatternPtr(FcFontMatch(Config(), pattern.get(), &result));
}

FT_Library Library() {
    static FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) == 0 ? made : nullptr;
    }();
    return library;
}

} // namespace

void FaceCloser::operator()(FT_FaceRec_* face) const {
    FT_Done_Face(face);
}

FacePtr OpenFace(const FontRequest& request) {
    const auto match = Match(request);
    FcChar8* file = nullptr;
    int index = 0;
    if (!match || FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) return {};
    FcPatternGetInteger(match.get(), FC_INDEX, 0, &index);
    FT_Face face = nullptr;
    if (!Library() || FT_New_Face(Library(), reinterpret_cast<const char*>(file), index, &face))
        return {};
    return FacePtr(face);
}

bool FontExists(const std::string& face) {
    return !InstalledFamily(face).empty();
}

} // namespace zv
