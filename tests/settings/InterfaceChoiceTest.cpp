#include "settings/InterfaceChoice.h"

#include <QTest>

#include "SettingsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class InterfaceChoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choicesAreStoredAsWords_data() {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("appearance");
        QTest::newRow("system") << 0 << u"system"_s << u"system"_s;
        QTest::newRow("first") << 1 << u"en"_s << u"light"_s;
        QTest::newRow("second") << 2 << u"fr"_s << u"dark"_s;
        QTest::newRow("no such choice") << 7 << u"system"_s << u"system"_s;
    }
    void choicesAreStoredAsWords() {
        QFETCH(int, tag);
        UserDefaults defaults;
        interfacechoice::setLanguage(defaults, tag);
        interfacechoice::setAppearance(defaults, tag);
        QTEST(defaults.text(u"language"_s), "language");
        QTEST(defaults.text(u"appearance"_s), "appearance");
        QCOMPARE(int(interfacechoice::language(defaults)), tag == 7 ? 0 : tag);
        QCOMPARE(int(interfacechoice::appearance(defaults)), tag == 7 ? 0 : tag);
    }

    void anUnknownWordIsTheSystemsChoice() {
        UserDefaults defaults;
        defaults.store(u"language"_s, u"breton"_s);
        defaults.store(u"appearance"_s, 12);
        QCOMPARE(preferredLanguage(defaults), Strings::systemLanguage());
        QCOMPARE(interfacechoice::appearance(defaults), interfacechoice::SystemAppearance);
    }

    void theChosenLanguageWins() {
        UserDefaults defaults;
        interfacechoice::setLanguage(defaults, interfacechoice::French);
        QCOMPARE(preferredLanguage(defaults), Strings::Language::French);
        interfacechoice::setLanguage(defaults, interfacechoice::English);
        QCOMPARE(preferredLanguage(defaults), Strings::Language::English);
    }
};

int runInterfaceChoiceTest(int argc, char** argv) {
    InterfaceChoiceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InterfaceChoiceTest.moc"
