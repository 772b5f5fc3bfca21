#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

#include "platform/print/PrintTests.h"
#include "platform/print/StyledText.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const TextStyle title{.color = inkcolor::red, .underline = true};
const TextStyle value{.color = inkcolor::blue, .bold = true, .size = 18};

StyledText sample() {
    StyledText text;
    text.append(u"Dépths\r"_s, title);
    text.append(u"Deepest :\t"_s);
    text.append(u"42 m < 60 & \"more\""_s, value);
    return text;
}

}  // namespace

class StyledTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsOfOneStyleAreJoined() {
        StyledText text;
        text.append(u"a"_s, title);
        text.append(u"b"_s, title);
        text.append(u""_s, value);
        text.append(u"c"_s, value);
        QCOMPARE(text.runs().size(), 2);
        QCOMPARE(text.runs()[0].text, u"ab"_s);
        QVERIFY(text.runs()[1].style == value);
    }

    void aTextTakesAnothersRuns() {
        StyledText text = sample();
        text.append(sample());
        QCOMPARE(text.plainText(), sample().plainText() + sample().plainText());
        QCOMPARE(text.runs().size(), 6);
    }

    void plainTextEndsLinesWithLineFeeds() {
        StyledText text;
        text.append(u"one\rtwo\r\nthree\nfour\r"_s);
        text.append(u"\rfive"_s);
        QCOMPARE(text.plainText(), u"one\ntwo\nthree\nfour\n\nfive"_s);
    }

    void anEmptyTextIsEmptyEverywhere() {
        QVERIFY(StyledText().isEmpty());
        QCOMPARE(bytesOf(StyledText(), u"t"_s, u"txt"_s), QByteArray(""));
        QCOMPARE(pdf::pages(bytesOf(StyledText(), u"t"_s, u"pdf"_s)).size(), 1);
    }

    void htmlKeepsStylesAndEscapesWords() {
        const QString html = sample().html(u"A & B"_s);
        QVERIFY(html.contains(u"<title>A &amp; B</title>"_s));
        QVERIFY(html.contains(u"<meta charset=\"utf-8\">"_s));
        QVERIFY(html.contains(u"<span style=\"color:#c80000;text-decoration:underline;\">Dépths\n</span>"_s));
        QVERIFY(html.contains(u"Deepest :\t<span"_s));
        QVERIFY(html.contains(
            u"<span style=\"color:#0000c8;font-weight:bold;font-size:150%;\">42 m &lt; 60 &amp; &quot;more&quot;</span>"_s));
        QVERIFY2(!html.contains(u"http"_s), "a page that needs no other file");
    }

    void aDocumentHasTheRunsWithTheirStyles() {
        QTextDocument document;
        sample().toDocument(document);
        QCOMPARE(document.toPlainText(), u"Dépths\nDeepest :\t42 m < 60 & \"more\""_s);
        const QTextCharFormat first = document.begin().begin().fragment().charFormat();
        QCOMPARE(first.foreground().color(), inkcolor::red);
        QVERIFY(first.fontUnderline());
        const QTextBlock second = document.begin().next();
        QCOMPARE(second.begin().fragment().charFormat().foreground().color(), inkcolor::black);
        const QTextCharFormat last = (++second.begin()).fragment().charFormat();
        QVERIFY(last.font().bold());
        QCOMPARE(last.font().pixelSize(), 18);
    }

    void tabsLeadToTheStops() {
        StyledText text;
        text.append(u"a\tb\nlonger\tb"_s);
        text.setTabStops({200, 300});
        QTextDocument document;
        text.toDocument(document);
        document.setPageSize({800, 600});
        document.pageCount();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const QTextLine line = block.layout()->lineAt(0);
            QCOMPARE(line.cursorToX(int(block.text().indexOf(u'\t')) + 1), 200.0);
        }
    }

    void hangingLinesBeginAtTheFirstStop() {
        StyledText text;
        text.append(u"Time :\t"_s);
        text.append(u"2 h\r(120 min.)"_s, {.hanging = true});
        text.setTabStops({200});
        QTextDocument document;
        text.toDocument(document);
        document.setPageSize({800, 600});
        document.pageCount();
        const QTextBlock second = document.begin().next();
        QCOMPARE(second.layout()->lineAt(0).cursorToX(1), 200.0);
        QCOMPARE(text.plainText(), u"Time :\t2 h\n(120 min.)"_s);
    }

    void columnsOfHtmlAreAsWideAsTheStopsAreApart() {
        StyledText text;
        text.append(u"a & b :\t"_s);
        text.append(u"1\t\t(2)\nc\t3"_s, title);
        text.setTabStops({240, 300});
        const auto column = [](const char* width, const char* words) {
            return u"<span style=\"display:inline-block;min-width:%1em\">%2</span>"_s.arg(
                QLatin1String(width), QLatin1String(words));
        };
        // Of twelfths: 240 from the margin to the first stop, 60 to the second, 40 from there on.
        const QString html = text.html(u"t"_s);
        QVERIFY(html.contains(u"<body>"_s + column("20.00", "a &amp; b :") + u"<span"_s));
        QVERIFY(html.contains(column("5.00", "1") + column("3.33", "") + u"(2)\n"_s));
        QVERIFY(html.contains(column("20.00", "c") + u"3</span>"_s));
    }

    void unknownFormatsAreRefused() {
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, bytesOf(sample(), u"t"_s, u"doc"_s));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, bytesOf(sample(), u"t"_s, u""_s));
    }
};

int runStyledTextTest(int argc, char** argv) {
    StyledTextTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StyledTextTest.moc"
