// How a culture list draws its items and changes their attributes.
#include <cmath>

#include "context/ZvDispGL.h"
#include "map/CultureList.h"
#include "map/ItemWalk.h"
#include "map/ZvDispMemCtrl.h"

namespace {

// Cultures whose light lines would be lost on paper, and the colour that stands in for theirs.
constexpr int kTitleCulture = 450, kFrameCulture = 451;
constexpr auto kScreenColor = static_cast<ZVColor>(3), kPaperColor = static_cast<ZVColor>(4);

unsigned char AsWidth(double width) {
    if (!(std::abs(width) < 1e9)) return 0;
    return static_cast<unsigned char>(static_cast<int>(width));
}

} // namespace

CZvDispGL* zv::AsOpenGL(CZvDisplayContext* context) {
    return context && context->GetIsOpenGL() ? dynamic_cast<CZvDispGL*>(context) : nullptr;
}

void CZvDispCult::Draw(CZvDisplayContext* const context, bool redraw) {
    if (!m->visible) return;
    m->store.CloseWrite();
    FreeItems();
    if (!redraw) return DrawAll(*context);
    if (zv::AsOpenGL(context) && context->GetType() != CTX_PICK) { // a pick only replays
        UpdateZones(*context, context->GetMemCtrl());
        UpdateZones(*context, context->GetMemCtrlExt());
    }
    Redraw(*context);
}

void CZvDispCult::Redraw(CZvDisplayContext& context) {
    CZvDispGL* const gl = zv::AsOpenGL(&context);
    if (!gl || !m->visible) return;
    zv::KeyTable::Cursor cursor;
    while (const zv::KeyTable::Entry* entry = m->store.Keys().Next(cursor))
        gl->Redraw(entry->key);
}

void CZvDispCult::ClearDispList() {
    CZvDispGL* const gl = zv::AsOpenGL(m->context);
    if (!gl) return;
    gl->Start();
    zv::KeyTable::Cursor cursor;
    while (const zv::KeyTable::Entry* entry = m->store.Keys().Next(cursor))
        if (gl->IsItemList(entry->key)) gl->DeleteItemList(entry->key);
}

void CZvDispCult::DrawAll(CZvDisplayContext& context) {
    ClearDispList();
    CZvDispGL* const gl = zv::AsOpenGL(&context);
    CZvDispMemCtrl* const control = context.GetMemCtrl();
    CZvDispMemCtrlExt* const extended = context.GetMemCtrlExt();
    if (gl) gl->Start();
    if (gl && (control || extended)) m->grid.Clear(); // an item is not to stand in it twice
    const bool zoned = gl && IsManaged(control);
    const bool alsoFiled = gl && IsManaged(extended);
    const bool invisibleToo = context.GetProcessInvisible();
    zv::ItemWalk walk(m->store);
    while (const auto item = walk.Next()) {
        if (zoned && BuildGridPickIDMap(*item, *control)) continue;
        if (alsoFiled) BuildGridPickIDMap(*item, *extended);
        item->SetCultureID(m->store.Place().culture);
        if (invisibleToo || item->GetVisibility()) DrawOne(context, *item);
    }
    if (zoned) DrawVisibleZones(context, *control);
}

void CZvDispCult::DrawOne(CZvDisplayContext& context, CZvDisplayItem& item) {
    const int culture = m->store.Place().culture;
    const bool recolor = !context.GetIsOpenGL() && item.GetColor() == kScreenColor &&
                         (culture == kTitleCulture || culture == kFrameCulture);
    if (recolor) item.SetColor(kPaperColor, 0);
    context.DrawDispItem(&item);
    if (recolor) item.SetColor(kScreenColor, 0);
}

template<class Change>
void CZvDispCult::SetAttribute(Change&& change) {
    m->store.CloseWrite();
    FreeItems();
    CZvDispGL* const gl = zv::AsOpenGL(m->context);
    if (gl) gl->Start();
    zv::ItemWalk walk(m->store);
    while (const auto item = walk.Next()) {
        change(*item);
        if (gl && item->GetVisibility()) gl->DrawDispItem(item.get());
        m->store.Update(*item, walk.Length());
    }
}

void CZvDispCult::SetColor(ZVColor color, int sub) {
    SetAttribute([&](CZvDisplayItem& item) { item.SetColor(color, sub); });
}

void CZvDispCult::SetLineWidth(double width, int sub) {
    SetAttribute([&](CZvDisplayItem& item) { item.SetLineWidth(AsWidth(width), sub); });
}

void CZvDispCult::SetLineType(unsigned char type, int sub) {
    SetAttribute([&](CZvDisplayItem& item) { item.SetLineType(type, sub); });
}
