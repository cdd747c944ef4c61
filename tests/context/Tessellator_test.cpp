#include "context/Tessellator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "platform/win/MessageBox.h"

namespace zv::testing {
namespace {

/// Adds up the areas that it is given, and notes how they were composed.
class AreaSink : public DrawSink {
  public:
    double area = 0.0;
    std::string composed;
    std::vector<Point2> corners; ///< of all triangles

    void BeginCompose(Compose c) override { composed += c == Compose::Xor ? "xor(" : "blend("; }
    void EndCompose(Compose) override { composed += ")"; }
    void Begin(Figure figure) override {
        m_kind = figure;
        m_figure.clear();
    }
    void Vertex(double x, double y) override { m_figure.push_back({x, y}); }
    void End() override {
        for (std::size_t i = 2; i < m_figure.size(); ++i) {
            if (m_kind == Figure::Triangles && i % 3 != 2) continue;
            Add(m_kind == Figure::TriangleFan ? m_figure[0] : m_figure[i - 2], m_figure[i - 1],
                m_figure[i]);
        }
    }
    void Color(double, double, double, double) override {}
    void Width(double) override {}
    void Stipple(std::uint16_t) override {}
    void StippleOff() override {}
    void Push(const Affine&) override {}
    void Pop() override {}
    void StrokeText(std::string_view) override {}
    void OutlineText(int, std::string_view) override {}
    void SymbolShape(int) override {}

