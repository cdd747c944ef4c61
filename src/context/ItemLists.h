#pragma once

#include <memory>
#include <optional>
#include <unordered_set>

#include "context/GlSink.h"
#include "context/ItemDirectory.h"
#include "context/RecordPlayer.h"
#include "context/RecordSink.h"
#include "context/TeeSink.h"

namespace zv {

/// Where an item's calls are kept. DriverOnly is for contexts that call OpenGL themselves while
/// they draw an item.
enum class KeepBy { Recording, DriverOnly };

/// The display lists of items, named by their pick IDs, in one rendering context.
///
/// Every item is kept as a recording, from which it is drawn: exact at any zoom, skipped where it
/// lies outside the view, and bundled with others of the same state. The first 100,000 also have a
/// list of the driver under their pick ID, for hosts that ask for it; making more of those takes
/// the driver ever longer. What is not of this class's making is the driver's: IsList, CallList and
/// DeleteList answer for it, too.
class ItemLists {
  public:
    static constexpr std::size_t kDriverLists = 100'000;

    ItemLists(const ScreenView& view, const ShapeLibrary& shapes, LookTable& looks);

    /// Opens the item's list in place of what it was; what comes under
    /// kNoPickID is drawn as the list ends. Inside a list that is open it counts only: members go
    /// into it.
    void NewList(unsigned id, KeepBy keep = KeepBy::Recording);
    void EndList();
    /// Draws the list; false when there is none.
    bool CallList(unsigned id);
    void DeleteList(unsigned id);
    bool IsList(unsigned id);
    /// Whether a list is being compiled.
    bool IsOpen() const { return m_depth > 0; }

    /// What positions are relative to at this moment: (0, 0) inside a placement or a shape.
    Point2 Origin() const;
    /// Where drawing calls go at this moment.
    DrawSink& Sink();
    /// Compiles into the sinks given until EndShape, whatever lists are opened meanwhile.
    void BeginShape(DrawSink& sink);
    void EndShape();

    /// Between the two, calls of lists may be gathered; their order is kept.
    void BeginReplay();
    void EndReplay();
    /// Draws what is gathered: to be called before anything else draws.
    void Flush();

    /// Lists of the outline font, 0 for none; and the recomputing of boxes behind a change of
    /// shapes.
    void SetFontBase(unsigned base) { m_fontBase = base; }
    unsigned FontBase() const { return m_fontBase; }
    void ShapesChanged();

    std::size_t Count() const { return m_directory.Count(); }
    /// Whether something in the driver was compiled relative to the view's origin.
    bool StandsOnOrigin() const { return Count() > 0 || !m_driverOnly.empty(); }
    std::size_t DriverLists() const { return m_driverLists; }
    /// Memory of the recordings, and neighbourhoods of IDs that hold any.
    std::size_t RecordBytes() const { return m_arena.Bytes(); }
    std::size_t Pages() const { return m_directory.Pages(); }

  private:
    struct Open {
        unsigned id = kNoId;
        bool records = false, driver = false;
    };
    static constexpr unsigned kNoId = 0xFFFFFFFFu;

    bool IsPlaced() const;
    GlSink::Setup GlSetup() const;
    Open OpenFor(unsigned id, KeepBy keep);
    void Forget(unsigned id, ItemEntry& entry);
    void Enter(const Open& open);
    void Play(std::span<const std::uint32_t> words, const Point2& origin, const Box& box);
    const ScreenMatrix& Matrix();

    const ScreenView& m_view;
    const ShapeLibrary& m_shapes;
    LookTable& m_looks;
    ScreenBatch m_batch;
    RecordPlayer m_player;
    RecordSink m_recorder;
    RecordArena m_arena;
    ItemDirectory m_directory;
    ScreenMatrix m_matrix;
    bool m_matrixKnown = false;
    std::size_t m_driverLists = 0;
    std::unordered_set<unsigned> m_driverOnly; // lists without recordings, a host's among them
    unsigned m_fontBase = 0;
    bool m_replaying = false;
    bool m_inShape = false;

    int m_depth = 0;
    Open m_open;
    GlSink m_direct; // outside any list
    std::optional<GlSink> m_gl;
    std::optional<TeeSink> m_tee;
    DrawSink* m_sink = nullptr;
    DrawSink* m_outerSink = nullptr; // while a shape is compiled
};

} // namespace zv
