#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispFileParam;
class CZvDispMap;
class CZvDispMapClipper;
class CZvDispUSet;
class CZvDisplayContext;
class CZvDisplayItem;

/// A post of a layer: its user sets by number.
class ZVDISP_API CZvDispPost {
  public:
    CZvDispPost(E_Layer layer, int post);
    virtual ~CZvDispPost();

    bool AddItem(int uset, ZVCulture culture, CZvDisplayItem* item, CZvDispMapClipper* clipper,
                 bool clip);
    /// User set 99 draws all of them, ascending.
    void Draw(CZvDisplayContext* context, int uset, ZVCulture culture, bool redraw);
    /// Removes one user set, or all of them for 99.
    void Delete(int uset);
    std::vector<int> GetUSetList() const;
    void SetPara(CZvDispFileParam& file, void* context);
    void SetMapPtr(CZvDispMap* map);

    /// The cursor's walk over the user sets; null at the end. Two walks must not overlap.
    CZvDispUSet* GetFirstUSet();
    CZvDispUSet* GetNextUSet();
    bool IsLastUSet() const;
    /// Null when absent. Owned by this.
    CZvDispUSet* GetUSet(int uset) const;
    int GetPostName() const { return m_post; }

  private:
    void DrawUSet(CZvDisplayContext& context, int uset, ZVCulture culture, bool redraw);

    using USets = std::map<int, std::unique_ptr<CZvDispUSet>>;
    void* m_context = nullptr;
    int m_post;
    E_Layer m_layer;
    USets m_usets;
    USets::const_iterator m_cursor;
    CZvDispMap* m_map = nullptr;
};
