#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

using Values = QList<std::pair<QString, QString>>;
Q_DECLARE_METATYPE(Values)

namespace {

const QString pressureAlert = u"Pressure in out"_s;
const QString heliumAlert = u"Helium percent"_s;

}  // namespace

/// What the form checks while it builds a dive, its gas shortcuts and its caption.
class DiveChecksTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    DiveForm& form() { return _book->carnet->diveForm(); }
    Plongee build(const Values& values) {
        for (const auto& [control, value] : values) _book->fill(control, value);
        return form().addDiveToList();
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Logbook>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void wrongPressuresAreToldOnceAndKept_data() {
        QTest::addColumn<QStringList>("pressures");  // start and end of the main tank, then of the second
        QTest::addColumn<bool>("isTold");
        const auto row = [](const char* name, const QStringList& pressures, bool isTold) {
            QTest::newRow(name) << pressures << isTold;
        };
        row("as blank", {u""_s, u""_s, u""_s, u""_s}, false);
        row("usual", {u"200"_s, u"50"_s, u"180"_s, u"60"_s}, false);
        row("unused", {u"200"_s, u"200"_s, u""_s, u""_s}, false);
        row("empty", {u"200"_s, u"0"_s, u"0"_s, u"0"_s}, false);
        row("end above start", {u"200"_s, u"210"_s, u""_s, u""_s}, true);
        row("end by one above start", {u"200"_s, u"201"_s, u""_s, u""_s}, true);
        row("no start", {u""_s, u"50"_s, u""_s, u""_s}, true);
        row("negative start", {u"-1"_s, u"-1"_s, u""_s, u""_s}, true);
        row("negative end", {u"200"_s, u"-1"_s, u""_s, u""_s}, true);
        row("second tank's end above start", {u"200"_s, u"50"_s, u"100"_s, u"110"_s}, true);
        row("second tank's negative start", {u"200"_s, u"50"_s, u"-5"_s, u"-6"_s}, true);
        row("second tank's negative end", {u"200"_s, u"50"_s, u"10"_s, u"-6"_s}, true);
        row("both", {u"200"_s, u"210"_s, u"100"_s, u"110"_s}, true);
    }
    void wrongPressuresAreToldOnceAndKept() {
        QFETCH(QStringList, pressures);
        QFETCH(bool, isTold);
        if (isTold) _book->desk.prompt.expectAlert(pressureAlert);
        const Plongee dive = build({{u"departField"_s, pressures[0]},
                                    {u"finField"_s, pressures[1]},
                                    {u"depart_2Field"_s, pressures[2]},
                                    {u"fin_2Field"_s, pressures[3]}});
        QCOMPARE(dive.pressionDepart(), pressures[0].toInt());
        QCOMPARE(dive.pressionFin(), pressures[1].toInt());
        QCOMPARE(dive.pressionDepart_2(), pressures[2].toInt());
        QCOMPARE(dive.pressionFin_2(), pressures[3].toInt());
    }

    void noOxygenIsAir_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("stored");
        QTest::newRow("air") << u"21"_s << u"21"_s << 21;
        QTest::newRow("nitrox") << u"32"_s << u"32"_s << 32;
        QTest::newRow("least") << u"1"_s << u"1"_s << 1;
        QTest::newRow("pure") << u"100"_s << u"100"_s << 100;
        QTest::newRow("beyond") << u"150"_s << u"150"_s << 150;
        QTest::newRow("fraction") << u"32,8"_s << u"32,8"_s << 32;
        QTest::newRow("none") << u"0"_s << u"21"_s << 21;
        QTest::newRow("less than one") << u"0.9"_s << u"21"_s << 21;
        QTest::newRow("negative") << u"-5"_s << u"21"_s << 21;
        QTest::newRow("empty") << u""_s << u"21"_s << 21;
        QTest::newRow("dash") << u"-"_s << u"21"_s << 21;
    }
    void noOxygenIsAir() {
        QFETCH(QString, typed);
        QFETCH(int, stored);
        Plongee dive = build({{u"o2MixField"_s, typed}});
        QCOMPARE(dive.o2Mix(), stored);
        QCOMPARE(dive.o2Mix_2(), 21);
        QTEST(_book->text(u"o2MixField"_s), "shown");
        form().blankFields();
        dive = build({{u"o2Mix_2Field"_s, typed}});
        QCOMPARE(dive.o2Mix_2(), stored);
        QCOMPARE(dive.o2Mix(), 21);
        QTEST(_book->text(u"o2Mix_2Field"_s), "shown");
    }

    void heliumIsBetween0And86_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("stored");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("none") << u"0"_s << 0 << false;
        QTest::newRow("most") << u"86"_s << 86 << false;
        QTest::newRow("nearly too much") << u"86,9"_s << 86 << false;
        QTest::newRow("too much") << u"87"_s << 0 << true;
        QTest::newRow("all") << u"100"_s << 0 << true;
        QTest::newRow("negative") << u"-1"_s << 0 << true;
        QTest::newRow("empty") << u""_s << 0 << false;
    }
    void heliumIsBetween0And86() {
        QFETCH(QString, typed);
        QFETCH(int, stored);
        QFETCH(bool, isTold);
        for (const auto& control : {u"heMixField"_s, u"heMix_2Field"_s}) {
            form().blankFields();
            if (isTold) _book->desk.prompt.expectAlert(heliumAlert);
            const Plongee dive = build({{control, typed}});
            QCOMPARE(control == u"heMixField"_s ? dive.heMix() : dive.heMix_2(), stored);
            QCOMPARE(control == u"heMixField"_s ? dive.heMix_2() : dive.heMix(), 0);
            QCOMPARE(_book->text(control), isTold ? u"0"_s : typed);
        }
    }

    void pressuresAreToldFirstThenEachTanksHelium() {
        _book->desk.prompt.expectAlert(pressureAlert);
        _book->desk.prompt.expectAlert(heliumAlert);
        _book->desk.prompt.expectAlert(heliumAlert);
        const Plongee dive = build({{u"heMix_2Field"_s, u"-3"_s},
                                    {u"heMixField"_s, u"90"_s},
                                    {u"o2MixField"_s, u"0"_s},
                                    {u"finField"_s, u"10"_s}});
        QCOMPARE(dive.o2Mix(), 21);
        QCOMPARE(dive.heMix(), 0);
        QCOMPARE(dive.heMix_2(), 0);
        QCOMPARE(dive.pressionFin(), 10);
    }

    void gasShortcutsSetTheMainTanksShares_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("oxygen");
        QTest::addColumn<QStringList>("shares");  // O2, N2, He
        const auto row = [](const char* action, const QString& oxygen, const QStringList& shares) {
            QTest::addRow("%s from %s", action, qPrintable(oxygen)) << QString::fromLatin1(action) << oxygen << shares;
        };
        row("razAir", u"32"_s, {u"21"_s, u"79"_s, u"0"_s});
        row("razAir", u""_s, {u"21"_s, u"79"_s, u"0"_s});
        row("razNitrox", u"32"_s, {u"32"_s, u"68"_s, u"0"_s});
        row("razNitrox", u"100"_s, {u"100"_s, u"0"_s, u"0"_s});
        row("razHeliox", u"21"_s, {u"21"_s, u"0"_s, u"79"_s});
        row("razHeliox", u"10"_s, {u"10"_s, u"0"_s, u"90"_s});
        row("razHeliox", u"100"_s, {u"100"_s, u"0"_s, u"0"_s});
    }
    void gasShortcutsSetTheMainTanksShares() {
        QFETCH(QString, action);
        QFETCH(QString, oxygen);
        QFETCH(QStringList, shares);
        _book->fill(u"o2MixField"_s, oxygen);
        _book->fill(u"heMixField"_s, u"45"_s);
        _book->fill(u"o2Mix_2Field"_s, u"50"_s);
        form().form().press(action);
        QCOMPARE(QStringList({_book->text(u"o2MixField"_s), _book->text(u"n2MixField"_s), _book->text(u"heMixField"_s)}),
                 shares);
        QCOMPARE(_book->text(u"o2Mix_2Field"_s), u"50"_s);
        QCOMPARE(form().form().focus(), form().form().find(u"surfaceField"));
    }

    void nitroxKeepsTheOxygenAsTyped() {
        _book->fill(u"o2MixField"_s, u"32,5"_s);
        form().form().press(u"razNitrox"_s);
        QCOMPARE(_book->text(u"o2MixField"_s), u"32,5"_s);
    }

    void difficultyHasAWord_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("word");
        const QStringList words{u"Very easy"_s, u"Easy"_s, u"Normal"_s, u"Hard"_s, u"Very hard"_s, u"Extreme"_s};
        for (int level = 0; level < 6; ++level) QTest::addRow("%d", level) << level << words[level];
        for (const int level : {6, 100, -1, INT_MIN}) QTest::addRow("%d", level) << level << u"Extreme"_s;
    }
    void difficultyHasAWord() {
        QFETCH(int, level);
        QFETCH(QString, word);
        _book->fill(u"difficulteSlider"_s, QString::number(level));
        QCOMPARE(_book->text(u"difficulteField"_s), word);
        QCOMPARE(form().addDiveToList().difficulte(), level);
        form().blankFields();
        QCOMPARE(_book->text(u"difficulteField"_s), u"Very easy"_s);
    }

    void theCaptionFollowsTheDiveInTheForm() {
        Plongee dive;
        dive.setDifficulte(3);
        form().editFields(std::make_shared<const Plongee>(dive));
        QCOMPARE(_book->text(u"difficulteField"_s), u"Hard"_s);
    }
};

int runDiveChecksTest(int argc, char** argv) {
    DiveChecksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveChecksTest.moc"
