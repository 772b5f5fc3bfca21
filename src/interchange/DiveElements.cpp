#include "interchange/DiveElements.h"

#include <climits>
#include <cmath>
#include <cstdio>

#include "interchange/ImportError.h"
#include "platform/archive/NumberBatch.h"

namespace sargan::diveelements {

namespace {

/// Seconds between two samples, by sampling-rate code. Two codes mean 5 seconds.
constexpr double intervals[] = {10, 20, 30, 60, 120, 4, 5, 5};

/// The marks of a sample, in the order in which they are written.
struct Alarm {
    const Numbers& (Plongee::*list)() const;
    const char* word;
};

constexpr Alarm alarms[] = {
    {&Plongee::ASC_Flag, "deco"},
    {&Plongee::SLOW_Flag, "ascent"},
    {&Plongee::SURF_Flag, "surface"},
    {&Plongee::CEIL_Flag, "error"},
};

int whole(float value) {
    if (std::isnan(value)) return 0;
    return int(std::clamp(double(value), double(INT_MIN), double(INT_MAX)));
}

QString mixName(const Plongee& dive, const Strings& strings) {
    const QString o2 = QString::number(dive.o2Mix());
    switch (dive.gaz()) {
        case 0:
            return strings.text({"Carnet", "Air"});
        case 1:
            return QStringLiteral("Nitrox %1").arg(o2);
        case 2:
            return QStringLiteral("Trimix %1/%2").arg(o2, QString::number(dive.heMix()));
        default:
            return QStringLiteral("Heliox %1").arg(o2);
    }
}

/// Digits of a calendar's part, with zeros in front; an absent moment has empty elements.
void writePart(XmlWriter& xml, const char* name, int part, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*d", digits, part);
    xml.element(name, text);
}

void writeDate(XmlWriter& xml, QDate date, const Spelling& spelling) {
    xml.open(spelling.date);
    if (date.isValid()) {
        writePart(xml, spelling.year, date.year(), 4);
        writePart(xml, spelling.month, date.month(), 2);
        writePart(xml, spelling.day, date.day(), 2);
    } else {
        for (const char* name : {spelling.year, spelling.month, spelling.day}) xml.empty(name);
    }
    xml.close();
}

void writeTime(XmlWriter& xml, QTime time, const Spelling& spelling) {
    xml.open(spelling.time);
    if (time.isValid()) {
        writePart(xml, spelling.hour, time.hour(), 2);
        writePart(xml, spelling.minute, time.minute(), 2);
    } else {
        for (const char* name : {spelling.hour, spelling.minute}) xml.empty(name);
    }
    xml.close();
}

void writeGases(XmlWriter& xml, const Plongee& dive, const Strings& strings) {
    xml.open("GASES");
    xml.open("MIX");
    xml.element("MIXNAME", mixName(dive, strings));
    xml.open("TANK");
    xml.element("TANKVOLUME", qint64(dive.volumeBloc()));
    xml.element("PSTART", qint64(dive.pressionDepart()));
    xml.element("PEND", qint64(dive.pressionFin()));
    xml.close();
    xml.element("O2", dive.o2Mix() / 100.0, 2);
    xml.element("N2", (100.0 - dive.o2Mix() - dive.heMix()) / 100, 2);
    xml.element("HE", dive.heMix() / 100.0, 2);
    xml.close();
    xml.close();
}

/// An absent list counts as one without marks; a list that ends too early is an error of the data.
void checkMarks(const Plongee& dive) {
    const qsizetype samples = dive.profilProfondeur().size();
    for (const Alarm& alarm : alarms) {
        const Numbers& marks = (dive.*alarm.list)();
        if (marks.isAbsent() || marks.size() >= samples) continue;
        throw documentError(interchangeproblem::missingMarks,
                            {QString::number(dive.noPlongee()), QString::number(samples),
                             QString::number(marks.size()), QLatin1String(alarm.word)});
    }
}

/// What the dives of one file need one after the other.
struct SampleMemory {
    double interval = 0;  ///< a dive with an unknown code has that of the dive before it
    std::vector<double> depths;
    std::vector<double> marks;   ///< of one list
    std::vector<quint8> raised;  ///< by sample: one bit for each alarm

