#include "context/ItemLists.h"

#include <GL/gl.h>

#include <algorithm>
#include <utility>

#include "context/ListNames.h"

namespace zv {

namespace {

/// 0 for none.
unsigned ListOpenInDriver() {
    GLint list = 0;
    glGetIntegerv(GL_LIST_INDEX, &list);
    return static_cast<unsigned>(list);
}

} // namespace

ItemLists::ItemLists(const ScreenView& view, const ShapeLibrary& shapes, LookTable& looks)
    : m_view(view), m_shapes(shapes), m_looks(looks), m_player(looks, shapes, m_batch),
      m_recorder(looks), m_direct({}) {}

bool ItemLists::IsPlaced() const {
    return m_inShape || m_direct.IsPlaced() || (m_sink && m_gl && m_gl->IsPlaced());
}

Point2 ItemLists::Origin() const {
    return IsPlaced() ? Point2{} : m_view.Origin();
}

GlSink::Setup ItemLists::GlSetup() const {
    return {Origin(), m_fontBase, true};
}

ItemLists::Open ItemLists::OpenFor(unsigned id, KeepBy keep) {
    if (id == kNoPickID) {
        const unsigned hosts = ListOpenInDriver();
        if (hosts != 0) m_driverOnly.insert(hosts);
        const bool direct = m_direct.IsPlaced() || hosts != 0;
        return {id, keep == KeepBy::Recording && !direct, false};
    }
    // Who draws past the recording, under a name that belongs to others, leaves no list.
    const bool recording = keep == KeepBy::Recording;
    const bool driver = !IsReservedForShapes(id) && (!recording || m_driverLists < kDriverLists);
    return {id, recording, driver};
}

void ItemLists::NewList(unsigned id, KeepBy keep) {
    if (m_depth++ > 0) return;
    if (id != kNoPickID) DeleteList(id);
    m_open = OpenFor(id, keep);
    // What draws at its end comes alone, behind all that was gathered.
    if (!m_open.records || id == kNoPickID) Flush();
    if (m_open.records) m_recorder.Reset(false);
    if (m_open.driver && !m_open.records) m_driverOnly.insert(id);
    if (m_open.driver) glNewList(id, GL_COMPILE);
    m_gl.emplace(GlSetup()).AssumeSolid();
    m_tee.emplace(*m_gl, m_recorder);
    if (!m_open.records)
        m_sink = &*m_gl;
    else if (m_open.driver)
        m_sink = &*m_tee;
    else
        m_sink = &m_recorder;
}

void ItemLists::EndList() {
    if (--m_depth > 0) return;
    m_sink = nullptr;
    if (m_open.driver) glEndList();
    if (!m_open.records) return;
    if (m_open.id != kNoPickID) {
        Enter(m_open);
        return;
    }
    const Box box = m_shapes.BoundsOf(m_recorder.Words());
    const Point2 origin = m_recorder.Origin();
    Play(m_recorder.Words(), origin, box.Shifted(origin.x, origin.y));
    Flush();
}

void ItemLists::Enter(const Open& open) {
    ItemEntry& entry = m_directory.At(open.id);
    entry.present = true;
    entry.hasDriverList = open.driver;
    entry.origin = m_recorder.Origin();
    entry.record = m_arena.Store(m_recorder.Words());
    entry.refersToShapes = m_shapes.RefersToShapes(m_recorder.Words());
    entry.SetBox(m_shapes.BoundsOf(m_recorder.Words()));
    m_directory.CountUp(open.id);
    if (open.driver) ++m_driverLists;
}

void ItemLists::Forget(unsigned id, ItemEntry& entry) {
    m_arena.Free(entry.record);
    if (entry.hasDriverList) {
        glDeleteLists(id, 1);
        --m_driverLists;
    }
    entry = {};
    m_directory.CountDown(id);
}

bool ItemLists::IsList(unsigned id) {
    const ItemEntry* entry = m_directory.Find(id);
    if (entry && entry->present && !entry->hasDriverList) return true;
    return glIsList(id);
}

void ItemLists::DeleteList(unsigned id) {
    ItemEntry* entry = m_directory.Find(id);
    m_driverOnly.erase(id);
    if (entry && entry->present)
        Forget(id, *entry);
    else if (!IsReservedForShapes(id) && glIsList(id))
        glDeleteLists(id, 1);
}

bool ItemLists::CallList(unsigned id) {
    ItemEntry* entry = m_directory.Find(id);
    const bool present = entry && entry->present;
    if (present && !entry->hasDriverList) {
        Play(m_arena.At(entry->record), entry->origin, entry->MapBox());
        return true;
    }
    if (!glIsList(id)) {
        if (present) Forget(id, *entry); // a host deleted it past this class
        return false;
    }
    if (present) {
        Play(m_arena.At(entry->record), entry->origin, entry->MapBox());
    } else {
        Flush();
        glCallList(id);
    }
    return true;
}

DrawSink& ItemLists::Sink() {
    if (m_sink) return *m_sink;
    Flush();
    m_direct.SetUp(GlSetup());
    return m_direct;
}

void ItemLists::BeginShape(DrawSink& sink) {
    Flush();
    ++m_depth;
    m_inShape = true;
    m_outerSink = std::exchange(m_sink, &sink);
}

void ItemLists::EndShape() {
    --m_depth;
    m_inShape = false;
    m_sink = std::exchange(m_outerSink, nullptr);
}

const ScreenMatrix& ItemLists::Matrix() {
    if (!m_matrixKnown) m_matrix = m_view.Current();
    m_matrixKnown = m_replaying || m_batch.IsOpen();
    return m_matrix;
}

void ItemLists::Play(std::span<const std::uint32_t> words, const Point2& origin, const Box& box) {
    const ScreenMatrix& matrix = Matrix();
    if (box.IsEmpty() || !matrix.visible.Meets(box)) return;
    if (!m_batch.IsOpen()) m_batch.Open(matrix);
    const Point2 at{origin.x - matrix.center.x, origin.y - matrix.center.y};
    const Box relative = box.Shifted(-matrix.center.x, -matrix.center.y);
    const Box* limits = matrix.safe.Holds(relative) ? nullptr : &matrix.safe;
    m_batch.SetRegion(relative);
    m_player.Play(words, Affine::Shift(at.x, at.y), std::min(matrix.pixel.x, matrix.pixel.y),
                  limits);
    if (!m_replaying) Flush();
}

void ItemLists::BeginReplay() {
    Flush();
    // While the driver looks for hits it needs each item's calls under the item's name.
    GLint mode = GL_RENDER;
    glGetIntegerv(GL_RENDER_MODE, &mode);
    m_replaying = mode == GL_RENDER;
}

void ItemLists::EndReplay() {
    m_replaying = false;
    Flush();
}

void ItemLists::Flush() {
    if (m_batch.IsOpen()) m_batch.Close();
    m_matrixKnown = false;
}

void ItemLists::ShapesChanged() {
    m_directory.ForEach([this](unsigned, ItemEntry& entry) {
        if (entry.refersToShapes) entry.SetBox(m_shapes.BoundsOf(m_arena.At(entry.record)));
    });
}

} // namespace zv
