#include <QRandomGenerator>
#include <QSignalSpy>

#include "interchange/ImportError.h"
#include "interchange/InterchangeTests.h"
#include "logbook/NumberList.h"
#include "logbook/DiveBatch.h"
#include "platform/document/Sentences.h"
#include "platform/files/Folder.h"
#include "platform/record/RecordJson.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QByteArray udcfWith(int dives, const QByteArray& content = "<PLACE>x</PLACE>") {
    return "<PROFILE><REPGROUP>" + ("<DIVE>" + content + "</DIVE>").repeated(dives) + "</REPGROUP></PROFILE>";
}

QByteArray tank(int start, int end) {
    return "<GASES><MIX><TANK><PSTART>" + QByteArray::number(start) + "</PSTART><PEND>" +
           QByteArray::number(end) + "</PEND></TANK></MIX></GASES>";
}

}  // namespace

/// What an import does to the logbook, and what it tells the person.
class ImportTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;
    std::unique_ptr<Folder> _folder;

    Carnet& carnet() { return *_book->carnet; }
    ImportResult readFiles(const QStringList& names, const char* format = "udcf") {
        QStringList paths;
        for (const QString& name : names) paths << _folder->path(name);
        return importDives(carnet(), paths, *diveReaderNamed(QLatin1String(format)), ImportAlerts::Collected);
    }

