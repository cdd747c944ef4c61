#include "persist/DrawingTail.h"

#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/ZvDispFileParam.h"

namespace zv {

void ReadTail(DrawingReader& in, CZvDispFileParam& file, int cultureWidth) {
    if (in.Chars(static_cast<int>(drw::kTailTag.size())) != drw::kTailTag) {
        in.SkipLine();
        return;
    }
    file.SetPostNum(in.Int(0, drw::kSmall));
    file.SetUsetNum(in.Int(4, drw::kSmall));
    file.SetCulture(in.Int(4, cultureWidth));
}

} // namespace zv
