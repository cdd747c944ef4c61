#pragma once

#include <cstdint>
#include <cstdio>
#include <list>
#include <string>
#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDisplayContext;
class CZvDisplayItemPara;
class CZvDispFileParam;
class CZvDispMapClipper;

namespace zv {
class RecordReader;
class RecordWriter;
} // namespace zv

/// Base of everything that can stand on a map: the attributes that all items share, the marks that
/// the editor leaves on them, and the operations by which they draw, clip and persist themselves.
///
/// An item is created empty and filled by its setters, by a record reader or by WakeDispItem. Given
/// to a map it becomes the map's.
class ZVDISP_API CZvDisplayItem {
  public:
    CZvDisplayItem();
    /// Takes over the drawing attributes: visibility, ID, line width, colour, degree, fill style,
    /// fill, smooth, pick ID, brightness, custom code. Line type, inactive, para and the four
    /// numbers of the item's place stay as they were.
    CZvDisplayItem& operator=(const CZvDisplayItem& other);

    /// Turns the item about an origin; an angle of 0.0 changes nothing.
    virtual void V_Rotate(const CZvDispPoint& origin, double degrees);
    virtual ~CZvDisplayItem();
    /// Cuts the item to the clipper's area; false when nothing of it is left.
    virtual bool Clip(CZvDispMapClipper* const clipper);
    virtual void Draw(CZvDisplayContext* const context);
    /// Draws the item so that it disappears from the screen.
    virtual void Erase(CZvDisplayContext* const context);
    virtual CZvDispPoint GetCenterPt();
    /// `key` has a meaning in groups only; every other caller passes 0.
    virtual void SetColor(ZVColor color, int key);
    virtual void SetLineWidth(unsigned char width, int key);
    virtual void SetLineType(int type, int key);
    virtual void SetID(std::string id);
    virtual ZVDispType GetDispType();
    virtual void V_ReadFromFile(CZvDispFileParam& file);
    virtual void V_WriteToFile(CZvDispFileParam& file);
    /// One step of an edit; `record` is a T_ZV_STRUC_UPDATE.
    virtual void V_Update(const void* record);
    /// Writes, or reads all but the kind of, the record that pages the item to a scratch file.
    virtual bool V_DispHib(CZvDispFileParam& file);
    virtual bool V_DispWake(CZvDispFileParam& file);

    bool GetFill() const { return m_fill; }
    void SetFill(bool on) { m_fill = on; }
    bool GetSmooth() const { return m_smooth; }
    void SetSmooth(bool on) { m_smooth = on; }
    bool GetVisibility() const { return m_visible; }
    void SetVisibility(bool on) { m_visible = on; }
    std::string GetID() const { return m_id; }
    unsigned char GetLineWidth() const { return m_lineWidth; }
    unsigned char GetLineType() const { return m_lineType; }
    ZVColor GetColor() const { return m_color; }
    double GetDegree() const { return m_degree; }
    void SetDegree(double degrees) { m_degree = degrees; }
    E_FILL_STYLE GetFillStyle() const { return m_fillStyle; }
    void SetFillStyle(E_FILL_STYLE style) { m_fillStyle = style; }
    unsigned GetPickID() const { return m_pickID; }
    void SetPickID(unsigned id) { m_pickID = id; }
    double GetBrightness() const { return m_brightness; }
    void SetBrightness(double brightness) { m_brightness = brightness; }
    E_Layer GetLayerID() const { return m_layer; }
    void SetLayerID(E_Layer layer) { m_layer = layer; }
    int GetPost() const { return m_post; }
    void SetPost(int post) { m_post = post; }
    int GetUSet() const { return m_uset; }
    void SetUSet(int uset) { m_uset = uset; }
    ZVCulture GetCultureID() const { return m_culture; }
    void SetCultureID(ZVCulture culture) { m_culture = culture; }
    /// Borrowed; the item never frees it.
    CZvDisplayItemPara* GetPara() const { return m_para; }
    void SetPara(CZvDisplayItemPara* para) { m_para = para; }
    bool GetInActive() const { return m_inactive; }
    void SetInActive(bool on) { m_inactive = on; }
    bool IsOpen() const { return m_open; }

    /// Marks the item by one letter (c, d, m, r, o, g); the marks exclude each other. 0 and 'f'
    /// clear all of them, any other letter leaves the item coded and nothing else.
    void SetCustomCode(unsigned char code);
    /// Answers for 'c', 'g', 'm' and 'o' only; false for every other letter.
    bool IsCustomCode(unsigned char code) const;
    bool GetUseOffsetFlag() const;
    void SetUseOffsetFlag(bool on);

    /// Entry of the editor: applies one T_ZV_STRUC_UPDATE and redraws the item.
    void Update(const void* record);

    /// Writes the item's record to a scratch file; false for a null stream.
    bool HibDispItem(std::FILE* stream);
    /// Reads it back, behind the kind; false for a null stream.
    bool WakeDispItem(std::FILE* stream);
    /// Reads a kind and creates the empty item of it, which the caller owns; null at the stream's
    /// end or for an unknown kind.
    static CZvDisplayItem* S_MakeNewItem(std::FILE* stream);

