#include <QImage>

#include "cli/Workshop.h"
#include "registers/RegisterBench.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// The demo documents, through the commands.
class DemoRegistersTest : public QObject {
    Q_OBJECT

    static QString path(const QString& file) {
        return QStringLiteral(SARGAN_SOURCE_DIR "/resources/demo/") + file;
    }

private Q_SLOTS:
    void everyKindOpensShowsAndSaves_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("words");
        QTest::newRow("wrecks") << u"wrecks.epaves"_s << u"Epaves"_s << 4 << u"Marie-Perrine"_s;
        QTest::newRow("equipment") << u"equipment.materiel"_s << u"Materiel"_s << 7 << u"0907-15L-332"_s;
        QTest::newRow("compressor") << u"compressor.compresseur"_s << u"Compresseur"_s << 4 << u"380 ppm"_s;
        QTest::newRow("rebreather") << u"rebreather.rebreather"_s << u"Rebreather"_s << 4 << u"63:05"_s;
        QTest::newRow("spare parts") << u"spare-parts.consommables"_s << u"Consommables"_s << 6
                                     << u"CHX-20"_s;
        QTest::newRow("budget") << u"budget.budget"_s << u"Budget"_s << 4 << u"Gonflage trimix"_s;
        QTest::newRow("firms") << u"firms.entreprises"_s << u"Entreprises"_s << 4 << u"Le Palier"_s;
        QTest::newRow("clubs") << u"clubs.structures"_s << u"Structures"_s << 3 << u"Club du Phare"_s;
        QTest::newRow("papers") << u"papers.documents"_s << u"Divers documents"_s << 6 << u"Licence 2016"_s;
    }
    void everyKindOpensShowsAndSaves() {
        QFETCH(QString, file);
        QFETCH(QString, type);
        QFETCH(int, count);
        QFETCH(QString, words);
        const Workshop shop;
        QVERIFY(QFile::copy(path(file), shop.folder().path(file)));
        const QJsonObject info = shop.run({u"info"_s, file, u"--json"_s}).json();
        QCOMPARE(info[u"type"_s].toString(), type);
        QCOMPARE(info[u"records"_s].toInt(), count);
        for (const QString& language : {u"en"_s, u"fr"_s}) {
            const Outcome table = shop.run({u"--lang"_s, language, u"table"_s, file});
            QCOMPARE(table.status, 0);
            QVERIFY2(table.text().contains(words), qPrintable(table.text()));
            QVERIFY(!table.text().contains(u"error !"_s));
            if (type == u"Divers documents"_s) continue;
            for (int row = 0; row < count; ++row) {
                const Outcome card = shop.run({u"--lang"_s, language, u"card"_s, file, u"--row"_s,
                                               QString::number(row), u"-o"_s, u"-"_s});
                QVERIFY2(card.status == 0 && !card.text().contains(u"error !"_s), qPrintable(card.text()));
            }
        }
        // What a second program made, this one writes byte for byte.
        shop.run({u"dump"_s, file});
        shop.put(u"a.json"_s, shop.run({u"dump"_s, file}).output);
        QCOMPARE(shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"again"_s}).status, 0);
        QCOMPARE(shop.records(u"again"_s), shop.records(file));
    }

    void aLogWithoutInterventionsSaysWhyNoneIsAdded() {
        const Workshop shop;
        shop.run({u"new"_s, u"Rebreather"_s, u"a.rebreather"_s});
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"add"_s, u"a.rebreather"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains(u"no earlier intervention"_s),
                 qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void aPaperHasNoCard() {
        const Workshop shop;
        QVERIFY(QFile::copy(path(u"papers.documents"_s), shop.folder().path(u"a.documents"_s)));
        const Outcome outcome =
            shop.run({u"card"_s, u"a.documents"_s, u"--row"_s, u"0"_s, u"-o"_s, u"c.txt"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors), qPrintable(outcome.errors));
        QVERIFY(!shop.folder().names().contains(u"c.txt"_s));
    }

    void aPageOfAPdfIsTakenAsAPicture() {
        const Workshop shop;
        QVERIFY(QFile::copy(path(u"papers.documents"_s), shop.folder().path(u"a.documents"_s)));
        QCOMPARE(shop.run({u"print"_s, u"a.documents"_s, u"-o"_s, u"list.pdf"_s}).status, 0);
        const Outcome added = shop.run({u"add"_s, u"a.documents"_s, u"photocopy=list.pdf"_s});
        QVERIFY2(added.status == 0, qPrintable(added.errors));
        const QJsonObject copy = shop.record(u"a.documents"_s, 6)[u"photocopy"_s].toObject();
        QCOMPARE(copy[u"image"_s].toString(), u"png"_s);
        QImage page;
        QVERIFY(page.loadFromData(QByteArray::fromBase64(copy[u"base64"_s].toString().toLatin1()), "PNG"));
        // A4, landscape, two pixels to a point of 1/72 inch, on white paper with something printed on it.
        QVERIFY2(std::abs(page.width() - 2 * 842) <= 2 && std::abs(page.height() - 2 * 595) <= 2,
                 qPrintable(u"%1 x %2"_s.arg(page.width()).arg(page.height())));
        QCOMPARE(page.pixelColor(0, 0), QColor(Qt::white));
        bool hasInk = false;
        for (int y = 0; y < page.height() && !hasInk; ++y)
            for (int x = 0; x < page.width() && !hasInk; ++x)
                hasInk = page.pixelColor(x, y).lightness() < 128;
        QVERIFY(hasInk);
    }

    void anInterventionCarriesItsCellsOver() {
        const Workshop shop;
        QVERIFY(QFile::copy(path(u"rebreather.rebreather"_s), shop.folder().path(u"a.rebreather"_s)));
        QCOMPARE(shop.run({u"add"_s, u"a.rebreather"_s, u"battery=1"_s}).text(), u"row 4\n"_s);
        const QJsonArray records = shop.records(u"a.rebreather"_s);
        const QJsonObject last = records[3].toObject(), added = records[4].toObject();
        for (int n = 1; n <= 5; ++n)
            for (const QString& field : {u"cell%1"_s, u"typeCell%1"_s, u"cell%1_in"_s})
                QCOMPARE(added[field.arg(n)], last[field.arg(n)]);
        QCOMPARE(added[u"battery"_s].toInt(), 1);
        QCOMPARE(added[u"scrubber"_s].toInt(), 0);
    }
};

int runDemoRegistersTest(int argc, char** argv) {
    DemoRegistersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DemoRegistersTest.moc"
