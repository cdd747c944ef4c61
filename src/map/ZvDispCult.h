#pragma once

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "platform/Export.h"
#include "platform/win/ZvString.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispFileParam;
class CZvDispMap;
class CZvDispMapClipper;
class CZvDispMemCtrl;
class CZvDisplayContext;
class CZvDisplayItem;

/// All items of one culture in one user set of one post of one layer. The items stand as records in
/// a scratch file; memory holds their offsets and indexes, at most 16 bytes an item.
///
/// Items are walked in the order of a table of 17 buckets: the bucket of a pick ID is (ID >> 4) mod
/// 17, and within a bucket the newest comes first.
class ZVDISP_API CZvDispCult {
  public:
    CZvDispCult(E_Layer layer, int post, int uset, ZVCulture culture);
    virtual ~CZvDispCult();
    CZvDispCult(const CZvDispCult&) = delete;
    CZvDispCult& operator=(const CZvDispCult&) = delete;

    /// Takes the item over; false, and the item is destroyed, when clipping leaves nothing of it.
    /// Throws CZvUvException (kind 6) when the record cannot be written; the list then does not
    /// hold the item, which stays the caller's. Records are written some at a time: the exception
    /// may also stand for items added before, which the list then has dropped.
    ///
    /// An item without parameter object stays alive until FreeItems; one whose parameter object
    /// says so is destroyed at once, any other stays with the holder of its parameter object.
    bool AddItem(CZvDisplayItem* item, CZvDispMapClipper* const clipper, bool clip);
    /// Hands the items to the context in the order of the walk; nothing is written back. With
    /// `redraw` no item is read: an OpenGL context replays its display lists, and under memory
    /// control the zones that left the view are erased and those that entered it are compiled.
    /// REQUIRES: not null.
    void Draw(CZvDisplayContext* const context, bool redraw);
    /// Writes the visible items to a drawing file.
    void Write(CZvDispFileParam& file);
    /// Empties the list. Its file stays, as does the index of zones until the next full draw.
    void RemoveAll();
    /// Turning it on also redraws on the list's own context; turning it off erases nothing.
    void SetVisibility(bool on);
    /// These change every item in the file and draw the visible ones again on the list's OpenGL
    /// context. `sub` is the key of a group's members.
    void SetColor(ZVColor color, int sub);
    void SetLineWidth(double width, int sub);
    void SetLineType(unsigned char type, int sub);
    /// Appends fresh objects of all items, which the caller owns, to one list that all culture
    /// lists share and nobody empties but the caller.
    std::list<CZvDisplayItem*>& GetDispList();
    /// A fresh object that the caller owns, or null. Its layer, post and user set are not set.
    CZvDisplayItem* GetItem(unsigned pickID);
    /// Takes an item out of the list by pick ID and ID; the object stays the caller's. True, also
    /// for an item that is not there.
    /// The item's display list stays until the whole list is deleted from the screen by its
    /// rendering context; a host that wants it gone calls CZvDispGL::DeleteDispItem. An item that
    /// this list keeps alive stays the list's. REQUIRES: not null.
    bool DeleteItemFromList(CZvDisplayItem* item);
    /// Stores the list's own context (a CZvDisplayContext, borrowed); the rest is not read.
    void SetPara(CZvDispFileParam& file, void* context);
    /// Destroys the items that stay alive besides their records; true.
    bool FreeItems();
    /// Writes what is pending and closes the file; true. Throws as AddItem does.
    bool CloseFiles();
    bool IsItemPresent(unsigned pickID) const;
    /// Writes a changed item back; false when the list does not hold its pick ID.
    bool OpenAndUpdateItem(CZvDisplayItem* item);
    int GetCultureCount() const;
    /// Borrowed; gives the folder of the scratch file.
    void SetMapPtr(CZvDispMap* map);
    /// Pick IDs of the items that bear an ID; false when there is no such ID, or no such index in
    /// this layer. The vector stays the list's.
    bool LookUpItemPickID(CString& key, std::vector<unsigned>*& out);
    /// Appends the pick IDs of the items in the zones of a control; an item in several cells comes
    /// several times.
    void GetVecZonePickIDs(std::vector<int> zones, std::vector<unsigned>& out,
                           CZvDispMemCtrl* control);
    /// All IDs of the secondary index in the order of its walk.
    std::vector<CString> GetApiSndIdxVec();

  private:
    void AddItemToList(CZvDisplayItem* item);
    void Keep(CZvDisplayItem* item);
    template<class Change>
    void SetAttribute(Change&& change);
    void ClearDispList();
    void Redraw(CZvDisplayContext& context);
    void DrawAll(CZvDisplayContext& context);
    void DrawOne(CZvDisplayContext& context, CZvDisplayItem& item);
    bool IsManaged(const CZvDispMemCtrl* control) const;
    bool BuildGridPickIDMap(CZvDisplayItem& item, const CZvDispMemCtrl& control);
    void UpdateZones(CZvDisplayContext& context, CZvDispMemCtrl* control);
    void DrawVisibleZones(CZvDisplayContext& context, CZvDispMemCtrl& control);
    void EraseZones(CZvDisplayContext& context, const CZvDispMemCtrl& control);
    void AddZones(CZvDisplayContext& context, const std::vector<int>& zones,
                  const CZvDispMemCtrl& control);
    void DrawDetails(CZvDisplayContext& context, const std::vector<unsigned>& pickIDs);
    std::vector<unsigned> PickIDsOfZones(const std::vector<int>& zones, int dimension) const;
    void LogZones(const std::vector<int>& zones, const char* what) const;

    struct Impl;
    std::unique_ptr<Impl> m;
};
