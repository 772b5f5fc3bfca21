#include <QRandomGenerator>
#include <bit>

#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Text randomText(QRandomGenerator& random) {
    static const QString letters = u"abcé ’-,.;\n\"1🐟"_s;
    if (random.bounded(5) == 0) return Text();
    Text text = u""_s;
    for (int length = random.bounded(30); length > 0; --length) text += letters[random.bounded(10)];
    return text;
}

void randomize(QRandomGenerator& random, Int& value) {
    value = Int(random.generate()) >> random.bounded(31);
}
void randomize(QRandomGenerator& random, Float& value) {
    value = float(random.bounded(200000) - 100000) / float(1 + random.bounded(1000));
}
void randomize(QRandomGenerator& random, Text& value) {
    value = randomText(random);
}
void randomize(QRandomGenerator& random, Date& value) {
    if (random.bounded(5) != 0) value = Moment::fromSeconds(random.bounded(1000000000) / 7.0);
}
void randomize(QRandomGenerator& random, Numbers& value) {
    if (random.bounded(5) == 0) return;
    value = NumberArray::empty();
    for (int i = random.bounded(20); i > 0; --i) {
        if (random.bounded(2))
            value.append(random.bounded(1000) / 8.0);
        else
            value.appendInt(random.bounded(3));
    }
}
void randomize(QRandomGenerator&, Picture&) {}

/// A dive with any values but those that the form's checks correct.
Plongee randomDive(QRandomGenerator& random) {
    Plongee dive;
    for (const Field<Plongee>* field : PlongeeFields::all)
        if (plongeeClass().archives(*field))
            field->visit(dive, [&](auto& value) { randomize(random, value); });
    dive.setO2Mix(1 + random.bounded(100));
    dive.setO2Mix_2(1 + random.bounded(100));
    dive.setHeMix(random.bounded(87));
    dive.setHeMix_2(random.bounded(87));
    dive.setPressionDepart(200);
    dive.setPressionFin(random.bounded(200));
    dive.setPressionDepart_2(200);
    dive.setPressionFin_2(random.bounded(200));
    return dive;
}

}  // namespace

/// The mapping between the dive's fields and the form's controls.
class FormRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyArchivedFieldHasOneControl() {
        QHash<const Field<Plongee>*, int> controls;
        for (const DiveControl& control : diveControls())
            if (control.field) ++controls[control.field];
        for (const Field<Plongee>* field : PlongeeFields::all) {
            const bool isMapped = plongeeClass().archives(*field) && !field->is<Numbers>();
            QVERIFY2(controls.value(field) == (isMapped ? 1 : 0), field->name);
        }
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

    void aDiveSurvivesTheForm() {
        QRandomGenerator random(20160607);
        TestDesk desk;
        DiveForm form(desk.desk);
        for (int round = 0; round < 300; ++round) {
            const auto dive = std::make_shared<const Plongee>(randomDive(random));
            form.editFields(dive);
            const Plongee back = form.addDiveToList();
            for (const Field<Plongee>* field : PlongeeFields::all) {
                const bool same =
                    std::visit([&](auto at) { return sameValue(back.*at, (*dive).*at); }, field->member);
                QVERIFY2(same, field->name);
            }
        }
        QCOMPARE(desk.prompt.finish(), QStringList());
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
};

int runFormRecordTest(int argc, char** argv) {
    FormRecordTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "FormRecordTest.moc"
