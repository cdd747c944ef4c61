#pragma once

#include <string>
#include <vector>

#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispPolyLine.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDispText.h"
#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispMemCtrl;
class CZvDispMemCtrlExt;
class CZvSettings;
class CZvSettingsManager;

/// By this number the map picks its way of drawing.
enum CTX_TYPE : int {
    CTX_CGM = 0,
    CTX_METAFILE = 1,
    CTX_OPENGL = 2,
    CTX_DXF = 3,
    CTX_PICK = 7,
    CTX_OTHER = 8,
};

/// Tags by which the map tells a context where in its tree it stands.
enum ZVTag : int {
    ZV_TAG_LAYER = 1,
    ZV_TAG_POST = 2,
    ZV_TAG_USET = 3,
    ZV_TAG_CULTURE = 4,
    ZV_TAG_POST_COUNT = 5,
    ZV_TAG_USET_COUNT = 6,
};

struct T_ZV_STRUC_DISP_INFO {
    int success = 1;      ///< an exporter that cannot create a file sets it to 0
    int memberNumber = 0; ///< above 0: the key of the single group member to draw
};

/// The abstract output driver: whatever walks the map is a subclass. The frame routes items by kind
/// and holds the fallbacks of targets without a native primitive: circles by arcs, arcs by chords,
/// symbols by their members, text in strokes.
class ZVDISP_API CZvDisplayContext {
  public:
    CZvDisplayContext();
    CZvDisplayContext(const CZvDisplayContext& other);
    CZvDisplayContext& operator=(const CZvDisplayContext& other);

    virtual void V_Close();
    virtual void V_Open();
    virtual ~CZvDisplayContext();
    /// Draws the visible members; with a display info that names a member, that one alone.
    virtual void DrawGroup(CZvDispGroup& group);
    /// The pure ones of these have bodies: the fallbacks that a subclass may call.
    virtual void DrawCircle(CZvDispCircle& circle) = 0;
    virtual void DrawPolyLine(CZvDispPolyLine& line) = 0;
    virtual void DrawPolygon(CZvDispPolygon& polygon) = 0;
    virtual void DrawText(CZvDispText& text) = 0;
    virtual void DrawArc(CZvDispArc& arc) = 0;
    virtual void DrawSymbol(CZvDispSymbols& symbol) = 0;
    virtual void SetView(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight);
    /// `value` points at one 32-bit integer.
    virtual bool WriteTagInfo(int tag, const void* value);
    virtual bool ReadTagInfo(int tag, void* value);
    virtual void SetTransLate(double x, double y, double z);
    virtual void SetRotate(double x, double y, double z);
    /// Degrees by which a page target turns its output.
    virtual void SetSkewAngle(double degrees);
    virtual void SetFontIndex(int index);
    /// REQUIRES: 0 <= index <= 9.
    virtual std::string GetFontName(int index);
    /// Whether invisible items are drawn too.
    virtual bool GetProcessInvisible();
    /// Turns (*x, *y) about the origin by degrees; 0.0 leaves them alone.
    virtual void GetRotatePos(double* x, double* y, double angle, CZvDispPoint origin);
    /// Start point of a text's first character. On an OpenGL context an offset for the matrix
    /// stack, elsewhere a map position.
    virtual CZvDispPoint GetTextPostion(CZvDispText& text);
    virtual void SetLineType(unsigned char type);