private Q_SLOTS:
    void init() {
        _book = std::make_unique<Book>();
        _folder = std::make_unique<Folder>(Folder::Where::Memory);
    }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void theWholeImportIsOneUndoStep() {
        _book->put({plainDive(4)});
        QSignalSpy changes(&carnet(), &Document::contentChanged);
        _book->read("udcf", udcfWith(3));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(carnet().count(), 4);
        QCOMPARE(carnet().undoName(), u"Import dives"_s);
        QVERIFY(carnet().isEdited());
        carnet().undo();
        QCOMPARE(carnet().count(), 1);
        carnet().redo();
        QCOMPARE(carnet().count(), 4);
        QCOMPARE(_book->dive(3).noPlongee(), 7);
    }

    void theLastDiveReadIsSelectedAndInTheForm() {
        _book->put({plainDive(4)});
        QSignalSpy scrolled(&carnet(), &Carnet::scrollWanted);
        _book->read("udcf", udcfWith(2));
        QCOMPARE(carnet().selection(), Selection({2}));
        QCOMPARE(carnet().form().integer(divecontrol::plongeeNo), 6);
        QCOMPARE(scrolled.last()[0].toInt(), 2);
    }

    void nothingToReadChangesNothing() {
        _book->put({plainDive(4)});
        carnet().select({0});
        QSignalSpy changes(&carnet(), &Document::contentChanged);
        QCOMPARE(_book->read("udcf", "<PROFILE/>").dives, 0);
        QCOMPARE(changes.size(), 0);
        QCOMPARE(carnet().undoName(), u"Set"_s);
        QCOMPARE(carnet().selection(), Selection({0}));
    }

    void whoStopsItHasNothingAdded_data() {
        QTest::addColumn<int>("after");
        for (const int after : {0, 1, 5, 9}) QTest::addRow("after %d dives", after) << after;
    }
    void whoStopsItHasNothingAdded() {
        QFETCH(int, after);
        _book->put({plainDive(4)});
        _book->desk.prompt.stopProgressAfter = after;
        QSignalSpy changes(&carnet(), &Document::contentChanged);
        const ImportResult result = _book->read("udcf", udcfWith(10));
        QVERIFY(result.isCancelled);
        QCOMPARE(result.dives, 0);
        QCOMPARE(carnet().count(), 1);
        QCOMPARE(changes.size(), 0);
        QCOMPARE(result.sentence(_book->desk.strings), u"The import was stopped, and nothing was added."_s);
    }

    void theFormOnScreenIsNotDisturbed() {
        _book->put({plainDive(4)});
        carnet().select({0});
        QSignalSpy changes(&carnet().form(), &Form::changed);
        _book->desk.prompt.stopProgressAfter = 3;
        _book->read("udcf", udcfWith(5));
        QCOMPARE(changes.size(), 0);
        QCOMPARE(carnet().form().integer(divecontrol::plongeeNo), 4);
    }

    void importingIsLikeAddingThroughTheForm() {
        _book->read("handheld",
                    "<h><repgroup><dive><place>Brest</place><maxdepth>20</maxdepth></dive></repgroup></h>");
        Book typed;
        typed.carnet->addDive([&] {
            Form& form = typed.carnet->form();
            form.setText(ControlName{"lieuField"}, u"Brest"_s);
            form.setInteger(divecontrol::profondeur, 20);
        });
        QCOMPARE(writeRecords(carnet().records(), plongeeClass()),
                 writeRecords(typed.carnet->records(), plongeeClass()));
    }

    void severalFilesAreReadInOrderAsOneStep() {
        _folder->put(u"a.xml"_s, udcfWith(2, "<PLACE>a</PLACE>"));
        _folder->put(u"b.xml"_s, udcfWith(1, "<PLACE>b</PLACE>"));
        const ImportResult result = readFiles({u"a.xml"_s, u"b.xml"_s});
        QCOMPARE(result.dives, 3);
        QCOMPARE(result.sentence(_book->desk.strings), u"3 dives were read from 2 files."_s);
        QCOMPARE(_book->dive(2).lieu(), u"b"_s);
        QCOMPARE(_book->dive(2).noPlongee(), 3);
        carnet().undo();
        QCOMPARE(carnet().count(), 0);
    }

    void aBadFileAmongGoodOnesIsNamedAndNothingIsAdded() {
        _folder->put(u"a.xml"_s, udcfWith(2));
        _folder->put(u"b.xml"_s, "<PROFILE>\n</P>");
        const auto failure = failureOf<DocumentError>([&] { readFiles({u"a.xml"_s, u"b.xml"_s}); });
        QVERIFY(failure);
        QCOMPARE(sentenceOf(*failure),
                 _folder->path(u"b.xml"_s) + u": line 2, column 3: an element does not end as it began"_s);
        QCOMPARE(sentenceIn(Strings(Strings::Language::French), *failure),
                 _folder->path(u"b.xml"_s) +
                     u": ligne 2, colonne 3 : un élément ne se termine pas comme il a commencé"_s);
        QCOMPARE(carnet().count(), 0);
    }

    void aFileThatIsNotThereIsAReadError() {
        QVERIFY(failureOf<ReadError>([&] { readFiles({u"none.xml"_s}); }));
    }

    void aLogbookToLookAtTakesNothing() {
        carnet().setReadOnly(true);
        QVERIFY(failureOf<DocumentError>([&] { _book->read("udcf", udcfWith(1)); }));
        QCOMPARE(carnet().count(), 0);
    }

    void alertsComeAsTheyHappenOrTogetherAtTheEnd() {
        const QString pressures =
            u"Check the pressures: the end pressure is above the start pressure, or one of them is negative."_s;
        const QByteArray bytes = "<P><REPGROUP><DIVE>" + tank(200, 210) + "</DIVE><DIVE>" + tank(200, 50) +
                                 "</DIVE><DIVE>" + tank(-1, 50) + "</DIVE></REPGROUP></P>";
        _book->desk.prompt.expectAlert(pressures);
        _book->desk.prompt.expectAlert(pressures);
        QVERIFY(_book->read("udcf", bytes).alerts.isEmpty());
        QCOMPARE(_book->desk.prompt.finish(), QStringList());
        ImportResult result = _book->read("udcf", bytes, ImportAlerts::Collected);
        QCOMPARE(result.alerts.size(), 1);
        QCOMPARE(result.alerts[0].dives, QList<int>({4, 6}));
        result.files = {u"x.udcf"_s};
        QCOMPARE(result.sentence(_book->desk.strings),
                 u"3 dives were read from “x.udcf”.\n\n"_s + pressures + u" Dives concerned: 4, 6."_s);
    }

    void theSentenceTellsHowItWent_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char* name, const QByteArray& bytes, const char* format,
                            const QString& sentence) {
            QTest::newRow(name) << bytes << QByteArray(format) << sentence;
        };
        row("one", udcfWith(1), "udcf", u"1 dive was read from “f.xml”."_s);
        row("many", udcfWith(12), "udcf", u"12 dives were read from “f.xml”."_s);
        row("none", "<x/>", "udcf", u"No dive was read from “f.xml”."_s);
        row("of another format", udcfWith(1), "uddf",
            u"No dive was read from “f.xml”. The file seems to be of the format UDCF."_s);
        row("one passed over", "<h><repgroup><dive/></repgroup><repgroup><dive/></repgroup></h>", "handheld",
            u"1 dive was read from “f.xml”. 1 dive was passed over: only the last group of a file is read."_s);
        row("many passed over", "<h><repgroup><dive/><dive/></repgroup><repgroup/></h>", "handheld",
            u"No dive was read from “f.xml”. 2 dives were passed over: only the last group of a file is read."_s);
    }
    void theSentenceTellsHowItWent() {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, format);
        _folder->put(u"f.xml"_s, bytes);
        const ImportResult result = readFiles({u"f.xml"_s}, format);
        QTEST(result.sentence(_book->desk.strings), "sentence");
    }

    void theSentenceIsInThePersonsLanguage() {
        _folder->put(u"f.xml"_s, udcfWith(2));
        QCOMPARE(readFiles({u"f.xml"_s}).sentence(Strings(Strings::Language::French)),
                 u"2 plongées ont été lues dans « f.xml »."_s);
    }

    void runsOfNumbersAreShort_data() {
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<QString>("text");
        const auto row = [](const QList<int>& numbers, const QString& text) {
            QTest::newRow(qPrintable(text)) << numbers << text;
        };
        row({}, u""_s);
        row({5}, u"5"_s);
        row({5, 6}, u"5, 6"_s);
        row({5, 6, 7}, u"5–7"_s);
        row({1, 3, 4, 5, 6, 9, 8}, u"1, 3–6, 9, 8"_s);
        row({7, 7, 8, 9}, u"7, 7–9"_s);
        row({INT_MAX, INT_MIN}, u"2147483647, -2147483648"_s);
    }
    void runsOfNumbersAreShort() {
        QFETCH(QList<int>, numbers);
        QTEST(numberList(numbers), "text");
    }

    /// A batch makes its blank form once and looks only at what was filled in. Nobody may see that.
    void aBatchBuildsWhatTheFormOnScreenBuilds() {
        QRandomGenerator random(20160607);
        for (int round = 0; round < 200; ++round) {
            _book = std::make_unique<Book>();
            const quint32 seed = random.generate();
            const auto fillSome = [](DiveForm& dive, QRandomGenerator& chosen) {
                Form& form = dive.form();
                for (int times = chosen.bounded(12); times > 0; --times) {
                    const int control = chosen.bounded(form.count());
                    const ControlKind kind = form.spec(control).kind;
                    if (kind == ControlKind::Date || kind == ControlKind::Time)
                        form.setDate(control, Moment::fromSeconds(chosen.bounded(1000000)));
                    else
                        form.setInteger(control, chosen.bounded(-3, 300));
                }
                if (chosen.bounded(2) == 0) return;
                Plongee lists = dive.working();
                lists.setProfilProfondeur(NumberArray::ofDoubles(std::array{0.0, chosen.bounded(40.0)}));
                dive.setProfile(lists);
            };
            QRandomGenerator first(seed), second(seed);
            for (int i = 0; i < 4; ++i) carnet().addDive([&] { fillSome(carnet().diveForm(), first); });
            Records<Plongee> dives = carnet().records();
            while (carnet().count() > 0) carnet().undo();
            DiveBatch batch(carnet(), _book->desk.prompt);
            for (int i = 0; i < 4; ++i) batch.add([&](DiveForm& form) { fillSome(form, second); });
            batch.commit();
            QCOMPARE(carnet().count(), dives.size());
            for (int i = 0; i < 4; ++i)
                QCOMPARE(recordToJson<Plongee>(*carnet().records()[i], PlongeeFields::all),
                         recordToJson<Plongee>(*dives[i], PlongeeFields::all));
            _book->desk.prompt.finish();
        }
    }

    void aBatchThatIsDroppedLeavesTheLogbook() {
        {
            DiveBatch batch(carnet(), _book->desk.prompt);
            batch.add([](DiveForm&) {});
            QCOMPARE(batch.count(), 1);
            QCOMPARE(batch.number(), 1);
        }
        QCOMPARE(carnet().count(), 0);
    }
};

int runImportTest(int argc, char** argv) {
    ImportTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ImportTest.moc"
