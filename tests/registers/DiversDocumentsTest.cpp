#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

struct Papers : Holding<DiversDocs> {
    explicit Papers(const DiversDocs& paper) : Holding("Divers documents", diversDocsClass(), {paper}) {}
};

}  // namespace

class DiversDocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankPaperIsEmpty() {
        RegisterBench bench("Divers documents");
        bench.add({{u"type"_s, u"3"_s}, {u"titre"_s, u"x"_s}, {u"emetteur"_s, u"x"_s}, {u"notes"_s, u"x"_s}});
        bench.form().setImage(bench.at(u"photocopy"_s), QByteArray("\x89PNG"));
        bench.shown->blankForm();
        for (const char* field : {"titreField", "emetteurField", "notesField"})
            QCOMPARE(bench.text(QLatin1String(field)), u""_s);
        QVERIFY(bench.form().state(bench.at(u"photocopyWell"_s)).image.isNull());
        QCOMPARE(bench.tag(u"typePopUp"_s), 0);
        QCOMPARE(bench.date(u"dateField"_s), u""_s);
        // Blanking leaves the selection alone here.
        QCOMPARE(bench.shown->selectedRows(), Selection{0});
    }

    void theKindHasItsWord_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("word");
        QTest::newRow("attestation") << 0 << u"TableView attestation"_s;
        QTest::newRow("certification") << 1 << u"TableView certification"_s;
        QTest::newRow("medical certificate") << 2 << u"TableView certifMed"_s;
        QTest::newRow("invoice") << 3 << u"TableView facture"_s;
        QTest::newRow("diving licence") << 4 << u"TableView licence"_s;
        QTest::newRow("other") << 5 << u"TableView autre"_s;
        QTest::newRow("6") << 6 << u"6"_s;
        QTest::newRow("-1") << -1 << u"-1"_s;
    }
    void theKindHasItsWord() {
        QFETCH(int, kind);
        const Papers bench(with<DiversDocs>({{&DiversDocs::setType, kind}}));
        QTEST(bench.cell(0, u"type"_s).text, "word");
    }

    void titlesAreBrown() {
        const Papers bench{DiversDocs()};
        for (const TableColumn& column : bench.shown->tableColumns())
            QCOMPARE(bench.cell(0, column.identifier).color,
                     column.identifier == u"titre"_s ? QColor(systemcolor::brown) : QColor());
    }

    void datesAreShownAsDays() {
        DiversDocs paper;
        paper.setDate(Moment::fromIso(u"2016-01-18T23:59:59"_s));
        const Papers bench(paper);
        QCOMPARE(bench.cell(0, u"date"_s).text, u"18/01/2016"_s);
        QCOMPARE(bench.cell(0, u"dateRenouvellement"_s).text, u""_s);
    }

    void thereIsNoCard() {
        const Papers bench{DiversDocs()};
        QVERIFY(!bench.shown->hasCard());
        QVERIFY(bench.shown->card(0).isEmpty());
    }

    void barsHaveTheirItems() {
        const RegisterBench empty("Divers documents");
        QCOMPARE(listBar(empty), u"deleteDoc"_s);
        QCOMPARE(editBar(empty), u"addDoc blankFields synthese"_s);
        QCOMPARE(enabledItems(empty), u""_s);
        QCOMPARE(enabledItems(Papers(DiversDocs())), u"deleteDoc"_s);
        QVERIFY(!validateToolbarItem(*empty.shown, "synthese"));
    }

    void papersAreCountedAsCards() {
        QCOMPARE(RegisterBench("Divers documents").text(u"countField"_s), u"Cards|0"_s);
        QCOMPARE(Papers(DiversDocs()).text(u"countField"_s), u"One card"_s);
    }

    void opensUnderItsLocalisedTypeOnly() {
        for (const auto language : {Strings::Language::English, Strings::Language::French}) {
            RegisterBench bench("Divers documents", language);
            const QString own = bench.desk.strings.text(Message<>{"Main", "Divers documents"});
            QVERIFY(opensAs(bench, own));
            QVERIFY(!opensAs(bench, u"Divers documents"_s) || own == u"Divers documents"_s);
            QVERIFY(!opensAs(bench, u"Documents"_s) || own == u"Documents"_s);
        }
    }
};

int runDiversDocumentsTest(int argc, char** argv) {
    DiversDocumentsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiversDocumentsTest.moc"
