#include <QBuffer>
#include <QImage>
#include <QtTest>

#include "cli/Workshop.h"
#include "registers/RegisterGoldens.h"
#include "registers/RegisterTests.h"

using namespace Qt::StringLiterals;

namespace {

QStringList words(const char* line) {
    return QString::fromUtf8(line).split(u' ');
}

/// A workshop with an empty document of a type, which commands call "r".
struct NewRegister : Workshop {
    explicit NewRegister(const QString& type) : file(u"r."_s + type.toLower()) {
        if (run({u"new"_s, type, u"r"_s}).status != 0) qFatal("no new document");
    }
    Outcome run(QStringList words) const {
        for (QString& word : words)
            if (word == u"r"_s) word = file;
        return Workshop::run(words);
    }
    QJsonArray records() const { return Workshop::records(file); }
    QJsonObject record(int row) const { return Workshop::record(file, row); }

    QString file;
    QJsonObject table() const { return run(words("table r --json")).json(); }
    QJsonObject cell(int row, const QString& column) const {
        const QJsonObject shown = table();
        const qsizetype place = shown[u"columns"_s].toArray().toVariantList().indexOf(column);
        return shown[u"rows"_s].toArray()[row].toArray()[place].toObject();
    }
    QJsonObject controls(const QStringList& options = {}) const {
        return run(QStringList{u"form"_s, u"r"_s, u"--json"_s} + options).json()[u"controls"_s].toObject();
    }
};

QJsonArray barsOf(const Outcome& outcome) {
    return QJsonDocument::fromJson(outcome.output).array();
}

}  // namespace

class RegisterCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addPrintsTheRowAndTheTableShowsIt() {
        const NewRegister wrecks(u"Epaves"_s);
        QCOMPARE(wrecks.run(words("add r nom=Elster")).text(), u"row 0\n"_s);
        QCOMPARE(wrecks.run(words("add r nom=Liberty aVisiter=1 pointBas=31")).text(), u"row 1\n"_s);
        QCOMPARE(wrecks.table()[u"count"_s], u"2 wrecks"_s);
        QCOMPARE(wrecks.cell(0, u"nom"_s)[u"color"_s], u"brown"_s);
        QCOMPARE(wrecks.cell(0, u"pointHaut"_s)[u"text"_s], u"0 m"_s);
        QCOMPARE(wrecks.cell(1, u"pointBas"_s)[u"text"_s], u"31 m"_s);
        QCOMPARE(wrecks.cell(1, u"nom"_s)[u"color"_s], u"rgba(1, 0.502, 0.455, 1)"_s);
    }

    void setChangesTheRow() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r nom=Elster"));
        QCOMPARE(
            wrecks.run(words("set r --row 0 pointHaut=- longueurField=92,5 orientationSlider=45")).status, 0);
        const QJsonObject wreck = wrecks.record(0);
        QCOMPARE(wreck[u"pointHaut"_s], -1);
        QCOMPARE(wreck[u"longueur"_s], 92.5);
        QCOMPARE(wreck[u"orientation"_s], 45);
        QCOMPARE(wreck[u"nom"_s], u"Elster"_s);
        QCOMPARE(wreck[u"tableauDesEpaves"_s], QJsonValue::Null);
    }

    void addingCarriesMasterAndCargoOver() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run({u"add"_s, u"r"_s, u"capitaine=Le Goff"_s, u"chargement=coal"_s, u"equipage=9"_s});
        wrecks.run(words("add r"));
        const QJsonObject wreck = wrecks.record(1);
        QCOMPARE(wreck[u"capitaine"_s], u"Le Goff"_s);
        QCOMPARE(wreck[u"chargement"_s], u"coal"_s);
        QCOMPARE(wreck[u"equipage"_s], u""_s);
    }

    void aNewWordIsAskedForAndAnsweredByTheOption() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r"));
        const Outcome agreed = wrecks.run(words("--yes set r --row 0 type=felucca"));
        QCOMPARE(agreed.errors.section(u'\n', 0, 0), u"beep"_s);
        QVERIFY(agreed.errors.section(u'\n', 1, 1).startsWith(u"question: "_s));
        QVERIFY(wrecks.run({u"picklist"_s, u"type epave"_s}).text().contains(u"felucca\n"_s));
        QCOMPARE(wrecks.run(words("set r --row 0 type=felucca")).errors, u""_s);
        wrecks.run(words("--no set r --row 0 type=dhow"));
        QVERIFY(!wrecks.run({u"picklist"_s, u"type epave"_s}).text().contains(u"dhow"_s));
        QCOMPARE(wrecks.record(0)[u"type"_s], u"dhow"_s);
    }

    void sortClicksTheHeadersInOrder() {
        const NewRegister wrecks(u"Epaves"_s);
        for (const char* name : {"b", "c", "a"})
            wrecks.run({u"add"_s, u"r"_s, u"nom="_s + QLatin1String(name)});
        const auto names = [&] {
            QString all;
            for (const QJsonValue& wreck : wrecks.records()) all += wreck[u"nom"_s].toString();
            return all;
        };
        QCOMPARE(wrecks.run(words("sort r --column nom")).status, 0);
        QCOMPARE(names(), u"cba"_s);
        QCOMPARE(wrecks.run(words("sort r --column nom nom")).status, 0);
        QCOMPARE(names(), u"abc"_s);
        QCOMPARE(wrecks.run(words("sort r --column nom type nom nom")).status, 0);
        QCOMPARE(names(), u"abc"_s);
        QCOMPARE(wrecks.run(words("sort r --column beauty")).status, 2);
    }

    void deleteTakesSeveralRowsAfterOneQuestion() {
        const NewRegister items(u"Materiel"_s);
        for (int i = 0; i < 3; ++i) items.run(words("add r"));
        const Outcome refused = items.run(words("delete r --row 0 2"));
        QCOMPARE(refused.errors.count(u"question: "_s), 1);
        QCOMPARE(items.records().size(), 3);
        QCOMPARE(items.run(words("--yes delete r --row 0 2")).status, 0);
        QCOMPARE(items.records().size(), 1);
        QCOMPARE(items.record(0)[u"matosNo"_s], u"2"_s);
    }

    void theFormShowsGaugeCaptionsAndCount() {
        const NewRegister items(u"Materiel"_s);
        items.run(words("add r noInspection=0 lastRevision=2016-06-01 nextRevision=2016-06-05"));
        const QJsonObject controls = items.controls(words("--row 0 --now 2016-06-02T00:00:00"));
        QCOMPARE(controls[u"tempsProgress"_s][u"value"_s], 25);
        QCOMPARE(controls[u"tempsProgress"_s][u"text"_s], u"25 %"_s);
        QCOMPARE(controls[u"tempsField"_s][u"text"_s], u"25 %"_s);
        QCOMPARE(controls[u"countField"_s][u"text"_s], u"1 card"_s);
        QCOMPARE(controls[u"tivSwitch"_s][u"hidden"_s], true);
        QCOMPARE(controls[u"lastRevisionField"_s][u"hidden"_s], false);
        QCOMPARE(items.run(words("--now 2016-06-02T00:00:00 table r")).text().contains(u"25.000000"_s), true);
    }

    void theBlankFormHasTheNextNumber() {
        const NewRegister items(u"Materiel"_s);
        items.run(words("add r"));
        QCOMPARE(items.controls()[u"matosNoField"_s][u"text"_s], u"2"_s);
    }

    void toolBarsShowWhatIsEnabled() {
        const NewRegister items(u"Materiel"_s);
        const auto enabledItems = [&] {
            QStringList found;
            for (const QJsonValue& bar : barsOf(items.run(words("tool-bars r --json")))) {
                found << bar[u"identifier"_s].toString();
                for (const QJsonValue& item : bar[u"items"_s].toArray())
                    found << item[u"identifier"_s].toString() + u' ' + item[u"label"_s].toString() +
                                 (item[u"enabled"_s].toBool() ? u""_s : u" off"_s);
            }
            return found;
        };
        QCOMPARE(enabledItems(),
                 QStringList({u"equipTableViewWindowToolbar"_s, u"saveDocument Save"_s,
                              u"imprimer Print off"_s, u"addMatos Add"_s, u"deleteMatos Delete off"_s,
                              u"synthese Synthesis off"_s, u"equipEditWindowToolbar"_s, u"addMatos Add"_s,
                              u"blankFields Erase"_s, u"synthese Synthesis off"_s}));
        items.run(words("add r"));
        QCOMPARE(enabledItems().filter(u"off"_s), QStringList());
    }

    void theWreckToolBarLooksAtTheDiversList() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r"));
        wrecks.run(words("defaults write epaves []"));
        const QString off = wrecks.run(words("tool-bars r")).text();
        QCOMPARE(off.count(u"(disabled)"_s), 3);
        wrecks.run(words("defaults write epaves [\"Liberty\"]"));
        QCOMPARE(wrecks.run(words("tool-bars r")).text().count(u"(disabled)"_s), 0);
        QCOMPARE(wrecks.run(words("tool-bars r --lang keys")).text().section(u'\n', 0, 1),
                 u"wreckTableViewWindowToolbar\n  saveDocument: Save"_s);
    }

    void theCardIsWrittenInEveryFormat() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r nom=Elster"));
        const Outcome plain = wrecks.run(words("card r --row 0 -o - --now 2020-02-03T10:00:00"));
        QVERIFY(plain.text().startsWith(u"Wreck\n--------------------\nName : Elster\n"_s));
        QVERIFY(plain.text().contains(u"File: "_s + wrecks.folder().path(wrecks.file)));
        QVERIFY(plain.text().contains(u"Printed on: 03/02/2020"_s));
        QCOMPARE(wrecks.run(words("card r --row 0 -o c.txt")).status, 0);
        QCOMPARE(wrecks.run(words("card r --row 0 -o c.html")).status, 0);
        QVERIFY(wrecks.folder().content(u"c.html"_s).startsWith("<!DOCTYPE html>"));
        QVERIFY(wrecks.folder().content(u"c.html"_s).contains("Elster"));
        QCOMPARE(wrecks.run(words("card r --row 0 -o c.pdf")).status, 0);
        QVERIFY(wrecks.folder().content(u"c.pdf"_s).startsWith("%PDF-"));
    }

    void aCardThatCannotBeWrittenIsOneSentence_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("status");
        QTest::newRow("no such row") << u"card r --row 1 -o c.txt"_s << 1;
        QTest::newRow("no format") << u"card r --row 0 -o c.doc"_s << 2;
        QTest::newRow("no output") << u"card r --row 0"_s << 2;
        QTest::newRow("no register") << u"card dives --row 0 -o c.txt"_s << 1;
    }
    void aCardThatCannotBeWrittenIsOneSentence() {
        QFETCH(QString, command);
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r"));
        wrecks.run({u"new"_s, u"Carnet de plongee"_s, u"dives"_s});
        const Outcome refused = wrecks.run(command.split(u' '));
        QTEST(refused.status, "status");
        const QString first = refused.errors.section(u'\n', 0, 0) + u'\n';
        QVERIFY2(isOneSentence(first), qPrintable(refused.errors));
        QVERIFY(!wrecks.folder().names().contains(u"c.txt"_s));
    }

    void anotherTypeIsRefused() {
        const NewRegister wrecks(u"Epaves"_s);
        wrecks.run(words("add r"));
        QCOMPARE(wrecks.run(words("dump r --as Epaves")).status, 0);
        QCOMPARE(wrecks.run(words("dump r --as Materiel")).status, 1);
    }

    void aPictureComesFromAFileAndGoesIntoTheDump() {
        const NewRegister wrecks(u"Epaves"_s);
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray png, bmp;
        QBuffer pngBuffer(&png), bmpBuffer(&bmp);
        pngBuffer.open(QIODevice::WriteOnly);
        bmpBuffer.open(QIODevice::WriteOnly);
        QVERIFY(image.save(&pngBuffer, "PNG") && image.save(&bmpBuffer, "BMP"));
        wrecks.put(u"p.png"_s, png);
        wrecks.put(u"p.bmp"_s, bmp);
        wrecks.put(u"p.txt"_s, "no picture");
        const QString photo = wrecks.folder().path(u"p."_s);
        QCOMPARE(wrecks.run({u"add"_s, u"r"_s, u"photo="_s + photo + u"png"_s}).status, 0);
        const QJsonObject kept = wrecks.record(0)[u"photo"_s].toObject();
        QCOMPARE(kept[u"image"_s], u"png"_s);
        QCOMPARE(QByteArray::fromBase64(kept[u"base64"_s].toString().toLatin1()), png);
        QCOMPARE(wrecks.run({u"add"_s, u"r"_s, u"photoWell="_s + photo + u"bmp"_s}).status, 0);
        QCOMPARE(wrecks.record(1)[u"photo"_s][u"image"_s], u"png"_s);
        QCOMPARE(wrecks.run({u"add"_s, u"r"_s, u"photo="_s + photo + u"txt"_s}).status, 2);
        QCOMPARE(wrecks.records().size(), 2);
    }

    void dumpAndLoadAreInverse_data() {
        QTest::addColumn<QString>("golden");
        QTest::newRow("wrecks") << u"epaves-v6.epaves"_s;
        QTest::newRow("equipment") << u"materiel-v5.materiel"_s;
    }
    void dumpAndLoadAreInverse() {
        QFETCH(QString, golden);
        const Workshop shop;
        shop.putGolden(golden, golden);
        const Outcome dumped = shop.run({u"dump"_s, golden});
        shop.put(u"d.json"_s, dumped.output);
        QCOMPARE(shop.run(words("load d.json -o again")).errors, u""_s);
        QCOMPARE(shop.records(u"again"_s), afterSaving(dumped.json()[u"records"_s].toArray()));
    }

    void theListIsPrinted() {
        const NewRegister items(u"Materiel"_s);
        items.run(words("add r typeMatos=x"));
        QCOMPARE(items.run(words("print r -o l.pdf")).status, 0);
        QVERIFY(items.folder().content(u"l.pdf"_s).startsWith("%PDF-"));
    }
};

int runRegisterCommandsTest(int argc, char** argv) {
    RegisterCommandsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterCommandsTest.moc"
