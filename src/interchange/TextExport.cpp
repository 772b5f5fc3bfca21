#include "interchange/TextExport.h"

#include "logbook/NumberList.h"
#include "interchange/XmlWriter.h"
#include "platform/text/MacRoman.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* titles[] = {"Dive #",      "Date",         "Location",    "Site",      "Country",
                                  "Tide coeff",  "Surface time", "Start time",  "Depth",     "Dive time",
                                  "Pressure in", "Pressure out", "O2 mix",      "He mix",    "Weather",
                                  "Current",     "Visibility",   "Water temp.", "Air temp.", "Buddies"};

constexpr Message<> weatherWords[] = {{"Carnet", "Clear"},   {"Carnet", "Cloudy"}, {"Carnet", "Foggy"},
                                      {"Carnet", "Rainy"},   {"Carnet", "Hail"},   {"Carnet", "Snowy"},
                                      {"Carnet", "Thundery"}};
constexpr Message<> currentWords[] = {{"Carnet", "None"},   {"Carnet", "Weak"},        {"Carnet", "Moderate"},
                                      {"Carnet", "Strong"}, {"Carnet", "Very strong"}, {"Carnet", "Violent"}};
constexpr Message<> visibilityWords[] = {
    {"Carnet", "Excellent"}, {"Carnet", "Very good"}, {"Carnet", "Good"},     {"Carnet", "Medium"},
    {"Carnet", "Bad"},       {"Carnet", "Very bad"},  {"Carnet", "Execrable"}};
constexpr Message<> exceptional{"Carnet", "Exceptional"};

/// The word of a code; codes without a word have an empty cell.
QString word(const Strings& strings, std::span<const Message<>> words, int notTold, int code) {
    if (code == notTold) return u"N/A"_s;
    return code >= 0 && code < int(words.size()) ? strings.text(words[std::size_t(code)]) : QString();
}

QString visibility(const Strings& strings, int code) {
    return code == 8 ? strings.text(exceptional) : word(strings, visibilityWords, 7, code);
}

QStringList cellsOf(const Plongee& dive, const Strings& strings) {
    return {QString::number(dive.noPlongee()),
            dive.date().local().toString(u"dd/MM/yyyy"_s),
            dive.lieu(),
            dive.site(),
            dive.pays(),
            QString::number(dive.coeff()),
            dive.surface(),
            dive.heure().local().toString(u"HH:mm"_s),
            shortest(dive.profondeur()),
            QString::number(dive.temps()),
            QString::number(dive.pressionDepart()),
            QString::number(dive.pressionFin()),
            QString::number(dive.o2Mix()),
            QString::number(dive.heMix()),
            word(strings, weatherWords, 7, dive.meteo()),
            word(strings, currentWords, 6, dive.courant()),
            visibility(strings, dive.visibilite()),
            QString::number(dive.tempEau()),
            QString::number(dive.tempAir()),
            dive.partenaires()};
}

QString header(const QString& separator, const QString& ends) {
    QStringList words;
    for (const char* title : titles) words << QLatin1String(title);
    return ends + words.join(separator) + ends + u'\r';
}

QString line(const Plongee& dive, const Strings& strings, const QString& separator, const QString& ends) {
    return ends + cellsOf(dive, strings).join(separator) + ends + u'\n';
}

/// The dive table in Mac OS Roman, and one alert for all dives that lost something.
QByteArray macRomanTable(const Carnet& carnet, const QString& separator) {
    QByteArray bytes;
    MacRoman::append(bytes, header(separator, {}));
    QList<int> changed;
    for (const auto& dive : carnet.records())
        if (!MacRoman::append(bytes, line(*dive, carnet.strings(), separator, {})))
            changed << dive->noPlongee();
    if (!changed.isEmpty())
        carnet.desk().prompt.alert(carnet.strings().text(
            Message<QString>{"Interface",
                             "Some characters do not exist in this format and were written as the nearest "
                             "ones that do. Dives concerned: %@.",
                             "Some characters do not exist in this format and were written as the nearest "
                             "ones that do. Dives concerned: %@."},
            numberList(changed)));
    return bytes;
}

/// Lists of one number per sample, as the profile table writes them: a cell only where the list has exactly
/// as many numbers as there are depths.
struct MarkColumn {
    const Numbers& (Plongee::*list)() const;
};

constexpr MarkColumn markColumns[] = {{&Plongee::ASC_Flag},
                                      {&Plongee::SLOW_Flag},
                                      {&Plongee::SURF_Flag},
                                      {&Plongee::CEIL_Flag},
                                      {&Plongee::GAZ_Flag}};

void appendProfile(QByteArray& bytes, const Plongee& dive, const QByteArray& separator) {
    const Numbers& depths = dive.profilProfondeur();
    const QByteArray number = QByteArray::number(dive.noPlongee());
    const bool hasPressure = dive.PRESS_Data().size() == depths.size();
    for (qsizetype i = 0; i < depths.size(); ++i) {
        bytes.append(number).append(separator);
        appendWhole(bytes, i + 1);
        bytes.append(separator);
        appendFixed(bytes, depths.at(i), 1);
        for (const MarkColumn& column : markColumns) {
            bytes.append(separator);
            const Numbers& marks = (dive.*column.list)();
            if (marks.size() == depths.size()) appendWhole(bytes, marks.intAt(i));
        }
        bytes.append(separator);
        if (hasPressure) appendFixed(bytes, dive.PRESS_Data().at(i), 1);
        bytes.append('\n');
    }
}

/// The profile table holds nothing but ASCII beside the separator, so its bytes are the same in all the
/// encodings that are in question.
QByteArray profileTable(const Carnet& carnet, const QByteArray& separator) {
    QByteArray bytes;
    const QByteArrayList words{"Dive #", "Point", "Depth", "ASC", "SLOW", "CEIL", "SURF", "GAS"};
    bytes += words.join(separator) + separator + "PRESS\n";
    for (const auto& dive : carnet.records()) appendProfile(bytes, *dive, separator);
    return bytes;
}

}  // namespace

QString exportTextCSVFormat(const Carnet& carnet, const QString& separator, const QString& ends) {
    QString text = header(separator, ends);
    for (const auto& dive : carnet.records()) text += line(*dive, carnet.strings(), separator, ends);
    return text;
}

QString exportProfileCSVFormat(const Carnet& carnet, const QString& separator) {
    return QString::fromUtf8(profileTable(carnet, separator.toUtf8()));
}

QByteArray exportCarnetCsvSemicolon(const Carnet& carnet) {
    carnet.desk().log.line(u"CSV ;"_s);
    return exportTextCSVFormat(carnet, u"\";\""_s, u"\""_s).toUtf8();
}

QByteArray exportCarnetCsvComma(const Carnet& carnet) {
    carnet.desk().log.line(u"CSV ,"_s);
    return macRomanTable(carnet, u","_s);
}

QByteArray exportCarnetTxt(const Carnet& carnet) {
    carnet.desk().log.line(u"TXT"_s);
    return macRomanTable(carnet, u"\t"_s);
}

QByteArray exportProfilsCsv(const Carnet& carnet) {
    return profileTable(carnet, ",");
}

}  // namespace sargan
