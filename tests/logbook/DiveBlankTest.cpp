#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

namespace {

/// Controls that start with a text, and the text.
QMap<QString, QString> blankTexts() {
    QMap<QString, QString> texts;
    for (const auto& empty :
         {u"plongeeNo"_s, u"lieu"_s, u"site"_s, u"pays"_s, u"partenaires"_s, u"epaves"_s, u"structure"_s,
          u"bateau"_s, u"profondeur"_s, u"temps"_s, u"runtime"_s, u"depart"_s, u"fin"_s, u"depart_2"_s,
          u"fin_2"_s, u"notes"_s, u"volumeBloc_2"_s, u"pressionBloc_2"_s})
        texts.insert(empty, u""_s);
    for (int n = 1; n <= 12; ++n) texts.insert(u"equip_%1"_s.arg(n), u""_s);
    for (const auto& dash : {u"coeff"_s, u"tempEau"_s, u"tempAir"_s, u"deco_TTS"_s, u"decoSoftName"_s,
                             u"decoAlgoType"_s, u"decoConservatism"_s})
        texts.insert(dash, u"-"_s);
    for (const auto& zero : {u"altitude"_s, u"pAtm"_s, u"flow"_s, u"heMix"_s, u"heMix_2"_s})
        texts.insert(zero, u"0"_s);
    for (int tank = 1; tank <= 3; ++tank)
        for (const auto& value : {u"Volume"_s, u"Depart"_s, u"Fin"_s, u"O2"_s, u"He"_s})
            texts.insert(u"bailout_%1_%2"_s.arg(QString::number(tank), value), u"0"_s);
    for (int stage = 1; stage <= 6; ++stage) {
        const QString level = u"_Level_%1_"_s.arg(stage);
        texts.insert(u"decoO2"_s + level, u"-"_s);
        texts.insert(u"decoHe"_s + level, u"0"_s);
        texts.insert(u"timeDeco"_s + level, u"-"_s);
    }
    for (const auto& tank : {u""_s, u"_2"_s}) {
        texts.insert(u"o2Mix"_s + tank, u"21"_s);
        texts.insert(u"n2Mix"_s + tank, u"79"_s);
    }
    texts.insert(u"surface"_s, u"--:--"_s);
    texts.insert(u"gps"_s, u"GPS template"_s);
    texts.insert(u"difficulte"_s, u"Very easy"_s);
    for (const auto& tank : {u"deltaPressure"_s, u"deltaPressure_2"_s})
        texts.insert(tank, u"Delta pressure|0|0"_s);
    texts.insert(u"cns"_s, u"CNS|0.21|0"_s);
    return texts;
}

/// Controls that start with the text of a setting, without and with it.
struct FromSetting {
    const char* control;
    const char* key;
    QJsonValue value;
    const char* without;
    const char* with;
};
const FromSetting fromSettings[] = {
    {"countryCode", "country code", u"FR"_s, "", "FR"},
    {"lowGF", "low GF", 30, "", "30"},
    {"highGF", "high GF", u"85"_s, "", "85"},
    {"sodaType", "soda lime", u"Sofnolime"_s, "", "Sofnolime"},
    {"volumeBloc", "tank volume", u"15"_s, "", "15"},
    {"pressionBloc", "tank pressure", 232, "", "232"},
    {"fabricant", "fabricant", u"Maker"_s, "", "Maker"},
    {"ordinateur", "ordinateur", u"Model"_s, "", "Model"},
    {"serie", "serie", u"0042"_s, "", "0042"},
    {"lestage", "default weight", u"6,5 kg"_s, "0", "6.5"},
    {"depthDeco_Level_1_", "stop interval", 4, "0", "4"},
    {"depthDeco_Level_2_", "stop interval", 4, "0", "8"},
    {"depthDeco_Level_3_", "stop interval", 4, "0", "12"},
    {"depthDeco_Level_4_", "stop interval", 4, "0", "16"},
    {"depthDeco_Level_5_", "stop interval", 4, "0", "20"},
    {"depthDeco_Level_6_", "stop interval", 4, "0", "24"},
};

const QMap<QString, int> blankTags{
    {u"pmBmPopUp"_s, 0},         {u"gpsSystemPopUp"_s, 1},     {u"meteoPopUp"_s, 7},
    {u"ventSecteurPopUp"_s, 0},  {u"ventForcePopUp"_s, 0},     {u"courantPopUp"_s, 6},
    {u"visibilitePopUp"_s, 7},   {u"typePlongeePopUp"_s, 8},   {u"inoubliablePopUp"_s, 0},
    {u"nocturneSwitch"_s, 0},    {u"decoPopUp"_s, 0},          {u"rebreatherPopUp"_s, 0},
    {u"gazPopUp"_s, 0},          {u"gaz_2PopUp"_s, 0},         {u"ppO2PopUp"_s, 0},
    {u"lowSetpointPopUp"_s, 0},  {u"alliageBlocPopUp"_s, 0},   {u"alliageBloc_2PopUp"_s, 0},
    {u"combinaisonPopUp"_s, 0},  {u"configurationPopUp"_s, 1}, {u"difficulteSlider"_s, 0},
    {u"samplingRatePopUp"_s, 0},
};

}  // namespace

class DiveBlankTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    /// Puts something else into every control.
    void disturb() {
        Form& form = _book->carnet->form();
        for (int control = 0; control < form.count(); ++control) {
            form.setText(control, u"disturbed"_s);
            form.setTag(control, 99);
            form.setDate(control, Moment::fromSeconds(1));
        }
    }
    void expectBlank(bool withSettings) {
        const QMap<QString, QString> texts = blankTexts();
        for (auto it = texts.begin(); it != texts.end(); ++it)
            QVERIFY2(_book->text(it.key() + u"Field"_s) == it.value(), qPrintable(it.key()));
        for (auto it = blankTags.begin(); it != blankTags.end(); ++it)
            QVERIFY2(_book->tag(it.key()) == it.value(), qPrintable(it.key()));
        for (const FromSetting& setting : fromSettings) {
            const QString wanted = QString::fromLatin1(withSettings ? setting.with : setting.without);
            const QString found = _book->text(QString::fromLatin1(setting.control) + u"Field"_s);
            QVERIFY2(found == wanted, qPrintable(QLatin1String(setting.control) + u": "_s + found));
        }
        const Form& form = _book->carnet->form();
        QCOMPARE(form.date(form.find(u"dateField")).iso(), u"2016-06-07T14:30:00"_s);
        QCOMPARE(form.date(form.find(u"heureField")).iso(), u"2001-01-01T00:00:00"_s);
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Logbook>(); }

    void theTablesNameEveryControl() {
        // Every control has its row: two more are dates.
        const auto count = blankTexts().size() + blankTags.size() + qsizetype(std::size(fromSettings)) + 2;
        QCOMPARE(count, _book->carnet->form().count());
    }

    void aNewFormIsBlank() { expectBlank(false); }

    void blankingSetsEveryControl() {
        disturb();
        _book->carnet->diveForm().blankFields();
        expectBlank(false);
    }

    void theSettingsFillTheirControls() {
        for (const FromSetting& setting : fromSettings)
            _book->desk.defaults.store(QString::fromLatin1(setting.key), setting.value);
        disturb();
        _book->carnet->diveForm().blankFields();
        expectBlank(true);
    }

    void aRegisteredSettingCountsToo() {
        _book->desk.defaults.registerDefault(u"stop interval"_s, u"3"_s);
        _book->carnet->diveForm().blankFields();
        for (int stage = 1; stage <= 6; ++stage)
            QCOMPARE(_book->text(u"depthDeco_Level_%1_Field"_s.arg(stage)), QString::number(3 * stage));
    }

    void theProfileHasOneSampleAtTheSurface() {
        const Plongee& profile = _book->carnet->diveForm().working();
        const auto zero = NumberArray::ofDoubles(std::to_array({0.0}));
        const auto noFlag = NumberArray::ofInts(std::to_array<qint32>({0}));
        QCOMPARE(profile.profilProfondeur(), zero);
        QCOMPARE(profile.PRESS_Data(), zero);
        for (const auto& flags : {profile.ASC_Flag(), profile.SLOW_Flag(), profile.SURF_Flag(),
                                  profile.CEIL_Flag(), profile.GAZ_Flag()})
            QCOMPARE(flags, noFlag);
    }

    void theProfileOfAnEarlierDiveIsGone() {
        Plongee dive;
        dive.setProfilProfondeur(NumberArray::ofDoubles(std::to_array({1.0, 2.0})));
        _book->carnet->diveForm().editFields(std::make_shared<const Plongee>(dive));
        QCOMPARE(_book->carnet->diveForm().working().profilProfondeur().size(), 2);
        _book->carnet->diveForm().blankFields();
        QCOMPARE(_book->carnet->diveForm().working().profilProfondeur().size(), 1);
    }

    void theNumberHasTheFocus() {
        _book->carnet->diveForm().blankFields();
        QCOMPARE(_book->carnet->form().focus(), _book->carnet->form().find(u"plongeeNoField"));
    }

    void whatIsBlankIsPresent() {
        const Plongee dive = _book->carnet->diveForm().addDiveToList();
        for (const Field<Plongee>* field : PlongeeFields::all)
            if (field->is<Text>())
                QVERIFY2(!std::get<Text Plongee::*>(field->member) ||
                             !(dive.*std::get<Text Plongee::*>(field->member)).isNull(),
                         field->name);
    }

    void theClocksFractionOfASecondIsLeftOut() {
        _book->desk.desk.clock = Clock(QDateTime(QDate(2016, 10, 30), QTime(2, 30, 15, 999)));
        _book->carnet->diveForm().blankFields();
        const Form& form = _book->carnet->form();
        QCOMPARE(form.date(form.find(u"dateField")).iso(), u"2016-10-30T02:30:15"_s);
    }
};

int runDiveBlankTest(int argc, char** argv) {
    DiveBlankTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveBlankTest.moc"
