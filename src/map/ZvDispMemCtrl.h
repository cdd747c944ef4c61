#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispMap;

/// Keeps display lists of a dense layer only for the zones in view. The map is cut into square
/// zones; when the view moves, zones that left it are erased and zones that entered it are added.
/// Shows no zone until the view is close enough.
///
/// Not promised: a line or polygon of whose box the lower left corner alone lies outside the map's
/// grid stands in no zone and is not shown; items other than texts, lines, polygons and circles
/// are not shown at all in a managed culture.
class ZVDISP_API CZvDispMemCtrl {
  public:
    CZvDispMemCtrl() = default;
    virtual ~CZvDispMemCtrl();
    /// Compares the zones in view with those of the last update and fills the erase and add lists.
    virtual void V_Update();
    virtual std::string V_GetClassName();

    /// Borrowed; set before each use.
    void SetMapPtr(CZvDispMap* map) { m_map = map; }
    void SetLayer(E_Layer layer) { m_layer = layer; }
    void SetCultures(std::vector<int> cultures);
    /// Greatest view size, in blocks of 15840 map units, at which zones still show.
    void SetThreshold(int blocks) { m_threshold = blocks; }

    bool IsActive() const { return m_active; }
    /// Zones on a side.
    int GetZoneDim() const { return m_zoneDim; }
    /// Whether the culture is managed now.
    bool IsCulture(int culture) const;
    /// Copies of the zones in view, to erase and to add. A zone is row * dimension + column.
    std::vector<int> GetZones() const { return m_current; }
    std::vector<int> GetEraseZones() const { return m_erase; }
    std::vector<int> GetAddZones() const { return m_add; }
    /// The rectangle that zones and grid cells divide; both points stay when there are no bounds.
    void GetGridRect(CZvDispPoint& ll, CZvDispPoint& ur) const;
    void CheckActive();
    /// No zone counts as shown by an earlier update: the next one adds all that are in view then.
    void ForgetZones() { m_previous.clear(); }
    int ComputeZoneDim();
    void ComputeZones();
    bool IsViewInRange() const;
    /// Column and row of the zone that holds a point, each -1 when it lies outside.
    void FindZoneIndex(CZvDispPoint point, int& column, int& row) const;
    void FindPointZone(CZvDispPoint point, std::vector<int>& out) const;
    /// Exempts from zoning the culture that a post of leases shows most prominently.
    void SetPostCultures(int post);

  protected:
    std::vector<int> m_current;
    std::vector<int> m_previous;
    int m_threshold = 0;
    CZvDispMap* m_map = nullptr;
    int m_zoneDim = 2;
    bool m_zonesShown = false;
    E_Layer m_layer = E_LAYER_UNSET;
    std::vector<int> m_activeCultures;
    std::vector<int> m_allCultures;
    std::vector<int> m_erase;
    std::vector<int> m_add;
    bool m_active = false;
    bool m_unchanged = false;
};

/// The variant that draws everything once, and then takes away what is out of view.
class ZVDISP_API CZvDispMemCtrlExt : public CZvDispMemCtrl {
  public:
    ~CZvDispMemCtrlExt() override;
    void V_Update() override;
    std::string V_GetClassName() override;
    void ShowAllZones();
};
