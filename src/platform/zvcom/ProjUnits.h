#pragma once

#include <string>

namespace zv {

/// Length in metres of the unit that a projected coordinate system counts in; 0 of a geographic
/// one. `definition` is anything that PROJ reads. Throws zv::DataError naming it and PROJ's reason.
double MetresPerUnit(const std::string& definition);

} // namespace zv
