#pragma once

namespace zv::host {

/// Enters GDAL's drivers, once in a process; what GDAL complains about goes to the log from then
/// on.
void StartGdal();

/// Keeps GDAL's complaints out of the log for the time of its scope: the caller tells the fault.
class QuietGdal {
  public:
    QuietGdal();
    ~QuietGdal();
    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
};

} // namespace zv::host
