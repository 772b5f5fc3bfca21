#include <sys/resource.h>

#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

// Reading and writing a logbook's sample arrays, beside the least that any reader must do: fetch the bytes
// of the file and store the numbers. Usage: bench_archive [dives] [samples]

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

constexpr ArchiveClass dive{"Plongee", 27, &archiveclass::object};
constexpr int arraysPerDive = 7;
constexpr int flagArrays = 5;
constexpr int runs = 5;

using Dives = std::vector<NumberArray>;

/// Depths with one decimal, five arrays of flags, and a tank's pressure.
Dives makeDives(int dives, int samples) {
    std::mt19937 random(1);
    Dives arrays;
    for (int d = 0; d < dives; ++d) {
        NumberArray depth;
        NumberArray pressure;
        const int deepest = 150 + int(random() % 400);
        for (int i = 0; i < samples; ++i) {
            const double rise = std::min({i, samples - i, samples / 4}) * 4.0 / samples;
            depth.append(double(int(rise * deepest) + int(random() % 20)) / 10);
            const double left = 200 - 150.0 * i / samples;
            pressure.append(random() % 3 == 0 ? double(int(left * 10)) / 10 : double(int(left)));
        }
        arrays.push_back(depth);
        for (int f = 0; f < flagArrays; ++f) {
            NumberArray flags;
            for (int i = 0; i < samples; ++i) flags.appendInt(random() % 50 == 0 ? 1 : 0);
            arrays.push_back(flags);
        }
        arrays.push_back(pressure);
    }
    return arrays;
}

QByteArray writeShared(const Dives& arrays) {
    ArchiveWriter writer;
    writer.beginRootArray(quint32(arrays.size() / arraysPerDive));
    for (size_t i = 0; i < arrays.size(); ++i) {
        if (i % arraysPerDive == 0) writer.beginObject(dive);
        writer.writeNumbers(arrays[i]);
        if (i % arraysPerDive == arraysPerDive - 1) writer.endObject();
    }
    writer.endRootArray();
    return writer.take();
}

/// Writes the same dives with every number in full, as older systems do.
class UnsharedWriter {
public:
    QByteArray write(const Dives& arrays) {
        // What this ends with has made strings 92 "@", 93 to 95 classes, 96 "i", and objects 92 to 95.
        _out = writeShared({}).chopped(2);
        integer(int(arrays.size() / arraysPerDive));
        for (size_t i = 0; i < arrays.size(); ++i) {
            if (i % arraysPerDive == 0) beginDive();
            array(arrays[i]);
            if (i % arraysPerDive == arraysPerDive - 1) _out += '\x86';
        }
        return _out + '\x86';
    }

private:
    template <size_t n>
    void put(const char (&bytes)[n]) {
        _out.append(bytes, n - 1);
    }
    template <typename T>
    void raw(T value) {
        _out.append(reinterpret_cast<const char*>(&value), sizeof(T));
    }
    void integer(int value) {
        if (value >= -110 && value <= 127) return raw(qint8(value));
        const bool isShort = value == qint16(value);
        _out += isShort ? '\x81' : '\x82';
        isShort ? raw(qint16(value)) : raw(value);
    }
    void beginDive() {
        _items == 4 ? put("\x92\x84\x84\x84\x07Plongee\x1b\x95") : put("\x92\x84\x97");
        _items += _items == 4 ? 2 : 1;
    }
    void array(const NumberArray& numbers) {
        put("\x92\x84\x93\x96");
        integer(int(numbers.size()));
        ++_items;
        const bool isInt = numbers.commonKind() == NumberKind::Int;
        for (qsizetype i = 0; i < numbers.size(); ++i) number(numbers.at(i), isInt);
        _out += '\x86';
    }
    void number(double value, bool isInt) {
        put("\x92\x84");
        ++_items;
        if (_numberClass == 0) {
            _numberClass = _items;
            _items += 2;
            put("\x84\x84\x08NSNumber\0\x84\x84\x07NSValue\0\x95\x84\x01*");
        } else {
            integer(_numberClass - 110);
            put("\x9a");
        }
        int& letter = isInt ? _intLetter : _doubleLetter;
        if (letter == 0) {
            letter = _items++;
            isInt ? put("\x84\x96\x96")
                  : put("\x84\x84\x01"
                        "d\x9b");
        } else {
            integer(letter - 110);
            isInt ? put("\x96") : put("\x9b");
        }
        if (value == int(value)) {
            integer(int(value));
        } else {
            _out += '\x83';
            raw(value);
        }
        _out += '\x86';
    }

