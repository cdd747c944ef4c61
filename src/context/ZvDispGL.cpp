#include "context/ZvDispGL.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

#include "context/Brightness.h"
#include "context/GlScene.h"
#include "context/OutlineFont.h"
#include "platform/win/MessageBox.h"

/// Life of the rendering context, the view, and the lists of items.

int CZvDispGL::m_nFontIndex = 0;

namespace {

constexpr const char* kMakeCurrentFailed = "Make OpenGL Rendering Context Current";
constexpr const char* kNoResource =
    "Not enough resource to make OpenGL's rendering context current.\n"
    "Please lower the resolution, or use lower color quality,\n"
    "then re-start the application.\n"
    "If the problem continues, contact your system administrator or Zarvex Vismetry";

constexpr PIXELFORMATDESCRIPTOR kPixelFormat = {
    1, PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER, 0, 8, 16};

void ShowIfNoResource() {
    if (GetLastError() == ERROR_NOT_ENOUGH_MEMORY) AfxMessageBox(kNoResource);
}

zv::Point2 ToPoint(const CZvDispPoint& p) {
    return {p.GetX(), p.GetY()};
}

} // namespace

CZvDispGL::CZvDispGL() {
    type = CTX_OPENGL;
    openGL = true;
}

CZvDispGL::~CZvDispGL() = default;

bool CZvDispGL::MakePixelFormat() {
    const int number = ChoosePixelFormat(m_dc, &kPixelFormat);
    if (number == 0) {
        GetError("Specify Device Context's Pixel Format");
        return false;
    }
    if (SetPixelFormat(m_dc, number, &kPixelFormat)) return true;
    GetError("Set Device Context's Pixel Format");
    return false;
}

bool CZvDispGL::MakeContextCurrent() {
    m_rc = wglCreateContext(m_dc);
    if (!m_rc) {
        GetError("Create OpenGL Rendering Context");
        return false;
    }
    if (wglMakeCurrent(m_dc, m_rc)) return true;
    ShowIfNoResource();
    GetError(kMakeCurrentFailed);
    return false;
}

bool CZvDispGL::Create(HDC dc) {
    Destroy();
    m_dc = dc;
    if (!MakePixelFormat() || !MakeContextCurrent()) {
        Destroy();
        zv::GetMessageHost().ExitProcess(1);
        return false; // where somebody stands in for the end of the process
    }
    CreateCharDisplayList();
    const CZvDispSymbols loadsTheLibrary(CZvDispPoint(), 26);
    CreateSymbolDisplayList();
    return true;
}

void CZvDispGL::Destroy() {
    if (m_rc) wglDeleteContext(m_rc);
    m_rc = nullptr;
    m_symbolsBuilt = false;
    m_outlineFont.reset();
    m_outlineFontIndex = 0;
    m_outlineFontContext = nullptr;
}

void CZvDispGL::Start() {
    if (wglGetCurrentContext() == m_rc) return;
    if (wglMakeCurrent(m_dc, m_rc)) return;
    GetError(kMakeCurrentFailed);
    ShowIfNoResource();
}

bool CZvDispGL::Render() {
    Start();
    if (auto* scene = zv::GlScene::Current()) scene->Lists().Flush();
    SwapBuffers(m_dc);
    wglMakeCurrent(nullptr, nullptr);
    return true;
}

bool CZvDispGL::Resize(double x, double y, double width, double height) {
    m_viewport = {x, y, width, height};
    return true;
}

void CZvDispGL::SetView(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight) {
    Start();
    // A draw that an exception ended leaves its redraws gathered.
    if (auto* scene = zv::GlScene::Current()) scene->Lists().EndReplay();
    glLoadIdentity();
    GLViewport();
    GLClear(GL_COLOR_BUFFER_BIT);
    GLOrtho(lowerLeft, upperRight);
}

void CZvDispGL::GLViewport() {
    const auto pixel = [this](std::size_t i) {
        const double value = std::isnan(m_viewport[i]) ? 0.0 : m_viewport[i];
        return static_cast<GLint>(std::clamp(value, -1e6, 1e6));
    };
    glViewport(pixel(0), pixel(1), std::max(pixel(2), 0), std::max(pixel(3), 0));
}

void CZvDispGL::GLClear(unsigned buffers) {
    double r = 0.0, g = 0.0, b = 0.0;
    GLGetRGBColor(m_background, r, g, b);
    const double bright = zv::Brightness(m_backgroundBright);
    glClearColor(static_cast<float>(r * bright), static_cast<float>(g * bright),
                 static_cast<float>(b * bright), 1.0f);
    glClear(buffers);
}

void CZvDispGL::GLOrtho(const CZvDispPoint& lowerLeft, const CZvDispPoint& upperRight) {
    if (auto* scene = zv::GlScene::Current()) scene->Ortho(ToPoint(lowerLeft), ToPoint(upperRight));
}

CZvDispPoint CZvDispGL::GLOrigin() const {
    auto* scene = zv::GlScene::Current();
    const zv::Point2 origin = scene ? scene->Lists().Origin() : zv::Point2{};
    return {origin.x, origin.y};
}

void CZvDispGL::SetTransLate(double x, double y, double z) {
    m_translation = {x, y, z};
}

void CZvDispGL::SetRotate(double x, double y, double z) {
    m_rotation = {x, y, z};
}

void CZvDispGL::SetBKBrightIndex(int index) {
    m_backgroundBright = index;
}

void CZvDispGL::SetPFBrightIndex(int index) {
    m_fillBright = index;
}

void CZvDispGL::V_Open() {
    if (auto* scene = zv::GlScene::Current()) scene->Lists().BeginReplay();
}

void CZvDispGL::V_Close() {
    if (auto* scene = zv::GlScene::Current()) scene->Lists().EndReplay();
}

void CZvDispGL::Redraw(unsigned id) {
    V_Redraw(id);
}

bool CZvDispGL::V_Redraw(unsigned id) {
    auto* scene = zv::GlScene::Current();
    return scene && scene->Lists().CallList(id);
}

bool CZvDispGL::IsItemList(unsigned id) const {
    auto* scene = zv::GlScene::Current();
    return scene && scene->Lists().IsList(id);
}

void CZvDispGL::DeleteItemList(unsigned id) {
    if (auto* scene = zv::GlScene::Current()) scene->Lists().DeleteList(id);
}

bool CZvDispGL::DeleteDispItem(CZvDisplayItem* item) {
    if (item) DeleteItemList(item->GetPickID());
    return true;
}

zv::DrawSink& CZvDispGL::Sink() {
    // Without a current context OpenGL ignores what is called.
    static zv::GlSink nowhere({});
    auto* scene = zv::GlScene::Current();
    return scene ? scene->Lists().Sink() : nowhere;
}
