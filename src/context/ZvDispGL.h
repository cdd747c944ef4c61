#pragma once

#include <array>
#include <memory>
#include <string>

#include "context/ZvDisplayContext.h"
#include "platform/wgl/Wgl.h"

namespace zv {
class DrawSink;
class OutlineFont;
enum class KeepBy;
} // namespace zv

/// The screen driver. Every item drawn is compiled into a display list named by its pick ID, so
/// that a redraw replays lists and never touches the disk.
///
/// Create once for each window, Start before any drawing; the context is current between Start and
/// Render. Lists live until DeleteDispItem or until their culture list clears them.
class ZVDISP_API CZvDispGL : public CZvDisplayContext {
  public:
    CZvDispGL();
    ~CZvDispGL() override;
    CZvDispGL(const CZvDispGL&) = delete;
    CZvDispGL& operator=(const CZvDispGL&) = delete;

    /// Between the two a redraw gathers the items' lists, and draws them bundled in their order.
    void V_Close() override;
    void V_Open() override;
    void DrawGroup(CZvDispGroup& group) override;
    void DrawCircle(CZvDispCircle& circle) override;
    void DrawPolyLine(CZvDispPolyLine& line) override;
    void DrawPolygon(CZvDispPolygon& polygon) override;
    void DrawText(CZvDispText& text) override;
    void DrawArc(CZvDispArc& arc) override;
    void DrawSymbol(CZvDispSymbols& symbol) override;
    void SetView(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight) override;
    void SetTransLate(double x, double y, double z) override;
    void SetRotate(double x, double y, double z) override;
    void SetFontIndex(int index) override;

    virtual void CreateCharDisplayList();
    virtual void V_OnTempPolygon(CZvDispPolygon& polygon);
    virtual void V_OnTempSymbols(CZvDispSymbols& symbol);
    virtual void V_GLSymbol(CZvDispSymbols& symbol);
    virtual void V_GLArc(CZvDispArc& arc);
    /// Draws the members as the frame does: their visibility, the group's colour, and the display
    /// info that names one of them hold.
    virtual void V_GLGroup(CZvDispGroup& group);
    virtual void V_GLCircle(CZvDispCircle& circle);
    virtual void V_GLPolyline(CZvDispPolyLine& line);
    virtual void V_GLPolygon(CZvDispPolygon& polygon);
    virtual void V_GLText(CZvDispText& text);
    virtual void V_GLStrokeText(CZvDispText& text);
    virtual void V_GLTrueTypeText(CZvDispText& text);
    virtual void V_GLVertice(const CZvDispPoint& point);
    virtual bool V_Redraw(unsigned id);

    /// Makes the rendering context, character and symbol lists, in place of those of a former call.
    /// The process ends when a step fails; false where a host keeps it from ending.
    bool Create(HDC dc);
    void Destroy();
    /// Makes the rendering context current; a failure is reported and the process goes on.
    void Start();
    bool Render();
    /// The viewport in pixels, used by the next SetView.
    bool Resize(double x, double y, double width, double height);
    void Redraw(unsigned id);

    void SetBKColor(ZVColor color) { m_background = color; }
    /// Indexes of the brightness table, 0 (1.0) to 9 (0.1); others are taken as the nearest of
    /// these.
    void SetBKBrightIndex(int index);
    void SetPFBrightIndex(int index);
    /// Deletes the item's list if there is one; true.
    bool DeleteDispItem(CZvDisplayItem* item);
    void CreateSymbolDisplayList();

    HDC GetDispContext() const { return m_dc; }
    void SetDispContext(HDC dc) { m_dc = dc; }
    HGLRC GetRenderContext() const { return m_rc; }
    void SetRenderContext(HGLRC rc) { m_rc = rc; }

    /// Whether there is a list of that pick ID, and its deletion. Answer for lists of items however
    /// they are kept (glIsList knows the ones kept as driver lists).
    bool IsItemList(unsigned id) const;
    void DeleteItemList(unsigned id);

    /// 0 selects the stroke font for all contexts; above 0, outline text.
    static int m_nFontIndex;

  protected:
    /// Open and close the item's list. Inside a list that is open they do nothing, so that members
    /// compile into it; an item without a pick ID draws at once.
    void GLNewList(CZvDisplayItem& item);
    void GLEndList(CZvDisplayItem& item);
    /// Each is false when it leaves the state to the caller of the symbol's list being built.
    bool GLSetColor(CZvDisplayItem& item);
    bool GLSetLineWidth(CZvDisplayItem& item);
    bool GLSetLineType(CZvDisplayItem& item);
    bool GLSetFillColor(CZvDisplayItem& item);
    /// Channels from 0 to 1; a colour outside the palette is taken as white.
    void GLGetRGBColor(ZVColor color, double& r, double& g, double& b);
    /// The colour that shows on the background.
    ZVColor DispOverrideColor(ZVColor color) const;
    /// Clears to the background colour at its brightness; `buffers` are the bits of glClear.
    void GLClear(unsigned buffers);
    /// glViewport, and glOrtho of the map's window on the current matrix.
    void GLViewport();
    void GLOrtho(const CZvDispPoint& lowerLeft, const CZvDispPoint& upperRight);
    /// The pen walk of one character of the stroke font, from (0, 0).
    void DrawStrokeFontLetter(char c);
    using CZvDisplayContext::DrawStrokeFontLetter;
    /// Where drawing calls go: OpenGL, the list that is open, or both.
    zv::DrawSink& Sink();
    /// What list vertices are relative to, (0, 0) inside a symbol's placement or shape, for a
    /// subclass that calls OpenGL itself; such a one must say so first, with false: its items are
    /// then kept in driver lists only.
    CZvDispPoint GLOrigin() const;
    void SetItemRecording(bool on) { m_recordItems = on; }

    bool m_buildingSymbols = false;
    std::array<double, 4> m_viewport{}; ///< x, y, width, height in pixels
    bool m_symbolsBuilt = false;
    bool m_inGroup = false;
    ZVColor m_background = ZV_COLOR_BLACK;
    int m_backgroundBright = 0;
    int m_fillBright = 3;
    std::array<double, 3> m_translation{}; ///< map units
    std::array<double, 3> m_rotation{};    ///< degrees

  private:
    class ListScope;
    zv::KeepBy KeepItemsBy() const;
    bool MakePixelFormat();
    bool MakeContextCurrent();
    std::array<double, 3> ItemRGB(CZvDisplayItem& item, double inactive);
    void FillPolygon(CZvDispPolygon& polygon);
    void DrawSymbolFromList(CZvDispSymbols& symbol);
    void DrawSymbolByMembers(CZvDispSymbols& symbol);
    void BuildSymbolLists();
    void BuildSymbolList(int number);
    void PlaceMembers(CZvDispSymbols& symbol, void (CZvDispGL::*draw)(CZvDisplayItem&));
    void DrawMember(CZvDisplayItem& member);
    void DrawTempMember(CZvDisplayItem& member);
    void DrawStrokeCharacters(const std::string& label);
    bool ReplaceOutlineFont(int index);
    void FollowFontIndex();

    HDC m_dc = nullptr;
    HGLRC m_rc = nullptr;
    bool m_recordItems = true;
    std::unique_ptr<zv::OutlineFont> m_outlineFont;
    int m_outlineFontIndex = 0;           // for which a font was made, or tried, last
    HGLRC m_outlineFontContext = nullptr; // where
};
