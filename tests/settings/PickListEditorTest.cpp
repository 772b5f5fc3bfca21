#include <QJsonArray>
#include <QTest>

#include "SettingsBench.h"
#include "SettingsTests.h"
#include "settings/ComboController.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// An editor at work on the list of a key.
struct Editor : SettingsBench {
    const PickListEditorSpec& spec;
    int list = 0;
    ComboController controller;

    explicit Editor(const QString& key) : spec(*editorOfList(key)), controller(spec, desk) {
        while (key != QLatin1String(edited().key)) ++list;
    }
    const EditedList& edited() const { return spec.lists[std::size_t(list)]; }
    QString key() const { return QLatin1String(edited().key); }
    void type(const QString& text) { controller.form().setText(ControlName{edited().entryField}, text); }
    QString typed() { return controller.form().text(ControlName{edited().entryField}); }
    QString count() { return controller.form().text(ControlName{edited().countField}); }
    void add(const QString& text) {
        type(text);
        controller.form().press(QLatin1String(edited().addAction));
    }
    void pressDelete() { controller.form().press(QLatin1String(edited().deleteAction)); }
    QStringList inMemory() const { return pickLists.list(key()); }
    QStringList stored() const {
        QStringList texts;
        const QJsonArray array = defaults.stored(key()).toArray();
        for (const QJsonValue& text : array) texts << text.toString();
        return texts;
    }
};

}  // namespace

class PickListEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyEditorIsThere_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("frame");
        QTest::addColumn<bool>("reloads");
        QTest::addColumn<QStringList>("lists");
        const auto row = [](const char* controller, const char* action, const char* layout, const char* frame,
                            bool reloads, const QStringList& lists) {
            QTest::newRow(controller) << QString::fromLatin1(action) << QString::fromLatin1(layout)
                                      << QString::fromLatin1(frame) << reloads << lists;
        };
        row("ComboSacController", "showSacWindow", "ComboSacDePlongee", "ComboSacDePlongee", false,
            {u"sac de plongee addSacItem deleteSacItem"_s});
        row("ComboLieuController", "showLieuWindow", "ComboLieu", "ComboLieu", false,
            {u"lieux addLieu deleteLieu"_s});
        row("ComboSiteController", "showSiteWindow", "ComboSite", "ComboBoxes", false,
            {u"sites addSite deleteSite"_s});
        row("ComboPaysController", "showPaysWindow", "ComboPays", "ComboPays", false,
            {u"pays addPays deletePays"_s, u"countryCode addCountryCode deleteCountryCode"_s});
        row("ComboPalanqueeController", "showPalanqueeWindow", "ComboPalanquee", "ComboPalanquee", false,
            {u"partenaires addPalanquee deletePalanquee"_s});
        row("ComboEpavesController", "showEpaveWindow", "ComboEpaves", "ComboEpaves", false,
            {u"epaves addEpave deleteWreck"_s});
        row("ComboStructuresController", "showStructureWindow", "ComboStructures", "ComboStructures", false,
            {u"structures addStructure deleteStructure"_s});
        row("ComboOrdiController", "showOrdiWindow", "ComboOrdi", "ComboOrdi", false,
            {u"ordinateurs addOrdi deleteOrdi"_s});
        row("ComboTypesMatosController", "showTypesMatosWindow", "ComboTypesMatos", "ComboTypesMatos", true,
            {u"type materiel addTypesMatos deleteTypesMatos"_s});
        row("ComboMagasinsMatosController", "showMagasinsWindow", "ComboMagasinsMatos", "ComboMagasinsMatos",
            true, {u"magasins addMagasinMatos deleteMagasinMatos"_s});
        row("ComboMarquesController", "showMarquesWindow", "ComboMarques", "ComboMarques", true,
            {u"fabricants addMarque deleteMarque"_s});
        row("ComboTankMakersController", "showTankMakerWindow", "ComboTankMakers", "ComboTankMaker", true,
            {u"tankMakers addTankMaker deleteTankMaker"_s});
        row("ComboPrestationController", "showPrestationWindow", "ComboPrestation", "ComboPrestation", true,
            {u"prestations addPrestation deletePrestation"_s});
        row("ComboActiviteController", "showActiviteWindow", "ComboActivite", "ComboActivite", true,
            {u"activite addActivite deleteActivite"_s});
        row("ComboTypeEpaveController", "showTypeEpaveWindow", "ComboTypeEpave", "ComboTypeEpave", true,
            {u"type epave addTypeEpave deleteTypeEpave"_s});
        row("ComboNaufrageController", "showNaufrageWindow", "ComboNaufrage", "ComboNaufrage", true,
            {u"cause naufrage addCauseNaufrage deleteCauseNaufrage"_s});
    }
    void everyEditorIsThere() {
        QFETCH(QString, action);
        const PickListEditorSpec* spec = findPickListEditor(action);
        QVERIFY(spec);
        QCOMPARE(QByteArray(spec->controller), QByteArray(QTest::currentDataTag()));
        QTEST(QString::fromLatin1(spec->layout), "layout");
        QTEST(QString::fromLatin1(spec->frameName), "frame");
        QTEST(spec->reloads, "reloads");
        QStringList lists;
        for (const EditedList& list : spec->lists)
            lists << QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(list.key), QLatin1String(list.addAction),
                              QLatin1String(list.deleteAction));
        QTEST(lists, "lists");
        QCOMPARE(findPickListEditor(QString::fromLatin1(spec->layout)), spec);
    }

    void thereAreSixteenEditors() {
        QCOMPARE(pickListEditors().size(), std::size_t(16));
        QCOMPARE(editorOfList(u"Lieux"), nullptr);
        QCOMPARE(findPickListEditor(u"showNothingWindow"), nullptr);
    }

    void addingSortsAndStores() {
        Editor editor(u"lieux"_s);
        QCOMPARE(editor.count(), u"Entries|0"_s);
        for (const auto& text : {u"Toulon"_s, u"Brest"_s, u"Nice"_s}) editor.add(text);
        QCOMPARE(editor.inMemory(), QStringList({u"Brest"_s, u"Nice"_s, u"Toulon"_s}));
        QCOMPARE(editor.stored(), editor.inMemory());
        QCOMPARE(editor.count(), u"Entries|3"_s);
        QCOMPARE(editor.typed(), QString());
    }

    void theSameTextTwiceIsTwoEntries() {
        Editor editor(u"sites"_s);
        editor.add(u"Le Rubis"_s);
        editor.add(u"Le Rubis"_s);
        QCOMPARE(editor.stored(), QStringList({u"Le Rubis"_s, u"Le Rubis"_s}));
    }

    void anEmptyTextComesFirst() {
        Editor editor(u"sites"_s);
        editor.add(u"Le Rubis"_s);
        editor.add(QString());
        QCOMPARE(editor.stored(), QStringList({u""_s, u"Le Rubis"_s}));
        QCOMPARE(editor.count(), u"Entries|2"_s);
    }

    void capitalsComeBeforeSmallLetters() {
        Editor editor(u"epaves"_s);
        for (const auto& text : {u"alpha"_s, u"Zeta"_s, u"\u00c9pave"_s}) editor.add(text);
        QCOMPARE(editor.stored(), QStringList({u"Zeta"_s, u"alpha"_s, u"\u00c9pave"_s}));
    }

    void theCountryEditorKeepsItsTwoListsApart() {
        Editor countries(u"pays"_s);
        countries.add(u"France"_s);
        countries.list = 1;
        countries.add(u"FRA"_s);
        QCOMPARE(countries.stored(), QStringList({u"FRA"_s}));
        QCOMPARE(countries.count(), u"Entries|1"_s);
        countries.list = 0;
        QCOMPARE(countries.stored(), QStringList({u"France"_s}));
    }

    void deletingWithoutASelectionDoesNothing() {
        Editor editor(u"lieux"_s);
        editor.add(u"Brest"_s);
        editor.type(u"half written"_s);
        editor.pressDelete();
        QCOMPARE(editor.prompt.finish(), QStringList());
        QCOMPARE(editor.typed(), u"half written"_s);
        QCOMPARE(editor.stored(), QStringList({u"Brest"_s}));
    }

    void deletingRemovesAllSelectedAfterOneQuestion() {
        Editor editor(u"lieux"_s);
        for (const auto& text : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}) editor.add(text);
        editor.type(u"half written"_s);
        editor.controller.select(0, {0, 2, 4});
        editor.prompt.expectBeep();
        editor.prompt.expectQuestion(u"Erase selection"_s, 0);
        editor.pressDelete();
        QCOMPARE(editor.prompt.finish(), QStringList());
        QCOMPARE(editor.inMemory(), QStringList({u"b"_s, u"d"_s}));
        QCOMPARE(editor.stored(), QStringList({u"b"_s, u"d"_s}));
        QCOMPARE(editor.count(), u"Entries|2"_s);
        QCOMPARE(editor.typed(), QString());
        QCOMPARE(editor.controller.selection(0), QList<qsizetype>());
    }

    void cancelLeavesTheListAndClearsTheField() {
        Editor editor(u"lieux"_s);
        editor.add(u"Brest"_s);
        editor.type(u"half written"_s);
        editor.controller.select(0, {0});
        editor.prompt.expectBeep();
        editor.prompt.expectQuestion(u"Erase selection"_s, 1);
        editor.pressDelete();
        QCOMPARE(editor.prompt.finish(), QStringList());
        QCOMPARE(editor.stored(), QStringList({u"Brest"_s}));
        QCOMPARE(editor.typed(), QString());
    }

    void registerListsAreLoadedBeforeTheyAreShown_data() {
        QTest::addColumn<bool>("reloads");
        for (const char* key : {"type materiel", "magasins", "fabricants", "tankMakers", "prestations",
                                "activite", "type epave", "cause naufrage"})
            QTest::newRow(key) << true;
        for (const char* key : {"sac de plongee", "lieux", "sites", "pays", "countryCode", "partenaires",
                                "epaves", "structures", "ordinateurs"})
            QTest::newRow(key) << false;
    }
    void registerListsAreLoadedBeforeTheyAreShown() {
        QFETCH(bool, reloads);
        Editor editor(QString::fromUtf8(QTest::currentDataTag()));
        editor.pickLists.append(editor.key(), u"in memory only"_s);
        editor.defaults.store(editor.key(), QJsonArray({u"one"_s, u"two"_s}));
        editor.controller.prepare();
        QCOMPARE(editor.controller.entries(editor.list),
                 reloads ? QStringList({u"one"_s, u"two"_s}) : QStringList({u"in memory only"_s}));
        QCOMPARE(editor.count(), reloads ? u"Entries|2"_s : u"Entries|1"_s);
    }

    void theActivitiesOfAFreshStoreAreTheServices() {
        SettingsBench bench;
        bench.defaults.store(u"prestations"_s, QJsonArray({u"Gonflage"_s}));
        registerDefaults(bench.defaults, bench.pickLists);
        ComboController editor(*editorOfList(u"activite"), bench.desk);
        editor.prepare();
        QCOMPARE(editor.entries(0), QStringList({u"Gonflage"_s}));
        QVERIFY(bench.defaults.stored(u"activite"_s).isUndefined());
    }

    void whoeverReadsTheListIsTold() {
        Editor editor(u"lieux"_s);
        QStringList seen;
        QObject::connect(&editor.pickLists, &PickLists::changed,
                         [&](const QString& key) { seen = editor.pickLists.list(key); });
        editor.add(u"Brest"_s);
        QCOMPARE(seen, QStringList({u"Brest"_s}));
    }
};

int runPickListEditorTest(int argc, char** argv) {
    PickListEditorTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PickListEditorTest.moc"