    /// Notes which samples of the dive raise which alarms.
    void takeAlarms(const Plongee& dive) {
        raised.assign(depths.size(), 0);
        for (std::size_t alarm = 0; alarm < std::size(alarms); ++alarm) {
            copyNumbers((dive.*alarms[alarm].list)(), marks);
            const std::size_t known = std::min(marks.size(), raised.size());
            for (std::size_t i = 0; i < known; ++i)
                // What is behind the point does not count.
                raised[i] |= quint8((marks[i] >= 1 && marks[i] < 2) << alarm);
        }
    }
};

void writeAlarms(XmlWriter& xml, quint8 raised) {
    for (std::size_t alarm = 0; alarm < std::size(alarms); ++alarm)
        if (raised >> alarm & 1) xml.element("ALARM", alarms[alarm].word);
}

void writeSamples(XmlWriter& xml, const Plongee& dive, SampleMemory& memory) {
    const int code = dive.samplingRate();
    if (code >= 0 && code < int(std::size(intervals))) memory.interval = intervals[code];
    xml.open("SAMPLES");
    xml.element("DELTA", memory.interval, 1);
    xml.element("SWITCH", "1");
    xml.element("D", "0.0");
    checkMarks(dive);
    copyNumbers(dive.profilProfondeur(), memory.depths);
    memory.takeAlarms(dive);
    XmlLines depths(xml, "D");
    for (std::size_t sample = 0; sample < memory.depths.size(); ++sample) {
        depths.add(memory.depths[sample], 1);
        if (memory.raised[sample] == 0) continue;
        depths.flush();
        writeAlarms(xml, memory.raised[sample]);
    }
    depths.flush();
    xml.element("D", "0.0");
    xml.close();
}

}  // namespace

void writeComments(XmlWriter& xml, const QDateTime& now) {
    xml.comment(QStringLiteral(" This file was generated by Sargan 1.11 (20160607)"));
    xml.comment(QStringLiteral(" Visit %1 for more information ").arg(QLatin1String(webAddress)));
    xml.comment(now.toString(QStringLiteral(" dd-MM-yyyy - HH:mm:ss ")));
}

void writeAddInfo(XmlWriter& xml, const Carnet& carnet) {
    xml.open("ADDINFO");
    xml.element("TOTALDIVES", qint64(carnet.count()));
    xml.close();
}

void writeDives(XmlWriter& xml, const Carnet& carnet, const Spelling& spelling) {
    xml.open("REPGROUP");
    SampleMemory memory;
    for (const auto& dive : carnet.records()) {
        xml.open("DIVE");
        xml.element("PLACE", dive->lieu() + QStringLiteral(" - ") + dive->site());
        writeDate(xml, dive->date().local().date(), spelling);
        writeTime(xml, dive->heure().local().time(), spelling);
        xml.element("MAXDEPTH", qint64(whole(dive->profondeur())));
        xml.element("DIVETIME", qint64(dive->temps()));
        xml.element("SURFACEINTERVAL", "infinity");
        xml.element("TEMPERATURE", qint64(dive->tempEau()));
        xml.element("ALTITUDE", qint64(dive->altitude()));
        writeGases(xml, *dive, carnet.strings());
        xml.empty("DELTAMODE");
        writeSamples(xml, *dive, memory);
        xml.close();
    }
    xml.close();
}

qsizetype likelySize(const Carnet& carnet) {
    constexpr qsizetype header = 2000, perDive = 1000, perSample = 18;
    qsizetype size = header;
    for (const auto& dive : carnet.records()) size += perDive + perSample * dive->profilProfondeur().size();
    return size;
}

}  // namespace sargan::diveelements
