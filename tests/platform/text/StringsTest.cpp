#include <QTest>

#include "platform/text/Strings.h"
#include "platform/text/TextTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

using Kinds = std::vector<ArgumentKind>;
Q_DECLARE_METATYPE(Kinds)

class StringsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void languagesHaveNames_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("language");
        QTest::newRow("en") << u"en"_s << int(Strings::Language::English);
        QTest::newRow("fr") << u"fr"_s << int(Strings::Language::French);
        QTest::newRow("keys") << u"keys"_s << int(Strings::Language::Keys);
        for (const auto& other : {u""_s, u"EN"_s, u"de"_s, u"en_GB"_s, u"en "_s})
            QTest::newRow(qPrintable(u'"' + other + u'"')) << other << -1;
    }
    void languagesHaveNames() {
        QFETCH(QString, name);
        QFETCH(int, language);
        const auto found = Strings::languageNamed(name);
        QCOMPARE(found ? int(*found) : -1, language);
    }

    void looksUpInTheCurrentLanguage() {
        Strings strings(Strings::Language::French);
        QCOMPARE(strings.text({"Carnet", "Easy"}), u"Facile"_s);
        strings.setLanguage(Strings::Language::English);
        QCOMPARE(strings.text({"Carnet", "Easy"}), u"Easy"_s);
        QCOMPARE(strings.language(), Strings::Language::English);
    }

    void whatNoCatalogueHasIsTheFallback() {
        const Strings strings(Strings::Language::French);
        QCOMPARE(strings.lookup("no such key", "fallback é", "Carnet"), u"fallback é"_s);
        QCOMPARE(strings.lookup("Easy", "other table", "No such table"), u"other table"_s);
        QCOMPARE(strings.text({"Carnet", "no such key"}), u"error !"_s);
        QCOMPARE(strings.ui("No such words"), u"No such words"_s);
        QCOMPARE(strings.text(Message<int>{"Carnet", "no such key", "%d m"}, 5), u"5 m"_s);
    }

    void keysStandForTheirTexts() {
        const Strings strings(Strings::Language::Keys);
        QCOMPARE(strings.text({"Carnet", "Easy"}), u"Easy"_s);
        QCOMPARE(strings.text({"Carnet", "no such key", "fallback"}), u"no such key"_s);
        QCOMPARE(strings.ui("Untitled"), u"Untitled"_s);
        QCOMPARE(strings.text(Message<int>{"Carnet", "Found dives"}, 3), u"Found dives|3"_s);
        const Message<QString, double, qint64, float> four{"T", "k"};
        QCOMPARE(strings.text(four, u"a|%@"_s, 0.1, -7, 12.0F), u"k|a|%@|0.1|-7|12"_s);
    }

    // A float is an argument in the shortest form that reads back as that float.
    void aFloatIsShownAsAFloat() {
        const Strings strings(Strings::Language::Keys);
        QCOMPARE(strings.text(Message<float>{"T", "k"}, 12.3F), u"k|12.3"_s);
    }

    void anEntryThatDoesNotTakeTheArgumentsIsPassedOver() {
        const Strings strings(Strings::Language::English);
        // The entry takes a whole number, which a text is not.
        QCOMPARE(strings.text(Message<QString>{"Carnet", "Found dives", "<%@>"}, u"x"_s), u"<x>"_s);
        QCOMPARE(strings.text(Message<int, int>{"Carnet", "Found dives", "%d/%d"}, 1, 2), u"1/2"_s);
        QVERIFY(strings.text(Message<int>{"Carnet", "Found dives", "<%d>"}, 4).contains(u'4'));
        QVERIFY(!strings.text(Message<int>{"Carnet", "Found dives", "<%d>"}, 4).contains(u'<'));
    }

    void placeholdersTakeTheirArguments_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<Kinds>("kinds");
        QTest::addColumn<bool>("fits");
        using enum ArgumentKind;
        QTest::newRow("nothing") << u""_s << Kinds{} << true;
        QTest::newRow("text takes all") << u"%@ %@ %@"_s << Kinds{Whole, Real, Text} << true;
        QTest::newRow("each its own") << u"%d %.1f %@"_s << Kinds{Whole, Real, Text} << true;
        QTest::newRow("real for whole") << u"%f"_s << Kinds{Whole} << false;
        QTest::newRow("whole for real") << u"%d"_s << Kinds{Real} << false;
        QTest::newRow("whole for text") << u"%d"_s << Kinds{Text} << false;
        QTest::newRow("too few") << u"%d"_s << Kinds{Whole, Whole} << false;
        QTest::newRow("too many") << u"%d %d"_s << Kinds{Whole} << false;
        QTest::newRow("other order") << u"%@ %d"_s << Kinds{Whole, Text} << false;
        QTest::newRow("per cent sign") << u"%% %d"_s << Kinds{Whole} << true;
    }
    void placeholdersTakeTheirArguments() {
        QFETCH(QString, format);
        QFETCH(Kinds, kinds);
        QFETCH(bool, fits);
        QCOMPARE(placeholdersTake(format, kinds), fits);
    }
};

int runStringsTest(int argc, char** argv) {
    StringsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StringsTest.moc"
