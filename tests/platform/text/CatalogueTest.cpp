#include <QDir>
#include <QFile>
#include <QMap>
#include <QTest>
#include <QXmlStreamReader>

#include "platform/document/DocumentError.h"
#include "platform/files/SafeFile.h"
#include "platform/text/CodeTexts.h"
#include "platform/text/Strings.h"
#include "platform/text/TextTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

using Key = std::pair<QString, QString>;  // table and key

struct Catalogue {
    QMap<Key, QString> texts;
    QStringList problems;
};

void readMessage(QXmlStreamReader& xml, const QString& table, Catalogue& catalogue) {
    QString key, text, state;
    while (xml.readNextStartElement()) {
        if (xml.name() == "translation"_L1) state = xml.attributes().value("type"_L1).toString();
        const QString content =
            xml.name() == "location"_L1 ? (xml.skipCurrentElement(), QString()) : xml.readElementText();
        if (xml.name() == "source"_L1) key = content;
        if (xml.name() == "translation"_L1) text = content;
    }
    const QString name = table + u" / "_s + key;
    if (text.isEmpty()) catalogue.problems << name + u" is empty"_s;
    if (!state.isEmpty()) catalogue.problems << name + u" is "_s + state;
    if (catalogue.texts.contains({table, key})) catalogue.problems << name + u" stands twice"_s;
    catalogue.texts.insert({table, key}, text);
}

void readFile(const QString& path, Catalogue& catalogue) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) catalogue.problems << path + u" cannot be read"_s;
    QXmlStreamReader xml(&file);
    QString table;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == "name"_L1) table = xml.readElementText();
        if (xml.name() == "message"_L1) readMessage(xml, table, catalogue);
    }
    if (xml.hasError()) catalogue.problems << path + u": "_s + xml.errorString();
}

/// All files of a language as one.
Catalogue readCatalogue(const QString& language) {
    const QDir folder(u"" SARGAN_SOURCE_DIR "/resources/translations"_s);
    Catalogue catalogue;
    for (const QString& name : folder.entryList({u"*_%1.ts"_s.arg(language)}, QDir::Files))
        readFile(folder.filePath(name), catalogue);
    return catalogue;
}

Strings::Language languageOf(const QString& name) {
    return *Strings::languageNamed(name);
}

}  // namespace

class CatalogueTest : public QObject {
    Q_OBJECT

    QList<CodeText> _code;

    static void addLanguages() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"en"_s;
        QTest::newRow("French") << u"fr"_s;
    }

