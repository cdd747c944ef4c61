#include "context/Recording.h"

namespace zv {

namespace {

/// Words of the body behind a head.
std::size_t BodyWords(Call call, std::size_t count) {
    switch (call) {
    case Call::Look: return 1;
    case Call::Lines:
    case Call::Triangles: return 2 * count;
    case Call::FarLines:
    case Call::FarTriangles: return 4 * count;
    case Call::StrokeText:
    case Call::OutlineText: return 1 + kPlaceWords + (count + 3) / 4;
    case Call::Symbol: return 1 + kPlaceWords;
    }
    return 0;
}

} // namespace

Affine RecordedCall::Place() const {
    float turn[4];
    double shift[2];
    std::memcpy(turn, body + 1, sizeof turn);
    std::memcpy(shift, body + 5, sizeof shift);
    return {turn[0], turn[1], turn[2], turn[3], shift[0], shift[1]};
}

bool RecordWalk::Next(RecordedCall& call) {
    if (m_words.empty()) return false;
    call = {static_cast<Call>(m_words[0] & 0xFF), m_words[0] >> 8, m_words.data() + 1};
    m_words = m_words.subspan(1 + BodyWords(call.call, call.count));
    return true;
}

} // namespace zv
