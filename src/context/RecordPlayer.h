#pragma once

#include <span>

#include "context/Look.h"
#include "context/Recording.h"
#include "context/ScreenBatch.h"
#include "context/ShapeLibrary.h"

namespace zv {

/// Plays recordings into a batch: placements are worked out in double precision, so that a vertex
/// meets its pixel at any zoom.
class RecordPlayer {
  public:
    RecordPlayer(const LookTable& looks, const ShapeLibrary& shapes, ScreenBatch& batch)
        : m_looks(looks), m_shapes(shapes), m_batch(batch) {}

    /// `place` takes the recording's units to those of the screen matrix, of which `pixel` are one
    /// pixel (0: unknown). Lines are cut to `limits` when it is given.
    void Play(std::span<const std::uint32_t> words, const Affine& place, double pixel,
              const Box* limits);

  private:
    void PlayWithin(std::span<const std::uint32_t> words, const Affine& place, const Look& outer);
    void PlayCall(const RecordedCall& call, const Affine& place, const Look& look);
    void PlaySymbol(const RecordedCall& call, const Affine& place, const Look& look);
    void PlayStrokeText(const RecordedCall& call, const Affine& place, const Look& look);
    void PlayOutlineText(const RecordedCall& call, const Affine& place, const Look& look);
    template<class At>
    void AddLine(std::size_t count, At&& at, const Look& look);
    template<class At>
    void AddCutSegments(std::size_t count, At&& at, const Look& look);
    template<class At>
    void AddVertices(ScreenBatch::Shape shape, std::size_t count, At&& at, const Look& look);

    const LookTable& m_looks;
    const ShapeLibrary& m_shapes;
    ScreenBatch& m_batch;
    const Box* m_limits = nullptr;
    double m_pixel = 0.0;
    int m_depth = 0; // symbols inside symbols
};

} // namespace zv
