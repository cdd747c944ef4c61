#pragma once

#include "context/GlScene.h"
#include "context/ListNames.h"
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

namespace zv {

/// Gathers what is drawn as long as it lives, without any list, and draws it at its end.
class TemporaryScope {
  public:
    explicit TemporaryScope(KeepBy keep) : m_scene(GlScene::Current()) {
        if (m_scene) m_scene->Lists().NewList(kNoPickID, keep);
    }
    ~TemporaryScope() {
        if (m_scene) m_scene->Lists().EndList();
    }
    TemporaryScope(const TemporaryScope&) = delete;
    TemporaryScope& operator=(const TemporaryScope&) = delete;

  private:
    GlScene* m_scene;
};

} // namespace zv
