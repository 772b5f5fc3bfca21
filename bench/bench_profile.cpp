// The graph of a profile, drawn into a picture as a window shows it.
//   bench_profile [SAMPLES [WIDTH HEIGHT]]

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "bench/Measure.h"
#include "profile/Profil.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

Profil makeProfil(int samples) {
    std::vector<double> depths, pressures;
    std::vector<qint32> stops, gases;
    for (int i = 0; i < samples; ++i) {
        const double share = double(i) / samples;
        depths.push_back(std::max(0.0, 40 * std::sin(share * 3.14159) + 2 * std::sin(i * 0.7)));
        pressures.push_back(200 - 150 * share);
        stops.push_back(share > 0.8);
        gases.push_back(i % 2000 == 1999 ? 1 : 0);
    }
    Profil profil;
    profil.profilData = NumberArray::ofDoubles(depths);
    profil.pressData = NumberArray::ofDoubles(pressures);
    profil.palierFlag = profil.vitesseFlag = NumberArray::ofInts(stops);
    profil.gazFlag = NumberArray::ofInts(gases);
    profil.pressDepart = 200;
    profil.samplingRate = 7;
    ProfilStyle& style = profil.style;
    style.plotColor = style.ascColor = style.slowColor = Qt::darkYellow;
    style.fillColor = QColor(30, 30, 255, 100);
    style.backgroundColor = QColor(218, 125, 38, 50);
    style.linesColor = QColor(179, 179, 179);
    style.fillPlot = style.gradient = style.xMinorTicks = style.yMinorTicks = style.dashedLines = true;
    style.alarmeASC = style.alarmeSLOW = style.alarmeGAZ = true;
    return profil;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int samples = arguments.size() > 1 ? arguments[1].toInt() : 10'000;
    const QSize size(arguments.size() > 3 ? arguments[2].toInt() : 1200,
                     arguments.size() > 3 ? arguments[3].toInt() : 700);
    const Strings strings;
    Profil profil = makeProfil(samples);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const auto drawn = [&] {
        return bestOf(20, [&] {
            QPainter painter(&image);
            profil.draw(painter, size, strings);
        });
    };
    std::printf("%d samples, %d x %d\n", samples, size.width(), size.height());
    std::printf("everything on        %8.2f ms\n", drawn() * 1e3);
    profil.style.alarmeASC = profil.style.alarmeSLOW = profil.style.alarmeGAZ = false;
    std::printf("without markers      %8.2f ms\n", drawn() * 1e3);
    return 0;
}
