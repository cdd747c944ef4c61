#include "data/build/LoadReport.h"

#include <algorithm>

namespace zv::host {
namespace {

long long Sum(const std::vector<SourceReport>& sources, long long SourceReport::*count) {
    long long sum = 0;
    for (const SourceReport& source : sources)
        sum += source.*count;
    return sum;
}

} // namespace

long long LoadReport::Items() const {
    return Sum(sources, &SourceReport::items);
}

long long LoadReport::Rejected() const {
    return Sum(sources, &SourceReport::rejected);
}

long long LoadReport::Fewer() const {
    return Sum(sources, &SourceReport::fewer);
}

void RowOutcome::Reject(const std::string& reason) {
    if (std::find(m_reasons.begin(), m_reasons.end(), reason) != m_reasons.end()) return;
    m_reasons.push_back(reason);
    ++m_report.reasons[reason];
}

RowOutcome::~RowOutcome() {
    if (!m_asked)
        ++m_report.filtered;
    else if (!m_gave)
        ++m_report.rejected;
    else if (!m_reasons.empty())
        ++m_report.fewer;
}

} // namespace zv::host
