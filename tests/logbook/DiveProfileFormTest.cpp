#include "logbook/DiveProfileForm.h"
#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

class DiveProfileFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;
    std::unique_ptr<DiveProfileForm> _profile;

    Carnet& carnet() { return *_book->carnet; }
    Form& form() { return _profile->form(); }
    QString text(const char* control) { return form().text(ControlName{control}); }
    /// A text as from a file, its box ticked.
    void put(const char* text, const char* box, const QString& lines) {
        form().setText(ControlName{text}, lines);
        form().setTag(ControlName{box}, 1);
    }
    static NumberArray reals(std::initializer_list<double> values) {
        return NumberArray::ofDoubles(std::span(values.begin(), values.size()));
    }
    static NumberArray flags(std::initializer_list<qint32> values) {
        return NumberArray::ofInts(std::span(values.begin(), values.size()));
    }

private Q_SLOTS:
    void init() {
        _profile.reset();
        _book = std::make_unique<Logbook>();
        Plongee dive = diveNumbered(41);
        dive.setProfilProfondeur(reals({0, 12.25, 9}));
        dive.setASC_Flag(flags({0, 1, 0}));
        dive.setSLOW_Flag(flags({1}));
        dive.setPRESS_Data(reals({200, 150.5}));
        dive.setCEIL_Flag(NumberArray::empty());
        fillLogbook(carnet(), {dive, diveNumbered(7)});
        carnet().select({0});
        _profile = std::make_unique<DiveProfileForm>(carnet());
    }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void theListsAreTexts() {
        QCOMPARE(text("importProfondeurField"), u"0.0\n12.2\n9.0"_s);
        QCOMPARE(text("importASC_Field"), u"0\n1\n0"_s);
        QCOMPARE(text("importPRESS_Field"), u"200.0\n150.5"_s);
        // One number, none and no list at all are not shown.
        for (const char* control :
             {"importSLOW_Field", "importCEIL_Field", "importSURF_Field", "importGAZ_Field"})
            QCOMPARE(text(control), QString());
        QCOMPARE(_profile->title(), u"Dive number profile datas title|41"_s);
    }

    void theNumbersAreCounted() {
        QCOMPARE(text("countProfondeurField"), u"Datas|3"_s);
        QCOMPARE(text("countASC_Field"), u"Datas|3"_s);
        QCOMPARE(text("countPRESS_Field"), u"Datas|2"_s);
        for (const char* control :
             {"countSLOW_Field", "countCEIL_Field", "countSURF_Field", "countGAZ_Field"})
            QCOMPARE(text(control), u"No datas"_s);
    }

    void onlyMarkedListsAreReplaced() {
        put("importProfondeurField", "eraseProfondeurSwitch", u"0\n18,75\n18.25\n3"_s);
        form().setText(ControlName{"importASC_Field"}, u"1\n1"_s);
        form().setTag(ControlName{"eraseASC_Switch"}, 0);
        _profile->importProfil();
        const Plongee& dive = carnet().record(0);
        QCOMPARE(dive.profilProfondeur(), reals({0, 18.75, 18.25, 3}));
        QCOMPARE(dive.ASC_Flag(), flags({0, 1, 0}));
        QCOMPARE(dive.PRESS_Data(), reals({200, 150.5}));
        QCOMPARE(carnet().undoName(), u"Edit dive"_s);
        QCOMPARE(carnet().diveForm().working().profilProfondeur().size(), 4);
    }

    void importedIsShownAgainWithTheBoxesOff() {
        put("importGAZ_Field", "eraseGAZ_Switch", u"0\n2x\n1"_s);
        QVERIFY(_profile->hasPending());
        _profile->importProfil();
        QVERIFY(!_profile->hasPending());
        QCOMPARE(text("importGAZ_Field"), u"0\n2\n1"_s);
        QCOMPARE(text("countGAZ_Field"), u"Datas|3"_s);
    }

    void everyListHasItsBox() {
        int lists = 0;
        for (const ProfileList& list : profileLists()) {
            init();
            put(list.text.text, list.replace.text, u"1\n2"_s);
            _profile->importProfil();
            const auto& changed = carnet().record(0).*std::get<Numbers Plongee::*>(list.field->member);
            QVERIFY2(changed == (list.isReal ? reals({1, 2}) : flags({1, 2})), list.id);
            ++lists;
        }
        QCOMPARE(lists, 7);
    }

    void anEmptyTextIsOneNumber() {
        put("importProfondeurField", "eraseProfondeurSwitch", u""_s);
        put("importASC_Field", "eraseASC_Switch", u""_s);
        _profile->importProfil();
        QCOMPARE(carnet().record(0).profilProfondeur(), reals({0}));
        QCOMPARE(carnet().record(0).ASC_Flag(), flags({0}));
        QCOMPARE(text("countProfondeurField"), u"No datas"_s);
    }

    void aNewlineAtTheEndIsOneMore() {
        put("importProfondeurField", "eraseProfondeurSwitch", u"1.5\n"_s);
        _profile->importProfil();
        QCOMPARE(carnet().record(0).profilProfondeur(), reals({1.5, 0}));
    }

    void readingBackWhatIsShownRounds() {
        form().setTag(ControlName{"eraseProfondeurSwitch"}, 1);
        _profile->importProfil();
        QCOMPARE(carnet().record(0).profilProfondeur(), reals({0, 12.2, 9}));
    }

    void withoutABoxNothingChanges() {
        const auto before = carnet().records();
        _profile->importProfil();
        QVERIFY(carnet().records() == before);
    }

    void typingMarksTheList() {
        form().setText(ControlName{"importSURF_Field"}, u"1"_s);
        QCOMPARE(form().tag(ControlName{"eraseSURF_Switch"}), 1);
        QCOMPARE(form().tag(ControlName{"eraseASC_Switch"}), 0);
    }

    void oneBoxMarksAllSeven() {
        for (const QString& on : {u"1"_s, u"0"_s}) {
            form().fill(form().find(u"eraseAllSwitch"), on);
            for (const ProfileList& list : profileLists()) QCOMPARE(form().tag(list.replace), on.toInt());
        }
    }

    void anotherDiveIsShownWhenAskedFor() {
        form().setTag(ControlName{"eraseProfondeurSwitch"}, 1);
        carnet().select({1});
        _profile->updateProfilInfo();
        QCOMPARE(_profile->title(), u"Dive number profile datas title|7"_s);
        QCOMPARE(text("importProfondeurField"), QString());
        QCOMPARE(form().tag(ControlName{"eraseProfondeurSwitch"}), 0);
    }

    void thePreviewFollowsWhatIsTyped() {
        QCOMPARE(_profile->depthsShown(), reals({0, 12.25, 9}));
        form().setText(ControlName{"importProfondeurField"}, u"0\n5"_s);
        QCOMPARE(_profile->depthsShown(), reals({0, 5}));
    }

    void whatIsTypedInTheFormIsStoredWithTheProfile() {
        _book->fill(u"notes"_s, u"typed"_s);
        put("importProfondeurField", "eraseProfondeurSwitch", u"0\n5"_s);
        _profile->importProfil();
        QCOMPARE(carnet().record(0).notes(), u"typed"_s);
    }

    void aReadOnlyLogbookKeepsItsProfile() {
        carnet().setReadOnly(true);
        put("importProfondeurField", "eraseProfondeurSwitch", u"0\n5"_s);
        _profile->importProfil();
        QCOMPARE(carnet().record(0).profilProfondeur(), reals({0, 12.25, 9}));
        QCOMPARE(text("importProfondeurField"), u"0.0\n12.2\n9.0"_s);
    }
};

int runDiveProfileFormTest(int argc, char** argv) {
    DiveProfileFormTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveProfileFormTest.moc"
