#include <QImage>
#include <QPainter>
#include <QtTest>

#include "platform/print/PrintTests.h"
#include "platform/print/TablePages.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

constexpr QColor paint{10, 200, 30};

class List : public TableSource {
public:
    explicit List(qsizetype rows) : _rows(rows) {}

    QList<TableColumn> tableColumns() const override {
        return {{u"no"_s, {"T", "k1", "Number"}, 4, Qt::AlignRight},
                {u"place"_s, {"T", "k2", "Place"}, 10},
                {u"notes"_s, {"T", "k3", "Notes"}, 10}};
    }
    qsizetype tableRows() const override { return _rows; }
    TableCell tableCell(qsizetype row, int column) const override {
        if (row == special) return specialCells[column];
        if (column == 0) return {u"n%1"_s.arg(row)};
        return {column == 1 ? u"Brest"_s : u"calm"_s};
    }
    void clickTableColumn(const QString&) override {}

    qsizetype special = -1;
    QList<TableCell> specialCells{3};

private:
    qsizetype _rows;
};

const Strings english;

QByteArray pdfOfList(const List& list) {
    return pdfOf(TablePages(list, english, u"My list"_s));
}

QImage firstPage(const List& list) {
    const Pages pages = TablePages(list, english, u"My list"_s).pages({1000, 700});
    QImage image(1000, 700, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    pages.draw(painter, 0);
    painter.end();
    return image;
}

int pixelsOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color) ++count;
    return count;
}

}  // namespace

class TablePagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsAreLandscape() {
        const QByteArray bytes = pdfOfList(List(2));
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"842 x 595 pts (A4)"_s);
        QCOMPARE(pdf::words(bytes), u"Number Place Notes n0 Brest calm n1 Brest calm My list 1/1"_s);
    }

    void anEmptyListIsItsHeader() {
        QCOMPARE(pdf::words(pdfOfList(List(0))), u"Number Place Notes My list 1/1"_s);
    }

    void theHeaderAndThePageNumberStandOnEveryPage() {
        const QStringList pages = pdf::pages(pdfOfList(List(200)));
        QVERIFY(pages.size() >= 3);
        int rows = 0;
        for (int page = 0; page < pages.size(); ++page) {
            const QString words = pages[page].simplified();
            QVERIFY2(words.startsWith(u"Number Place Notes n%1 "_s.arg(rows)), qPrintable(words.left(60)));
            QVERIFY(words.endsWith(u"My list %1/%2"_s.arg(page + 1).arg(pages.size())));
            rows += int(words.count(u"Brest"_s));
        }
        QCOMPARE(rows, 200);
    }

    void longTextsAreWrappedAndNothingIsLost() {
        List list(3);
        list.special = 1;
        QStringList words;
        for (int i = 0; i < 150; ++i) words << u"w%1"_s.arg(i);
        list.specialCells[2].text = words.join(u' ');
        const QString read = pdf::words(pdfOfList(list));
        for (const QString& word : std::as_const(words))
            QVERIFY2(read.split(u' ').contains(word), qPrintable(word));
        QVERIFY(read.contains(u"n2 Brest calm"_s));
    }

    void wordsAreBrokenOnlyWhenTheyHaveNoRoom() {
        const QString word(75, u'w');  // more than half a page
        List list(1);
        list.special = 0;
        list.specialCells[1].text = word;
        list.specialCells[2].text = u"many short words "_s.repeated(40);
        QVERIFY(pdf::words(pdfOfList(list)).contains(word));
        list.specialCells[2].text = word;
        const QString both = pdf::words(pdfOfList(list));
        QVERIFY(!both.contains(word));
        QCOMPARE(both.count(u'w'), 150);
    }

    void aRowHigherThanAPageIsCutToThePage() {
        List list(3);
        list.special = 1;
        list.specialCells[2].text = u"line\n"_s.repeated(400);
        const QStringList pages = pdf::pages(pdfOfList(list));
        QCOMPARE(pages.size(), 3);
        QVERIFY(pages[2].contains(u"n2"_s));
    }

    void backgroundsAndTextColoursArePrinted() {
        List list(2);
        QCOMPARE(pixelsOf(firstPage(list), paint), 0);
        list.special = 0;
        list.specialCells[1] = {.text = u"X"_s, .background = paint};
        QVERIFY(pixelsOf(firstPage(list), paint) > 200);
        list.specialCells[1] = {.text = u"XXXXX"_s, .color = paint, .bold = true};
        QVERIFY(pixelsOf(firstPage(list), paint) > 5);
    }

    void columnsStandAsInTheWindow() {
        const List list(1);
        const QByteArray bytes =
            pdfOf(TablePages(list, english, u"My list"_s, {u"notes"_s, u"gone"_s, u"no"_s}));
        // "place" is not named: it keeps the second place.
        QCOMPARE(pdf::words(bytes), u"Notes Place Number calm Brest n0 My list 1/1"_s);
    }

    void blackOnADarkBackgroundIsPrintedWhite() {
        const QColor night(0, 0, 77);
        List list(1);
        list.special = 0;
        const auto lightestOnNight = [&](const QColor& color) {
            list.specialCells[1] = {.text = u"XXXXXXXX"_s, .color = color, .background = night, .bold = true};
            const QImage image = firstPage(list);
            QRect area;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (image.pixelColor(x, y) == night) area |= QRect(x, y, 1, 1);
            int lightest = 0;
            for (int y = area.top() + 2; y < area.bottom() - 1; ++y)
                for (int x = area.left() + 2; x < area.right() - 1; ++x)
                    lightest = std::max(lightest, qGray(image.pixel(x, y)));
            return lightest;
        };
        QVERIFY(lightestOnNight(Qt::black) > 200);
        QVERIFY(lightestOnNight({}) > 200);
        QVERIFY(lightestOnNight(QColor(60, 60, 60)) < 100);
    }

    void gaugesAreBarsOfTheirShare() {
        const auto barPixels = [](double share) {
            List list(1);
            list.special = 0;
            list.specialCells[1] = {.text = u"                    "_s, .gauge = share};
            return pixelsOf(firstPage(list), QColor(150, 190, 230));
        };
        const int whole = barPixels(1);
        QVERIFY(whole > 500);
        QCOMPARE(barPixels(0), 0);
        QVERIFY(std::abs(barPixels(0.5) * 2 - whole) < whole / 10);
        QCOMPARE(barPixels(7), whole);
        QCOMPARE(barPixels(-1), 0);
    }

    void cellsFollowTheirColumnsAlignment() {
        List list(1);
        list.special = 0;
        list.specialCells[0] = {.text = u"|"_s, .color = paint};
        const QImage image = firstPage(list);
        int left = image.width();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).hslSaturation() > 100) left = std::min(left, x);
        QVERIFY2(left > 25 && left < 80, qPrintable(QString::number(left)));
    }
};

int runTablePagesTest(int argc, char** argv) {
    TablePagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TablePagesTest.moc"
