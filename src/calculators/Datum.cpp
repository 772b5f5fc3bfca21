#include "calculators/Datum.h"

#include <cmath>

namespace sargan::datum {

namespace {

// The two ellipsoids; `ratio` is b/a, the square root of 1 - e2.
constexpr double ed50Axis = 6378388;
constexpr double ed50E2 = 0.006722670022333177;
constexpr double ed50OneLessE2 = 0.9932773299776668;
constexpr double wgsAxis = 6378137;
constexpr double wgsE2 = 0.00669437999014133;
constexpr double wgsRatio = 0.9966471893352525;
constexpr double wgsE2Axis = 42697.672707180056;

struct Vector {
    double x, y, z;
};

/// Rotations 0.333, 0.077 and 0.894 seconds of arc, in radians; scale 1.994 parts in a million.
Vector sevenParameters(const Vector& from) {
    constexpr double rx = 1.614e-6;
    constexpr double ry = 3.73e-7;
    constexpr double rz = 4.334e-6;
    constexpr double scale = 1.000001994;
    return {(from.x - rz * from.y + ry * from.z) * scale - 90.365,
            (from.y + rz * from.x + rx * from.z) * scale - 101.13,
            (from.z - ry * from.x - rx * from.y) * scale - 123.384};
}

Conversion onEd50(const Ed50Place& place) {
    Conversion c{};
    c.longitude = place.longitude.inDegrees();
    c.latitude = place.latitude.inDegrees();
    c.longitudeRadians = c.longitude * radiansPerDegree;
    c.latitudeRadians = c.latitude * radiansPerDegree;
    c.sinLatitude = std::sin(c.latitudeRadians);
    c.cosLatitude = std::cos(c.latitudeRadians);
    c.sinLongitude = std::sin(c.longitudeRadians);
    c.cosLongitude = std::cos(c.longitudeRadians);
    c.n = ed50Axis / std::sqrt(1 - ed50E2 * c.sinLatitude * c.sinLatitude);
    c.x = (c.n + place.height) * c.cosLatitude * c.cosLongitude;
    c.y = (c.n + place.height) * c.cosLatitude * c.sinLongitude;
    c.z = (c.n * ed50OneLessE2 + place.height) * c.sinLatitude;
    return c;
}

double cubed(double value) {
    return value * value * value;
}

void toWgs84(Conversion& c, const Vector& at) {
    c.p = std::sqrt(at.x * at.x + at.y * at.y);
    c.theta = std::atan2(at.z, c.p * wgsRatio);
    c.phi = std::atan2(at.z + wgsE2Axis * cubed(std::sin(c.theta)) / wgsRatio,
                       c.p - wgsE2Axis * cubed(std::cos(c.theta)));
    const double sinPhi = std::sin(c.phi);
    c.wgsN = wgsAxis / std::sqrt(1 - wgsE2 * sinPhi * sinPhi);
    c.lambda = std::atan2(at.y, at.x);
    c.height = c.p / std::cos(c.phi) - c.wgsN;
    c.wgsLatitude = c.phi * degreesPerRadian;
    c.wgsLongitude = c.lambda * degreesPerRadian;
}

struct ShiftParameters {
    double e2In;
    double axisOut, e2Out;
    Vector shift;
};

/// The squared eccentricities are rounded as they are used with these shifts.
constexpr ShiftParameters parametersOf(Direction direction) {
    constexpr double ed50 = 0.00672267;
    constexpr double wgs = 0.00669438;
    if (direction == Direction::Ed50ToWgs84) return {ed50, wgsAxis, wgs, {-87, -98, -121}};
    return {wgs, ed50Axis, ed50, {87, 98, 121}};
}

}  // namespace

Sexagesimal Sexagesimal::of(double degrees) {
    Sexagesimal angle;
    angle.degrees = std::floor(degrees);
    const double fraction = degrees - angle.degrees;
    angle.minutes = std::floor(fraction * 60);
    angle.seconds = (fraction * 60 - angle.minutes) * 60;
    return angle;
}

Conversion wgs84FromEd50(const Ed50Place& place) {
    Conversion c = onEd50(place);
    toWgs84(c, sevenParameters({c.x, c.y, c.z}));
    return c;
}

Shift shifted(const Place& place, Direction direction) {
    const ShiftParameters with = parametersOf(direction);
    Shift s{};
    s.longitudeRadians = place.longitude * radiansPerDegree;
    s.latitudeRadians = place.latitude * radiansPerDegree;
    s.n = 6391302.701250945;
    const double fromAxis = (s.n + place.height) * std::cos(s.latitudeRadians);
    s.xBefore = fromAxis * std::cos(s.longitudeRadians);
    s.yBefore = fromAxis * std::sin(s.longitudeRadians);
    s.x = s.xBefore + with.shift.x;
    s.y = s.yBefore + with.shift.y;
    s.z = ((1 - with.e2In) * s.n + place.height) * std::sin(s.latitudeRadians) + with.shift.z;
    const double p = std::sqrt(s.x * s.x + s.y * s.y);
    double phi = 0;
    for (double& n : s.wantedN) {
        const double sinPhi = std::sin(phi);
        n = with.axisOut / std::sqrt(1 - with.e2Out * sinPhi * sinPhi);
        phi = std::atan((s.z + with.e2Out * n * sinPhi) / p);
    }
    s.place.latitude = phi * degreesPerRadian;
    s.place.longitude = 2 * std::atan(s.y / (s.x + p)) * degreesPerRadian;
    s.place.height = p * std::cos(phi) + s.z * std::sin(phi) - with.axisOut * with.axisOut / s.wantedN.back();
    return s;
}

}  // namespace sargan::datum
