#pragma once

#include <list>
#include <map>
#include <memory>
#include <vector>

#include "map/ZvDispCult.h"
#include "map/ZvDispPost.h"
#include "map/ZvDispUSet.h"
#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispMemCtrl;
class CZvDispMemCtrlExt;

/// A layer of a map: its posts by number, and the memory controls of the dense layers. Posts, user
/// sets and culture lists come into being when the first item names them and stay until they are
/// deleted.
class ZVDISP_API CZvDispLayer {
  public:
    explicit CZvDispLayer(E_Layer layer);
    /// Copies share posts and controls with the original.
    CZvDispLayer(const CZvDispLayer& other);
    CZvDispLayer& operator=(const CZvDispLayer& other);
    virtual ~CZvDispLayer();

    bool AddItem(int post, int uset, ZVCulture culture, CZvDisplayItem* item,
                 CZvDispMapClipper* clipper, bool clip);
    /// Post 99, user set 99 and culture 900 stand for all.
    void Draw(CZvDisplayContext* context, int post, int uset, ZVCulture culture, bool redraw);
    /// Removes everything (99, 99, 900), a culture everywhere (99, 99, n), a post (p, 99, 900), a
    /// user set (p, u, 900) or a culture list (p, u, n). Other mixtures do nothing.
    void Delete(int post, int uset, ZVCulture culture);

    /// These reach one culture list, or nothing; a composite culture hands its sub-value on.
    void SetColor(ZVColor color, int post, int uset, ZVCulture culture);
    void SetLineType(unsigned char type, int post, int uset, ZVCulture culture);
    void SetLineWidth(double width, int post, int uset, ZVCulture culture);
    /// Without effect; kept for the interface.
    void SetDegree(double degrees, int post, int uset, ZVCulture culture);
    void SetFill(bool on, int post, int uset, ZVCulture culture);
    void SetFillStyle(E_FILL_STYLE style, int post, int uset, ZVCulture culture);
    void SetSmooth(bool on, int post, int uset, ZVCulture culture);
    /// With post 99 every list of the layer, with user set 99 every list of the post.
    void SetVisibility(bool on, int post, int uset, ZVCulture culture);

    /// Numbers of the posts, ascending; true.
    bool GetPostList(std::vector<int>& posts) const;
    std::vector<int> GetUSetList(int post) const;
    std::vector<int> GetCultureList(int post, int uset) const;
    /// Fresh objects of every item of a list, appended to one list that all lists share; the caller
    /// owns the objects. An empty list of its own when a step is missing.
    std::list<CZvDisplayItem*>& GetDispList(int post, int uset, ZVCulture culture);
    /// 0 when a step is missing.
    int GetCultureCount(int post, int uset, ZVCulture culture) const;
    void SetPara(CZvDispFileParam& file, void* context);
    /// Context of the last SetPara.
    void* GetPara() const { return m_context; }
    void SetMapPtr(CZvDispMap* map);
    E_Layer GetLayerName() const { return m_layer; }

    /// The cursor's walk over the posts; null at the end. Two walks must not overlap.
    CZvDispPost* GetFirstPost();
    CZvDispPost* GetNextPost();
    bool IsLastPost() const;
    /// Null when absent. Owned by this.
    CZvDispPost* GetPost(int post) const;

    void PopulateMemCtrl(bool redraw);
    CZvDispMemCtrlExt* GetMemCtrlExt() const { return m_memCtrlExt.get(); }

  private:
    void InitializeMemCtrl();
    void DeletePost(int post);
    void DeleteCultureEverywhere(ZVCulture culture);
    bool GetSubLayerList(std::vector<int>& cultures) const;
    CZvDispUSet* FindUSet(int post, int uset) const;
    CZvDispCult* FindCult(int post, int uset, ZVCulture culture) const;
    template<class Act>
    void WithList(int post, int uset, ZVCulture culture, Act&& act);
    void DrawPost(CZvDisplayContext& context, int post, int uset, ZVCulture culture, bool redraw);

    using Posts = std::map<int, std::shared_ptr<CZvDispPost>>;
    void* m_context = nullptr;
    E_Layer m_layer;
    Posts m_posts;
    Posts::const_iterator m_cursor;
    CZvDispMap* m_map = nullptr;
    std::shared_ptr<CZvDispMemCtrl> m_memCtrl;
    std::shared_ptr<CZvDispMemCtrlExt> m_memCtrlExt;
};
