#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "clip/ZvDispMapClipper.h"
#include "items/ZvDispSymbols.h"
#include "map/ZvDispLayer.h"
#include "map/ZvDispMapScale.h"
#include "map/ZvDispOrder.h"
#include "platform/Export.h"
#include "platform/win/ZvRect.h"
#include "platform/win/ZvString.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvMapBounds.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDisplayContext;
class CZvSettingsManager;

/// The root of the library: one object for each open map. It owns the tree of layers, posts, user
/// sets and culture lists with their items, and draws it into whatever context it is given.
///
/// Settings manager, map bounds and context are borrowed and must outlive their use here; the
/// destructor does not touch the context. One thread; two walks of one map must not overlap.
class ZVDISP_API CZvDispMap {
  public:
    explicit CZvDispMap(CZvSettingsManager* settings);
    virtual ~CZvDispMap();
    CZvDispMap(const CZvDispMap&) = delete;
    CZvDispMap& operator=(const CZvDispMap&) = delete;

    /// Passes the context down the whole tree; true. Null takes it away.
    bool SetContext(CZvDisplayContext* const context);
    const CZvDisplayContext* GetContext() const { return m_context; }
    void SetSettingsMgr(CZvSettingsManager* settings) { m_settings = settings; }
    CZvSettingsManager* GetSettingsMgr() const { return m_settings; }
    void SetMapBoundPtr(CZvMapBounds* bounds) { m_bounds = bounds; }
    CZvMapBounds* GetMapBoundPtr() const { return m_bounds; }
    void SetMapScale(CZvDispMapScale scale) { m_scale = scale; }
    const CZvDispMapScale& GetMapScale() const { return m_scale; }
    void SetViewPort(CZvDispPoint lowerLeft, CZvDispPoint upperRight);
    /// The int has no effect.
    void SetViewPort(double x1, double y1, double x2, double y2, int);
    void GetViewPort(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight) const;
    /// The setter replaces the pointer and frees nothing; the map frees the one that it holds at
    /// its end.
    CZvDispMapClipper* GetScissors() const { return m_scissors; }
    void SetScissors(CZvDispMapClipper* scissors) { m_scissors = scissors; }
    CZvDispOrder* GetDispOrder() const { return m_order.get(); }
    /// Folder under the work folder where the scratch files lie.
    void SetDispFilePath(std::string path) { m_dispFilePath = std::move(path); }
    const std::string& GetDispFilePath() const { return m_dispFilePath; }
    void SetMemManage(bool on) { m_memManage = on; }
    bool GetMemManage() const { return m_memManage; }
    void SetUseWaitCursor(bool on) { m_useWaitCursor = on; }
    void SetOffsetFileName(std::string name) { m_offsetFileName = std::move(name); }
    const std::string& GetOffsetFileName() const { return m_offsetFileName; }

    /// Gives the item the next pick ID (10001 upward) and takes it over. False, and the item is
    /// destroyed, when `clip` is set and nothing of it lies in the map's area. Throws
    /// CZvUvException on a scratch file that cannot be written; the item then stays the caller's.
    bool AddItem(CZvDisplayItem* item, E_Layer layer, int post, int uset, ZVCulture culture,
                 bool clip);
    /// Takes an item out of its list; the object stays the caller's. A place of -1 is the item's
    /// own; false when that is -1 too. False where the path does not exist.
    bool DeleteItem(CZvDisplayItem* item, E_Layer layer, int post, int uset, ZVCulture culture);
    /// A fresh object that the caller owns; null when a step is missing.
    CZvDisplayItem* GetItem(E_Layer layer, int post, int uset, ZVCulture culture, unsigned pickID);
    /// Pick IDs of the items of an ID, in layers with a secondary index. The vector stays the
    /// list's.
    bool LookUpItem(E_Layer layer, int post, int uset, ZVCulture culture, CString key,
                    std::vector<unsigned>*& pickIDs);
    std::vector<CString> GetApiSndIdxVec(E_Layer layer, int post, int uset, ZVCulture culture);
    int GetCultureCount(E_Layer layer, int post, int uset, ZVCulture culture);

    /// Draws what the four numbers name (99, 99, 99, 900: everything) into the context. `redraw`
    /// replays the display lists of an earlier full draw. Contexts of types 0 to 3 get two passes
    /// with the cultures of the layer catalogue, and `culture` has no effect on them.
    void Draw(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw);
    void Redraw(E_Layer layer, int post, int uset, ZVCulture culture);
    /// Map point of a window pixel; the corner of the view for an empty window. The int has no
    /// effect.
    void ConvertXY(RECT window, int x, int y, double& mapX, double& mapY, int) const;

