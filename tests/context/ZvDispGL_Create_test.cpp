#include "context/GlMap.h"
#include "context/StrokeFont.h"
#include "platform/wgl/WglFailure.h"
#include "platform/wgl/WglObjects.h"

namespace zv::testing {
namespace {

/// Stands in for the end of the process.
struct ProcessEnded {
    int code;
};
class EndingHost : public HeadlessMessageHost {
  public:
    EndingHost() : m_before(SetMessageHost(this)) {}
    ~EndingHost() override { SetMessageHost(m_before); }
    [[noreturn]] void ExitProcess(int code) override { throw ProcessEnded{code}; }

  private:
    MessageHost* m_before;
};

constexpr const char* kNoResource =
    "Not enough resource to make OpenGL's rendering context current.\n"
    "Please lower the resolution, or use lower color quality,\n"
    "then re-start the application.\n"
    "If the problem continues, contact your system administrator or Zarvex Vismetry";

struct FailingStep {
    WglStep step;
    const char* title;
};

class FailingCreate : public ::testing::TestWithParam<FailingStep> {};

TEST_P(FailingCreate, TellsTheSystemsErrorUnderTheStepsTitleAndEndsTheProcessWithCode1) {
    EndingHost host;
    TestSurface surface;
    CZvDispGL gl;
    FailNextWgl(GetParam().step, 6);
    try {
        gl.Create(surface.Dc());
        FAIL() << "the process went on";
    } catch (const ProcessEnded& end) {
        EXPECT_EQ(end.code, 1);
    }
    ASSERT_EQ(host.GetShown().size(), 1u);
    EXPECT_EQ(host.GetShown()[0].title, GetParam().title);
    EXPECT_EQ(host.GetShown()[0].text, "The handle is invalid.");
    EXPECT_EQ(host.GetShown()[0].style, MB_ICONINFORMATION);
    gl.Destroy();
}

INSTANTIATE_TEST_SUITE_P(
    EveryStep, FailingCreate,
    ::testing::Values(FailingStep{WglStep::ChoosePixelFormat,
                                  "Specify Device Context's Pixel Format"},
                      FailingStep{WglStep::SetPixelFormat, "Set Device Context's Pixel Format"},
                      FailingStep{WglStep::CreateContext, "Create OpenGL Rendering Context"},
                      FailingStep{WglStep::MakeCurrent, "Make OpenGL Rendering Context Current"}));

TEST(ZvDispGLCreate, WithoutResourcesForTheContextTheAdviceComesFirst) {
    EndingHost host;
    TestSurface surface;
    CZvDispGL gl;
    FailNextWgl(WglStep::MakeCurrent, ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_THROW(gl.Create(surface.Dc()), ProcessEnded);
    ASSERT_EQ(host.GetShown().size(), 2u);
    EXPECT_EQ(host.GetShown()[0].text, kNoResource);
    EXPECT_EQ(host.GetShown()[1].title, "Make OpenGL Rendering Context Current");
    gl.Destroy();
}

TEST(ZvDispGLCreate, LeavesTheContextCurrentWithAListForEachOf178Characters) {
    GlMap map;
    EXPECT_EQ(wglGetCurrentContext(), map.gl.GetRenderContext());
    EXPECT_EQ(map.gl.GetDispContext(), map.Dc());
    for (unsigned name = 4000; name <= 4177; ++name)
        EXPECT_TRUE(glIsList(name)) << name;
    EXPECT_FALSE(glIsList(4178));
    EXPECT_EQ(map.gl.GetType(), CTX_OPENGL);
    EXPECT_TRUE(map.gl.GetIsOpenGL());
}

TEST(ZvDispGLCreate, LoadsTheSymbolLibraryAndMakesAListForEachSymbol) {
    test::SymbolHome home;
    CZvDispSymbols::S_ClearSymbolsMap();
    CZvUtRegistry::S_Override(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                              ZVDISP_TEST_SHARE);
    const TestSurface surface;
    CZvDispGL gl;
    gl.Create(surface.Dc());
    ASSERT_FALSE(CZvDispSymbols::S_GetSymbolNumList()->empty());
    for (const int number : *CZvDispSymbols::S_GetSymbolNumList())
        EXPECT_TRUE(glIsList(2000 + static_cast<unsigned>(number))) << number;
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    gl.Destroy();
}

TEST(ZvDispGLStart, WithTheContextAlreadyCurrentDoesNothing) {
    GlMap map;
    FailNextWgl(WglStep::MakeCurrent, 6);
    map.gl.Start();
    EXPECT_TRUE(map.Messages().GetShown().empty());
    EXPECT_FALSE(wglMakeCurrent(map.Dc(), map.gl.GetRenderContext())); // the refusal still waits
}

TEST(ZvDispGLStart, ReportsAFailureAndGoesOn) {
    GlMap map;
    wglMakeCurrent(nullptr, nullptr);
    FailNextWgl(WglStep::MakeCurrent, ERROR_NOT_ENOUGH_MEMORY);
    map.gl.Start();
    const auto& shown = map.Messages().GetShown();
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0].title, "Make OpenGL Rendering Context Current");
    EXPECT_EQ(shown[0].text, "Not enough memory resources are available.");
    EXPECT_EQ(shown[1].text, kNoResource);
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
    map.gl.Start();
    EXPECT_EQ(wglGetCurrentContext(), map.gl.GetRenderContext());
}

TEST(ZvDispGLStart, AnotherErrorBringsNoAdvice) {
    GlMap map;
    wglMakeCurrent(nullptr, nullptr);
    FailNextWgl(WglStep::MakeCurrent, 6);
    map.gl.Start();
    EXPECT_EQ(map.Messages().GetShown().size(), 1u);
    map.gl.Start();
}

TEST(ZvDispGLRender, ShowsThePixelsAndReleasesTheContext) {
    GlMap map;
    map.gl.SetBKColor(ZV_COLOR_WHITE);
    map.Clear();
    EXPECT_TRUE(DevicePixels(map.Dc()).empty());
    EXPECT_TRUE(map.gl.Render());
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
    EXPECT_EQ(DevicePixels(map.Dc()).size(), 64u * 64 * 4);
    map.gl.Start();
}

TEST(ZvDispGLView, ResizeOnlyStoresTheViewport) {
    GlMap map(8, 8);
    EXPECT_TRUE(map.gl.Resize(1.9, 2.9, 3.9, 4.9));
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_EQ(viewport[2], 8);
    map.Clear();
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_EQ(viewport[0], 1); // truncated
    EXPECT_EQ(viewport[1], 2);
    EXPECT_EQ(viewport[2], 3);
    EXPECT_EQ(viewport[3], 4);
}

TEST(ZvDispGLView, OrthoSitsOnTheModelViewWithAnIdentityProjection) {
    GlMap map;
    GLdouble matrix[16];
    glGetDoublev(GL_PROJECTION_MATRIX, matrix);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(matrix[i], i % 5 == 0 ? 1.0 : 0.0) << i;
    glGetDoublev(GL_MODELVIEW_MATRIX, matrix);
    EXPECT_FLOAT_EQ(static_cast<float>(matrix[0]), 2.0f / 64);
    EXPECT_FLOAT_EQ(static_cast<float>(matrix[5]), 2.0f / 64);
}

TEST(ZvDispGLView, AWindowWithoutAreaLeavesNoError) {
    GlMap map;
    map.View(5, 5, 5, 5);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(ZvDispGLView, WithoutAnyContextDrawingDoesNothing) {
    CZvDispGL gl;
    CZvDispPolyLine line;
    MakeRow(line, 0, 10, 5);
    line.SetPickID(10001);
    gl.DrawDispItem(&line);
    gl.Redraw(10001);
    EXPECT_FALSE(gl.IsItemList(10001));
}

TEST(ZvDispGLCreate, AsksForAWindowWithTwoBuffersInColorAndDepth) {
    GlMap map;
    const PIXELFORMATDESCRIPTOR& asked = map.Dc()->asked;
    EXPECT_EQ(asked.nVersion, 1);
    EXPECT_EQ(asked.dwFlags, 37u);
    EXPECT_EQ(asked.iPixelType, 0); // RGBA
    EXPECT_EQ(asked.cColorBits, 8);
    EXPECT_EQ(asked.cDepthBits, 16);
}

TEST(ZvDispGLCreate, IsFalseWhereTheProcessIsKeptFromEnding) {
    class KeepingHost : public HeadlessMessageHost {
      public:
        void ExitProcess(int exitCode) override { code = exitCode; }
        int code = 0;
    } host;
    MessageHost* const before = SetMessageHost(&host);
    const TestSurface surface;
    CZvDispGL gl;
    FailNextWgl(WglStep::CreateContext, 6);
    EXPECT_FALSE(gl.Create(surface.Dc()));
    SetMessageHost(before);
    EXPECT_EQ(host.code, 1);
    EXPECT_EQ(gl.GetRenderContext(), nullptr);
}

TEST(ZvDispGLCreate, CreatedTwiceItStartsAnew) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    EXPECT_TRUE(map.gl.Create(map.Dc()));
    EXPECT_EQ(wglGetCurrentContext(), map.gl.GetRenderContext());
    EXPECT_FALSE(map.gl.IsItemList(10001));
    map.Clear();
    map.gl.DrawDispItem(&line);
    EXPECT_EQ(map.Redraw({10001}).CountOf(kWhite), 40);
}

TEST(ZvDispGLView, AViewportThatIsNoNumberIsZero) {
    GlMap map(8, 8);
    const double nan = std::nan("");
    map.gl.Resize(nan, nan, nan, 4);
    map.Clear();
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_EQ(viewport[0], 0);
    EXPECT_EQ(viewport[1], 0);
    EXPECT_EQ(viewport[2], 0);
    EXPECT_EQ(viewport[3], 4);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

} // namespace
} // namespace zv::testing
