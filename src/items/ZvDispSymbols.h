#pragma once

#include <list>
#include <string>
#include <vector>

#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispPolyLine.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispText.h"
#include "items/ZvDisplayItem.h"

/// A symbol on the map: a number, a position and a scale. What it looks like lies in the
/// process-wide symbol library, which the first symbol made loads from its files. All items of one
/// number share the library's primitives; drawing changes them, so symbols are drawn from one
/// thread only.
class ZVDISP_API CZvDispSymbols : public CZvDisplayItem {
  public:
    CZvDispSymbols();
    CZvDispSymbols(const CZvDispPoint& center, int number);
    /// The number comes from the name table ("symmap.tab"); 68 for an unknown name.
    CZvDispSymbols(const CZvDispPoint& center, const std::string& name);
    CZvDispSymbols(const CZvDispSymbols& other);
    CZvDispSymbols& operator=(const CZvDispSymbols& other);

    /// Turns the centre; the degree becomes `degrees`.
    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispSymbols() override;
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    void Erase(CZvDisplayContext* const context) override;
    ZVDispType GetDispType() override;
    /// Writes the definition of the item's symbol, not the item.
    void V_WriteToFile(CZvDispFileParam& file) override;
    void V_Update(const void* record) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;
    virtual void SetTextColor(ZVColor color, int key);
    virtual void SetFillColor(ZVColor color, int key);

    /// -1: take the item's colour.
    ZVColor GetTextColor() const { return m_textColor; }
    ZVColor GetFillColor() const { return m_fillColor; }
    bool GetUseGroupColorFlg() const { return m_useGroupColor; }
    void SetUseGroupColorFlg(bool on) { m_useGroupColor = on; }
    /// The primitives keep the colours of the library.
    bool GetUseOrigColor() const { return m_useOrigColor; }
    void SetUseOrigColor(bool on) { m_useOrigColor = on; }
    double GetScale() const { return m_scale; }
    void SetScale(double scale) { m_scale = scale; }
    const CZvDispPoint& GetCenter() const { return m_center; }
    void SetCenter(const CZvDispPoint& center) { m_center = center; }
    int GetSymbolNum() const { return m_number; }
    void SetSymbolNum(int number) { m_number = number; }
    void SetSymbolNum(const std::string& name);

    /// Loads a symbol file. `number` "-1" reads every block of it; otherwise the file is one block
    /// without a head, loaded under that number. `fullPath` false: the file lies in the home
    /// folder's "\Template". A description that is not empty stands for the file's own. False when
    /// the file was loaded before
    /// (`warn` shows it), cannot be opened or ends in a bad record; what was stored before stays.
    static bool S_LoadSymbols(std::string file, const std::string& number, bool fullPath,
                              const std::string& description, bool warn);
    /// Path of the user's own symbols.
    static std::string S_GetGlobalSymFilePath();
    /// Primitives, or variable texts, of a number; null when it is unknown. Owned by the library.
    static std::list<CZvDisplayItem*>* S_GetItemList(int number);
    static std::list<CZvDisplayItem*>* S_GetVtxpItemList(int number);
    /// Every loaded number, in order of loading.
    static std::list<int>* S_GetSymbolNumList();
    /// Number of a symbol's name, as it stands; false, and the number as it was, for an unknown
    /// name.
    static bool S_FindSymbolNum(const std::string& name, int& number);
    static bool S_GetSymDesc(int number, std::string& description);
    /// First number from `from` to `to` that is not loaded; -1 when there is none.
    static int S_GetNextAvailableSymbolNum(int from, int to);
    /// Stores a list, which the library then owns, under a number in place of what was there.
    static int S_AddExternalSymbols(std::list<CZvDisplayItem*>* items, int number);
    static void S_DeleteSymbol(int number);
    /// Deletes 1000 to 1999, the symbols that a map file brought along.
    static void S_DeleteExternalSymbols();
    /// Empties the library, so that the next symbol made loads it anew.
    static void S_ClearSymbolsMap();
    /// Writes the named symbols, or all of them in ascending order, as a symbol file.
    static void S_WriteSymbolsToFile(const std::string& path, std::vector<std::string>& numbers,
                                     bool all);
    /// Items that show the label of a seismic line: an end symbol, an optional double rule and a
    /// second end symbol. Null for a kind outside 1 to 8. The caller owns list and items. `a` and
    /// `c` are scale and unit of S_ConvertToXY, `b` divides the symbols' scale, `count` is the
    /// number of characters between the ends, `angle` in degrees; sides 1, 2 and 3 turn by 180, 270
    /// and 90.
    static std::list<CZvDisplayItem*>* S_BuildLineNumberSymbol(int kind, int a, int b, double size,
                                                               double charSize, int count,
                                                               double angle, CZvDispPoint& position,
                                                               int side, int c);
    static double S_GetRotationAngle(double angle, int side);
    /// The two ends, of the given numbers and scale, and the rules between them where `rule` is
    /// set. `start` is the first end's place before the turn by `angle` about the position.
    static void S_BuildSymbol(int first, int second, bool rule, double scale, double size,
                              double charSize, int count, double angle, CZvDispPoint start,
                              const CZvDispPoint& position, std::list<CZvDisplayItem*>* list);
    /// Rules between the ends of a line number. `point` is moved to their middle.
    static void S_BuildMidLine(double size, double charSize, int count, double angle,
                               CZvDispPoint& point, std::list<CZvDisplayItem*>* list, bool add);
    /// Inches on paper to map units: unit 0 feet, 1 metres, any other leaves the size.
    static double S_ConvertToXY(int scale, int unit, double size);

  private:
    ZVColor m_textColor = ZV_COLOR_NONE;
    ZVColor m_fillColor = ZV_COLOR_NONE;
    bool m_useGroupColor = false;
    bool m_useOrigColor = false;
    double m_scale = 1.0;
    CZvDispPoint m_center;
    int m_number = 51;
};
