#include <QSignalSpy>

#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// The editor of the dives that were made before the logbook.
class PreviousDivesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theEditorShowsWhatIsStoredAndZeroForTheRest() {
        TestDesk desk;
        desk.defaults.store(valuesKey,
                            QJsonObject{{u"co"_s, 12}, {u"heliox"_s, u"some"_s}, {u"prof max"_s, 40.5}});
        const auto carnet = logbookOf(desk, {});
        Statistics statistics(*carnet);
        const QSignalSpy shown(&statistics, &Statistics::editorShown);
        statistics.panel().press(u"showEditStatisticsWindow"_s);
        QCOMPARE(shown.count(), 1);
        const auto text = [&](const char* name) { return statistics.editor().text(ControlName{name}); };
        QCOMPARE(text("statSumCOField"), u"12"_s);
        QCOMPARE(text("statSumHelioxField"), u"some"_s);
        QCOMPARE(text("statSumProfMaxField"), u"40.5"_s);
        QCOMPARE(text("statSumDivesField"), u"0"_s);
    }

    void everyInputOfTheEditorIsStoredUnderItsKey() {
        const QList<std::pair<const char*, const char*>> inputs{{"co", "CO"},
                                                                {"scr", "SCR"},
                                                                {"ccr", "CCR"},
                                                                {"air", "Air"},
                                                                {"nitrox", "Nitrox"},
                                                                {"trimix", "Trimix"},
                                                                {"heliox", "Heliox"},
                                                                {"prof_1", "Prof_1"},
                                                                {"prof_2", "Prof_2"},
                                                                {"prof_3", "Prof_3"},
                                                                {"prof_4", "Prof_4"},
                                                                {"prof_5", "Prof_5"},
                                                                {"prof_6", "Prof_6"},
                                                                {"prof_7", "Prof_7"},
                                                                {"prof max", "ProfMax"},
                                                                {"temps max", "TempsMax"},
                                                                {"temperature min", "TempMin"},
                                                                {"temperature max", "TempMax"},
                                                                {"bio", "Bio"},
                                                                {"carriere", "Carriere"},
                                                                {"derivante", "Derivante"},
                                                                {"epaves", "Epaves"},
                                                                {"explo", "Explo"},
                                                                {"formation", "Formation"},
                                                                {"nocturne", "Nocturne"},
                                                                {"photo", "Photo"},
                                                                {"recuperation", "Recup"},
                                                                {"glace", "Glace"},
                                                                {"speleo", "Speleo"},
                                                                {"tek", "Tek"},
                                                                {"travail", "Travail"},
                                                                {"video", "Video"},
                                                                {"autre", "Autre"},
                                                                {"total profondeur", "Prof"},
                                                                {"total temps", "Temps"},
                                                                {"total plongees", "Dives"}};
        TestDesk desk;
        const auto carnet = logbookOf(desk, {});
        Statistics statistics(*carnet);
        Form& editor = statistics.editor();
        QCOMPARE(editor.count(), int(inputs.size()));
        int number = 1000;
        for (const auto& [key, name] : inputs)
            editor.setText(editor.find(u"statSum%1Field"_s.arg(QLatin1String(name))),
                           QString::number(++number));
        const QSignalSpy closed(&statistics, &Statistics::editorClosed);
        editor.press(u"validateStatisticsValues"_s);
        QCOMPARE(closed.count(), 1);
        const QJsonObject stored = desk.defaults.stored(valuesKey).toObject();
        QCOMPARE(stored.size(), inputs.size());
        number = 1000;
        for (const auto& [key, name] : inputs)
            QCOMPARE(stored.value(QLatin1String(key)), QJsonValue(++number));
        // The counts, the deepest and the longest dive stand on the panel under the same names.
        number = 1000;
        const QStringList elsewhere{u"TempMin"_s, u"TempMax"_s, u"Prof"_s, u"Temps"_s, u"Dives"_s};
        for (const auto& [key, name] : inputs) {
            ++number;
            if (elsewhere.contains(QLatin1String(name))) continue;
            const QByteArray shown = QByteArray("stat") + name + "Field";
            QCOMPARE(field(statistics, shown).section(u' ', 0, 0), QString::number(number));
        }
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 1036"_s);
        QCOMPARE(field(statistics, "statBioField"), u"1019"_s);
        QCOMPARE(field(statistics, "statProfTotalField"), u"1034 m"_s);
    }

    void whatIsNoNumberIsStoredAsItStands() {
        TestDesk desk;
        const auto carnet = logbookOf(desk, {});
        Statistics statistics(*carnet);
        statistics.editor().setText(ControlName{"statSumBioField"}, u"a few"_s);
        statistics.editor().setText(ControlName{"statSumTekField"}, u""_s);
        statistics.editor().setText(ControlName{"statSumVideoField"}, u"-7,5"_s);
        statistics.validateStatisticsValues();
        const QJsonObject stored = desk.defaults.stored(valuesKey).toObject();
        QCOMPARE(stored.value(u"bio"_s), QJsonValue(u"a few"_s));
        QCOMPARE(stored.value(u"tek"_s), QJsonValue(u""_s));
        QCOMPARE(stored.value(u"video"_s), QJsonValue(-7.5));
        QCOMPARE(field(statistics, "statVideoField"), u"-7"_s);
    }

    void givingUpTheEditorStoresNothing() {
        TestDesk desk;
        const auto carnet = logbookOf(desk, {});
        Statistics statistics(*carnet);
        statistics.showEditStatisticsWindow();
        statistics.editor().setText(ControlName{"statSumBioField"}, u"5"_s);
        statistics.editor().press(u"closeEditStatisticsWindow"_s);
        QVERIFY(!desk.defaults.contains(valuesKey));
        statistics.showEditStatisticsWindow();
        QCOMPARE(statistics.editor().text(ControlName{"statSumBioField"}), u"0"_s);
    }

    void anotherLogbooksEditorIsFollowed() {
        TestDesk desk;
        const auto first = logbookOf(desk, {}), second = logbookOf(desk, {});
        Statistics edited(*first);
        const Statistics other(*second);
        edited.editor().setText(ControlName{"statSumDivesField"}, u"9"_s);
        edited.validateStatisticsValues();
        QCOMPARE(field(other, "statStateField"), u"Total dives: 9"_s);
    }
};

int runPreviousDivesTest(int argc, char** argv) {
    PreviousDivesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreviousDivesTest.moc"
