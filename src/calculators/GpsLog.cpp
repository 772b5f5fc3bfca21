#include "calculators/GpsLog.h"

#include "calculators/CalculatorController.h"
#include "platform/form/SystemColors.h"

namespace sargan {

namespace {

struct LogLine {
    QStringView name;
    double value;
};

QString lines(std::initializer_list<LogLine> list) {
    QString text;
    for (const LogLine& line : list) text += u'\n' + line.name.toString() + filled(u"%.10f", {line.value});
    return text;
}

QString angle(QStringView name, const datum::Sexagesimal& value) {
    return u'\n' + name.toString() +
           filled(u"%.0f ° %.0f ' %.3f ''", {value.degrees, value.minutes, value.seconds});
}

QString ed50Lines(const datum::Ed50Place& place, const datum::Conversion& c) {
    return angle(u"  latitude : ", place.latitude) + angle(u"  longitude : ", place.longitude) +
           filled(u"\n  altitude : %.2f m", {place.height}) +
           lines({{u"  lat (deg.) : ", c.latitude},
                  {u"  lng (deg.) : ", c.longitude},
                  {u"  lat (rad.) : ", c.latitudeRadians},
                  {u"  lng (rad.) : ", c.longitudeRadians},
                  {u"  sin(lat) : ", c.sinLatitude},
                  {u"  cos(lat) : ", c.cosLatitude},
                  {u"  sin(lng) : ", c.sinLongitude},
                  {u"  cos(lng) : ", c.cosLongitude},
                  {u"  n : ", c.n},
                  {u"  x : ", c.x},
                  {u"  y : ", c.y},
                  {u"  z : ", c.z}});
}

QString wgs84Lines(const datum::Conversion& c) {
    return lines({{u"  p : ", c.p},
                  {u"  theta : ", c.theta},
                  {u"  phi : ", c.phi},
                  {u"  n : ", c.wgsN},
                  {u"  lambda : ", c.lambda}});
}

}  // namespace

QList<TextRun> conversionLog(const datum::Ed50Place& place, const datum::Conversion& conversion) {
    return {{QStringLiteral("----- ED50 -----"), systemcolor::blue},
            {ed50Lines(place, conversion) + u'\n', {}},
            {QStringLiteral("----- WGS84 -----"), systemcolor::blue},
            {wgs84Lines(conversion), {}}};
}

void logShift(const Log& log, const datum::Place& place, datum::Direction direction,
              const datum::Shift& shift) {
    const QString way = direction == datum::Direction::Ed50ToWgs84 ? QStringLiteral("ED -> WGS")
                                                                   : QStringLiteral("WGS -> ED");
    const auto line = [&log](const QString& format, double value) { log.line(filled(format, {value})); };
    line(QStringLiteral("d2r = %.15f"), datum::radiansPerDegree);
    line(QStringLiteral("r2d = %.15f"), datum::degreesPerRadian);
    line(QStringLiteral("lng ") + way + QStringLiteral(" = %f"), place.longitude);
    line(QStringLiteral("lat ") + way + QStringLiteral(" = %f"), place.latitude);
    line(QStringLiteral("alt ") + way + QStringLiteral(" = %f"), place.height);
    line(QStringLiteral("lng = %.15f"), shift.longitudeRadians);
    line(QStringLiteral("lat = %.15f"), shift.latitudeRadians);
    line(QStringLiteral("nin = %f"), shift.n);
    line(QStringLiteral("xe = %f"), shift.xBefore);
    line(QStringLiteral("ye = %f"), shift.yBefore);
    line(QStringLiteral("xs = %f"), shift.x);
    line(QStringLiteral("ys = %f"), shift.y);
    line(QStringLiteral("zs = %f\r\r"), shift.z);
    for (const double n : shift.wantedN) line(QStringLiteral("nout = %f"), n);
}

}  // namespace sargan
