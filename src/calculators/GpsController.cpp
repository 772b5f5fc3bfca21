#include "calculators/GpsController.h"

#include "calculators/GpsLog.h"

namespace sargan {

namespace {

constexpr ControlName geodesie{"geodesiePopUp"};
constexpr ControlName altitudeIn{"altitude_inField"};
constexpr ControlName longitudeOut{"longitude_outField"};
constexpr ControlName latitudeOut{"latitude_outField"};
constexpr ControlName altitudeOut{"altitude_outField"};

QString wgs84(double degrees) {
    const auto angle = datum::Sexagesimal::of(degrees);
    return filled(u"WGS84 %.0f° %.0f' %.3f''", {angle.degrees, angle.minutes, angle.seconds});
}

}  // namespace

GpsController::GpsController(const CalculatorSpec& spec, Form& form, Desk& desk)
    : CalculatorController(spec, form, desk) {
    offer("convertGPS", [this] { convertGPS(); });
    offer("convertGPS2", [this] { convertGPS2(); });
}

void GpsController::convertGPS() {
    convertCoordonates(
        {angle({"longitude_in_degreeField"}, {"longitude_in_minutesField"}, {"longitude_in_secondsField"}),
         angle({"latitude_in_degreeField"}, {"latitude_in_minutesField"}, {"latitude_in_secondsField"}),
         number(altitudeIn)});
}

void GpsController::convertGPS2() {
    convertLongitude(number({"longitude_inField"}), number({"latitude_inField"}), number(altitudeIn));
}

void GpsController::convertCoordonates(const datum::Ed50Place& place) {
    const datum::Conversion conversion = datum::wgs84FromEd50(place);
    show(longitudeOut, wgs84(conversion.wgsLongitude));
    show(latitudeOut, wgs84(conversion.wgsLatitude));
    show(altitudeOut, filled(u"%.1f m", {conversion.height}));
    form().setRuns(form()[ControlName{"gpsDataField"}], conversionLog(place, conversion));
}

void GpsController::convertLongitude(double longitude, double latitude, double altitude) {
    const datum::Place place{longitude, latitude, altitude};
    const datum::Direction way = direction();
    const datum::Shift shift = datum::shifted(place, way);
    logShift(log(), place, way, shift);
    show(longitudeOut, filled(u"%.6f", {shift.place.longitude}));
    show(latitudeOut, filled(u"%.6f", {shift.place.latitude}));
    show(altitudeOut, filled(u"Altitude : %.2f m", {shift.place.height}));
}

datum::Sexagesimal GpsController::angle(ControlName degrees, ControlName minutes, ControlName seconds) const {
    return {number(degrees), number(minutes), number(seconds)};
}

datum::Direction GpsController::direction() const {
    switch (form().tag(geodesie)) {
        case 0:
            return datum::Direction::Ed50ToWgs84;
        case 1:
            return datum::Direction::Wgs84ToEd50;
        default:
            throw ControlValueError(QString::fromLatin1(geodesie.text), QStringLiteral("takes 0 or 1"));
    }
}

}  // namespace sargan