private Q_SLOTS:
    void findsTheTextsInCode_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("found");
        QTest::newRow("plain") << u"x({\"Carnet\", \"Easy\"})"_s << u"Carnet/Easy/"_s;
        QTest::newRow("with fallback") << u"{\"Main\", \"OK\", \"OK\"}"_s << u"Main/OK/"_s;
        QTest::newRow("arguments") << u"Message<int, QString> a{\"T\", \"k\"}"_s << u"T/k/d@"_s;
        QTest::newRow("temporary") << u"Message<double>{ \"T\",\n \"k\" }"_s << u"T/k/f"_s;
        QTest::newRow("joined literals") << u"{\"T\", \"a \" \n \"b\"}"_s << u"T/a b/"_s;
        QTest::newRow("escape") << u"{\"T\", \"a \\\"b\\\"\"}"_s << u"T/a \"b\"/"_s;
        QTest::newRow("interface") << u"strings.ui(\"Untitled\")"_s << u"Interface/Untitled/"_s;
        QTest::newRow("undo step") << u"perform(QStringLiteral(\"Add dive\"), x)"_s
                                   << u"Interface/Add dive/"_s;
        QTest::newRow("type name") << u"{\"Materiel\", true, \"InvMateriel\", x}"_s << u"Main/Materiel/"_s;
        QTest::newRow("about an archive") << u"fail(at, {\"%@ of %@\"_words, {a, b}})"_s
                                          << u"Archive/%@ of %@/@@"_s;
        QTest::newRow("no literal of its own") << u"operator\"\"_words(x)"_s << QString();
        QTest::newRow("not looked up") << u"{\"Budget\", false, \"PreviBudget\", x}"_s << QString();
        QTest::newRow("no message") << u"{\"lieuField\", \"\"}, f(\"Carnet\", \"Easy\")"_s << QString();
    }
    void findsTheTextsInCode() {
        QFETCH(QString, source);
        QFETCH(QString, found);
        QStringList texts;
        for (const CodeText& text : textsIn(source, {})) {
            QString line = text.table + u'/' + text.key + u'/';
            for (const ArgumentKind kind : text.arguments) line += QLatin1Char(char(kind));
            texts << line;
        }
        QCOMPARE(texts.join(u' '), found);
    }

    void initTestCase() {
        _code = textsInCode(u"" SARGAN_SOURCE_DIR "/src"_s);
        QVERIFY(_code.size() > 100);
    }

    void everyEntryIsFinished_data() { addLanguages(); }
    void everyEntryIsFinished() {
        QFETCH(QString, language);
        QCOMPARE(readCatalogue(language).problems.join(u"; "_s), QString());
    }

    void theLanguagesHaveTheSameKeys() {
        QCOMPARE(readCatalogue(u"fr"_s).texts.keys(), readCatalogue(u"en"_s).texts.keys());
    }

    void theLanguagesTakeTheSameArguments() {
        const auto english = readCatalogue(u"en"_s).texts;
        const auto french = readCatalogue(u"fr"_s).texts;
        for (const Key& key : english.keys())
            QVERIFY2(placeholdersOf(english.value(key)) == placeholdersOf(french.value(key)),
                     qPrintable(key.first + u" / "_s + key.second));
    }

    void everyTextOfTheCodeIsThereAndFits_data() { addLanguages(); }
    void everyTextOfTheCodeIsThereAndFits() {
        QFETCH(QString, language);
        const auto texts = readCatalogue(language).texts;
        QStringList problems;
        for (const CodeText& used : _code) {
            const QString name = u"%1 / %2 (%3)"_s.arg(used.table, used.key, used.where);
            const auto entry = texts.find({used.table, used.key});
            if (entry == texts.end())
                problems << name + u" is missing"_s;
            else if (!placeholdersTake(*entry, used.arguments))
                problems << name + u" does not take its arguments"_s;
        }
        QVERIFY2(problems.isEmpty(), qPrintable(u'\n' + problems.join(u'\n')));
    }

    void theProgramCarriesTheCatalogue_data() { addLanguages(); }
    void theProgramCarriesTheCatalogue() {
        QFETCH(QString, language);
        const Strings strings(languageOf(language));
        const auto texts = readCatalogue(language).texts;
        for (auto it = texts.begin(); it != texts.end(); ++it)
            QCOMPARE(strings.lookup(it.key().second.toUtf8(), "missing", it.key().first.toUtf8()),
                     it.value());
    }

    void fileProblemsAreThereAndTakeTheirNames_data() { addLanguages(); }
    void fileProblemsAreThereAndTakeTheirNames() {
        QFETCH(QString, language);
        const auto texts = readCatalogue(language).texts;
        for (const FileMessage& message : ReadError::allMessages() + SaveError::allMessages()) {
            const auto entry = texts.find({u"Files"_s, message.key});
            QVERIFY2(entry != texts.end(), qPrintable(message.key));
            QCOMPARE(entry->count(u"%@"_s), message.format.count(u"%@"_s));
        }
    }

    void documentProblemsAreThereAndTakeTheirValues_data() { addLanguages(); }
    void documentProblemsAreThereAndTakeTheirValues() {
        QFETCH(QString, language);
        const auto texts = readCatalogue(language).texts;
        for (const documentproblem::Wording& wording : documentproblem::all) {
            const auto entry = texts.find({u"Files"_s, QString::fromUtf8(wording.key)});
            QVERIFY2(entry != texts.end(), wording.key);
            QCOMPARE(entry->count(u"%@"_s), QByteArray(wording.format).count("%@"));
        }
    }
};

int runCatalogueTest(int argc, char** argv) {
    CatalogueTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CatalogueTest.moc"
