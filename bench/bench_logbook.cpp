// A whole logbook read and written, against the floor: reading the file's bytes and copying the numbers.
//   bench_logbook [FILE | DIVES [SAMPLES]]

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <cstring>
#include <random>

#include "bench/Measure.h"
#include "logbook/PlongeeArchive.h"
#include "platform/files/SafeFile.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

/// A dive to some depth and back: depths to a decimetre, pressures to a bar or half a bar.
Plongee makeDive(int number, int samples, std::mt19937& random) {
    std::vector<double> depths, pressures;
    std::vector<qint32> flags(std::size_t(samples), 0), slow(std::size_t(samples), 0);
    const double bottom = 15 + double(random() % 300) / 10;
    for (int i = 0; i < samples; ++i) {
        const double share = std::min({1.0, i / 20.0, (samples - i) / 60.0});
        depths.push_back(double(qRound(bottom * share * 10 + double(random() % 9))) / 10);
        pressures.push_back(double(qRound(400 - 300.0 * i / samples)) / 2);
        slow[std::size_t(i)] = random() % 50 == 0;
    }
    Plongee dive;
    dive.setNoPlongee(number);
    dive.setProfilProfondeur(NumberArray::ofDoubles(depths));
    dive.setPRESS_Data(NumberArray::ofDoubles(pressures));
    dive.setSLOW_Flag(NumberArray::ofInts(slow));
    for (auto set :
         {&Plongee::setASC_Flag, &Plongee::setSURF_Flag, &Plongee::setCEIL_Flag, &Plongee::setGAZ_Flag})
        (dive.*set)(NumberArray::ofInts(flags));
    dive.setDate(Moment::fromSeconds(4e8 + number * 86400.0));
    dive.setHeure(Moment::fromSeconds(36000));
    dive.setLieu(QStringLiteral("Lieu %1").arg(number % 80));
    dive.setSite(QStringLiteral("Le tombant du phare %1").arg(number % 300));
    dive.setNotes(QStringLiteral("Belle visibilité, deux congres et une langouste sous la roche, plongée %1.")
                      .arg(number));
    dive.setProfondeur(float(bottom));
    dive.setTemps(45);
    return dive;
}

Records<Plongee> makeLogbook(int dives, int samples) {
    std::mt19937 random(20160607);
    Records<Plongee> records;
    for (int i = 0; i < dives; ++i)
        records.append(std::make_shared<const Plongee>(makeDive(i + 1, samples, random)));
    return records;
}

std::size_t numberBytes(const NumberArray& list) {
    switch (list.commonKind().value_or(NumberKind::Double)) {
        case NumberKind::Int:
        case NumberKind::Float:
            return std::size_t(list.size()) * 4;
        case NumberKind::Bool:
            return std::size_t(list.size());
        default:
            return std::size_t(list.size()) * 8;
    }
}

std::size_t numberBytes(const Records<Plongee>& records) {
    std::size_t bytes = 0;
    for (const auto& dive : records)
        for (const NumberArray* list :
             {&dive->profilProfondeur(), &dive->PRESS_Data(), &dive->ASC_Flag(), &dive->SLOW_Flag(),
              &dive->SURF_Flag(), &dive->CEIL_Flag(), &dive->GAZ_Flag()})
            bytes += numberBytes(*list);
    return bytes;
}

/// Copies this many bytes into fresh memory, block by block as the lists of a logbook come.
void copyNumbers(const std::vector<char>& from, std::size_t block) {
    std::vector<std::unique_ptr<char[]>> copies;
    for (std::size_t at = 0; at + block <= from.size(); at += block) {
        copies.emplace_back(new char[block]);
        std::memcpy(copies.back().get(), from.data() + at, block);
    }
    use(copies);
}

/// What another process needs at its peak to read the file, beyond what it has when it starts.
double peakWhileReading(const QString& path) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--peak"), path});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble();
}

int printPeak(const QString& path) {
    const double before = memory("VmHWM");
    const Records<Plongee> records = readRecords(readFile(path), plongeeClass());
    use(records);
    std::printf("%.0f\n", memory("VmHWM") - before);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--peak")) return printPeak(arguments.value(2));
    const bool isFile = QFileInfo(arguments.value(1)).isFile();
    const QString path = isFile ? arguments[1] : QDir::tempPath() + QStringLiteral("/sargan-bench.carnet");
    if (!isFile) {
        const int dives = arguments.size() > 1 ? arguments[1].toInt() : 10000;
        const int samples = arguments.size() > 2 ? arguments[2].toInt() : 400;
        saveFile(path, writeRecords(makeLogbook(dives, samples), plongeeClass()));
    }
    const double size = double(QFileInfo(path).size());
    const double peak = peakWhileReading(path);

    constexpr int runs = 5;
    const QByteArray bytes = readFile(path);
    const Records<Plongee> records = readRecords(bytes, plongeeClass());
    const std::vector<char> numbers(numberBytes(records), 1);
    std::printf("%lld dives, %.1f MB in the file, %.1f MB of packed numbers\n\n",
                static_cast<long long>(records.size()), size / 1e6, double(numbers.size()) / 1e6);

    const double readBytes = bestOf(runs, [&] { use(readFile(path)); });
    const std::size_t block =
        std::max<std::size_t>(1, numbers.size() / std::max<std::size_t>(1, std::size_t(records.size()) * 7));
    const double copy = bestOf(runs, [&] { copyNumbers(numbers, block); });
    const double decode = bestOf(runs, [&] { use(readRecords(bytes, plongeeClass())); });
    const double whole = bestOf(runs, [&] { use(readRecords(readFile(path), plongeeClass())); });
    const double encode = bestOf(runs, [&] { use(writeRecords(records, plongeeClass())); });
    const double copyOut = bestOf(runs, [&] { use(QByteArray(bytes.constData(), bytes.size())); });

    row("floor: read the bytes", readBytes, size, 0);
    row("floor: copy the numbers", copy, double(numbers.size()), 0);
    row("decode the archive", decode, size, 0);
    row("read the file and decode it", whole, size, readBytes + copy);
    row("floor: copy the archive's bytes", copyOut, size, 0);
    row("write the archive", encode, size, copyOut + copy);
    std::printf("\npeak memory while reading: %.1f MB = %.2f x (twice the file + the packed numbers)\n",
                peak / 1e6, peak / (2 * size + double(numbers.size())));
    if (!isFile) QFile::remove(path);
    return 0;
}
