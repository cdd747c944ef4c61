#include "context/ZvDisplayContext.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"
#include "platform/zvset/ZvSettings.h"

/// Names of export files.

int CZvDisplayContext::ValidateStringAsFileName(std::string& name) {
    constexpr std::string_view kForbidden = "/\\:*?\"<>|";
    int replaced = 0;
    for (char& c : name) {
        if (kForbidden.find(c) == std::string_view::npos) continue;
        c = '_';
        ++replaced;
    }
    if (replaced > 0)
        CZvLog::Output("Export - Illegal charactors found in file name and replaced with '_'.", 101,
                       false);
    return replaced;
}

std::string CZvDisplayContext::BuildExportFileMoniker(CZvSettings* store, int postCount,
                                                      int postNumber, int usetCount,
                                                      int usetNumber) {
    const std::string key =
        "Post#" + zv::FormatInt(postNumber) + "\\USET#" + zv::FormatInt(usetNumber) + "\\QUAL_NAME";
    std::string name, tail;
    const bool qualified = store && store->GetString(key, name);
    if (postCount != 1) tail = "_Post#" + zv::FormatInt(postNumber);
    if (qualified)
        tail += "_" + name;
    else if (usetCount != 1)
        tail += "_Dataset#" + zv::FormatInt(usetNumber);
    ValidateStringAsFileName(tail);
    return tail;
}
