#include "map/Screen.h"

#include <GL/gl.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "context/ZvDispGL.h"
#include "map/Lines.h"

namespace zv::bench {

namespace {

constexpr int kWidth = 1600, kHeight = 1200;

double Seconds(auto&& job) {
    const auto start = std::chrono::steady_clock::now();
    job();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

ScreenTimes DrawOnScreen(long count, const std::string& prefix) {
    LineMap lines(count);
    CZvDispMap& map = lines.Map();
    HDC dc = CreateDeviceContext({kWidth, kHeight, 96, 0});
    CZvDispGL screen;
    screen.Create(dc);
    screen.Resize(0, 0, kWidth, kHeight);
    map.SetContext(&screen);
    const double side = Side(count), wide = side * kWidth / kHeight;
    const auto draw = [&](bool redraw) {
        map.Draw(E_LAYER_ALL, kAllPosts, kAllUserSets, ZV_CULTURE_ALL, redraw);
        glFinish();
    };
    const auto show = [&](const std::string& name) {
        screen.Render();
        if (!prefix.empty()) WritePng(prefix + name + ".png", DevicePixels(dc), kWidth, kHeight);
    };
    ScreenTimes times{};
    map.SetViewPort(0, 0, wide, side, 0);
    times.fullDraw = Seconds([&] { draw(false); });
    std::vector<double> whole, part;
    for (int i = 0; i < 5; ++i)
        whole.push_back(Seconds([&] { draw(true); }));
    show("whole");
    const double x = side * 0.45, y = side * 0.45;
    map.SetViewPort(x, y, x + wide * 0.1, y + side * 0.1, 0);
    for (int i = 0; i < 9; ++i)
        part.push_back(Seconds([&] { draw(true); }));
    show("part");
    times.redraw = Median(whole);
    times.redrawZoomed = Median(part);
    map.SetContext(nullptr);
    screen.Start();
    screen.Destroy();
    DeleteDeviceContext(dc);
    return times;
}

} // namespace zv::bench
