#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "interchange/InterchangeTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A number as the file has it and as a reader takes it: printed with some decimals and read again.
double printed(double value, const char* format) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return std::strtod(text, nullptr);
}

int share(int percent) {
    return int(printed(percent / 100.0, "%.2f") * 100);
}

/// Letters that a text may be made of: plain, XML's own, accents, beyond the first plane, white space.
QString randomText(std::mt19937& random) {
    static const QStringList pieces{u"a"_s, u"Brest"_s, u" "_s,  u"&"_s, u"<"_s, u">"_s,   u"\""_s, u"'"_s,
                                    u"é"_s, u"Œ"_s,     u"東"_s, u"🐠"_s, u"-"_s, u"]]>"_s, u"\r"_s, u"\n"_s};
    QString text;
    for (unsigned i = random() % 12; i > 0; --i)
        text += pieces[qsizetype(random() % std::size_t(pieces.size()))];
    return text;
}

struct RandomDive {
    Plongee dive;
    QList<double> depths;
};

RandomDive randomDive(std::mt19937& random) {
    const auto number = [&](int low, int high) { return low + int(random() % unsigned(high - low + 1)); };
    RandomDive made;
    Plongee& dive = made.dive;
    dive.setNoPlongee(number(-5, 5000));
    if (number(0, 9)) dive.setLieu(randomText(random));
    if (number(0, 9)) dive.setSite(randomText(random));
    dive.setDate(localDate(number(1950, 2030), number(1, 12), number(1, 28)));
    dive.setHeure(localDate(2001, 1, 1, number(0, 23), number(0, 59)));
    dive.setProfondeur(float(number(0, 2000)) / 10);
    dive.setTemps(number(0, 300));
    dive.setTempEau(number(-50, 40));
    dive.setAltitude(number(-400, 6000));
    const int oxygen = number(1, 100);
    dive.setO2Mix(oxygen);
    dive.setHeMix(number(0, 1) ? 0 : std::min(number(0, 86), 100 - oxygen));
    dive.setGaz(number(-1, 6));
    dive.setVolumeBloc(number(0, 40));
    dive.setPressionFin(number(0, 150));
    dive.setPressionDepart(number(150, 300));
    dive.setSamplingRate(number(0, 7));
    QList<qint32> marks;
    for (int i = number(0, 30); i > 0; --i) {
        made.depths << number(0, 12000) / 100.0;
        marks << number(0, 2);
    }
    dive.setProfilProfondeur(NumberArray::ofDoubles(made.depths));
    for (auto set :
         {&Plongee::setASC_Flag, &Plongee::setSLOW_Flag, &Plongee::setSURF_Flag, &Plongee::setCEIL_Flag})
        (dive.*set)(NumberArray::ofInts(marks));
    return made;
}

constexpr int intervals[] = {10, 20, 30, 60, 120, 4, 5, 5};
constexpr int codesReadBack[] = {0, 1, 2, 3, 4, 5, 7, 7};

}  // namespace

/// Any logbook through UDCF and back: what comes back is what the two sides of the format say, no more and
/// no less.
class RoundTripTest : public QObject {
    Q_OBJECT

    static void compare(const RandomDive& was, const Plongee& is, int number) {
        const Plongee& dive = was.dive;
        QCOMPARE(is.noPlongee(), number);
        QCOMPARE(is.lieu(), dive.lieu() + u" - "_s + dive.site());
        QCOMPARE(is.site(), QString());
        QVERIFY(is.date() == dive.date());
        QVERIFY(is.heure() == dive.heure());
        QCOMPARE(is.temps(), intervals[dive.samplingRate()]);
        QCOMPARE(is.samplingRate(), codesReadBack[dive.samplingRate()]);
        QCOMPARE(is.tempEau(), dive.tempEau());
        QCOMPARE(is.altitude(), dive.altitude());
        QCOMPARE(is.surface(), u"--:--"_s);
        QCOMPARE(is.volumeBloc(), dive.volumeBloc());
        QCOMPARE(is.pressionDepart(), dive.pressionDepart());
        QCOMPARE(is.pressionFin(), dive.pressionFin());
        QCOMPARE(is.o2Mix(), share(dive.o2Mix()) <= 0 ? 21 : share(dive.o2Mix()));
        QCOMPARE(is.heMix(), share(dive.heMix()));
        QList<double> depths{0};
        double greatest = 0;
        for (const double depth : was.depths) depths << double(float(printed(depth, "%.1f")));
        depths << 0;
        for (const double depth : depths) greatest = std::max(greatest, depth);
        QCOMPARE(numbersOf(is.profilProfondeur()), depths);
        QCOMPARE(is.profondeur(), float(std::trunc(greatest)));
        for (auto list : {&Plongee::ASC_Flag, &Plongee::SLOW_Flag, &Plongee::SURF_Flag, &Plongee::CEIL_Flag,
                          &Plongee::GAZ_Flag})
            QCOMPARE(numbersOf((is.*list)()), QList<double>(depths.size(), 0));
    }

private Q_SLOTS:
    void randomLogbooksComeBackAsTheFormatSays_data() {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 40; ++seed) QTest::addRow("%u", seed) << seed;
    }
    void randomLogbooksComeBackAsTheFormatSays() {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        QList<RandomDive> dives;
        QList<Plongee> records;
        for (unsigned i = 1 + random() % 20; i > 0; --i) {
            dives << randomDive(random);
            records << dives.last().dive;
        }
        Book from, to;
        from.put(records);
        const ImportResult result = to.read("udcf", from.exported("udcf"));
        QCOMPARE(result.dives, dives.size());
        for (qsizetype row = 0; row < dives.size(); ++row) {
            compare(dives[row], to.dive(row), int(row) + 1);
            if (QTest::currentTestFailed()) return;
        }
        QCOMPARE(to.desk.prompt.finish(), QStringList());
        // A second trip through UDCF: the two points more again, everything else settled but the site's dash.
        Book again;
        again.read("udcf", to.exported("udcf"));
        for (qsizetype row = 0; row < dives.size(); ++row) {
            QCOMPARE(again.dive(row).lieu(), to.dive(row).lieu() + u" - "_s);
            QCOMPARE(again.dive(row).profilProfondeur().size(), dives[row].depths.size() + 4);
        }
    }
};

int runRoundTripTest(int argc, char** argv) {
    RoundTripTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RoundTripTest.moc"
