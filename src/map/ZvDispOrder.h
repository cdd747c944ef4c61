#pragma once

#include <map>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

/// In which order the layers of a map draw: positions, ascending, that need not be dense. A layer
/// that is missing here is never drawn by a draw of all layers.
class ZVDISP_API CZvDispOrder {
  public:
    /// Starts with the order of a new map.
    CZvDispOrder();
    CZvDispOrder(const CZvDispOrder& other);
    CZvDispOrder& operator=(const CZvDispOrder& other);
    virtual ~CZvDispOrder();

    /// Enters a layer at a position, in place of what stood there.
    void SetLayerOrder(int position, E_Layer layer);
    /// -1 where there is none.
    E_Layer GetLayerFromOrder(int position) const;
    void ClearLayerOrderMap();
    /// The cursor's walk; -1 on an empty order and at the end.
    E_Layer GetFirstLayer();
    E_Layer GetNextLayer();
    bool IsEndOfList() const;
    /// Moves a layer to the very end.
    void AddLayer(E_Layer layer);

  private:
    bool DeleteLayer(E_Layer layer);
    /// Positions 0, 1, 2 ..., when the greatest number is used up.
    void Renumber();

    std::map<int, E_Layer> m_order;
    std::map<int, E_Layer>::const_iterator m_cursor;
};
