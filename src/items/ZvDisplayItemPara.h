#pragma once

#include "platform/Export.h"

/// What a host hands along with its items (CZvDisplayItem::SetPara). The item borrows it.
class ZVDISP_API CZvDisplayItemPara {
  public:
    explicit CZvDisplayItemPara(bool destroyAfterAdd = false) : m_destroy(destroyAfterAdd) {}
    virtual ~CZvDisplayItemPara() = default;

    /// Whether a culture list destroys the item as soon as its record is written. Off: the item
    /// stays with whoever holds this object. A bulk loader turns it on, so that only records
    /// remain.
    bool GetDestroyAfterAdd() const { return m_destroy; }
    void SetDestroyAfterAdd(bool on) { m_destroy = on; }

  private:
    bool m_destroy;
};
