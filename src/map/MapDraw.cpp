#include "context/ZvDispGL.h"
#include "context/ZvDisplayContext.h"
#include "map/ZvDispMap.h"
#include "platform/win/Cursor.h"
#include "platform/zvcom/ZvLayerInfo.h"

/// The draw of a map: from the context's opening to its close, in one pass or in two.

namespace {

void ShowCursor(int number) {
    SetCursor(LoadCursor(nullptr, number));
}

bool TakesTwoPasses(const CZvDisplayContext& context) {
    return context.GetType() >= CTX_CGM && context.GetType() <= CTX_DXF;
}

} // namespace

void CZvDispMap::OpenContext() {
    CZvDispPoint lowerLeft = m_scale.GetLowerLeft(), upperRight = m_scale.GetUpperRight();
    m_context->SetView(lowerLeft, upperRight);
    if (m_useWaitCursor) ShowCursor(IDC_WAIT);
    if (m_context->GetIsOpenGL())
        if (auto* screen = dynamic_cast<CZvDispGL*>(m_context)) screen->Start();
    m_context->SetSettingsMgr(m_settings);
    m_context->V_Open();
}

void CZvDispMap::Draw(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw) {
    if (!m_context) return;
    OpenContext();
    if (TakesTwoPasses(*m_context))
        DrawTwoPasses(layer, post, uset, redraw);
    else
        DrawOnePass(layer, post, uset, culture, redraw);
    m_context->V_Close();
    if (m_useWaitCursor) ShowCursor(IDC_ARROW);
}

void CZvDispMap::Redraw(E_Layer layer, int post, int uset, ZVCulture culture) {
    Draw(layer, post, uset, culture, true);
}

void CZvDispMap::DrawTwoPasses(E_Layer layer, int post, int uset, bool redraw) {
    const bool screen = m_context->GetType() == CTX_OPENGL;
    for (int pass = 0; pass < 2; ++pass) {
        const bool firstPass = pass == 0;
        if (layer != E_LAYER_ALL) {
            DrawLayer(layer, post, uset, redraw, firstPass, screen, pass);
            continue;
        }
        for (E_Layer each = m_order->GetFirstLayer(); !m_order->IsEndOfList();
             each = m_order->GetNextLayer())
            DrawLayer(each, post, uset, redraw, firstPass, screen, pass);
    }
}

void CZvDispMap::DrawTagged(CZvDispLayer& layer, int post, int uset, ZVCulture culture,
                            bool redraw) {
    const int number = layer.GetLayerName();
    m_context->WriteTagInfo(ZV_TAG_LAYER, &number);
    layer.Draw(m_context, post, uset, culture, redraw);
}

bool CZvDispMap::DrawLayer(E_Layer layer, int post, int uset, bool redraw, bool firstPass,
                           bool screen, int pass) {
    CZvDispLayer* entry = GetLayer(layer);
    if (!entry || !GetLayerOn(layer)) return true;
    const std::vector<int> cultures = CZvLayerInfo::S_GetLayerCultures(layer, firstPass, screen);
    if (pass == 0 && m_bounds) entry->PopulateMemCtrl(redraw);
    if (CZvLayerInfo::DrawOnce(layer)) {
        if (pass != 1) return true;
        DrawTagged(*entry, post, uset, ZV_CULTURE_ALL, redraw);
        return true;
    }
    for (const int culture : cultures)
        DrawTagged(*entry, post, uset, static_cast<ZVCulture>(culture), redraw);
    return true;
}

void CZvDispMap::DrawWholeLayer(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw) {
    CZvDispLayer* entry = GetLayer(layer);
    if (entry && GetLayerOn(layer)) DrawTagged(*entry, post, uset, culture, redraw);
}

void CZvDispMap::DrawOnePass(E_Layer layer, int post, int uset, ZVCulture culture, bool redraw) {
    if (layer != E_LAYER_ALL) return DrawWholeLayer(layer, post, uset, culture, redraw);
    for (E_Layer each = m_order->GetFirstLayer(); !m_order->IsEndOfList();
         each = m_order->GetNextLayer())
        DrawWholeLayer(each, post, uset, culture, redraw);
}
