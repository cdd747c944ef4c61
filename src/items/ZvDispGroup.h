#pragma once

#include <list>
#include <map>

#include "items/ZvDisplayItem.h"

/// An item made of other items, each filed under a key by which a caller colours or fetches it. The
/// list of primitives in order of adding owns them.
class ZVDISP_API CZvDispGroup : public CZvDisplayItem {
  public:
    CZvDispGroup();
    /// Shares list and primitives with the other group: one of the two must get
    /// SetDeleteListFlag(false). The attributes of the base are not copied by construction.
    CZvDispGroup(const CZvDispGroup& other);
    CZvDispGroup& operator=(const CZvDispGroup& other);

    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispGroup() override;
    /// True when any primitive is left; false at once when it meets a kind that no clipper cuts.
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    /// Reaches the primitives under `key` and those under 0; key 0 also colours the group itself.
    void SetColor(ZVColor color, int key) override;
    /// As SetColor, but the group's own width and type stay.
    void SetLineWidth(unsigned char width, int key) override;
    void SetLineType(int type, int key) override;
    ZVDispType GetDispType() override;
    void V_Update(const void* record) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;

    /// Files an item under a key and marks it as a group's member. The group owns it from then on,
    /// as long as the delete-list flag is set.
    void AddPrimitive(int key, CZvDisplayItem* item);
    /// First primitive with exactly that key, or null.
    CZvDisplayItem* GetGroupItem(int key) const;
    std::multimap<int, CZvDisplayItem*>& GetGroupMap() { return m_map; }
    std::list<CZvDisplayItem*>* GetGroupList() { return m_list; }
    void SetDeleteListFlag(bool on) { m_deleteList = on; }
    const CZvDispPoint& GetOrigin() const { return m_origin; }
    void SetOrigin(const CZvDispPoint& origin) { m_origin = origin; }
    /// Whether contexts draw the members in the group's colour.
    void SetUseGroupColorFlg(bool on) { m_useGroupColor = on; }
    bool UseGroupColor() const { return m_useGroupColor; }

  private:
    void FreeList();
    template<class Act>
    void ForKey(int key, Act&& act);
    bool ReadPrimitive(int key);

    bool m_useGroupColor = false;
    CZvDispPoint m_origin;
    std::multimap<int, CZvDisplayItem*> m_map;
    std::list<CZvDisplayItem*>* m_list;
    bool m_deleteList = true;
};
