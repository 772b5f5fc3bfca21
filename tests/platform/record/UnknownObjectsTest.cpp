#include <QTest>

#include "logbook/DiveForm.h"
#include "logbook/PlongeeArchive.h"
#include "platform/record/RecordTests.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QString describe(const ArchivedObject& object, int depth = 0);

QString describe(const ArchivedValue& archived, int depth) {
    if (const auto* whole = std::get_if<qint64>(&archived.value)) return QString::number(*whole);
    if (const auto* real = std::get_if<double>(&archived.value)) return shortest(*real);
    if (const auto* bytes = std::get_if<QByteArray>(&archived.value))
        return QString::fromLatin1(bytes->toHex());
    if (const auto* cls = std::get_if<ArchivedClass>(&archived.value)) return cls->name;
    if (const auto* parts = std::get_if<QList<ArchivedValue>>(&archived.value)) {
        QStringList texts;
        for (const ArchivedValue& part : *parts) texts << describe(part, depth);
        return u'{' + texts.join(u',') + u'}';
    }
    const auto* object = std::get_if<std::shared_ptr<const ArchivedObject>>(&archived.value);
    return object && *object ? describe(**object, depth + 1) : u"nil"_s;
}

/// Class chain with versions, then every group with its type and values, objects within included.
QString describe(const ArchivedObject& object, int depth) {
    if (object.isNil()) return u"nil"_s;
    if (depth > 8) return u"too deep"_s;
    QString text;
    for (const ArchivedClass& cls : object.classes()) text += u"%1:%2 "_s.arg(cls.name).arg(cls.version);
    for (const ArchivedGroup& group : object.groups()) {
        text += u'[' + QString::fromLatin1(group.type);
        for (const ArchivedValue& value : group.values) text += u' ' + describe(value, depth);
        text += u']';
    }
    return text;
}

int place(const Field<Plongee>& field) {
    return fieldIndex<Plongee>(PlongeeFields::all, field);
}

Records<Plongee> saved(const Records<Plongee>& dives) {
    return readRecords(writeRecords(dives, plongeeClass()), plongeeClass());
}

}  // namespace

class UnknownObjectsTest : public QObject {
    Q_OBJECT

    Records<Plongee> _dives;

private Q_SLOTS:
    void init() {
        _dives = readRecords(golden::bytes(u"plongee-v27-unknown-objects.carnet"_s), plongeeClass());
        QCOMPARE(_dives.size(), 2);
    }

    void aTextOfAnUnknownClassIsAbsentAndKept() {
        QVERIFY(_dives[0]->notes().isNull());
        QCOMPARE(_dives[0]->kept(place(PlongeeFields::notes)).className(), u"NSAttributedString"_s);
        QVERIFY(!_dives[1]->hasKept());
    }

    void aDateOfAnUnknownClassIsReadAndKept() {
        QCOMPARE(_dives[0]->date().local(), QDateTime(QDate(2011, 9, 3), QTime(0, 0)));
        QCOMPARE(_dives[0]->kept(place(PlongeeFields::date)).className(), u"NSCalendarDate"_s);
    }

    void unreadableNumbersHaveNoValueAndAreKept() {
        const NumberArray depths = _dives[0]->profilProfondeur();
        QCOMPARE(depths.size(), 6);
        QCOMPARE(depths.at(1), 4.25);
        QVERIFY(std::isnan(depths.at(2)));
        QCOMPARE(depths.keptAt(2).className(), u"NSDecimalNumber"_s);
        QCOMPARE(depths.keptAt(4), depths.keptAt(2));
        QCOMPARE(depths.at(3), 6.75);
        QVERIFY(std::isnan(_dives[0]->ASC_Flag().at(1)));
    }

    void areWrittenBackUnchanged() {
        const auto again = saved(_dives);
        for (const Field<Plongee>* field : {&PlongeeFields::notes, &PlongeeFields::date}) {
            const QString before = describe(_dives[0]->kept(place(*field)));
            QCOMPARE(describe(again[0]->kept(place(*field))), before);
            QVERIFY(before.size() > 40);
        }
        for (const int number : {2, 4})
            QCOMPARE(describe(again[0]->profilProfondeur().keptAt(number)),
                     describe(_dives[0]->profilProfondeur().keptAt(number)));
        QCOMPARE(again[0]->profilProfondeur().keptAt(2), again[0]->profilProfondeur().keptAt(4));
    }

    void surviveAChangeOfAnotherField() {
        Plongee changed = *_dives[0];
        changed.setLieu(u"Molène"_s);
        const auto again = saved({std::make_shared<const Plongee>(changed)});
        QCOMPARE(again[0]->lieu(), u"Molène"_s);
        QCOMPARE(describe(again[0]->kept(place(PlongeeFields::notes))),
                 describe(_dives[0]->kept(place(PlongeeFields::notes))));
        QCOMPARE(describe(again[0]->kept(place(PlongeeFields::date))),
                 describe(_dives[0]->kept(place(PlongeeFields::date))));
    }

    void surviveAChangeThroughTheForm() {
        TestDesk desk;
        DiveForm form(desk.desk);
        form.editFields(_dives[0]);
        form.form().setText(form.form().find(u"lieu"_s), u"Molène"_s);
        const auto again = saved({std::make_shared<const Plongee>(form.addDiveToList())});
        QCOMPARE(again[0]->lieu(), u"Molène"_s);
        QVERIFY(again[0]->notes().isNull());
        QCOMPARE(describe(again[0]->kept(place(PlongeeFields::notes))),
                 describe(_dives[0]->kept(place(PlongeeFields::notes))));
        QCOMPARE(describe(again[0]->profilProfondeur().keptAt(2)),
                 describe(_dives[0]->profilProfondeur().keptAt(2)));
    }

    void giveWayToAValueThatIsTypedInTheirPlace() {
        TestDesk desk;
        DiveForm form(desk.desk);
        form.editFields(_dives[0]);
        form.form().setText(form.form().find(u"notes"_s), u"typed"_s);
        form.form().setDate(form.form().find(u"date"_s), Moment::fromIso(u"2016-06-07"_s));
        const auto again = saved({std::make_shared<const Plongee>(form.addDiveToList())});
        QCOMPARE(again[0]->notes(), u"typed"_s);
        QCOMPARE(again[0]->date(), Moment::fromIso(u"2016-06-07"_s));
        QVERIFY(!again[0]->hasKept());
    }

    void surviveInAnotherOrderAndTwice() {
        const auto again = saved({_dives[1], _dives[0], _dives[0]});
        QCOMPARE(again[2], again[1]);
        QCOMPARE(describe(again[1]->kept(place(PlongeeFields::notes))),
                 describe(_dives[0]->kept(place(PlongeeFields::notes))));
    }
};

int runUnknownObjectsTest(int argc, char** argv) {
    UnknownObjectsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UnknownObjectsTest.moc"
