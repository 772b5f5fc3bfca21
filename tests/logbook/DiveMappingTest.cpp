#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

namespace {

using F = PlongeeFields;

/// Fields of a dive that no control shows: the profile's lists, and what is not archived any more.
QSet<QString> fieldsWithoutControl() {
    QSet<QString> names{u"profilProfondeur"_s, u"ASC_Flag"_s,  u"SLOW_Flag"_s,
                        u"SURF_Flag"_s,        u"CEIL_Flag"_s, u"GAZ_Flag"_s,
                        u"PRESS_Data"_s,       u"etranger"_s,  u"computerMode"_s};
    for (int n = 1; n <= 6; ++n) names << u"deco_Level_%1_sw"_s.arg(n);
    for (int n = 1; n <= 3; ++n)
        for (const auto& stem : {u"volPony"_s, u"pressDepartPony"_s, u"pressFinPony"_s})
            names << stem + QString::number(n);
    return names;
}

/// Fields that dives have and archives of the current version have not.
bool isArchived(const QString& name) {
    return !fieldsWithoutControl().contains(name) || name.contains(u"_Flag"_s) ||
           name == u"profilProfondeur"_s || name == u"PRESS_Data"_s;
}

class RandomDive {
public:
    explicit RandomDive(quint32 seed) : _random(seed) {}

    Plongee make() {
        Plongee dive;
        for (const Field<Plongee>* field : F::all)
            if (isArchived(QLatin1String(field->name)))
                std::visit([&](auto at) { fill(dive.*at); }, field->member);
        dive.setO2Mix(_random.bounded(1, 101));
        dive.setO2Mix_2(_random.bounded(1, 101));
        dive.setHeMix(_random.bounded(0, 87));
        dive.setHeMix_2(_random.bounded(0, 87));
        dive.setPressionFin(_random.bounded(0, 100));
        dive.setPressionDepart(_random.bounded(100, 300));
        dive.setPressionFin_2(_random.bounded(0, 100));
        dive.setPressionDepart_2(_random.bounded(100, 300));
        return dive;
    }

private:
    bool oneIn(int chances) { return _random.bounded(chances) == 0; }
    void fill(Int& value) { value = oneIn(2) ? Int(_random.generate()) : _random.bounded(-20, 300); }
    // Any pattern of bits: infinite, no number and the smallest are among them.
    void fill(Float& value) {
        value = std::bit_cast<Float>(oneIn(4) ? 0x7f800000 | _random.generate() : _random.generate());
    }
    void fill(Text& value) {
        static const QStringList texts{QString(),         u""_s,     u"-"_s,     u" "_s,
                                       u"Brest"_s,        u"0"_s,    u"--:--"_s, u"a\0b"_s,
                                       u"two\r\nlines"_s, u"é水🐙"_s, u"%@ %d"_s, u"12,5"_s};
        value = texts[_random.bounded(int(texts.size()))];
        if (oneIn(3)) value += QString::number(_random.generate());
    }
    void fill(Date& value) {
        if (!oneIn(5)) value = Moment::fromSeconds(_random.bounded(2e9) - 1e9);
    }
    void fill(Numbers& value) {
        if (oneIn(6)) return;
        value = NumberArray::empty();
        for (int i = _random.bounded(6); i > 0; --i)
            oneIn(2) ? value.append(_random.bounded(40.0)) : value.appendInt(_random.bounded(3));
    }
    void fill(Picture&) {}

    QRandomGenerator _random;
};

}  // namespace

class DiveMappingTest : public QObject {
    Q_OBJECT

    Logbook _book;

    DiveForm& form() { return _book.carnet->diveForm(); }

private Q_SLOTS:
    void everyArchivedFieldHasExactlyOneControl() {
        QMap<QString, int> controlsOf;
        for (const DiveControl& control : diveControls())
            if (control.field) ++controlsOf[QLatin1String(control.field->name)];
        QCOMPARE(qsizetype(std::size(F::all)), 143);
        const QSet<QString> without = fieldsWithoutControl();
        for (const Field<Plongee>* field : F::all) {
            const QString name = QLatin1String(field->name);
            QVERIFY2(controlsOf.value(name) == (without.contains(name) ? 0 : 1), field->name);
        }
    }

