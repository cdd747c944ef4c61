#include "platform/zvcom/ZvUtilLLdrv.h"

#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "platform/zvcom/ProjUnits.h"

namespace {

constexpr double kMetresInSurveyFoot = 1200.0 / 3937.0;
constexpr int kToMap = 1;
constexpr int kFromMap = 2;

/// A map projection with a number.
struct Numbered {
    zv::Projection projection;
    double metresPerUnit;

    /// Map units in one unit of the projection. Units that agree but for the rounding of their
    /// definition are one, so that coordinates pass unchanged.
    double MapUnits(bool meters) const {
        const double ratio = metresPerUnit / (meters ? 1.0 : kMetresInSurveyFoot);
        return metresPerUnit == 0.0 || std::fabs(ratio - 1.0) < 1e-10 ? 1.0 : ratio;
    }
};

/// All projections that were entered; a projection's number is its place here, from 1.
struct Registered {
    std::vector<Numbered> projections;
    std::map<std::pair<std::string, std::string>, int> numbers;

    const Numbered* Find(int number) const {
        const bool known = number >= 1 && static_cast<std::size_t>(number) <= projections.size();
        return known ? &projections[static_cast<std::size_t>(number) - 1] : nullptr;
    }
};

Registered& GetRegistered() {
    static Registered registered;
    return registered;
}

bool ToMap(const Numbered& to, double lon, double lat, double units, double* x, double* y) {
    if (!to.projection.Forward(lon, lat)) {
        return false;
    }
    *x = lon * units, *y = lat * units;
    return true;
}

bool FromMap(const Numbered& from, double units, double* x, double* y) {
    double lon = *x / units, lat = *y / units;
    if (!from.projection.Back(lon, lat)) {
        return false;
    }
    *x = lon, *y = lat;
    return true;
}

} // namespace

int CZvUtilLLdrv::S_RegisterProjection(const std::string& map, const std::string& geographic) {
    Registered& all = GetRegistered();
    const std::pair key(geographic, map);
    if (const auto known = all.numbers.find(key); known != all.numbers.end()) {
        return known->second;
    }
    all.projections.push_back({zv::Projection(geographic, map), zv::MetresPerUnit(map)});
    return all.numbers[key] = static_cast<int>(all.projections.size());
}

bool CZvUtilLLdrv::LLdrv(double lat, double lon, double* x, double* y, int projection, int meters,
                         int direction, float, float, float) {
    const Numbered* known = GetRegistered().Find(projection);
    if (!known) {
        return false;
    }
    const double units = known->MapUnits(meters != 0);
    switch (direction) {
    case kToMap: return ToMap(*known, lon, lat, units, x, y);
    case kFromMap: return FromMap(*known, units, x, y);
    default: return false;
    }
}
