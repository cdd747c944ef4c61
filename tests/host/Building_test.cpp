#include <gtest/gtest.h>

#include <cmath>

#include "data/build/ItemMaker.h"
#include "data/build/LabelPlacer.h"
#include "data/build/MapFrame.h"
#include "data/furniture/FurnitureBuilder.h"
#include "data/furniture/Grid.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

Project LocalProject() {
    Project project;
    project.feet = true;
    project.scale = 1000;
    project.bounds = {0, 0, 20000, 10000};
    return project;
}

TEST(MapFrame, CountsFeetInAnInchOnAFeetMap) {
    const MapFrame frame(LocalProject(), "p");
    EXPECT_DOUBLE_EQ(frame.Inches(0.5), 500.0);
    EXPECT_TRUE(frame.Bounds().GetXYBounded());
    EXPECT_EQ(frame.Bounds().GetScale(), 1000);
}

TEST(MapFrame, TakesTheScaleOfAMetreMapAsARatio) {
    Project project = LocalProject();
    project.feet = false;
    const MapFrame frame(project, "p");
    EXPECT_DOUBLE_EQ(frame.Inches(1.0), 1000.0 / (3.28083333 * 12.0));
}

TEST(MapFrame, ProjectsABoxOfLatitudesAndLongitudes) {
    Project project;
    project.crs = "EPSG:26782"; // its axis is 91 degrees 20 minutes west, x there 2,000,000 feet
    project.geographic = "EPSG:4267";
    project.scale = 12000;
    project.boundsByLatLon = true;
    project.bounds = {28.0 + 40.0 / 60.0, -91.0 - 50.0 / 60.0, 29.0, -90.0 - 50.0 / 60.0};
    const CZvMapBounds bounds = MapFrame(project, "p").Bounds();
    EXPECT_TRUE(bounds.GetFeet());
    EXPECT_FALSE(bounds.GetXYBounded());
    EXPECT_NEAR((bounds.GetXMin() + bounds.GetXMax()) / 2.0, 2000000.0, 0.5);
    EXPECT_NEAR(bounds.GetYMin(), 0.0, 0.5);
    EXPECT_DOUBLE_EQ(bounds.GetLatMax(), 29.0);
}

TEST(MapFrame, SaysWhyAPointHasNoPlaceOnTheMap) {
    Project project = LocalProject();
    project.crs = "EPSG:26782";
    const ToMap convert = MapFrame(project, "p").From("EPSG:4267");
    CZvDispPoint far(-91.0, 95.0);
    EXPECT_STREQ(convert.Convert(far), "latitude or longitude out of range");
    CZvDispPoint near(-91.0, 29.0);
    EXPECT_EQ(convert.Convert(near), nullptr);
}

TEST(MapFrame, ConvertsBetweenTheUnitsOfProjectionAndMap) {
    Project project = LocalProject();
    project.crs = "EPSG:32615"; // metres; the map counts US survey feet
    const ToMap convert = MapFrame(project, "p").From("EPSG:4326");
    CZvDispPoint point(-93.0, 0.0); // easting 500,000 m, northing 0
    ASSERT_EQ(convert.Convert(point), nullptr);
    EXPECT_NEAR(point.GetX(), 500000.0 * 3937.0 / 1200.0, 0.01);
    EXPECT_TRUE(convert.Back(point));
    EXPECT_NEAR(point.GetX(), -93.0, 1e-9);
}

TEST(MapFrame, RefusesAGeographicSystemForTheMap) {
    Project project = LocalProject();
    project.crs = "EPSG:4267";
    EXPECT_THROW(MapFrame(project, "p"), DataError);
    project.crs = "EPSG:nothing";
    EXPECT_THROW(MapFrame(project, "p"), DataError);
}

TEST(LabelText, TurnsTheDegreeSignIntoTheTabOfTheStrokeFont) {
    int lost = 0;
    EXPECT_EQ(LabelText("28\xC2\xB0N", lost), "28\tN");
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(LabelText("\xE2\x82\xAC \xC5\x82", lost), "\x80 ?");
    EXPECT_EQ(lost, 1);
}

TEST(Upright, KeepsTextReadableFromTheLeft) {
    EXPECT_DOUBLE_EQ(Upright(30.0), 30.0);
    EXPECT_DOUBLE_EQ(Upright(135.0), -45.0);
    EXPECT_DOUBLE_EQ(Upright(90.0), 90.0);
    EXPECT_DOUBLE_EQ(Upright(270.0), 90.0);
    EXPECT_DOUBLE_EQ(Upright(181.0), 1.0);
}

TEST(StandOf, TakesTheMiddleOfTheLongestStretchOfALine) {
    const Part line{Shape::Line, {{{0, 0}, {2, 0}, {2, 8}}}};
    EXPECT_DOUBLE_EQ(StandOf(line, Anchor::Centre).point.GetY(), 4.0);
    EXPECT_DOUBLE_EQ(StandOf(line, Anchor::Centre).direction, 90.0);
    EXPECT_DOUBLE_EQ(StandOf(line, Anchor::First).direction, 0.0);
    EXPECT_DOUBLE_EQ(StandOf(line, Anchor::Last).point.GetY(), 8.0);
}

