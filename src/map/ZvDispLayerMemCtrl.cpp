// Which layers have memory controls, and how a draw prepares them.
#include <vector>

#include "context/ZvDisplayContext.h"
#include "map/ZvDispLayer.h"
#include "map/ZvDispMemCtrl.h"

namespace {

struct CultureRange {
    int first;
    int last;
};

/// The control of a layer: its threshold and its cultures, in order.
struct ControlEntry {
    int layer;
    bool extended;
    int threshold;
    CultureRange cultures[6]; // up to a first of 0
};

constexpr ControlEntry kControls[] = {
    {3, false, 20, {{12, 12}}},
    {3, true, 20, {{11, 11}}},
    {13, false, 20, {{145, 145}, {141, 144}, {146, 152}, {155, 164}, {154, 154}}},
    {15, false, 10, {{52, 52}, {51, 51}, {58, 58}, {53, 57}}},
    {25, false, 10, {{231, 231}, {222, 222}, {250, 259}, {233, 235}, {240, 241}}},
    {66, false, 10, {{401, 409}}},
    {67, false, 10, {{600, 604}}},
};

std::vector<int> CulturesOf(const ControlEntry& entry) {
    std::vector<int> cultures;
    for (const CultureRange& range : entry.cultures)
        for (int culture = range.first; culture != 0 && culture <= range.last; ++culture)
            cultures.push_back(culture);
    return cultures;
}

template<class Control>
std::shared_ptr<Control> MakeControl(E_Layer layer, const ControlEntry& entry) {
    auto control = std::make_shared<Control>();
    control->SetLayer(layer);
    control->SetCultures(CulturesOf(entry));
    control->SetThreshold(entry.threshold);
    return control;
}

} // namespace

void CZvDispLayer::InitializeMemCtrl() {
    for (const ControlEntry& entry : kControls) {
        if (entry.layer != m_layer) continue;
        if (entry.extended)
            m_memCtrlExt = MakeControl<CZvDispMemCtrlExt>(m_layer, entry);
        else
            m_memCtrl = MakeControl<CZvDispMemCtrl>(m_layer, entry);
    }
}

void CZvDispLayer::PopulateMemCtrl(bool redraw) {
    const auto* const context = static_cast<CZvDisplayContext*>(m_context);
    if (!context || !context->GetIsOpenGL()) return;
    for (CZvDispMemCtrl* const control :
         {m_memCtrl.get(), static_cast<CZvDispMemCtrl*>(m_memCtrlExt.get())}) {
        if (!control) continue;
        control->SetMapPtr(m_map);
        if (redraw) {
            control->V_Update();
        } else {
            control->CheckActive();
            control->ComputeZoneDim();
            control->ForgetZones(); // a full draw takes every display list away
        }
    }
    if (m_memCtrlExt && !redraw) m_memCtrlExt->ShowAllZones();
}
