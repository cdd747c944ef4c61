#include "data/read/Gdal.h"

#include <cpl_error.h>
#include <gdal_priv.h>

#include <mutex>
#include <string>

#include "platform/zvlogs/ZvLog.h"

namespace zv::host {
namespace {

void LogFault(CPLErr, CPLErrorNum, const char* text) {
    CZvLog::Output(std::string("GDAL: ") + text, 103, false);
}

} // namespace

void StartGdal() {
    static std::once_flag once;
    std::call_once(once, [] {
        GDALAllRegister();
        CPLSetErrorHandler(LogFault);
    });
}

QuietGdal::QuietGdal() {
    StartGdal();
    CPLPushErrorHandler(CPLQuietErrorHandler);
}

QuietGdal::~QuietGdal() {
    CPLPopErrorHandler();
}

} // namespace zv::host
