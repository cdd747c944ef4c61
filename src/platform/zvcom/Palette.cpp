#include "platform/zvcom/Palette.h"

#include <charconv>
#include <set>

#include "platform/JsonInput.h"

namespace zv {
namespace {

constexpr int kVersion = 1;
constexpr std::size_t kMaxWord = 24;
constexpr std::size_t kMaxAbout = 1000;
constexpr int kMaxAcad = 255;

/// "#rrggbb" in hexadecimal digits.
std::array<std::uint8_t, 3> ReadRgb(const JsonNode& node) {
    const std::string text = node.Text(kMaxWord);
    std::uint32_t value = 0;
    const char* const end = text.data() + text.size();
    const bool shaped = text.size() == 7 && text[0] == '#';
    const auto result = std::from_chars(text.data() + (shaped ? 1 : 0), end, value, 16);
    if (!shaped || result.ec != std::errc() || result.ptr != end)
        node.Fail("must be \"#\" and six hexadecimal digits");
    return {std::uint8_t(value >> 16), std::uint8_t(value >> 8), std::uint8_t(value)};
}

PaletteEntry ReadEntry(const JsonNode& node) {
    node.AllowOnly({"rgb", "name", "smt", "landmark", "acad"});
    return {.rgb = ReadRgb(node.At("rgb")),
            .name = node.At("name").Word(kMaxWord, "-"),
            .smt = node.At("smt").Word(kMaxWord),
            .landmark = node.At("landmark").Word(kMaxWord),
            .acad = node.At("acad").Int(1, kMaxAcad)};
}

/// Squared difference weighted by how the eye takes the channels: green counts most.
int Difference(const PaletteEntry& a, const PaletteEntry& b) {
    constexpr std::array<int, 3> kWeight = {3, 4, 2};
    int sum = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const int delta = int(a.rgb[i]) - int(b.rgb[i]);
        sum += kWeight[i] * delta * delta;
    }
    return sum;
}

std::uint8_t NearestOld(const Palette& palette, int index) {
    if (index < kOldPaletteSize) return std::uint8_t(index);
    const PaletteEntry& wanted = palette.entries[std::size_t(index)];
    std::size_t best = 0;
    for (std::size_t i = 1; i < kOldPaletteSize; ++i)
        if (Difference(palette.entries[i], wanted) < Difference(palette.entries[best], wanted))
            best = i;
    return std::uint8_t(best);
}

} // namespace

Palette ParsePalette(std::string_view json, const std::string& name) {
    const JsonDocument document(json, name);
    const JsonNode root = document.Root();
    root.AllowOnly({"version", "about", "colors"});
    root.At("version").Int(kVersion, kVersion);
    if (const auto about = root.Find("about")) about->Text(kMaxAbout);
    const JsonNode colors = root.At("colors");
    const std::vector<JsonNode> nodes = colors.Items();
    if (nodes.size() != kPaletteSize)
        colors.Fail("must hold 256 colours, not " + std::to_string(nodes.size()));

    Palette palette;
    std::set<std::string> names;
    for (std::size_t i = 0; i < kPaletteSize; ++i) {
        palette.entries[i] = ReadEntry(nodes[i]);
        if (!names.insert(palette.entries[i].name).second) nodes[i].At("name").Fail("stands twice");
    }
    for (int i = 0; i < kPaletteSize; ++i)
        palette.old[std::size_t(i)] = NearestOld(palette, i);
    return palette;
}

} // namespace zv
