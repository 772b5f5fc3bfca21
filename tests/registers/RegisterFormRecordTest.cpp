#include <QBuffer>
#include <QImage>
#include <random>

#include "registers/RegisterBench.h"
#include "registers/RegisterClasses.h"
#include "registers/RegisterGoldens.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QByteArray png(QRgb color) {
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

/// Values of every kind, odd ones among them, the same in every run.
class Chance {
public:
    void fill(Int& value) {
        static constexpr Int odd[] = {0, 1, -1, INT_MAX, INT_MIN};
        value = pick(4) == 0 ? odd[pick(5)] : Int(_engine() % 8);
    }
    void fill(Float& value) {
        static constexpr Float odd[] = {0, -0.0F, 1e30F, 0.1F, 1234.5678F, 3e-39F, 16777217.0F};
        value = odd[pick(7)];
    }
    void fill(Text& value) {
        static const QStringList texts{QString(), u""_s, u"a"_s, u"épave\n2"_s, u"12,5"_s, u" "_s, u"-"_s};
        value = texts[qsizetype(pick(7))];
    }
    void fill(Date& value) {
        static constexpr double seconds[] = {0, -3e9, 4.5e8, 0.1, 1e17, -0.0};
        value = pick(6) == 0 ? Date() : Date::fromSeconds(seconds[pick(6)]);
    }
    void fill(Picture& value) { value.bytes = pick(3) == 0 ? QByteArray() : png(QRgb(_engine())); }
    void fill(Numbers&) {}

private:
    unsigned pick(unsigned count) { return unsigned(_engine() % count); }
    std::mt19937 _engine{20160607};
};

/// A depth below 0 of its own: the form shows and stores it as not known.
bool isMadeUnknown(const QJsonObject& record) {
    const double top = record[u"pointHaut"_s].toDouble(), bottom = record[u"pointBas"_s].toDouble();
    return (top < 0 && top != -1) || (bottom < 0 && bottom != -1);
}

/// Fields that no control shows and no archive holds.
template <class R>
bool isShown(const RegisterDescription<R>& description, const Field<R>& field) {
    return std::any_of(description.controls.begin(), description.controls.end(),
                       [&](const RegisterControl<R>& control) { return control.field == &field; });
}

template <class R>
void goThroughTheForm(const char* type, int rounds, const std::function<void(R&)>& correct = {}) {
    RegisterBench bench(type);
    auto& document = dynamic_cast<RegisterDocument<R>&>(*bench.document);
    Chance chance;
    for (int round = 0; round < rounds; ++round) {
        R record;
        for (const Field<R>* field : document.recordClass().fields)
            if (isShown(document.description(), *field))
                field->visit(record, [&](auto& value) { chance.fill(value); });
        if (correct) correct(record);
        document.perform(u"Set"_s, {std::make_shared<const R>(record)}, {0});
        const R again = document.recordFromForm();
        for (const Field<R>* field : document.recordClass().fields)
            if (isShown(document.description(), *field))
                QVERIFY2(std::visit([&](auto at) { return sameValue(again.*at, record.*at); }, field->member),
                         field->name);
        bench.shown->updateRecord();
        QVERIFY(&document.record(0) == document.records()[0].get());
        QCOMPARE(document.undoName(), u"Set"_s);
    }
}

}  // namespace

class RegisterFormRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyWreckComesOutOfTheFormAsItWentIn() {
        // A depth below 0 is not known, and the form says so.
        goThroughTheForm<Epaves>("Epaves", 300, [](Epaves& wreck) {
            if (wreck.pointHaut() < 0) wreck.setPointHaut(-1);
            if (wreck.pointBas() < 0) wreck.setPointBas(-1);
        });
    }

    void anyItemComesOutOfTheFormAsItWentIn() { goThroughTheForm<Materiel>("Materiel", 300); }

    void anyRecordOfTheOthersComesOutOfTheFormAsItWentIn() {
        goThroughTheForm<Compresseur>("Compresseur", 200);
        goThroughTheForm<Rebreather>("Rebreather", 200);
        goThroughTheForm<Consommables>("Consommables", 200);
        goThroughTheForm<Budget>("Budget", 200);
        goThroughTheForm<Entreprises>("Entreprises", 200);
        goThroughTheForm<Structures>("Structures", 200);
        goThroughTheForm<DiversDocs>("Divers documents", 200);
    }

    void everyArchivedFieldHasAControl() {
        forEachRegister([](const auto& registered) {
            TestDesk desk;
            const DocumentKind* kind = desk.kinds.forRecordClass(QLatin1String(registered.cls.name));
            const auto document = kind->create(*kind, desk.desk);
            auto* shown = dynamic_cast<Register*>(document.get());
            if (!shown) return;  // not made yet
            for (const auto* field : registered.cls.fields)
                if (registered.cls.archives(*field)) shown->form().find(QString::fromLatin1(field->name));
        });
    }

    void aPictureComesBackBitForBit() {
        RegisterBench bench("Epaves");
        const QByteArray bytes = png(qRgb(1, 2, 3)) + "trailing";
        bench.add();
        bench.form().setImage(bench.at(u"photo"_s), bytes);
        bench.shown->updateRecord();
        QCOMPARE(bench.record<Epaves>(0).photo().bytes, bytes);
        RegisterBench again("Epaves");
        again.document->readBytes(bench.document->dataRepresentationOfType({}), u"Epaves"_s);
        QCOMPARE(again.record<Epaves>(0).photo().bytes, bytes);
        QCOMPARE(again.form().state(again.at(u"photo"_s)).image, bytes);
    }

    void aPictureCanBeTakenAwayAndReplaced() {
        RegisterBench bench("Epaves");
        Epaves wreck;
        wreck.setPhoto({png(qRgb(1, 2, 3))});
        bench.load<Epaves>({wreck}, epavesClass());
        bench.form().setImage(bench.at(u"photo"_s), png(qRgb(9, 9, 9)));
        bench.shown->updateRecord();
        QCOMPARE(bench.record<Epaves>(0).photo().bytes, png(qRgb(9, 9, 9)));
        QVERIFY(!bench.record<Epaves>(0).hasKept());
        bench.form().setImage(bench.at(u"photo"_s), QByteArray());
        bench.shown->updateRecord();
        QVERIFY(bench.record<Epaves>(0).photo().isAbsent());
        QVERIFY(!bench.record<Epaves>(0).hasKept());
    }

    void aPictureThatNobodyCanReadIsKeptUntilItIsTakenAway() {
        // An image object that holds bytes of no kind of picture.
        Epaves wreck;
        wreck.setNom(u"a"_s);
        wreck.setPhoto({QByteArray("sketch on a napkin")});
        const QByteArray bytes = writeRecords<Epaves>({std::make_shared<const Epaves>(wreck)}, epavesClass());
        RegisterBench bench("Epaves");
        bench.document->readBytes(bytes, u"Epaves"_s);
        QVERIFY(bench.record<Epaves>(0).photo().isAbsent());
        const int photo = bench.at(u"photo"_s);
        QVERIFY(bench.form().state(photo).image.isEmpty() && !bench.form().state(photo).image.isNull());
        QCOMPARE(bench.document->dataRepresentationOfType({}), bytes);
        bench.set(0, {{u"nom"_s, u"b"_s}});
        QVERIFY(bench.document->dataRepresentationOfType({}).contains("sketch on a napkin"));
        bench.form().setImage(photo, QByteArray());
        bench.shown->updateRecord();
        QVERIFY(!bench.document->dataRepresentationOfType({}).contains("sketch on a napkin"));
    }

    void goldenFilesOpenShowAndSaveAsTheyWere() {
        forEachRegister([](const auto& registered) {
            TestDesk desk;
            const DocumentKind* kind = desk.kinds.forRecordClass(QLatin1String(registered.cls.name));
            for (const RegisterGolden& golden : registerGoldens(QLatin1String(registered.stem))) {
                const auto document = kind->create(*kind, desk.desk);
                auto* shown = dynamic_cast<Register*>(document.get());
                if (!shown) continue;
                document->readBytes(golden.bytes, kind->currentTypeName(desk.desk));
                for (qsizetype row = 0; row < shown->rowCount(); ++row) {
                    shown->selectRows({row});
                    if (!isMadeUnknown(golden.records[row].toObject())) shown->updateRecord();
                    for (int column = 0; column < int(shown->tableColumns().size()); ++column)
                        shown->tableCell(row, column);
                    if (shown->hasCard()) QVERIFY(!shown->card(row).isEmpty());
                }
                QVERIFY2(!document->isEdited(), qPrintable(golden.name));
                QCOMPARE(document->dataRepresentationOfType({}), golden.resaved);
            }
        });
    }
};

int runRegisterFormRecordTest(int argc, char** argv) {
    RegisterFormRecordTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterFormRecordTest.moc"
