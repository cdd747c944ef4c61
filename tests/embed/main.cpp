#include <context/ZvDispGL.h>
#include <items/ZvDispText.h>
#include <map/ZvDispMap.h>

int main() {
    CZvDispMap map(nullptr); // no settings: every layer is on
    auto* well = new CZvDispSymbols({500, 300}, 56);
    well->SetScale(60);
    well->SetID("608174000100");
    map.AddItem(well, E_LAYER_WELLS, 1, 1, ZVCulture(220), false); // the map owns it now
    auto* label = new CZvDispText;
    label->SetPoint({550, 300});
    label->SetLabel("A-1");
    label->SetHorzJustify('l');
    label->SetVertHeight(40);
    map.AddItem(label, E_LAYER_WELLS, 1, 1, ZVCulture(222), false);

    HDC dc = zv::CreateDeviceContext({800, 600});
    CZvDispGL screen;
    screen.Create(dc);
    screen.Resize(0, 0, 800, 600);
    map.SetContext(&screen);
    map.SetViewPort(0, 0, 1000, 750, 0);
    map.Draw(E_LAYER_ALL, 99, 99, ZV_CULTURE_ALL, false);
    screen.Render();
    zv::WritePng("first.png", zv::DevicePixels(dc), 800, 600);
    screen.Destroy();
    zv::DeleteDeviceContext(dc);
}
