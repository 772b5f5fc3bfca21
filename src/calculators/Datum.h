#pragma once

#include <array>

/// Between the European datum ED50 (ellipsoid International 1924) and WGS84. Angles in degrees unless they
/// say otherwise, east and north positive; lengths in metres, heights above the ellipsoid. Nothing is
/// checked: angles beyond the globe are converted as they are.
namespace sargan::datum {

inline constexpr double radiansPerDegree = 0.017453292519943295;
inline constexpr double degreesPerRadian = 57.29577951308232;

/// An angle as people write it. Minutes and seconds are added whatever the sign of the degrees.
struct Sexagesimal {
    double degrees = 0;
    double minutes = 0;
    double seconds = 0;

    double inDegrees() const { return degrees + minutes / 60 + seconds / 3600; }
    /// Degrees and minutes rounded down, so that seconds are never negative: -5.5 is -6 degrees 30 minutes.
    static Sexagesimal of(double degrees);
};

/// A place given on ED50.
struct Ed50Place {
    Sexagesimal longitude;
    Sexagesimal latitude;
    double height = 0;
};

/// The conversion from ED50 to WGS84 with every number on its way.
struct Conversion {
    // On ED50
    double latitude, longitude;  ///< degrees
    double latitudeRadians, longitudeRadians;
    double sinLatitude, cosLatitude, sinLongitude, cosLongitude;
    double n;        ///< radius of curvature in the prime vertical
    double x, y, z;  ///< geocentric
    // On WGS84
    double p;                   ///< distance from the axis
    double theta, phi, lambda;  ///< auxiliary angle, latitude, longitude, in radians
    double wgsN;
    double wgsLatitude, wgsLongitude;  ///< degrees
    double height;
};

/// Seven parameters, then Bowring's formula for the latitude, which is good to far below a millimetre. The
/// numbers are those of EPSG 1613, made for the North Sea off Norway, but the rotation about the x axis goes
/// the other way round: longitudes come out 15 to 20 m farther east than the published set would put them.
Conversion wgs84FromEd50(const Ed50Place& place);

enum class Direction : char { Ed50ToWgs84, Wgs84ToEd50 };

/// A place in decimal degrees.
struct Place {
    double longitude = 0;
    double latitude = 0;
    double height = 0;
};

/// A three-parameter shift with every number on its way.
struct Shift {
    double longitudeRadians, latitudeRadians;  ///< of what was given
    double n;                                  ///< radius of curvature that the input is taken with
    double xBefore, yBefore;                   ///< geocentric, before and after the shift
    double x, y, z;
    std::array<double, 5> wantedN;  ///< radius of curvature on the other ellipsoid, by iteration
    Place place;
};

/// The mean shift for Europe (87, 98, 121 m; TR 8350.2, EPSG 1133), good to some 10 m. The radius of
/// curvature of the input is a fixed value, that of latitude 51 degrees: away from there latitudes go wrong
/// by up to 22 m, heights by up to 13 km, and converting back does not lead to the start.
Shift shifted(const Place& place, Direction direction);

}  // namespace sargan::datum
