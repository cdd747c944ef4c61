#include "platform/wgl/GlyphMesh.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "platform/Text.h"
#include "platform/wgl/FontFace.h"
#include "platform/wgl/OutlineMesher.h"

namespace zv {

namespace {

constexpr double kDefaultDeviation = 0.002;

/// First character of a UTF-8 text of at most three bytes; that covers code page 1252.
unsigned long FirstCharacter(const std::string& utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    if (utf8.size() == 1) return byte(0);
    if (utf8.size() == 2) return (byte(0) & 0x1Fu) << 6 | (byte(1) & 0x3Fu);
    if (utf8.size() == 3)
        return (byte(0) & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
    return '?';
}

unsigned long UnicodeOf(int c) {
    return FirstCharacter(ToUtf8(std::string(1, static_cast<char>(c))));
}

void MeasureInk(GlyphMesh& mesh) {
    if (mesh.triangles.empty()) return;
    mesh.minX = mesh.maxX = mesh.triangles[0];
    mesh.minY = mesh.maxY = mesh.triangles[1];
    for (std::size_t i = 0; i + 1 < mesh.triangles.size(); i += 2) {
        mesh.minX = std::min(mesh.minX, mesh.triangles[i]);
        mesh.maxX = std::max(mesh.maxX, mesh.triangles[i]);
        mesh.minY = std::min(mesh.minY, mesh.triangles[i + 1]);
        mesh.maxY = std::max(mesh.maxY, mesh.triangles[i + 1]);
    }
}

GlyphMesh MakeMesh(FT_FaceRec_* face, int c, double deviation) {
    GlyphMesh mesh;
    if (c < 0x20 || c == 0x7F) return mesh; // control characters have neither ink nor width
    const auto outline = LoadGlyphOutline(face, UnicodeOf(c), deviation);
    mesh.advance = static_cast<float>(outline.advance);
    mesh.triangles = FillContours(outline.contours);
    MeasureInk(mesh);
    return mesh;
}

std::shared_ptr<const GlyphMeshes> MakeMeshes(const FontRequest& request, double deviation) {
    const auto face = OpenFace(request);
    if (!face) return nullptr;
    auto meshes = std::make_shared<GlyphMeshes>();
    for (int c = 0; c < 256; ++c)
        (*meshes)[static_cast<std::size_t>(c)] = MakeMesh(face.get(), c, deviation);
    const bool hasInk = std::ranges::any_of(*meshes, [](const auto& m) { return m.maxX > m.minX; });
    return hasInk ? meshes : nullptr;
}

} // namespace

std::shared_ptr<const GlyphMeshes> LoadGlyphMeshes(const FontRequest& request, float deviation) {
    using Key = std::tuple<std::string, int, bool, float>;
    static std::map<Key, std::shared_ptr<const GlyphMeshes>> kept;
    const Key key{request.face, request.weight, request.italic, deviation};
    if (const auto found = kept.find(key); found != kept.end()) return found->second;
    return kept[key] = MakeMeshes(request, deviation > 0.0f ? deviation : kDefaultDeviation);
}

} // namespace zv