    /// Sends the item to the operation of its kind; false for null or an unknown kind.
    bool DrawDispItem(CZvDisplayItem* item);
    /// Draws a text as polylines in the stroke font.
    void DrawStrokeFontText(CZvDispText& text);
    /// Logs a point off the page if it lies within the final border; kinds 11 to 17 as in
    /// `itemKind`.
    void LogError(int kind, double x, double y, std::string text);
    CTX_TYPE GetType() const { return type; }
    bool GetRGBColor(int index, int& r, int& g, int& b);
    bool GetIsOpenGL() const { return openGL; }
    void SetIsOpenGL(bool on) { openGL = on; }
    /// All borrowed.
    CZvSettingsManager* GetSettingsMgr() const { return settings; }
    void SetSettingsMgr(CZvSettingsManager* manager) { settings = manager; }
    T_ZV_STRUC_DISP_INFO* GetDispInfo() const { return dispInfo; }
    void SetDispInfo(T_ZV_STRUC_DISP_INFO* info) { dispInfo = info; }
    CZvDispMemCtrl* GetMemCtrl() const { return memCtrl; }
    void SetMemCtrl(CZvDispMemCtrl* control) { memCtrl = control; }
    CZvDispMemCtrlExt* GetMemCtrlExt() const { return memCtrlExt; }
    void SetMemCtrlExt(CZvDispMemCtrlExt* control) { memCtrlExt = control; }

  protected:
    /// Draws one character with the pen at (x, y), which moves on to the next cell.
    void DrawStrokeFontLetter(char c, double angle, ZVColor color, bool inactive,
                              unsigned char width, double sizeX, double sizeY, double& x,
                              double& y);
    /// Place of a vertex on the map: as it is, or through the placement of the symbol being drawn.
    void GetXYPos(double x, double y, double* outX, double* outY, bool noRotate);
    bool ClipText(CZvDispText& text);
    bool ClipSymbol(CZvDispSymbols& symbol);
    bool IsInsideFinalBorder(CZvDispPoint point);
    bool CopyTextItem(const CZvDispText* source, CZvDispText* destination);
    /// Tail of an export file's name: post, and qualified name or dataset.
    std::string BuildExportFileMoniker(CZvSettings* settings, int postCount, int post,
                                       int usetCount, int uset);
    /// Replaces what no file name may hold by "_" and gives the number of replacements.
    int ValidateStringAsFileName(std::string& name);
    /// Shows the platform's last error to the user.
    static void GetError(const char* title);

    bool clipOn = false;    ///< ClipText and ClipSymbol test against boundPolygon
    bool inSymbol = false;  ///< the members of a symbol are being drawn
    bool strokeFont = true; ///< text is set in the stroke font
    bool openGL = false;    ///< the target's matrix stack translates and rotates
    double placeX = 0.0;
    double placeY = 0.0;
    double placeScale = 1.0;
    double placeRotate = 0.0; ///< degrees
    int layer = 13;
    int post = 0;
    int uset = 0;
    int culture = 0;
    bool colorOn = true;         ///< false: everything is black
    bool keepOrientation = true; ///< false: the page is turned by 90 degrees
    int itemKind = 0;            ///< code of the item being written, as LogError names them
    int mapScale = 1;
    int widthFactor = 1;
    float pageLeft = 0.0f, pageBottom = 0.0f, pageRight = 0.0f, pageTop = 0.0f; ///< inches
    std::vector<CZvDispPoint> boundPolygon;
    bool reportOutside = false;
    int lineType = 0;
    double charScaleX = 1.0;
    double charScaleY = 1.0;
    double charScaleZ = 1.0;
    double skewAngle = 0.0;
    CTX_TYPE type = CTX_OTHER;
    CZvSettingsManager* settings = nullptr;
    T_ZV_STRUC_DISP_INFO* dispInfo = nullptr;
    CZvDispMemCtrl* memCtrl = nullptr;
    CZvDispMemCtrlExt* memCtrlExt = nullptr;

  private:
    class Placement;

    bool CTXDrawSymbol(CZvDispSymbols& symbol);
    bool CTXDrawGroup(CZvDispGroup& group);
    void DrawSymbolMember(CZvDispSymbols& symbol, CZvDisplayItem& member);
    void DrawMember(CZvDispGroup& group, CZvDisplayItem& member);
};

/// Codes of `itemKind` and LogError.
enum ZVItemCode : int {
    ZV_CODE_POLYLINE = 11,
    ZV_CODE_POLYGON = 12,
    ZV_CODE_CIRCLE = 13,
    ZV_CODE_ARC = 14,
    ZV_CODE_SYMBOL = 15,
    ZV_CODE_TEXT = 16,
    ZV_CODE_SQUARE = 17,
};
