#include <QJsonArray>

#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Words typed into the combo boxes are offered for their lists.
class DiveOfferTest : public QObject {
    Q_OBJECT

    static constexpr int yes = 0;
    static constexpr int no = 1;

    std::unique_ptr<TestDesk> _desk;
    std::unique_ptr<DiveForm> _dive;

    void keep(const QString& key, const QStringList& words) {
        _desk->defaults.store(key, QJsonArray::fromStringList(words));
        _desk->pickLists.load(key);
    }
    void expectOffer(const QString& text, int answer) {
        _desk->prompt.expectBeep();
        _desk->prompt.expectQuestion(u"Add item to ComboBox|"_s + text, answer);
    }
    void type(const QString& control, const QString& text) {
        _dive->form().fill(_dive->form().find(control), text);
    }
    QStringList stored(const QString& key) const { return _desk->defaults.list(key); }

private Q_SLOTS:
    void init() {
        _dive.reset();
        _desk = std::make_unique<TestDesk>();
        _desk->strings.setLanguage(Strings::Language::Keys);
        _dive = std::make_unique<DiveForm>(_desk->desk);
    }
    void cleanup() { QCOMPARE(_desk->prompt.finish(), QStringList()); }

    void everyComboBoxHasItsList_data() {
        QTest::addColumn<QString>("key");
        const std::pair<const char*, const char*> lists[] = {{"lieuField", "lieux"},
                                                             {"siteField", "sites"},
                                                             {"paysField", "pays"},
                                                             {"countryCodeField", "countryCode"},
                                                             {"partenairesField", "partenaires"},
                                                             {"epavesField", "epaves"},
                                                             {"structureField", "structures"},
                                                             {"ordinateurField", "ordinateurs"}};
        for (const auto& [control, key] : lists) QTest::newRow(control) << QString::fromLatin1(key);
        for (int slot = 1; slot <= 12; ++slot) QTest::addRow("equip_%dField", slot) << u"sac de plongee"_s;
    }
    void everyComboBoxHasItsList() {
        QFETCH(QString, key);
        const QString control = QString::fromLatin1(QTest::currentDataTag());
        expectOffer(u"Word"_s, yes);
        type(control, u"Word"_s);
        QCOMPARE(_desk->pickLists.list(key), QStringList{u"Word"_s});
        QCOMPARE(stored(key), QStringList{u"Word"_s});
        type(control, u"Word"_s);  // it is in the list now
    }

    void otherFieldsOfferNothing() {
        for (const auto& control : {u"bateauField"_s, u"fabricantField"_s, u"decoSoftNameField"_s,
                                    u"decoAlgoTypeField"_s, u"volumeBlocField"_s, u"notesField"_s})
            type(control, u"Word"_s);
    }

    void blanksAloneAskNothing() {
        keep(u"lieux"_s, {u"b"_s, u"a"_s});
        for (const auto& text : {u""_s, u" "_s, u"    "_s}) type(u"lieuField"_s, text);
        QCOMPARE(stored(u"lieux"_s), (QStringList{u"b"_s, u"a"_s}));
    }

    void aBlankBeforeTheWordBelongsToIt() {
        keep(u"sites"_s, {u"Donator"_s});
        expectOffer(u" Donator"_s, yes);
        type(u"siteField"_s, u" Donator"_s);
        QCOMPARE(stored(u"sites"_s), (QStringList{u" Donator"_s, u"Donator"_s}));
        type(u"siteField"_s, u"Donator"_s);
    }

    void upperAndLowerCaseAreTwoWords() {
        keep(u"lieux"_s, {u"Brest"_s});
        expectOffer(u"brest"_s, yes);
        type(u"lieuField"_s, u"brest"_s);
        QCOMPARE(stored(u"lieux"_s), (QStringList{u"Brest"_s, u"brest"_s}));
    }

    void yesAddsAndSorts() {
        keep(u"lieux"_s, {u"alpha"_s, u"Zeta"_s});
        expectOffer(u"Élan"_s, yes);
        type(u"lieuField"_s, u"Élan"_s);
        QCOMPARE(stored(u"lieux"_s), (QStringList{u"Zeta"_s, u"alpha"_s, u"Élan"_s}));
    }

    void noSortsAndStoresToo() {
        keep(u"lieux"_s, {u"b"_s, u"a"_s});
        _desk->pickLists.append(u"lieux"_s, u"C"_s);
        expectOffer(u"d"_s, no);
        type(u"lieuField"_s, u"d"_s);
        QCOMPARE(_desk->pickLists.list(u"lieux"_s), (QStringList{u"C"_s, u"a"_s, u"b"_s}));
        QCOMPARE(stored(u"lieux"_s), (QStringList{u"C"_s, u"a"_s, u"b"_s}));
        // The dive keeps the word, whatever the list does.
        QCOMPARE(_dive->addDiveToList().lieu(), u"d"_s);
    }

    void whatTheProgramPutsInIsNotOffered() {
        Plongee dive;
        dive.setLieu(u"Ouessant"_s);
        _dive->editFields(std::make_shared<const Plongee>(dive));
        _dive->addDiveToList();
        _dive->blankFields();
    }
};

int runDiveOfferTest(int argc, char** argv) {
    DiveOfferTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveOfferTest.moc"
