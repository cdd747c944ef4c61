#include "platform/wgl/Wgl.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "context/GlTestSurface.h"
#include "platform/Error.h"
#include "platform/wgl/WglFailure.h"
#include "platform/wgl/XorScope.h"

namespace zv::testing {
namespace {

const PIXELFORMATDESCRIPTOR kFormat;

TEST(Wgl, EveryStepFromPixelFormatToCurrentContextWorksWithoutADisplay) {
    const TestSurface surface(8, 8);
    const int number = ChoosePixelFormat(surface.Dc(), &kFormat);
    ASSERT_GT(number, 0);
    ASSERT_TRUE(SetPixelFormat(surface.Dc(), number, &kFormat));
    const HGLRC rc = wglCreateContext(surface.Dc());
    ASSERT_NE(rc, nullptr);
    ASSERT_TRUE(wglMakeCurrent(surface.Dc(), rc));
    EXPECT_EQ(wglGetCurrentContext(), rc);
    EXPECT_EQ(wglGetCurrentDC(), surface.Dc());
    ASSERT_TRUE(wglMakeCurrent(nullptr, nullptr));
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
    EXPECT_EQ(wglGetCurrentDC(), nullptr);
    EXPECT_TRUE(wglDeleteContext(rc));
}

TEST(Wgl, DeletingTheCurrentContextReleasesIt) {
    { const BareContext context; }
    EXPECT_EQ(wglGetCurrentContext(), nullptr);
}

TEST(Wgl, ContextHasTheOldFunctionsAndADrawableFramebuffer) {
    const BareContext context;
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    glBegin(GL_POINTS);
    glEnd();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_EQ(context.Swap().CountOf(kRed), 64 * 64);
}

TEST(Wgl, PixelsAreEmptyBeforeTheFirstSwapAndTopRowFirstAfterIt) {
    const BareContext context(4, 2);
    EXPECT_TRUE(DevicePixels(context.Dc()).empty());
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, 1, 4, 1); // the upper row
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    const auto picture = context.Swap();
    EXPECT_EQ(picture.At(0, 0), kRed);
    EXPECT_EQ(picture.At(0, 1), kBlack);
}

TEST(Wgl, PixelsOfASurfaceWithSamplesAreResolvedAtTheSwap) {
    const BareContext context(16, 16, 4);
    glBegin(GL_TRIANGLES);
    glVertex2f(-1, -1), glVertex2f(1, -1), glVertex2f(-1, 1);
    glEnd();
    const auto picture = context.Swap();
    EXPECT_EQ(picture.At(1, 14), kWhite);
    EXPECT_EQ(picture.At(14, 1), kBlack);
    const auto between = [](const Rgb& c) { return c.r > 0 && c.r < 255; };
    EXPECT_GE(picture.Count(between), 8); // the slanting edge
}

TEST(Wgl, DrawingBufferKeepsItsContentAcrossASwap) {
    const BareContext context(4, 4, 4);
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    context.Swap();
    EXPECT_EQ(context.Swap().CountOf(kRed), 16);
}

TEST(Wgl, SelectionFindsHitsWithoutAnyWindow) {
    const BareContext context;
    GLuint hits[16] = {};
    glSelectBuffer(16, hits);
    glRenderMode(GL_SELECT);
    glInitNames();
    glPushName(7);
    glBegin(GL_LINES);
    glVertex2f(-0.5f, 0.0f), glVertex2f(0.5f, 0.0f);
    glEnd();
    EXPECT_EQ(glRenderMode(GL_RENDER), 1);
    EXPECT_EQ(hits[3], 7u);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(Wgl, ResizingTakesEffectAtTheNextMakeCurrentAndKeepsLists) {
    const BareContext context(8, 8);
    glNewList(5, GL_COMPILE);
    glEndList();
    context.Swap();
    ResizeDeviceContext(context.Dc(), 16, 4);
    EXPECT_EQ(DevicePixels(context.Dc()).size(), 8u * 8 * 4);
    ASSERT_TRUE(wglMakeCurrent(context.Dc(), context.Rc()));
    context.Swap();
    EXPECT_EQ(DevicePixels(context.Dc()).size(), 16u * 4 * 4);
    EXPECT_TRUE(glIsList(5));
}

TEST(Wgl, TwoDeviceContextsOfOneRenderingContextKeepTheirOwnPixels) {
    const BareContext one(4, 4);
    const TestSurface two(4, 4);
    glClearColor(1.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    SetPixelFormat(two.Dc(), 1, &kFormat);
    ASSERT_TRUE(wglMakeCurrent(two.Dc(), one.Rc()));
    glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    SwapBuffers(two.Dc());
    ASSERT_TRUE(wglMakeCurrent(one.Dc(), one.Rc()));
    EXPECT_EQ(two.Shown().CountOf(kBlack), 16);
    EXPECT_EQ(one.Swap().CountOf(kRed), 16);
}

TEST(Wgl, SwapOfADeviceContextThatIsNotCurrentFails) {
    const TestSurface surface;
    EXPECT_FALSE(SwapBuffers(surface.Dc()));
    EXPECT_EQ(FormatMessageA(GetLastError()), "The handle is invalid.");
}

TEST(Wgl, ContextNeedsAPixelFormat) {
    const TestSurface surface;
    EXPECT_EQ(wglCreateContext(surface.Dc()), nullptr);
    EXPECT_EQ(FormatMessageA(GetLastError()), "The pixel format is invalid.");
}

TEST(Wgl, EveryStepCanBeMadeToFailOnce) {
    const TestSurface surface;
    FailNextWgl(WglStep::ChoosePixelFormat, 87);
    EXPECT_EQ(ChoosePixelFormat(surface.Dc(), &kFormat), 0);
    EXPECT_EQ(GetLastError(), 87u);
    EXPECT_GT(ChoosePixelFormat(surface.Dc(), &kFormat), 0);
    FailNextWgl(WglStep::SetPixelFormat, 2000);
    EXPECT_FALSE(SetPixelFormat(surface.Dc(), 1, &kFormat));
    EXPECT_TRUE(SetPixelFormat(surface.Dc(), 1, &kFormat));
    FailNextWgl(WglStep::CreateContext, 8);
    EXPECT_EQ(wglCreateContext(surface.Dc()), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
}

TEST(Wgl, ResolutionOfTheDeviceIsItsDotsPerInch) {
    const TestSurface surface;
    EXPECT_EQ(GetDeviceCaps(surface.Dc(), LOGPIXELSY), 96);
    EXPECT_EQ(GetDeviceCaps(surface.Dc(), 12), 0);
}

TEST(Wgl, SelectingAFontGivesTheFormerOneBack) {
    const TestSurface surface;
    SelectFont(surface.Dc(), {"Arial", 700, true});
    const auto former = SelectFont(surface.Dc(), {"Times", 100, false});
    EXPECT_EQ(former.face, "Arial");
    EXPECT_EQ(former.weight, 700);
    EXPECT_TRUE(former.italic);
}

TEST(Wgl, FontExistsByItsNameOrByAReplacementOfEqualMetrics) {
    EXPECT_TRUE(FontExists("Liberation Sans"));
    EXPECT_TRUE(FontExists("Arial"));
    EXPECT_TRUE(FontExists("Times"));
    EXPECT_FALSE(FontExists("No Such Face At All"));
}

TEST(Wgl, FontOutlinesAreListsOfFilledGlyphsThatAdvance) {
    const BareContext context;
    SelectFont(context.Dc(), {"Arial", 100, false});
    GLYPHMETRICSFLOAT metrics[256];
    ASSERT_TRUE(
        wglUseFontOutlinesA(context.Dc(), 0, 256, 1000, 0.0f, 0.15f, WGL_FONT_POLYGONS, metrics));
    for (unsigned c = 0; c < 256; ++c)
        ASSERT_TRUE(glIsList(1000 + c)) << c;
    // Widths of the metric family, in 2048 units of the em: H 1479, i 455, degree sign 819.
    EXPECT_FLOAT_EQ(metrics['H'].gmfCellIncX, 1479.0f / 2048);
    EXPECT_FLOAT_EQ(metrics['i'].gmfCellIncX, 455.0f / 2048);
    EXPECT_FLOAT_EQ(metrics[0xB0].gmfCellIncX, 819.0f / 2048);
    EXPECT_FLOAT_EQ(metrics['\n'].gmfCellIncX, 0.0f);
    glLoadIdentity();
    glTranslatef(-1.0f, -1.0f, 0.0f);
    glScalef(2.0f, 2.0f, 1.0f); // one em is the height of the surface
    glCallList(1000 + 'H');
    GLfloat matrix[16];
    glGetFloatv(GL_MODELVIEW_MATRIX, matrix);
    EXPECT_NEAR(matrix[12], -1.0f + 2.0f * 1479 / 2048, 1e-6);
    const auto box = context.Swap().BoxOfOther(kBlack);
    EXPECT_EQ(box[3], 63);                                       // stands on the baseline
    EXPECT_NEAR(box[1], 64 - 64 * metrics['H'].gmfOriginY, 1.0); // as tall as a capital
}

TEST(Wgl, CharactersOfTheCodePageAbove127HaveTheirOwnGlyphs) {
    const BareContext context;
    SelectFont(context.Dc(), {"Arial", 100, false});
    GLYPHMETRICSFLOAT metrics[256];
    ASSERT_TRUE(wglUseFontOutlinesA(context.Dc(), 0, 256, 1000, 0, 0, WGL_FONT_POLYGONS, metrics));
    EXPECT_FLOAT_EQ(metrics[0x80].gmfCellIncX, 1139.0f / 2048); // euro sign
    EXPECT_FLOAT_EQ(metrics[0x97].gmfCellIncX, 2048.0f / 2048); // em dash
}

TEST(Wgl, BoldIsWiderAndItalicLeans) {
    const BareContext context;
    GLYPHMETRICSFLOAT plain[1], bold[1], italic[1];
    const auto measure = [&](const FontRequest& font, GLYPHMETRICSFLOAT* out) {
        SelectFont(context.Dc(), font);
        return wglUseFontOutlinesA(context.Dc(), 'l', 1, 1000, 0, 0, WGL_FONT_POLYGONS, out);
    };
    ASSERT_TRUE(measure({"Arial", 100, false}, plain));
    ASSERT_TRUE(measure({"Arial", 700, false}, bold));
    ASSERT_TRUE(measure({"Arial", 100, true}, italic));
    EXPECT_GT(bold[0].gmfBlackBoxX, plain[0].gmfBlackBoxX);
    EXPECT_GT(italic[0].gmfBlackBoxX, plain[0].gmfBlackBoxX);
}

TEST(Wgl, FontOutlinesBeyondTheCodePageAreRefused) {
    const BareContext context;
    SelectFont(context.Dc(), {"Arial", 100, false});
    EXPECT_FALSE(wglUseFontOutlinesA(context.Dc(), 200, 57, 1000, 0, 0, 1, nullptr));
    EXPECT_FALSE(wglUseFontOutlinesA(context.Dc(), 300, 1, 1000, 0, 0, 1, nullptr));
}

TEST(XorScope, DrawingTwiceLeavesNothing) {
    const BareContext context(8, 8);
    const auto draw = [] {
        const XorScope scope;
        glRectf(-1, -1, 1, 1);
    };
    draw();
    EXPECT_EQ(context.Swap().CountOf(kWhite), 64);
    draw();
    EXPECT_EQ(context.Swap().CountOf(kBlack), 64);
    EXPECT_FALSE(glIsEnabled(GL_COLOR_LOGIC_OP));
}

TEST(XorScope, WithoutAContextItDoesNothing) {
    ASSERT_EQ(wglGetCurrentContext(), nullptr);
    const XorScope scope;
}

TEST(Png, WritesAFileThatBeginsAsAPng) {
    const auto path = std::filesystem::temp_directory_path() / "zvdisp_wgl_test.png";
    const std::uint8_t pixels[2 * 4] = {1, 2, 3, 255, 4, 5, 6, 255};
    WritePng(path.string(), pixels, 2, 1);
    std::ifstream in(path, std::ios::binary);
    std::string head(8, '\0');
    in.read(head.data(), 8);
    EXPECT_EQ(head, "\x89PNG\r\n\x1a\n");
    std::filesystem::remove(path);
}

TEST(Png, TellsFileAndReasonWhenItCannotBeWritten) {
    const std::uint8_t pixel[4] = {};
    try {
        WritePng("/no/such/folder/a.png", pixel, 1, 1);
        FAIL();
    } catch (const DataError& error) {
        EXPECT_EQ(error.GetError().file, "/no/such/folder/a.png");
        EXPECT_FALSE(error.GetError().reason.empty());
    }
}

TEST(Png, PixelsThatDoNotFillThePictureAreRefused) {
    const std::uint8_t pixel[4] = {};
    EXPECT_THROW(WritePng("a.png", pixel, 2, 1), DataError);
    EXPECT_THROW(WritePng("a.png", {}, 0, 0), DataError);
}

} // namespace
} // namespace zv::testing
