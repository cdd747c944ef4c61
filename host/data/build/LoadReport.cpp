#include "data/build/LoadReport.h"

namespace zv::host {

long long SourceReport::Rejected() const {
    long long sum = 0;
    for (const auto& [reason, count] : rejected)
        sum += count;
    return sum;
}

long long LoadReport::Items() const {
    long long sum = 0;
    for (const SourceReport& source : sources)
        sum += source.items;
    return sum;
}

long long LoadReport::Rejected() const {
    long long sum = 0;
    for (const SourceReport& source : sources)
        sum += source.Rejected();
    return sum;
}

} // namespace zv::host
