#pragma once

#include <memory>

#include "data/read/FeatureReader.h"

class GDALDataset;
class OGRLayer;

namespace zv::host {

/// Reads one table of any vector source that GDAL opens: shapefiles, GeoJSON, CSV tables and what
/// else it has drivers for, in folders and archives.
///
/// The geometry of a row is the source's own; or a point from two fields of the row; or what a
/// field holds as WKT.
class OgrReader : public FeatureReader {
  public:
    /// Throws DataError naming the file and the reason.
    OgrReader(const Source& source, const std::string& path);
    ~OgrReader() override;

    const std::vector<std::string>& Fields() const override { return m_fields; }
    bool Next(Feature& feature) override;
    std::string Crs() const override;
    long long Count() const override;

  private:
    struct Close {
        void operator()(GDALDataset* dataset) const;
    };

    void PickTable(const Source& source, const std::string& path);
    int FieldPlace(const std::string& name) const;
    void ReadPosition(Feature& feature) const;
    void ReadWkt(Feature& feature) const;

    std::unique_ptr<GDALDataset, Close> m_dataset;
    OGRLayer* m_table = nullptr;
    std::string m_path;
    std::vector<std::string> m_fields;
    int m_x = -1, m_y = -1; ///< fields of the position, -1 without
    int m_wkt = -1;
};

} // namespace zv::host
