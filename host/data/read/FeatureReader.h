#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/project/Project.h"
#include "data/read/Feature.h"

namespace zv::host {

/// Reads the rows of one source, one after another.
class FeatureReader {
  public:
    virtual ~FeatureReader() = default;

    virtual const std::vector<std::string>& Fields() const = 0;
    /// False at the end. Throws DataError when the source itself breaks off.
    virtual bool Next(Feature& feature) = 0;
    /// Coordinate system that the source names; empty when it names none.
    virtual std::string Crs() const = 0;
    /// Rows in the source, or -1 when that is not known beforehand.
    virtual long long Count() const = 0;
};

/// Opens the source's file, which lies relative to `folder` unless its path is absolute. Throws
/// DataError naming file and reason.
std::unique_ptr<FeatureReader> OpenSource(const Source& source, const std::string& folder);

/// Path of a source's file, as GDAL opens it.
std::string SourcePath(const std::string& file, const std::string& member,
                       const std::string& folder);

/// Parses both coordinates of a point. Null when it worked, else why not.
const char* ParsePosition(const std::string& x, const std::string& y, CZvDispPoint& point);

} // namespace zv::host