  private:
    void Add(const Point2& a, const Point2& b, const Point2& c) {
        area += std::fabs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2;
        corners.insert(corners.end(), {a, b, c});
    }
    Figure m_kind = Figure::Triangles;
    std::vector<Point2> m_figure;
};

/// Area that is filled of a closed outline.
double FilledArea(const std::vector<Point2>& outline, int mode = 0) {
    std::vector<double> triples;
    for (const auto& p : outline)
        triples.insert(triples.end(), {p.x, p.y, 0.0});
    AreaSink sink;
    EXPECT_EQ(TessellatePolygon(triples, mode, sink), 1);
    return sink.area;
}

TEST(Tessellator, FillsAConvexOutline) {
    EXPECT_DOUBLE_EQ(FilledArea({{0, 0}, {10, 0}, {10, 5}, {0, 5}, {0, 0}}), 50.0);
}

TEST(Tessellator, FillsANotchedOutline) {
    EXPECT_DOUBLE_EQ(FilledArea({{0, 0}, {10, 0}, {10, 10}, {5, 5}, {0, 10}, {0, 0}}), 75.0);
}

TEST(Tessellator, TheLastVertexIsTakenForTheFirst) {
    // An open ring would lose its last corner: what is left here is half of the square.
    EXPECT_DOUBLE_EQ(FilledArea({{0, 0}, {10, 0}, {10, 10}, {0, 10}}), 50.0);
}

TEST(Tessellator, FillsBothSidesOfACrossing) {
    EXPECT_DOUBLE_EQ(FilledArea({{0, 0}, {10, 10}, {10, 0}, {0, 10}, {0, 0}}), 50.0);
}

TEST(Tessellator, LeavesOutWhatIsEnclosedTwice) {
    // A pentagram by its five strokes: the pentagon in the middle stays empty.
    std::vector<Point2> star;
    for (int i = 0; i <= 5; ++i) {
        const double angle = 2 * std::numbers::pi * 2 * i / 5;
        star.push_back({std::cos(angle), std::sin(angle)});
    }
    star.back() = star.front();
    // The inner pentagon has the radius 0.381966; the outline is ten triangles about the centre.
    const double inner = 0.3819660112501051;
    const double pentagon = 2.5 * inner * inner * std::sin(2 * std::numbers::pi / 5);
    const double outline = 5 * inner * std::sin(std::numbers::pi / 5);
    EXPECT_NEAR(FilledArea(star), outline - pentagon, 1e-6); // crossings are weighed in floats
}

TEST(Tessellator, KeepsItsPrecisionAtLargeCoordinates) {
    const double x = 1.5e6, y = 1e7;
    EXPECT_NEAR(FilledArea({{x, y}, {x + 0.5, y}, {x + 0.5, y + 0.5}, {x, y + 0.5}, {x, y}}), 0.25,
                1e-9);
}

TEST(Tessellator, CrossingsStandInTheirPlaceAtLargeCoordinates) {
    // (0, 0)-(10, 7) meets (10, 0)-(0, 3) at (3, 2.1): 3 * 3 / 2 + 7 * 7 / 2.
    const double x = 1.5e6, y = 1e7;
    std::vector<double> triples;
    for (const auto& p : {Point2{0, 0}, {10, 7}, {10, 0}, {0, 3}, {0, 0}})
        triples.insert(triples.end(), {x + p.x, y + p.y, 0.0});
    AreaSink sink;
    TessellatePolygon(triples, 0, sink);
    EXPECT_NEAR(sink.area, 29.0, 1e-5);
    EXPECT_TRUE(std::ranges::any_of(sink.corners, [&](const Point2& p) {
        return std::hypot(p.x - (x + 3), p.y - (y + 2.1)) < 1e-5;
    }));
}

TEST(Tessellator, OutlinesWithoutAreaFillNothing) {
    EXPECT_EQ(FilledArea({}), 0.0);
    EXPECT_EQ(FilledArea({{1, 1}}), 0.0);
    EXPECT_EQ(FilledArea({{1, 1}, {2, 2}}), 0.0);
    EXPECT_EQ(FilledArea({{1, 1}, {2, 2}, {1, 1}}), 0.0);
    EXPECT_EQ(FilledArea({{1, 1}, {2, 2}, {3, 3}, {1, 1}}), 0.0);
    EXPECT_EQ(FilledArea({{1, 1}, {1, 1}, {1, 1}, {1, 1}}), 0.0);
}

TEST(Tessellator, VerticesThatAreNotFiniteAreLeftOut) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_DOUBLE_EQ(
        FilledArea({{0, 0}, {10, 0}, {nan, 3}, {10, 5}, {HUGE_VAL, 0}, {0, 5}, {0, 0}}), 50.0);
}

TEST(Tessellator, Mode1DrawsWithExclusiveOrAndAnyOtherBlends) {
    const std::vector<double> triangle = {0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0};
    for (const auto& [mode, composed] :
         {std::pair{0, "blend()"}, {1, "xor()"}, {2, "blend()"}, {-1, "blend()"}}) {
        AreaSink sink;
        TessellatePolygon(triangle, mode, sink);
        EXPECT_EQ(sink.composed, composed);
        EXPECT_DOUBLE_EQ(sink.area, 0.5);
    }
}

TEST(Tessellator, CoordinatesTooLargeAreToldInAMessageTitledPolygon) {
    HeadlessMessageHost host;
    MessageHost* before = SetMessageHost(&host);
    const std::vector<double> huge = {0, 0, 0, 1e200, 0, 0, 0, 1e200, 0, 0, 0, 0};
    AreaSink sink;
    TessellatePolygon(huge, 0, sink);
    SetMessageHost(before);
    ASSERT_FALSE(host.GetShown().empty());
    EXPECT_EQ(host.GetShown()[0].title, "polygon");
    EXPECT_FALSE(host.GetShown()[0].text.empty());
}

TEST(Tessellator, RandomStarsKeepTheirArea) {
    constexpr unsigned seed = 20260717;
    SCOPED_TRACE(seed);
    ::testing::Test::RecordProperty("seed", static_cast<int>(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> radius(1.0, 10.0);
    for (int run = 0; run < 50; ++run) {
        std::vector<Point2> ring;
        for (int i = 0; i < 40; ++i) {
            const double r = radius(random), a = 2 * std::numbers::pi * i / 40;
            ring.push_back({r * std::cos(a), r * std::sin(a)});
        }
        ring.push_back(ring.front());
        double twice = 0.0;
        for (std::size_t i = 1; i < ring.size(); ++i)
            twice += ring[i - 1].x * ring[i].y - ring[i].x * ring[i - 1].y;
        EXPECT_NEAR(FilledArea(ring), twice / 2, 1e-6);
    }
}

} // namespace
} // namespace zv::testing
