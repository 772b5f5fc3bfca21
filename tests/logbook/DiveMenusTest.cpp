#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// The words behind every tag, in both languages.
class DiveMenusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTagHasItsWord_data() {
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("french");
        const auto row = [](const char* control, const QString& english, const QString& french) {
            QTest::newRow(control) << english << french;
        };
        row("pmBmPopUp", u"…/High tide/Low tide"_s, u"…/Pleine mer/Basse mer"_s);
        row("gpsSystemPopUp", u"…/WGS84/ED50"_s, u"…/WGS84/ED50"_s);
        row("meteoPopUp", u"Clear/Cloudy/Foggy/Rainy/Hail/Snowy/Thundery/N|A"_s,
            u"Beau/Nuageux/Brumeux/Pluvieux/Grêle/Neigeux/Orageux/N|A"_s);
        row("ventSecteurPopUp", u"N|A/North/North-east/East/South-east/South/South-west/West/North-west"_s,
            u"N|A/Nord/Nord-est/Est/Sud-est/Sud/Sud-ouest/Ouest/Nord-ouest"_s);
        QString forces = u"N|A"_s;
        for (int force = 0; force <= 12; ++force) forces += u"/Force %1"_s.arg(force);
        row("ventForcePopUp", forces, forces);
        row("courantPopUp", u"None/Weak/Moderate/Strong/Very strong/Violent/N|A"_s,
            u"Nul/Faible/Modéré/Fort/Très fort/Violent/N|A"_s);
        row("visibilitePopUp", u"Excellent/Very good/Good/Medium/Bad/Very bad/Execrable/N|A/Exceptional"_s,
            u"Excellente/Très bonne/Bonne/Moyenne/Mauvaise/Très mauvaise/Exécrable/N|A/Exceptionnelle"_s);
        row("typePlongeePopUp",
            u"Wreck/Recreational/N|A/Photo/Technical/Cave/Video/Work/Other/Drift/Under ice/Training/"
            "Biology/Quarry/Salvage"_s,
            u"Épave/Exploration/N|A/Photo/Tek/Spéléo/Vidéo/Travail/Autre/Dérivante/Sous glace/Formation/"
            "Bio/Carrière/Récupération"_s);
        row("inoubliablePopUp", u"—/Unforgettable"_s, u"—/Inoubliable"_s);
        row("decoPopUp", u"Air tables/Nitrox tables/Computer/Air ÷ nitrox/Air ÷ O₂/Air ÷ nitrox ÷ O₂"_s,
            u"Tables air/Tables nitrox/Ordinateur/Air ÷ nitrox/Air ÷ O₂/Air ÷ nitrox ÷ O₂"_s);
        row("rebreatherPopUp", u"Open circuit/SCR/mCCR/eCCR/hCCR"_s, u"Circuit ouvert/SCR/mCCR/eCCR/hCCR"_s);
        const QString gases = u"Air/Nitrox/Trimix/Heliox/Helitrox/Heliair"_s;
        const QString gaz = u"Air/Nitrox/Trimix/Héliox/Hélitrox/Héliair"_s;
        row("gazPopUp", gases, gaz);
        row("gaz_2PopUp", gases, gaz);
        const QString points =
            u"0,7 bar/0,8 bar/0,9 bar/1,0 bar/1,1 bar/1,2 bar/1,3 bar/1,4 bar/1,5 bar/1,6 bar"_s;
        row("ppO2PopUp", points, points);
        row("lowSetpointPopUp", points, points);
        row("alliageBlocPopUp", u"Steel/Aluminium/Carbon"_s, u"Acier/Aluminium/Carbone"_s);
        row("alliageBloc_2PopUp", u"Steel/Aluminium/Carbon"_s, u"Acier/Aluminium/Carbone"_s);
        row("combinaisonPopUp", u"Wet suit/Dry suit/Shorty/No suit/Semi-dry suit/T-shirt/Tropical suit"_s,
            u"Humide/Étanche/Shorty/Sans combinaison/Semi-étanche/T-shirt/Tropicale"_s);
        row("configurationPopUp", u"Recreational/Technical"_s, u"Loisir/Tek"_s);
        row("samplingRatePopUp", u"10 s/20 s/30 s/60 s/120 s/4 s/5 s (code 6)/5 s"_s,
            u"10 s/20 s/30 s/60 s/120 s/4 s/5 s (code 6)/5 s"_s);
    }
    void everyTagHasItsWord() {
        const auto words = [](const QString& list) {
            return list.split(u'/').replaceInStrings(u"|"_s, u"/"_s).replaceInStrings(u"÷"_s, u"/"_s);
        };
        QFETCH(QString, english);
        QFETCH(QString, french);
        TestDesk desk;
        DiveForm form(desk.desk);
        const int control = form.form().find(QString::fromLatin1(QTest::currentDataTag()));
        for (const auto& [language, list] :
             {std::pair{Strings::Language::English, english}, {Strings::Language::French, french}}) {
            desk.strings.setLanguage(language);
            QStringList shown;
            for (int tag = 0; tag < words(list).size(); ++tag) {
                form.form().setTag(control, tag);
                shown << form.form().shownText(control, desk.strings);
            }
            QCOMPARE(shown, words(list));
            // No item follows the last one, and none stands before the first.
            for (const int tag : {-1, int(shown.size())}) {
                form.form().setTag(control, tag);
                QCOMPARE(form.form().shownText(control, desk.strings), QString());
            }
        }
    }

    void thereAreTwentyMenus() {
        const auto isMenu = [](const DiveControl& control) {
            return control.spec.kind == ControlKind::PopUp;
        };
        QCOMPARE(std::ranges::count_if(diveControls(), isMenu), 20);
    }
};

int runDiveMenusTest(int argc, char** argv) {
    DiveMenusTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveMenusTest.moc"
