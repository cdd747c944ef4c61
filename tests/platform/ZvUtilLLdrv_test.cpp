#include <gtest/gtest.h>
#include <limits>

#include "platform/Error.h"
#include "platform/zvcom/ZvUtilLLdrv.h"

namespace {

constexpr double kSurveyFoot = 1200.0 / 3937.0;
constexpr const char* kNad27 = "EPSG:4267";
constexpr const char* kUtm15 = "EPSG:26715";             ///< NAD27 / UTM zone 15N, metres
constexpr const char* kLouisianaOffshore = "EPSG:32099"; ///< NAD27 State Plane, US survey feet
constexpr int kToMap = 1, kFromMap = 2, kFeet = 0, kMeters = 1;

struct Known {
    double lat, lon, x, y;
};

/// Places of the Gulf in UTM zone 15 (metres) and State Plane (feet), by gdaltransform and, to the
/// last digit shown, by the series of Krueger and the formulas of the Lambert conic.
constexpr Known kInUtm15[] = {{28.25, -90.5, 745284.65789588, 3127257.79641412},
                              {29.0, -89.0, 889776.32785037, 3214412.73609064},
                              {26.5, -93.0, 500000.0, 2930892.64910165}};
constexpr Known kInStatePlane[] = {{28.25, -90.5, 2268339.50383427, 939937.14880964},
                                   {29.0, -89.0, 2746270.03928884, 1218732.79497024},
                                   {26.5, -93.0, 1454931.55749708, 306496.74436567}};
constexpr double kMillimetre = 1e-3;
constexpr double kMillimetreOfArc = 1e-8;

struct Result {
    bool done;
    double x, y;
};

Result ToMap(int projection, double lat, double lon, int meters) {
    Result result{false, -1.0, -2.0};
    result.done = CZvUtilLLdrv::LLdrv(lat, lon, &result.x, &result.y, projection, meters, kToMap,
                                      100.0f, 0.0f, 0.0f);
    return result;
}

Result FromMap(int projection, double x, double y, int meters) {
    Result result{false, x, y};
    result.done = CZvUtilLLdrv::LLdrv(0.0, 0.0, &result.x, &result.y, projection, meters, kFromMap,
                                      100.0f, 0.0f, 0.0f);
    return result;
}

} // namespace

TEST(LLdrv, GivesUtmMetres) {
    const int utm = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    for (const Known& known : kInUtm15) {
        const Result map = ToMap(utm, known.lat, known.lon, kMeters);
        ASSERT_TRUE(map.done);
        EXPECT_NEAR(map.x, known.x, kMillimetre);
        EXPECT_NEAR(map.y, known.y, kMillimetre);
    }
}

TEST(LLdrv, GivesStatePlaneFeet) {
    const int plane = CZvUtilLLdrv::S_RegisterProjection(kLouisianaOffshore, kNad27);
    for (const Known& known : kInStatePlane) {
        const Result map = ToMap(plane, known.lat, known.lon, kFeet);
        ASSERT_TRUE(map.done);
        EXPECT_NEAR(map.x, known.x, kMillimetre);
        EXPECT_NEAR(map.y, known.y, kMillimetre);
    }
}

TEST(LLdrv, TurnsMetresToFeetWhereTheMapCountsFeet) {
    const int utm = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    const Result map = ToMap(utm, kInUtm15[0].lat, kInUtm15[0].lon, kFeet);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.x, kInUtm15[0].x / kSurveyFoot, kMillimetre);
    EXPECT_NEAR(map.y, kInUtm15[0].y / kSurveyFoot, kMillimetre);
}

TEST(LLdrv, TurnsFeetToMetresWhereTheMapCountsMetres) {
    const int plane = CZvUtilLLdrv::S_RegisterProjection(kLouisianaOffshore, kNad27);
    const Result map = ToMap(plane, kInStatePlane[0].lat, kInStatePlane[0].lon, kMeters);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.x, kInStatePlane[0].x * kSurveyFoot, kMillimetre);
    EXPECT_NEAR(map.y, kInStatePlane[0].y * kSurveyFoot, kMillimetre);
}

TEST(LLdrv, GoesBackInEitherUnit) {
    const int utm = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    const int plane = CZvUtilLLdrv::S_RegisterProjection(kLouisianaOffshore, kNad27);
    const Known& u = kInUtm15[1];
    const Known& p = kInStatePlane[1];
    for (const Result& place : {FromMap(utm, u.x, u.y, kMeters),
                                FromMap(utm, u.x / kSurveyFoot, u.y / kSurveyFoot, kFeet),
                                FromMap(plane, p.x, p.y, kFeet),
                                FromMap(plane, p.x * kSurveyFoot, p.y * kSurveyFoot, kMeters)}) {
        ASSERT_TRUE(place.done);
        EXPECT_NEAR(place.x, -89.0, kMillimetreOfArc);
        EXPECT_NEAR(place.y, 29.0, kMillimetreOfArc);
    }
}

TEST(LLdrv, ShiftsTheDatum) {
    // The same projection on NAD27, fed with latitudes of the world system: the Gulf moves by some
    // 30 m to the south and 10 m to the east. Grids, where they are installed, refine it by metres.
    const int shifted = CZvUtilLLdrv::S_RegisterProjection(kUtm15, "EPSG:4326");
    const int plain = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    const Result map = ToMap(shifted, 28.25, -90.5, kMeters);
    const Result same = ToMap(plain, 28.25, -90.5, kMeters);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.y - same.y, -31.4, 6.0);
    EXPECT_NEAR(map.x - same.x, 10.0, 6.0);
}

