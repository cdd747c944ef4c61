#include "map/Shapefile.h"

#include <ogrsf_frmts.h>

#include <stdexcept>

#include "map/Lines.h"

namespace zv::bench {

void WriteShapefile(const std::string& path, long count) {
    GDALAllRegister();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    std::unique_ptr<GDALDataset> file(driver->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
    if (!file) throw std::runtime_error("cannot write " + path);
    OGRLayer* layer = file->CreateLayer("lines", nullptr, wkbLineString, nullptr);
    OGRFieldDefn id("ID", OFTInteger);
    layer->CreateField(&id);
    for (long i = 0; i < count; ++i) {
        std::unique_ptr<OGRFeature> feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
        auto line = std::make_unique<OGRLineString>();
        for (const CZvDispPoint& vertex : Vertices(i, count))
            line->addPoint(vertex.GetX(), vertex.GetY());
        feature->SetField(0, static_cast<int>(i));
        feature->SetGeometryDirectly(line.release());
        if (layer->CreateFeature(feature.get()) != OGRERR_NONE)
            throw std::runtime_error("cannot write a feature of " + path);
    }
}

long ReadShapefile(const std::string& path) {
    GDALAllRegister();
    std::unique_ptr<GDALDataset> file(GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR));
    if (!file) throw std::runtime_error("cannot read " + path);
    long vertices = 0;
    for (const auto& feature : *file->GetLayer(0))
        vertices += feature->GetGeometryRef()->toLineString()->getNumPoints();
    return vertices;
}

} // namespace zv::bench