    void namesThatAreNotTheFieldsOwn_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("field");
        const auto row = [](const QString& control, const QString& field) {
            QTest::newRow(qPrintable(control)) << control << field;
        };
        row(u"plongeeNoField"_s, u"noPlongee"_s);
        row(u"lieuField"_s, u"lieu"_s);
        row(u"coeffField"_s, u"coeff"_s);
        row(u"decoPopUp"_s, u"deco"_s);
        row(u"nocturneSwitch"_s, u"nocturne"_s);
        row(u"difficulteSlider"_s, u"difficulte"_s);
        row(u"departField"_s, u"pressionDepart"_s);
        row(u"finField"_s, u"pressionFin"_s);
        row(u"depart_2Field"_s, u"pressionDepart_2"_s);
        row(u"fin_2Field"_s, u"pressionFin_2"_s);
        row(u"o2Mix_2Field"_s, u"o2Mix_2"_s);
        for (int n = 1; n <= 6; ++n) {
            const QString level = u"_Level_%1"_s.arg(n);
            row(u"decoO2"_s + level + u"_Field"_s, u"decoO2"_s + level);
            row(u"decoHe"_s + level + u"_Field"_s, u"decoHe"_s + level);
            row(u"depthDeco"_s + level + u"_Field"_s, u"decoDepth"_s + level);
            row(u"timeDeco"_s + level + u"_Field"_s, u"decoTime"_s + level);
        }
        for (int n = 1; n <= 3; ++n) {
            const QString tank = QString::number(n);
            const QString prefix = u"bailout_"_s + tank;
            row(prefix + u"_VolumeField"_s, u"volBailout"_s + tank);
            row(prefix + u"_DepartField"_s, u"pressDepartBailout"_s + tank);
            row(prefix + u"_FinField"_s, u"pressFinBailout"_s + tank);
            row(prefix + u"_O2Field"_s, u"O2Bailout"_s + tank);
            row(prefix + u"_HeField"_s, u"HeBailout"_s + tank);
        }
    }
    void namesThatAreNotTheFieldsOwn() {
        QFETCH(QString, control);
        QFETCH(QString, field);
        QCOMPARE(form().form().find(control), form().form().find(field));
        const DiveControl& found = diveControls()[std::size_t(form().form().find(control))];
        QCOMPARE(QString::fromLatin1(found.field->name), field);
    }

    void controlsAnswerToTheirFieldsName() {
        TestDesk desk;
        DiveForm form(desk.desk);
        const auto controls = diveControls();
        for (std::size_t i = 0; i < controls.size(); ++i) {
            QCOMPARE(form.form().find(QString::fromLatin1(controls[i].spec.name)), int(i));
            if (controls[i].field)
                QCOMPARE(form.form().find(QString::fromLatin1(controls[i].field->name)), int(i));
        }
        QVERIFY_THROWS_EXCEPTION(UnknownControlError, form.form().find(u"computerMode"_s));
    }

    void everyMenuNumbersItsItemsFromZero() {
        for (const DiveControl& control : diveControls()) {
            QCOMPARE(control.spec.menu.empty(), control.spec.kind != ControlKind::PopUp);
            for (std::size_t i = 0; i < control.spec.menu.size(); ++i)
                QCOMPARE(control.spec.menu[i].tag, int(i));
        }
    }

    void anyBitsComeOutOfTheFormAsTheyWentIn() {
        RandomDive random(20160607);
        for (int round = 0; round < 200; ++round) {
            const auto dive = std::make_shared<const Plongee>(random.make());
            form().editFields(dive);
            const Plongee built = form().addDiveToList();
            for (const Field<Plongee>* field : F::all) {
                const bool same =
                    std::visit([&](auto at) { return sameValue(built.*at, (*dive).*at); }, field->member);
                QVERIFY2(same, qPrintable(u"dive %1, %2"_s.arg(round).arg(QLatin1String(field->name))));
            }
        }
        QCOMPARE(_book.desk.prompt.finish(), QStringList());
    }

    void whatIsNotArchivedIsDropped() {
        Plongee dive;
        dive.setO2Mix(21);
        dive.setO2Mix_2(21);
        dive.setEtranger(1);
        dive.setComputerMode(2);
        dive.setVolPony1(3);
        dive.setDeco_Level_1_sw(4);
        form().editFields(std::make_shared<const Plongee>(dive));
        const Plongee built = form().addDiveToList();
        QCOMPARE(built.etranger() + built.computerMode() + built.volPony1() + built.deco_Level_1_sw(), 0);
    }

    void nitrogenIsWhatTheOtherSharesLeave() {
        Plongee dive;
        dive.setO2Mix(18);
        dive.setHeMix(45);
        dive.setO2Mix_2(50);
        form().editFields(std::make_shared<const Plongee>(dive));
        QCOMPARE(_book.text(u"n2MixField"_s), u"37"_s);
        QCOMPARE(_book.text(u"n2Mix_2Field"_s), u"50"_s);
    }

    void numbersTakeCommaOrPoint_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("stored");
        QTest::newRow("comma") << u"18,5"_s << 18.5F;
        QTest::newRow("point") << u"18.5"_s << 18.5F;
        QTest::newRow("unit behind") << u"18.5 m"_s << 18.5F;
        QTest::newRow("dash") << u"-"_s << 0.0F;
        QTest::newRow("empty") << u""_s << 0.0F;
        QTest::newRow("word") << u"deep"_s << 0.0F;
        QTest::newRow("negative") << u"-2,25"_s << -2.25F;
    }
    void numbersTakeCommaOrPoint() {
        QFETCH(QString, typed);
        TestDesk desk;
        DiveForm form(desk.desk);
        form.form().setText(divecontrol::profondeur, typed);
        form.form().setText(ControlName{"depthDeco_Level_3_Field"}, typed);
        form.form().setText(divecontrol::temps, typed);
        const Plongee dive = form.addDiveToList();
        QTEST(dive.profondeur(), "stored");
        QTEST(dive.decoDepth_Level_3(), "stored");
        QFETCH(float, stored);
        QCOMPARE(dive.temps(), int(stored));
    }

    void nitroxKeepsTheOxygenAsTyped() {
        form().blankFields();
        _book.fill(u"o2MixField"_s, u"32,5"_s);
        form().form().press(u"razNitrox"_s);
        QCOMPARE(_book.text(u"o2MixField"_s), u"32,5"_s);
        QCOMPARE(_book.text(u"n2MixField"_s), u"68"_s);
    }

    void theCaptionFollowsTheDiveInTheForm() {
        Plongee dive;
        dive.setDifficulte(3);
        form().editFields(std::make_shared<const Plongee>(dive));
        QCOMPARE(_book.text(u"difficulteField"_s), u"Hard"_s);
        form().blankFields();
        QCOMPARE(_book.text(u"difficulteField"_s), u"Very easy"_s);
    }
};

int runDiveMappingTest(int argc, char** argv) {
    DiveMappingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveMappingTest.moc"
