#pragma once

#include "context/ZvDispGL.h"

/// Keeps an item's list open.
class CZvDispGL::ListScope {
  public:
    ListScope(CZvDispGL& context, CZvDisplayItem& item) : m_context(context), m_item(item) {
        m_context.GLNewList(m_item);
    }
    ~ListScope() { m_context.GLEndList(m_item); }
    ListScope(const ListScope&) = delete;
    ListScope& operator=(const ListScope&) = delete;

  private:
    CZvDispGL& m_context;
    CZvDisplayItem& m_item;
};