    QByteArray _out;
    int _items = 4;
    int _numberClass = 0;
    int _intLetter = 0;
    int _doubleLetter = 0;
};

Dives read(const QByteArray& bytes) {
    ArchiveReader reader(bytes);
    ArchivedObject kept;
    Dives arrays;
    const quint32 count = reader.beginRootArray();
    for (quint32 i = 0; i < count; ++i) {
        reader.beginElement("Plongee");
        for (int a = 0; a < arraysPerDive; ++a) arrays.push_back(reader.readNumbers(kept));
        reader.endElement();
    }
    reader.endRootArray();
    return arrays;
}

std::span<const char> bytesOf(const NumberArray& numbers) {
    const auto doubles = numbers.packed<double>();
    if (!doubles.empty()) return {reinterpret_cast<const char*>(doubles.data()), doubles.size_bytes()};
    const auto ints = numbers.packed<qint32>();
    return {reinterpret_cast<const char*>(ints.data()), ints.size_bytes()};
}

std::vector<std::unique_ptr<char[]>> copyNumbers(const Dives& arrays) {
    std::vector<std::unique_ptr<char[]>> copies;
    for (const NumberArray& numbers : arrays) {
        const auto bytes = bytesOf(numbers);
        copies.emplace_back(new char[bytes.size()]);
        std::memcpy(copies.back().get(), bytes.data(), bytes.size());
    }
    return copies;
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) std::exit(1);
    return file.readAll();
}

/// The best of some runs, in milliseconds. What a run makes is freed outside the measure.
template <typename Work>
double best(Work work) {
    double least = 1e9;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        const auto made = work();
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        least = std::min(least, took.count());
    }
    return least;
}

void measure(const char* name, const Dives& arrays, const QByteArray& bytes, bool withWriting) {
    QTemporaryDir folder;
    const QString path = folder.filePath(u"logbook"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::exit(1);
    file.close();
    if (read(bytes) != arrays) {
        std::printf("%s: the numbers read are not those written\n", name);
        std::exit(1);
    }
    qsizetype numberBytes = 0;
    for (const NumberArray& numbers : arrays) numberBytes += qsizetype(bytesOf(numbers).size());

    const double fetching = best([&] { return readFile(path); });
    const double copying = best([&] { return copyNumbers(arrays); });
    const double decoding = best([&] { return read(bytes); });
    const double checking = best([&] { return Archive::read(bytes); });
    const double mb = double(bytes.size()) / 1e6;
    std::printf("%s\n", name);
    std::printf("  file               %9.1f MB\n", mb);
    std::printf("  numbers            %9.1f MB\n", double(numberBytes) / 1e6);
    std::printf("  read the bytes     %9.1f ms\n", fetching);
    std::printf("  copy the numbers   %9.1f ms\n", copying);
    std::printf("  decode             %9.1f ms  %6.0f MB/s\n", decoding, mb / decoding * 1e3);
    std::printf("  read and decode is %9.2f times reading and copying, decode alone %.2f times\n",
                (fetching + decoding) / (fetching + copying), decoding / (fetching + copying));
    std::printf("  check the tree     %9.1f ms  %6.0f MB/s\n", checking, mb / checking * 1e3);
    if (!withWriting) return;
    const double writing = best([&] { return writeShared(arrays); });
    std::printf("  write              %9.1f ms  %6.0f MB/s\n", writing, mb / writing * 1e3);
}

}  // namespace

int main(int argc, char** argv) {
    const int dives = argc > 1 ? std::atoi(argv[1]) : 10000;
    const int samples = argc > 2 ? std::atoi(argv[2]) : 400;
    const Dives arrays = makeDives(dives, samples);
    measure("whole numbers shared", arrays, writeShared(arrays), true);
    measure("every number in full", arrays, UnsharedWriter().write(arrays), false);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory of this program %.0f MB\n", double(usage.ru_maxrss) / 1024);
}