TEST(LLdrv, KnowsOnlyNumbersThatWereEntered) {
    for (const int number : {0, -1, 1'000'000}) {
        const Result map = ToMap(number, 28.25, -90.5, kMeters);
        EXPECT_FALSE(map.done);
        EXPECT_EQ(map.x, -1.0);
        EXPECT_EQ(map.y, -2.0);
    }
}

TEST(LLdrv, LeavesItsResultsAloneForAPointWithoutImage) {
    const int utm = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    for (const double lat : {91.0, -1000.0, std::numeric_limits<double>::quiet_NaN()}) {
        const Result map = ToMap(utm, lat, -90.5, kMeters);
        EXPECT_FALSE(map.done);
        EXPECT_EQ(map.x, -1.0);
        EXPECT_EQ(map.y, -2.0);
    }
}

TEST(LLdrv, RefusesOtherDirections) {
    const int utm = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    double x = 5.0, y = 6.0;
    EXPECT_FALSE(CZvUtilLLdrv::LLdrv(28, -90, &x, &y, utm, kMeters, 3, 100.0f, 0.0f, 0.0f));
    EXPECT_EQ(x, 5.0);
    EXPECT_EQ(y, 6.0);
}

TEST(RegisterProjection, GivesTheSameNumberToTheSameDefinitions) {
    const int first = CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27);
    EXPECT_GE(first, 1);
    EXPECT_EQ(CZvUtilLLdrv::S_RegisterProjection(kUtm15, kNad27), first);
    EXPECT_NE(CZvUtilLLdrv::S_RegisterProjection(kUtm15, "EPSG:4326"), first);
    EXPECT_NE(CZvUtilLLdrv::S_RegisterProjection(kLouisianaOffshore, kNad27), first);
}

TEST(RegisterProjection, NamesADefinitionThatProjDoesNotRead) {
    for (const char* bad : {"EPSG:999999", "", "+proj=nonsense", "no such system at all"}) {
        try {
            CZvUtilLLdrv::S_RegisterProjection(bad, kNad27);
            FAIL() << bad;
        } catch (const zv::DataError& error) {
            EXPECT_EQ(error.GetError().place, "projection \"" + std::string(bad) + "\"");
            EXPECT_FALSE(error.GetError().reason.empty());
        }
    }
}

TEST(Projection, ReadsProjStringsWithTheirUnits) {
    const int feet = CZvUtilLLdrv::S_RegisterProjection(
        "+proj=utm +zone=15 +datum=NAD27 +units=us-ft", "+proj=longlat +datum=NAD27");
    const Result map = ToMap(feet, kInUtm15[0].lat, kInUtm15[0].lon, kMeters);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.x, kInUtm15[0].x, kMillimetre);
    EXPECT_NEAR(map.y, kInUtm15[0].y, kMillimetre);
}

TEST(Projection, TellsInternationalFromSurveyFeet) {
    const int feet = CZvUtilLLdrv::S_RegisterProjection("+proj=utm +zone=15 +datum=NAD27 +units=ft",
                                                        "+proj=longlat +datum=NAD27");
    const Result map = ToMap(feet, kInUtm15[0].lat, kInUtm15[0].lon, kFeet);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.x, kInUtm15[0].x / kSurveyFoot, kMillimetre);
    EXPECT_NEAR(map.y, kInUtm15[0].y / kSurveyFoot, kMillimetre);
}

TEST(Projection, FindsTheUnitUnderAGivenDatumShift) {
    const int feet = CZvUtilLLdrv::S_RegisterProjection(
        "+proj=utm +zone=15 +ellps=clrk66 +towgs84=-8,160,176 +units=us-ft",
        "+proj=longlat +ellps=clrk66 +towgs84=-8,160,176");
    const Result map = ToMap(feet, kInUtm15[0].lat, kInUtm15[0].lon, kMeters);
    ASSERT_TRUE(map.done);
    EXPECT_NEAR(map.x, kInUtm15[0].x, kMillimetre);
    EXPECT_NEAR(map.y, kInUtm15[0].y, kMillimetre);
}

TEST(Projection, OntoLatitudeAndLongitudeKeepsDegrees) {
    const int none = CZvUtilLLdrv::S_RegisterProjection(kNad27, kNad27);
    const Result map = ToMap(none, 28.25, -90.5, kFeet);
    ASSERT_TRUE(map.done);
    EXPECT_DOUBLE_EQ(map.x, -90.5);
    EXPECT_DOUBLE_EQ(map.y, 28.25);
}

TEST(Projection, TakesEastBeforeNorthAndReturns) {
    const zv::Projection projection(kNad27, kUtm15);
    double x = -90.5, y = 28.25;
    ASSERT_TRUE(projection.Forward(x, y));
    EXPECT_NEAR(x, kInUtm15[0].x, kMillimetre);
    ASSERT_TRUE(projection.Back(x, y));
    EXPECT_NEAR(x, -90.5, kMillimetreOfArc);
    EXPECT_NEAR(y, 28.25, kMillimetreOfArc);
}

TEST(Projection, NamesTheFirstDefinitionToo) {
    try {
        zv::Projection("EPSG:999999", kUtm15);
        FAIL();
    } catch (const zv::DataError& error) {
        EXPECT_EQ(error.GetError().place, "projection \"EPSG:999999\"");
    }
}

TEST(Projection, WorksAfterAMove) {
    zv::Projection first(kNad27, kUtm15);
    const zv::Projection second = std::move(first);
    double x = -93.0, y = 26.5;
    ASSERT_TRUE(second.Forward(x, y));
    EXPECT_NEAR(x, 500000.0, kMillimetre);
}
