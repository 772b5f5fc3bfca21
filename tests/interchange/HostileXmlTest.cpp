#include <QStringEncoder>

#include "interchange/ImportError.h"
#include "interchange/InterchangeTests.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString oneDive = u"<PROFILE><REPGROUP><DIVE><PLACE>Île-d’Œuf</PLACE></DIVE></REPGROUP></PROFILE>"_s;

QByteArray repeated(const char* text, int times) {
    return QByteArray(text).repeated(times);
}

QByteArray encoded(const QString& text, QStringConverter::Encoding encoding, bool withMark) {
    QStringEncoder encoder(encoding,
                           withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

}  // namespace

/// Files that mean no good, and files in other encodings than UTF-8.
class HostileXmlTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;

    static void addFormats() {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {"uddf", "udcf", "handheld"}) QTest::newRow(format) << QByteArray(format);
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Book>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void whatIsNoXmlIsRefusedWithItsPlace_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char* name, const QByteArray& bytes, const char* sentence) {
            QTest::newRow(name) << bytes << QString::fromUtf8(sentence);
        };
        row("empty", "", "line 1, column 1: there is no XML element in this file");
        row("text", "hello", "line 1, column 1: there is no XML element in this file");
        row("comment only", "<!-- x -->", "line 1, column 1: there is no XML element in this file");
        row("crossed ends", "<a>\n<b></a></b>", "line 2, column 6: an element does not end as it began");
        row("no end", "<a><b>", "line 1, column 6: an element does not end as it began");
        row("an endless comment", "<a>\n\n <!-- x", "line 3, column 7: a comment does not end");
        row("an attribute without quotes", "<a\n b=c/>",
            "line 2, column 4: an attribute is not written correctly");
        row("a zero byte", QByteArray("<a>\nx\0y</a>", 11),
            "line 2, column 2: there is a zero byte in the text");
        row("no UTF-8", "<a>\n\xE9t\xE9</a>",
            "line 2, column 1: this is no UTF-8, and the file names no other encoding that can be read");
        row("a cut-off character", "<a>\xC3",
            "line 1, column 4: this is no UTF-8, and the file names no other encoding that can be read");
        row("an overlong character", "<a>\xC0\xAF</a>",
            "line 1, column 4: this is no UTF-8, and the file names no other encoding that can be read");
        row("half a pair in UTF-8", "<a>\xED\xA0\x80</a>",
            "line 1, column 4: this is no UTF-8, and the file names no other encoding that can be read");
        row("an encoding that nobody reads", "<?xml version='1.0' encoding='EBCDIC'?><a>\xE9</a>",
            "line 1, column 43: this is no UTF-8, and the file names no other encoding that can be read");
        row("half a pair in UTF-16",
            encoded(u"<a>\n"_s + QChar(0xD800) + u"</a>"_s, QStringConverter::Utf16LE, true),
            "line 2, column 1: this is no text in UTF-16 or UTF-32");
    }
    void whatIsNoXmlIsRefusedWithItsPlace() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, sentence);
        _book->put({plainDive(3)});
        for (const char* format : {"uddf", "udcf", "handheld"}) {
            const auto failure = failureOf<ImportError>([&] { _book->read(format, bytes); });
            QVERIFY(failure);
            QCOMPARE(sentenceOf(*failure), sentence);
            QCOMPARE(_book->carnet->count(), 1);
        }
    }

    void theLastDivesFaultLeavesTheFirstOnesOut() {
        const QByteArray bytes =
            "<PROFILE><REPGROUP>" + repeated("<DIVE/>", 50) + "<DIVE></REPGROUP></PROFILE>";
        QVERIFY(failureOf<ImportError>([&] { _book->read("udcf", bytes); }));
        QCOMPARE(_book->carnet->count(), 0);
        QVERIFY(!_book->carnet->canUndo());
    }

    void aWrongRootHoldsNoDives_data() { addFormats(); }
    void aWrongRootHoldsNoDives() {
        QFETCH(QByteArray, format);
        const ImportResult result = _book->read(format, "<html><body>x</body></html>");
        QCOMPARE(result.dives, 0);
        QVERIFY(!_book->carnet->canUndo());
    }

    void everyEncodingThatXmlKnowsIsRead_data() {
        QTest::addColumn<QByteArray>("bytes");
        using C = QStringConverter;
        QTest::newRow("UTF-8") << oneDive.toUtf8();
        QTest::newRow("UTF-8 with mark") << "\xEF\xBB\xBF" + oneDive.toUtf8();
        for (const C::Encoding encoding : {C::Utf16LE, C::Utf16BE, C::Utf32LE, C::Utf32BE}) {
            QTest::addRow("%s", C::nameForEncoding(encoding)) << encoded(oneDive, encoding, false);
            QTest::addRow("%s with mark", C::nameForEncoding(encoding)) << encoded(oneDive, encoding, true);
        }
        QByteArray western = oneDive.toUtf8();
        western.replace("\xC3\x8E", "\xCE").replace("\xE2\x80\x99", "\x92").replace("\xC5\x92", "\x8C");
        for (const char* name : {"ISO-8859-1", "windows-1252", "Latin1"})
            QTest::newRow(name) << QByteArray("<?xml version=\"1.0\" encoding=\"") + name + "\"?>" + western;
        QByteArray roman = oneDive.toUtf8();
        roman.replace("\xC3\x8E", "\xEB").replace("\xE2\x80\x99", "\xD5").replace("\xC5\x92", "\xCE");
        QTest::newRow("Mac OS Roman") << "<?xml version='1.0' encoding='macintosh'?>" + roman;
        QTest::newRow("a declaration that is not true")
            << "<?xml version='1.0' encoding='UTF-16'?>" + oneDive.toUtf8();
        QTest::newRow("a name that nobody knows") << "<?xml version='1.0' encoding='x'?>" + oneDive.toUtf8();
        QTest::newRow("UTF-16 that calls itself UTF-8")
            << encoded(u"<?xml version='1.0' encoding='UTF-8'?>"_s + oneDive, C::Utf16LE, true);
    }
    void everyEncodingThatXmlKnowsIsRead() {
        QFETCH(QByteArray, bytes);
        QCOMPARE(_book->read("udcf", bytes).dives, 1);
        QCOMPARE(_book->last().lieu(), u"Île-d’Œuf"_s);
    }

    void entitiesAreNeitherFetchedNorMultiplied() {
        QTemporaryDir folder;
        const QString secret = folder.filePath(u"secret"_s);
        QFile file(secret);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("secret") == 6);
        file.close();
        QByteArray bytes = "<!DOCTYPE PROFILE SYSTEM \"http://127.0.0.1:1/x.dtd\" [\n<!ENTITY a0 \"ha\">\n";
        for (int i = 1; i < 40; ++i)
            bytes += QStringLiteral("<!ENTITY a%1 \"&a%2;&a%2;&a%2;\">\n").arg(i).arg(i - 1).toUtf8();
        bytes += "<!ENTITY f SYSTEM \"file://" + secret.toUtf8() + "\">]>" +
                 "<PROFILE><REPGROUP><DIVE><PLACE>&a39;&f;&lt;</PLACE></DIVE></REPGROUP></PROFILE>";
        QCOMPARE(_book->read("udcf", bytes).dives, 1);
        QCOMPARE(_book->last().lieu(), u"&a39;&f;<"_s);
    }

    void deepNestingNeedsNoStack_data() { addFormats(); }
    void deepNestingNeedsNoStack() {
        QFETCH(QByteArray, format);
        constexpr int deep = 300'000;
        const QByteArray text = repeated("<a>", deep) + "7" + repeated("</a>", deep);
        const QByteArray dive = "<notes><text>" + text + "</text></notes><place>" + text + "</place><PLACE>" +
                                text + "</PLACE><samples><waypoint>" + text + "</waypoint></samples>";
        const QByteArray bytes = format == "udcf"   ? "<P><REPGROUP><DIVE>" + dive + "</DIVE></REPGROUP></P>"
                                 : format == "uddf" ? "<u><profiledata><repetitiongroup><dive>" + dive +
                                                          "</dive></repetitiongroup></profiledata></u>"
                                                    : "<h><repgroup><dive>" + dive + "</dive></repgroup></h>";
        QCOMPARE(_book->read(format, bytes).dives, 1);
        const Plongee& read = _book->last();
        QCOMPARE(format == "uddf" ? read.notes() : read.lieu(), u"7"_s);
        QVERIFY(failureOf<ImportError>([&] { _book->read(format, repeated("<a>", deep)); }));
    }

    void hugeTextsAreTakenAsTheyAre() {
        const QByteArray huge(5'000'000, 'x');
        _book->read("udcf", "<P><REPGROUP><DIVE><PLACE>" + huge + "</PLACE><SAMPLES><D>" +
                                QByteArray(1'000'000, '0') + "7</D></SAMPLES></DIVE></REPGROUP></P>");
        QCOMPARE(_book->last().lieu().size(), huge.size());
        QCOMPARE(_book->last().profilProfondeur().at(0), 7.);
    }

    void signsThatXmlForbidsAreTakenAsTheyAre() {
        _book->read(
            "udcf",
            "<P><REPGROUP><DIVE><PLACE>a\x01\x0B&#x2;&#xD800;&unknown;&#;b</PLACE></DIVE></REPGROUP></P>");
        const QString place = _book->last().lieu();
        QVERIFY(place.startsWith(u"a\x01\x0B\x02"_s));
        QVERIFY(place.endsWith(u"&unknown;&#;b"_s));
    }

    void namesInAnotherNamespaceAreOtherNames() {
        QCOMPARE(_book->read("udcf", "<x:P xmlns:x='u'><x:REPGROUP><x:DIVE/></x:REPGROUP></x:P>").dives, 0);
        QCOMPARE(_book->read("udcf", "<P xmlns='u'><REPGROUP><DIVE/></REPGROUP></P>").dives, 1);
    }

    void moreDivesThanAnybodyDivesAreRefused() {
        const QByteArray bytes = "<h><repgroup>" + repeated("<dive/>", 200'001) + "</repgroup></h>";
        const auto failure = failureOf<DocumentError>([&] { _book->read("handheld", bytes); });
        QVERIFY(failure);
        QCOMPARE(sentenceOf(*failure),
                 u"there are 200001 dives in it, more than the 200000 that are read at once"_s);
    }

    void placesCountLinesAndBytes_data() {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::newRow("start") << 0 << 1 << 1;
        QTest::newRow("in the first line") << 2 << 1 << 3;
        QTest::newRow("the line's end") << 3 << 1 << 4;
        QTest::newRow("the next line") << 4 << 2 << 1;
        QTest::newRow("beyond the end") << 99 << 3 << 2;
        QTest::newRow("before the start") << -1 << 1 << 1;
    }
    void placesCountLinesAndBytes() {
        QFETCH(int, offset);
        const FilePlace place = placeOf("abc\nde\nf", offset);
        QTEST(place.line, "line");
        QTEST(place.column, "column");
    }

    void everyProblemHasItsWordsInBothLanguages() {
        for (const auto language : {Strings::Language::English, Strings::Language::French}) {
            const Strings strings(language);
            for (const auto& problem : interchangeproblem::all) {
                const QString words = strings.lookup(problem.key, "missing", "Files");
                QCOMPARE(words.count(u"%@"_s), QByteArray(problem.format).count("%@"));
                if (language == Strings::Language::English)
                    QCOMPARE(words, QString::fromUtf8(problem.format));
            }
        }
    }
};

int runHostileXmlTest(int argc, char** argv) {
    HostileXmlTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HostileXmlTest.moc"