    /// Removes everything; pick IDs start at 10001 again.
    bool Clear();
    bool Clear(E_Layer layer);
    bool Clear(E_Layer layer, int post, int uset);
    bool FreeItems(E_Layer layer, int post, int uset);
    bool CloseFiles(E_Layer layer, int post, int uset);
    bool SetLayerVisibility(E_Layer layer, bool on);
    /// "ON_OFF" of the layer's settings; true where nothing says otherwise.
    bool GetLayerOn(E_Layer layer) const;
    /// Null when there is no such layer. Owned by the map.
    CZvDispLayer* GetDispLayer(E_Layer layer) const { return GetLayer(layer); }
    std::vector<int> GetLayerList() const;
    bool GetPostList(E_Layer layer, std::vector<int>& posts) const;
    /// Empty where a step is missing.
    std::vector<int> GetUSetList(E_Layer layer, int post) const;
    std::vector<int> GetCultureList(E_Layer layer, int post, int uset) const;
    std::string GetCultureAsText(ZVCulture culture) const;
    std::string GetLayerAsText(E_Layer layer) const;
    CZvDispLayer* GetFirstLayer();
    CZvDispLayer* GetNextLayer();
    bool IsLastLayer() const;

    /// Do nothing and are true; maps are kept by the map-file context.
    bool LoadMap(std::string path);
    bool SaveMap(std::string path);
    /// Reads a drawing file into the map. A file that cannot be opened is told to the user.
    void Read(const std::string& path);
    /// Writes a drawing file. Only layer 99 writes anything; any other leaves an empty file.
    void Write(const std::string& path, E_Layer layer, int post, int uset, ZVCulture culture);

    /// The map's rectangle: both pairs, or the temporary pair alone. While the final border is on,
    /// GetMapBound gives the temporary pair.
    bool SetMapBound(const CZvDispPoint& ll, const CZvDispPoint& ur);
    bool GetMapBound(CZvDispPoint& ll, CZvDispPoint& ur) const;
    bool SetMapBoundTemp(const CZvDispPoint& ll, const CZvDispPoint& ur);
    bool GetMapBoundTemp(CZvDispPoint& ll, CZvDispPoint& ur) const;
    void SetFinalBorderOn(bool on) { m_finalBorderOn = on; }
    bool FinalBorderIsOn() const { return m_finalBorderOn; }

  private:
    CZvDispLayer* GetLayer(E_Layer layer) const;
    CZvDispUSet* FindUSet(E_Layer layer, int post, int uset) const;
    CZvDispCult* FindCult(E_Layer layer, int post, int uset, ZVCulture culture) const;
    CZvDispLayer& MakeLayer(E_Layer layer);
    /// The memory controls are layers': a context must not see them when those go.
    static void ForgetMemCtrls(CZvDisplayContext* context);
    template<class Act>
    bool ForEachList(E_Layer layer, int post, int uset, Act&& act);
    void OpenContext();
    void DrawTwoPasses(E_Layer layer, int post, int uset, bool redraw);
    void DrawOnePass(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw);
    bool DrawLayer(E_Layer layer, int post, int uset, bool redraw, bool firstPass, bool screen,
                   int pass);
    void DrawTagged(CZvDispLayer& layer, int post, int uset, ZVCulture culture, bool redraw);
    void DrawWholeLayer(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw);

    using Layers = std::map<E_Layer, std::unique_ptr<CZvDispLayer>>;
    CZvSettingsManager* m_settings;
    bool m_finalBorderOn = false;
    CZvMapBounds* m_bounds = nullptr;
    CZvDispPoint m_boundUR;
    CZvDispPoint m_boundLL;
    CZvDispPoint m_tempLL;
    CZvDispPoint m_tempUR;
    CZvDispMapClipper* m_scissors;
    CZvDispMapScale m_scale;
    CZvDisplayContext* m_context = nullptr;
    Layers m_layers;
    Layers::const_iterator m_cursor;
    unsigned m_nextPickID;
    std::unique_ptr<CZvDispOrder> m_order;
    std::string m_dispFilePath = "DispDefault";
    bool m_memManage = true;
    bool m_useWaitCursor = true;
    std::string m_offsetFileName;
};