    void ReadDrawingFile(CZvDispFileParam& file) { V_ReadFromFile(file); }
    void WriteDrawingFile(CZvDispFileParam& file) { V_WriteToFile(file); }
    /// Reads one block of records up to its end record into two lists whose items the caller owns,
    /// and the block's description. False, with a message shown, on a record of unknown code.
    static bool S_ReadDrawingFile(std::list<CZvDisplayItem*>* items,
                                  std::list<CZvDisplayItem*>* variableTexts, CZvDispFileParam& file,
                                  std::string& description);
    /// Writes the item with one-based colour, width and type; true.
    bool DrwWrite(CZvDispFileParam& file);
    /// Zero-based colour, width and type to one-based, and back; true.
    bool DrwConvertToUnix();
    bool DrwConvertToPC();
    bool OpenFile() { return true; }
    bool DrwRead(CZvDispFileParam&) { return true; }

    /// Blanks in front of, or behind, a text until it has that width; never shortens.
    static std::string PadBlankToFront(std::string text, int width);
    static std::string PadBlankToBack(std::string text, int width);

    /// The transfers of this library's own scratch files. Public for them alone.
    bool Hibernate(zv::RecordWriter& to);
    bool Wake(zv::RecordReader& from);
    static CZvDisplayItem* MakeNewItem(zv::RecordReader& from);

    void DispOut(const std::vector<double>& values);

  protected:
    /// The blocks of a scratch record, on the transfer under way.
    void DispOut(bool value);
    void DispOut(unsigned char value);
    void DispOut(int value);
    void DispOut(unsigned value);
    void DispOut(double value);
    void DispOut(const std::string& text);
    void DispOut(const CZvDispPoint& point);
    void DispOut(const std::vector<int>& values);
    void DispOut(const std::vector<bool>& values);
    void DispOut(const std::vector<std::string>& values);
    void DispIn(bool& value);
    void DispIn(unsigned char& value);
    void DispIn(int& value);
    void DispIn(unsigned& value);
    void DispIn(double& value);
    void DispIn(std::string& text);
    void DispIn(CZvDispPoint& point);
    void DispIn(std::vector<double>& values);
    void DispIn(std::vector<int>& values);
    void DispIn(std::vector<bool>& values);
    void DispIn(std::vector<std::string>& values);

    zv::RecordWriter* Out() const { return m_out; }
    zv::RecordReader* In() const { return m_in; }
    /// Stream of the last transfer that had one; blocks outside of a transfer go there.
    std::FILE* Stream() const { return m_stream; }
    /// A group's members take part in its transfers.
    void HandStreamTo(CZvDisplayItem& member) const { member.m_stream = m_stream; }

    /// Stores the colour in the field, past every override.
    void StoreColor(ZVColor color) { m_color = color; }
    const std::string& ID() const { return m_id; }
    bool IsCoded() const { return m_custom & kCoded; }
    bool IsDeleted() const { return m_custom & kDeleted; }
    bool IsMoved() const { return m_custom & kMoved; }
    bool IsRotated() const { return m_custom & kRotated; }
    /// Draws through `draw` in the colour that the custom code asks for (see Draw of each kind).
    template<class Draw>
    void DrawInCodeColor(Draw&& draw) {
        const ZVColor own = m_color;
        if (IsCoded()) SetColor(IsMoved() || IsRotated() ? ZV_COLOR_MOVED : ZV_COLOR_CODED, 0);
        draw();
        if (IsCoded()) SetColor(own, 0);
    }

    static constexpr std::uint16_t kCoded = 1 << 0, kDeleted = 1 << 1, kMoved = 1 << 2,
                                   kRotated = 1 << 3, kOffset = 1 << 11, kInGroup = 1 << 12;

    /// Builds an item with an empty ID and otherwise the defaults; copies nothing.
    CZvDisplayItem(const CZvDisplayItem&);

  private:
    void ConvertAttrValues();

    std::FILE* m_stream = nullptr;    // of the last transfer with a stream; borrowed, left behind
    zv::RecordReader* m_in = nullptr; // the hibernate transfer under way
    zv::RecordWriter* m_out = nullptr;
    bool m_fill = false;
    bool m_smooth = false;
    bool m_visible = true;
    bool m_open = false;
    bool m_inactive = false;
    unsigned char m_lineWidth = 0;
    unsigned char m_lineType = 0;
    std::uint16_t m_custom = 0;
    ZVColor m_color = ZV_COLOR_WHITE;
    E_FILL_STYLE m_fillStyle = E_FILL_SOLID;
    unsigned m_pickID = 0xFFFFFFFFu;
    E_Layer m_layer = E_LAYER_UNSET;
    int m_post = -1;
    int m_uset = -1;
    ZVCulture m_culture = ZV_CULTURE_UNSET;
    double m_degree = 0.0;
    double m_brightness = 1.0;
    CZvDisplayItemPara* m_para = nullptr;
    std::string m_id = "UNDEFINED";
};