TEST(StandOf, TakesTheCentreOfAnArea) {
    const Part area{Shape::Area, {{{0, 0}, {4, 0}, {4, 2}, {0, 2}}}};
    EXPECT_DOUBLE_EQ(StandOf(area, Anchor::Centre).point.GetX(), 2.0);
    EXPECT_DOUBLE_EQ(StandOf(area, Anchor::Centre).point.GetY(), 1.0);
}

/// A label "AB", 1 high and so 2 - 1/3 wide, one unit to the right of its point.
CZvDispText& Labelled(CZvDispText& text, const CZvDispPoint& point) {
    text.SetLabel("AB");
    text.SetVertHeight(1.0f);
    text.SetHorzJustify('l');
    text.SetPoint(point + CZvDispPoint(1.0, 0.0));
    return text;
}

TEST(LabelPlacer, LeavesALabelWhereThereIsRoom) {
    LabelPlacer placer(5.0);
    CZvDispText text;
    EXPECT_TRUE(placer.Place(Labelled(text, {0, 0}), {0, 0}));
    EXPECT_DOUBLE_EQ(text.GetPoint().GetX(), 1.0);
}

TEST(LabelPlacer, MovesALabelToTheOtherSideOfItsPoint) {
    LabelPlacer placer(5.0);
    placer.AddObstacle({1.5, -2.0, 2.0, 2.0});
    CZvDispText text;
    EXPECT_TRUE(placer.Place(Labelled(text, {0, 0}), {0, 0}));
    EXPECT_EQ(text.GetHorzJustify(), 'r');
    EXPECT_DOUBLE_EQ(text.GetPoint().GetX(), -1.0);
}

TEST(LabelPlacer, KeepsLabelsOffEachOther) {
    LabelPlacer placer(5.0);
    CZvDispText first, second;
    EXPECT_TRUE(placer.Place(Labelled(first, {0, 0}), {0, 0}));
    EXPECT_TRUE(placer.Place(Labelled(second, {0.5, 0}), {0.5, 0}));
    EXPECT_FALSE(BoxOf(first).Meets(BoxOf(second)));
}

TEST(LabelPlacer, GivesUpWhereThereIsNoRoom) {
    LabelPlacer placer(5.0);
    placer.AddObstacle({-9, -9, 9, 9});
    CZvDispText text;
    EXPECT_FALSE(placer.Place(Labelled(text, {0, 0}), {0, 0}));
    EXPECT_DOUBLE_EQ(text.GetPoint().GetX(), 1.0);
    EXPECT_EQ(text.GetHorzJustify(), 'l');
}

TEST(LabelPlacer, PlacesOneOfSeveralEqualLabelsOfAPoint) {
    LabelPlacer placer(5.0);
    CZvDispText first, second;
    EXPECT_TRUE(placer.Place(Labelled(first, {0, 0}), {0, 0}));
    EXPECT_FALSE(placer.Place(Labelled(second, {0, 0}), {0, 0}));
}

TEST(AngleLabel, ShowsWhatTheStepNeeds) {
    EXPECT_EQ(AngleLabel(28.0, 1.0, 'N', 'S'), "28\xC2\xB0N");
    EXPECT_EQ(AngleLabel(-91.5, 0.5, 'E', 'W'), "91\xC2\xB0"
                                                "30'W");
    EXPECT_EQ(AngleLabel(-91.0 - 1.0 / 6.0, 1.0 / 6.0, 'E', 'W'), "91\xC2\xB0"
                                                                  "10'W");
    EXPECT_EQ(AngleLabel(10.0 + 1.0 / 120.0, 1.0 / 120.0, 'N', 'S'), "10\xC2\xB0"
                                                                     "00'30\"N");
    EXPECT_EQ(AngleLabel(0.0, 1.0, 'N', 'S'), "0\xC2\xB0");
}

TEST(FittingHeight, NarrowsLongTextsOnly) {
    EXPECT_DOUBLE_EQ(FittingHeight("ABCD", 4.0, 0.5), 0.5);
    EXPECT_DOUBLE_EQ(FittingHeight("ABCDEFGHIJ", 4.0, 0.5), 0.4);
    EXPECT_DOUBLE_EQ(FittingHeight("", 4.0, 0.5), 0.5);
}

TEST(LegendDetail, NamesTheSettingsOfEachLegend) {
    EXPECT_EQ(LegendDetail(0), "LEGEND_DETAIL\\WELL_LEGEND");
    EXPECT_EQ(LegendDetail(1), "LEGEND_DETAIL\\LEASE_LEGEND");
    EXPECT_EQ(LegendDetail(8), "LEGEND_DETAIL\\PLATFORM_LEGEND");
}

} // namespace
} // namespace zv::host
