#include "data/read/OgrReader.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <cmath>

#include "data/project/Words.h"
#include "data/read/Gdal.h"
#include "data/read/OgrGeometry.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

/// Tables without an extension of their own are taken as comma-separated.
bool IsTable(const std::string& path) {
    const std::string end = path.size() < 4 ? "" : path.substr(path.size() - 4);
    return EQUAL(end.c_str(), ".txt") || EQUAL(end.c_str(), ".csv");
}

GDALDataset* Open(const std::string& path) {
    const QuietGdal quiet;
    CPLErrorReset();
    const bool table = IsTable(path);
    const char* const drivers[] = {"CSV", nullptr};
    const std::string name = table ? "CSV:" + path : path;
    return GDALDataset::Open(name.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY,
                             table ? drivers : nullptr, nullptr, nullptr);
}

std::string OpenFault(const std::string& path) {
    VSIStatBufL status;
    if (VSIStatL(path.c_str(), &status) != 0) return "cannot be found";
    const std::string said = CPLGetLastErrorMsg();
    return said.empty() ? "is of no kind that can be read" : said;
}

} // namespace

const char* ParsePosition(const std::string& x, const std::string& y, CZvDispPoint& point) {
    const auto blank = [](const std::string& text) {
        return text.find_first_not_of(" \t\r") == std::string::npos;
    };
    if (blank(x) || blank(y)) return "no position";
    double xValue = 0.0, yValue = 0.0;
    if (!ParseCoordinate(x, xValue) || !ParseCoordinate(y, yValue)) return "position is no number";
    point = CZvDispPoint(xValue, yValue);
    return nullptr;
}

void OgrReader::Close::operator()(GDALDataset* dataset) const {
    GDALClose(dataset);
}

OgrReader::OgrReader(const Source& source, const std::string& path)
    : m_dataset(Open(path)), m_path(path) {
    if (!m_dataset) throw DataError(path, "", OpenFault(path));
    PickTable(source, path);
    const OGRFeatureDefn& definition = *m_table->GetLayerDefn();
    for (int i = 0; i < definition.GetFieldCount(); ++i)
        m_fields.emplace_back(definition.GetFieldDefn(i)->GetNameRef());
    if (source.position) {
        m_x = FieldPlace(source.position->x);
        m_y = FieldPlace(source.position->y);
    }
    if (!source.wkt.empty()) m_wkt = FieldPlace(source.wkt);
}

OgrReader::~OgrReader() = default;

void OgrReader::PickTable(const Source& source, const std::string& path) {
    m_table = source.layer.empty() ? m_dataset->GetLayer(0)
                                   : m_dataset->GetLayerByName(source.layer.c_str());
    if (!m_table && source.layer.empty()) throw DataError(path, "", "holds no table");
    if (!m_table) throw DataError(path, "", "has no table \"" + source.layer + "\"");
    m_table->ResetReading();
}

int OgrReader::FieldPlace(const std::string& name) const {
    const int place = m_table->GetLayerDefn()->GetFieldIndex(name.c_str());
    if (place < 0) throw DataError(m_path, "", "has no field \"" + name + "\"");
    return place;
}

bool OgrReader::Next(Feature& feature) {
    CPLErrorReset();
    const OGRFeatureUniquePtr row(m_table->GetNextFeature());
    if (!row) {
        if (CPLGetLastErrorType() == CE_Failure) throw DataError(m_path, "", CPLGetLastErrorMsg());
        return false;
    }
    feature.problem.clear();
    feature.flaw.clear();
    feature.parts.clear();
    feature.values.resize(m_fields.size());
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        feature.values[i] = row->IsFieldSetAndNotNull(int(i)) ? row->GetFieldAsString(int(i)) : "";
    if (m_x >= 0)
        ReadPosition(feature);
    else if (m_wkt >= 0)
        ReadWkt(feature);
    else
        TakeGeometry(row->GetGeometryRef(), feature);
    return true;
}

void OgrReader::ReadPosition(Feature& feature) const {
    CZvDispPoint point;
    if (const char* fault = ParsePosition(feature.values[std::size_t(m_x)],
                                          feature.values[std::size_t(m_y)], point))
        feature.problem = fault;
    else
        feature.parts = {{Shape::Point, {{point}}}};
}

void OgrReader::ReadWkt(Feature& feature) const {
    const std::string& text = feature.values[std::size_t(m_wkt)];
    if (text.find_first_not_of(" \t") == std::string::npos) {
        feature.problem = "no geometry";
        return;
    }
    OGRGeometry* raw = nullptr;
    OGRGeometryFactory::createFromWkt(text.c_str(), nullptr, &raw);
    const std::unique_ptr<OGRGeometry> geometry(raw);
    if (geometry)
        TakeGeometry(geometry.get(), feature);
    else
        feature.problem = "broken geometry";
}

std::string OgrReader::Crs() const {
    const OGRSpatialReference* reference =
        m_x < 0 && m_wkt < 0 ? m_table->GetSpatialRef() : nullptr;
    if (!reference) return {};
    char* text = nullptr;
    const char* const options[] = {"FORMAT=WKT2_2019", nullptr};
    const OGRErr fault = reference->exportToWkt(&text, options);
    const std::string wkt = fault == OGRERR_NONE && text ? text : "";
    CPLFree(text);
    return wkt;
}

long long OgrReader::Count() const {
    return m_table->GetFeatureCount(FALSE);
}

} // namespace zv::host
