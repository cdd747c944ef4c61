#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispCult;
class CZvDispFileParam;
class CZvDispMap;
class CZvDispMapClipper;
class CZvDisplayContext;
class CZvDisplayItem;

/// A user set of a post: its culture lists by number.
class ZVDISP_API CZvDispUSet {
  public:
    CZvDispUSet(E_Layer layer, int post, int uset);
    virtual ~CZvDispUSet();

    bool AddItem(ZVCulture culture, CZvDisplayItem* item, CZvDispMapClipper* clipper, bool clip);
    /// Culture 900 draws every list; one above 65535 is a composite, whose sub-value the context
    /// gets as display info for the time of the draw.
    void Draw(CZvDisplayContext* context, ZVCulture culture, bool redraw);
    /// Removes one culture list, or all of them for 900.
    void Delete(ZVCulture culture);
    std::vector<int> GetCultureList() const;
    /// Items of one list; 0 when it is missing.
    int GetCultureCount(ZVCulture culture) const;
    void SetPara(CZvDispFileParam& file, void* context);
    void SetMapPtr(CZvDispMap* map);

    /// The cursor's walk over the culture lists; null at the end. Two walks must not overlap.
    CZvDispCult* GetFirstCult();
    CZvDispCult* GetNextCult();
    bool IsLastCult() const;
    /// Null when absent. Owned by this.
    CZvDispCult* GetCult(ZVCulture culture) const;
    int GetUSetName() const { return m_uset; }

  private:
    void DrawList(CZvDisplayContext& context, int culture, int sub, bool redraw);

    using Cultures = std::map<int, std::unique_ptr<CZvDispCult>>;
    void* m_context = nullptr;
    int m_uset;
    int m_post;
    E_Layer m_layer;
    Cultures m_cultures;
    Cultures::const_iterator m_cursor;
    CZvDispMap* m_map = nullptr;
};
