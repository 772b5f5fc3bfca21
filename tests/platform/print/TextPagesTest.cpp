#include <QPageRanges>
#include <QPdfWriter>
#include <QtTest>

#include "platform/files/ByteBuffer.h"
#include "platform/print/PrintTests.h"
#include "platform/print/TextPages.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

StyledText lines(int count) {
    StyledText text;
    for (int i = 0; i < count; ++i) text.append(u"line number %1\r"_s.arg(i));
    return text;
}

/// The left, top, right and bottom of a page's words, in points.
QRectF wordsBox(const QByteArray& pdf) {
    static const QRegularExpression word(
        u"<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\""_s);
    const QString told = QString::fromUtf8(pdf::through(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s}, pdf));
    QRectF all;
    for (auto match = word.globalMatch(told); match.hasNext();) {
        const auto found = match.next();
        const auto at = [&](int i) { return found.captured(i).toDouble(); };
        all |= QRectF(QPointF(at(1), at(2)), QPointF(at(3), at(4)));
    }
    return all;
}

}  // namespace

class TextPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsArePortraitPages() {
        const QByteArray bytes = pdfOf(TextPages(lines(3), u"Report"_s));
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"595 x 842 pts (A4)"_s);
        QCOMPARE(pdf::info(bytes, u"Title"_s), u"Report"_s);
        QCOMPARE(pdf::info(bytes, u"Pages"_s), u"1"_s);
        QCOMPARE(pdf::words(bytes), u"line number 0 line number 1 line number 2"_s);
    }

    void accentsAndSignsAreReadBack() {
        StyledText text;
        text.append(u"Épave à 38 m – 7 °C, O₂ 32 %, œuf ••••"_s);
        QCOMPARE(pdf::words(pdfOf(TextPages(text, {}))), u"Épave à 38 m – 7 °C, O₂ 32 %, œuf ••••"_s);
    }

    void everyLineStandsOnExactlyOnePage() {
        const QByteArray bytes = pdfOf(TextPages(lines(300), u"Long"_s));
        const QStringList pages = pdf::pages(bytes);
        QVERIFY(pages.size() > 1);
        const QString all = pages.join(u'\n');
        for (int i = 0; i < 300; ++i)
            QCOMPARE(all.count(QRegularExpression(u"line number %1\\b"_s.arg(i))), 1);
        for (int page = 0; page < pages.size(); ++page)
            QVERIFY(pages[page].simplified().endsWith(u"%1/%2"_s.arg(page + 1).arg(pages.size())));
    }

    void textStartsAtTheMarginsAndEndsAboveTheLowerOne() {
        // 10 points from the left, 24.8 from the top; a line of text has some air around its letters.
        const QRectF box = wordsBox(pdfOf(TextPages(lines(300), u"Long"_s)));
        QVERIFY2(box.left() >= 9.9 && box.left() < 12, qPrintable(QString::number(box.left())));
        QVERIFY2(box.top() >= 23 && box.top() < 29, qPrintable(QString::number(box.top())));
        QVERIFY2(box.bottom() <= 842 - 24, qPrintable(QString::number(box.bottom())));
        QVERIFY2(box.right() <= 595.3 - 9.9, qPrintable(QString::number(box.right())));
    }

    void longLinesAreWrappedAtTheRightMargin() {
        StyledText text;
        for (int i = 0; i < 200; ++i) text.append(u"word%1 "_s.arg(i));
        const QByteArray bytes = pdfOf(TextPages(text, {}));
        QVERIFY(pdf::words(bytes).contains(u"word199"_s));
        QVERIFY(wordsBox(bytes).right() <= 595.3 - 9.9);
    }

    void textsAreScaledToSevenTenths() {
        StyledText text;
        text.append(u"X"_s, {.size = 100});
        const QRectF box = wordsBox(pdfOf(TextPages(text, {})));
        // The box of a word is as high as its font: 100 x 0.7 points, with the ascent and descent of the
        // font.
        QVERIFY2(box.height() > 60 && box.height() < 90, qPrintable(QString::number(box.height())));
    }

    void onlyTheWantedPagesArePrinted() {
        ByteBuffer buffer;
        QPdfWriter writer(&buffer);
        const TextPages pages(lines(300), u"Long"_s);
        writer.setPageLayout(pageLayoutOf(pages));
        writer.setPageRanges(QPageRanges::fromString(u"2-3"_s));
        QVERIFY(print(pages, writer));
        const QStringList printed = pdf::pages(buffer.data());
        QCOMPARE(printed.size(), 2);
        QVERIFY(printed[0].contains(u"2/"_s) && !printed[0].contains(u"line number 0\n"_s));
    }

    void paperCanBeAnother() {
        const QByteArray bytes = pdfOf(TextPages(lines(3), {}), QPageSize(QPageSize::Letter));
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"612 x 792 pts (letter)"_s);
    }
};

int runTextPagesTest(int argc, char** argv) {
    TextPagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TextPagesTest.moc"
