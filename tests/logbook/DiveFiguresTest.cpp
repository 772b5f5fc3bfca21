#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

/// What the form shows beside the tanks: gas used, oxygen pressure and oxygen clock.
class DiveFiguresTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    DiveForm& form() { return _book->carnet->diveForm(); }
    void profile(const QList<double>& depths) {
        Plongee dive;
        dive.setO2Mix(32);
        dive.setTemps(10);
        dive.setProfondeur(50);
        dive.setProfilProfondeur(
            NumberArray::ofDoubles(std::span(depths.constData(), std::size_t(depths.size()))));
        form().editFields(std::make_shared<const Plongee>(dive));
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Logbook>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void theGasOfBothTanks() {
        for (const auto& [control, value] : {std::pair{u"departField"_s, u"200"_s},
                                             {u"finField"_s, u"50"_s},
                                             {u"volumeBlocField"_s, u"12"_s},
                                             {u"depart_2Field"_s, u"100"_s},
                                             {u"fin_2Field"_s, u"110"_s},
                                             {u"volumeBloc_2Field"_s, u"7"_s}})
            _book->fill(control, value);
        QCOMPARE(_book->text(u"deltaPressureField"_s), u"Delta pressure|150|1800"_s);
        QCOMPARE(_book->text(u"deltaPressure_2Field"_s), u"Delta pressure|-10|-70"_s);
        QCOMPARE(form().figures().tank.volume, 1800);
        QCOMPARE(form().figures().secondTank.delta, -10);
        // One holder for both tanks: the second one has the last word.
        QCOMPARE(form().figures().volumeConsomme, -70);
    }

    void whatIsEmptyCountsAsNothing() {
        _book->fill(u"departField"_s, u""_s);
        _book->fill(u"finField"_s, u"-"_s);
        QCOMPARE(_book->text(u"deltaPressureField"_s), u"Delta pressure|0|0"_s);
        _book->fill(u"volumeBlocField"_s, u"12,9 l"_s);
        _book->fill(u"departField"_s, u"200,7"_s);
        QCOMPARE(_book->text(u"deltaPressureField"_s), u"Delta pressure|200|2400"_s);
    }

    void withoutAProfileTheGreatestDepthCounts() {
        _book->fill(u"o2MixField"_s, u"32"_s);
        _book->fill(u"profondeurField"_s, u"30"_s);
        _book->fill(u"tempsField"_s, u"50"_s);
        // 0.32 * 4 bar is in the band up to 1.28: 0.54 % a minute.
        QCOMPARE(_book->text(u"cnsField"_s), u"CNS|1.28|27"_s);
        _book->fill(u"tempsField"_s, u"0,5"_s);
        QCOMPARE(_book->text(u"cnsField"_s), u"CNS|1.28|0.27"_s);
        _book->fill(u"tempsField"_s, u"-"_s);
        QCOMPARE(_book->text(u"cnsField"_s), u"CNS|1.28|0"_s);
    }

    void aProfileHasTheGreatestDepth() {
        profile({0, 30, 12});
        QCOMPARE(form().figures().ppO2, 1.28F);
        QCOMPARE(form().figures().cns, 5.4);
    }

    void oneSampleIsNoProfile() {
        profile({30});
        QCOMPARE(form().figures().ppO2, 1.92F);  // 0.32 * (50 / 10 + 1)
        QCOMPARE(form().figures().cns, 22.2);
    }

    void blankingForgetsTheProfile() {
        profile({0, 30, 12});
        form().blankFields();
        QCOMPARE(form().figures().ppO2, 0.21F);
        QCOMPARE(form().figures().cns, 0.0);
        QCOMPARE(form().figures().volumeConsomme, 0);
    }

    void aNewProfileCountsAtOnce() {
        profile({0, 30});
        Plongee deeper;
        deeper.setProfilProfondeur(NumberArray::ofDoubles(std::to_array({0.0, 40.0})));
        form().setProfile(deeper);
        QCOMPARE(form().figures().ppO2, 1.6F);
        QCOMPARE(form().figures().cns, 22.2);
    }

    void nitrogenFollowsTheOtherShares() {
        _book->fill(u"o2MixField"_s, u"18"_s);
        _book->fill(u"heMixField"_s, u"45"_s);
        _book->fill(u"o2Mix_2Field"_s, u"50"_s);
        QCOMPARE(_book->text(u"n2MixField"_s), u"37"_s);
        QCOMPARE(_book->text(u"n2Mix_2Field"_s), u"50"_s);
    }

    void theCaptionsAreWords() {
        _book->desk.strings.setLanguage(Strings::Language::English);
        _book->fill(u"departField"_s, u"200"_s);
        _book->fill(u"volumeBlocField"_s, u"12"_s);
        QCOMPARE(_book->text(u"deltaPressureField"_s), u"200 bar, 2400 l"_s);
        _book->desk.strings.setLanguage(Strings::Language::French);
        _book->fill(u"tempsField"_s, u"100"_s);
        QCOMPARE(_book->text(u"cnsField"_s), u"ppO₂ 0.21 bar, SNC 14.0 %"_s);
    }
};

int runDiveFiguresTest(int argc, char** argv) {
    DiveFiguresTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveFiguresTest.moc"
