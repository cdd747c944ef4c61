#pragma once

#include "context/ItemLists.h"
#include "context/ScreenView.h"
#include "context/ShapeLibrary.h"
#include "platform/wgl/ContextData.h"

namespace zv {

/// What belongs to one rendering context, whichever display context draws on it: its view, the
/// lists of its items and the shapes that they share.
class GlScene final : public ContextData {
  public:
    GlScene() : m_lists(m_view, m_shapes, m_looks), m_recorder(m_looks) {}

    /// The scene of the rendering context that is current, made at the first call; null when none
    /// is.
    static GlScene* Current();

    ItemLists& Lists() { return m_lists; }
    ShapeLibrary& Shapes() { return m_shapes; }
    const ScreenView& View() const { return m_view; }
    void Ortho(const Point2& lowerLeft, const Point2& upperRight);

    /// Compiles a character's or a symbol's list between the two calls. What is drawn meanwhile is
    /// in the shape's own units. `apart`: dashes may run along its lines (see GlSink).
    void BeginShapeList(unsigned name, bool apart);
    void EndShapeList();
    /// The recording that the shape's list left.
    std::span<const std::uint32_t> ShapeWords() const { return m_recorder.Words(); }

  private:
    LookTable m_looks;
    ScreenView m_view;
    ShapeLibrary m_shapes;
    ItemLists m_lists;
    RecordSink m_recorder;
    std::optional<GlSink> m_gl;
    std::optional<TeeSink> m_tee;
};

} // namespace zv
