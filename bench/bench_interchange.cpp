// UDDF and UDCF written and read, against the floor: pugixml printing and parsing the same bytes.
//   bench_interchange [FILE | DIVES [SAMPLES]]
// Peaks are those of a process of its own for each piece of work.

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <pugixml.hpp>
#include <random>

#include "bench/Measure.h"
#include "bench/QuietDesk.h"
#include "interchange/Formats.h"
#include "interchange/Import.h"
#include "platform/files/SafeFile.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

QByteArray written(const Carnet& carnet, const char* format) {
    return exportFormatNamed(QLatin1String(format))->write(carnet);
}

void read(QuietDesk& bench, const QByteArray& bytes, const char* format) {
    auto carnet = bench.logbook();
    importBytes(*carnet, bytes, *diveReaderNamed(QLatin1String(format)), ImportAlerts::Collected);
    use(carnet->count());
}

void parse(const QByteArray& bytes, pugi::xml_document& document) {
    document.load_buffer(bytes.constData(), std::size_t(bytes.size()));
    use(document.first_child());
}

struct ByteSink : pugi::xml_writer {
    void write(const void* data, size_t size) override {
        bytes.append(static_cast<const char*>(data), qsizetype(size));
    }
    QByteArray bytes;
};

void print(const pugi::xml_document& document, qsizetype size) {
    ByteSink sink;
    sink.bytes.reserve(size);
    document.save(sink);
    use(sink.bytes);
}

/// As many dives of as many samples, as a UDDF reader finds them: a dive down to some depth and back.
QByteArray uddfFile(int dives, int samples) {
    std::mt19937 random(20160607);
    QByteArray bytes = "<uddf version=\"2.2.0\">\n <profiledata>\n  <repetitiongroup>\n";
    for (int i = 0; i < dives; ++i) {
        const double bottom = 15 + double(random() % 300) / 10;
        bytes += "   <dive>\n    <date><year>" + QByteArray::number(1990 + i / 700) + "</year><month>" +
                 QByteArray::number(1 + i / 60 % 12) + "</month><day>" + QByteArray::number(1 + i / 2 % 28) +
                 "</day></date>\n    <time><hour>" + QByteArray::number(9 + i % 2 * 5) + "</hour><minute>" +
                 QByteArray::number(random() % 60) +
                 "</minute></time>\n    <lowesttemperature>283.15</lowesttemperature>\n    <greatestdepth>" +
                 QByteArray::number(bottom, 'f', 1) + "</greatestdepth>\n    <samples>\n";
        for (int s = 0; s < samples; ++s) {
            const double depth = bottom * std::min({1.0, s / 20.0, (samples - s) / 60.0});
            bytes += "     <waypoint><depth>" + QByteArray::number(depth, 'f', 1) + "</depth><divetime>" +
                     QByteArray::number(s * 10) + "</divetime></waypoint>\n";
        }
        bytes += "    </samples>\n   </dive>\n";
    }
    return bytes + "  </repetitiongroup>\n </profiledata>\n</uddf>\n";
}

/// What another process needs at its peak for one piece of work, beyond what it has when it starts.
double peakOf(const QString& work, const QString& file) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--peak"), work, file});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble();
}

int printPeak(const QString& work, const QString& file) {
    QuietDesk bench;
    double before = memory("VmHWM");
    const auto forgetPeak = [&] {
        std::ofstream("/proc/self/clear_refs") << 5;
        before = memory("VmRSS");
    };
    if (work == QLatin1String("parse")) {
        const QByteArray bytes = readFile(file);
        pugi::xml_document document;
        parse(bytes, document);
    } else if (work == QLatin1String("write")) {
        auto carnet = bench.logbook();
        carnet->readBytes(readFile(file), carnet->kind().currentTypeName(bench.desk));
        forgetPeak();
        use(written(*carnet, "udcf"));
    } else {
        auto carnet = bench.logbook();
        importDives(*carnet, {file}, *diveReaderNamed(work), ImportAlerts::Collected);
    }
    std::printf("%.0f\n", memory("VmHWM") - before);
    return 0;
}

void measureReading(QuietDesk& bench, const char* format, const QByteArray& bytes, const QString& path) {
    constexpr int runs = 3;
    const double size = double(bytes.size());
    const double floor = bestOf(runs, [&] {
        pugi::xml_document document;
        parse(bytes, document);
    });
    const double whole = bestOf(runs, [&] { read(bench, bytes, format); });
    row(qPrintable(QStringLiteral("floor: parse the bytes (%1)").arg(QLatin1String(format))), floor, size, 0);
    const double tree =
        bestOf(runs, [&] { use(diveReaderNamed(QLatin1String(format))->open(bytes)->count()); });
    row(qPrintable(QStringLiteral("import %1").arg(QLatin1String(format))), whole, size, floor);
    row("    of that, until the dives are found", tree, size, floor);
    std::printf("    peak memory %.0f MB, of the parser alone %.0f MB, file %.0f MB\n",
                peakOf(QLatin1String(format), path) / 1e6, peakOf(QStringLiteral("parse"), path) / 1e6,
                size / 1e6);
}

void measureWriting(const Carnet& carnet, const char* format, const QByteArray& bytes) {
    constexpr int runs = 3;
    pugi::xml_document document;
    parse(bytes, document);
    const double floor = bestOf(runs, [&] { print(document, bytes.size()); });
    const double whole = bestOf(runs, [&] { use(written(carnet, format)); });
    row(qPrintable(QStringLiteral("floor: print the tree (%1)").arg(QLatin1String(format))), floor,
        double(bytes.size()), 0);
    row(qPrintable(QStringLiteral("export %1").arg(QLatin1String(format))), whole, double(bytes.size()),
        floor);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--peak"))
        return printPeak(arguments.value(2), arguments.value(3));
    QuietDesk bench;
    QTemporaryDir folder;
    auto carnet = bench.logbook();
    const bool isFile = QFileInfo(arguments.value(1)).isFile();
    const int dives = !isFile && arguments.size() > 1 ? arguments[1].toInt() : 10000;
    const int samples = arguments.size() > 2 ? arguments[2].toInt() : 400;
    const QByteArray uddf = uddfFile(dives, samples);
    QString logbook = arguments.value(1);
    if (isFile) {
        carnet->readBytes(readFile(logbook), carnet->kind().currentTypeName(bench.desk));
    } else {
        importBytes(*carnet, uddf, *diveReaderNamed(QStringLiteral("uddf")), ImportAlerts::Collected);
        logbook = folder.filePath(QStringLiteral("dives.carnet"));
        saveFile(logbook, carnet->dataRepresentationOfType(carnet->kind().currentTypeName(bench.desk)));
    }
    const QByteArray udcf = written(*carnet, "udcf");
    saveFile(folder.filePath(QStringLiteral("a.uddf")), uddf);
    saveFile(folder.filePath(QStringLiteral("a.udcf")), udcf);
    std::printf("%lld dives; UDCF %.1f MB, UDDF to read %.1f MB\n\n", static_cast<long long>(carnet->count()),
                double(udcf.size()) / 1e6, double(uddf.size()) / 1e6);
    measureWriting(*carnet, "udcf", udcf);
    measureWriting(*carnet, "uddf", written(*carnet, "uddf"));
    std::printf("    peak memory of an export, beyond the logbook: %.0f MB\n",
                peakOf(QStringLiteral("write"), logbook) / 1e6);
    measureReading(bench, "udcf", udcf, folder.filePath(QStringLiteral("a.udcf")));
    measureReading(bench, "uddf", uddf, folder.filePath(QStringLiteral("a.uddf")));
    return 0;
}
