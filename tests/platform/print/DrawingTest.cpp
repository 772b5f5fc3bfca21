#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>
#include <QtTest>

#include "platform/print/Drawing.h"
#include "platform/print/PrintTests.h"
#include "platform/print/StyledText.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A red field over the left half and a word in the right one.
const Drawing drawing{{200, 100}, [](QPainter& painter) {
                          painter.fillRect(QRectF(0, 0, 100, 100), QColor(255, 0, 0));
                          painter.setFont(printFont(14));
                          painter.drawText(QPointF(120, 50), u"Profil é"_s);
                      }};

QImage rendered(const QByteArray& pdf) {
    return QImage::fromData(
        pdf::through(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, u"-singlefile"_s, u"-"_s}, pdf));
}

}  // namespace

class DrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPictureHasAPixelForEachUnit() {
        const QImage image = QImage::fromData(bytesOf(drawing, u"t"_s, u"png"_s));
        QCOMPARE(image.size(), QSize(200, 100));
        QCOMPARE(image.pixelColor(50, 50), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(110, 90), QColor(255, 255, 255));
    }

    void aVectorPictureHoldsTheWordsAsWords() {
        const QByteArray svg = bytesOf(drawing, u"A title"_s, u"svg"_s);
        QXmlStreamReader reader(svg);
        QString words, title;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement()) continue;
            if (reader.name() == "svg"_L1)
                QCOMPARE(reader.attributes().value("viewBox"_L1), "0 0 200 100"_L1);
            if (reader.name() == "title"_L1)
                title = reader.readElementText();
            else if (reader.name() == "text"_L1)
                words = reader.readElementText();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(title, u"A title"_s);
        QCOMPARE(words.trimmed(), u"Profil é"_s);
    }

    void aPrintedPictureFillsThePageFromTheTopLeftCorner() {
        const QByteArray bytes = bytesOf(drawing, u"t"_s, u"pdf"_s);
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"842 x 595 pts (A4)"_s);
        QCOMPARE(pdf::words(bytes), u"Profil é"_s);
        const QImage page = rendered(bytes);
        // Between the side margins there are 822 points: the field is 411 wide and high, from (10, 24.8) on.
        QCOMPARE(page.pixelColor(8, 30), QColor(255, 255, 255));
        QCOMPARE(page.pixelColor(12, 22), QColor(255, 255, 255));
        QCOMPARE(page.pixelColor(12, 28), QColor(255, 0, 0));
        QCOMPARE(page.pixelColor(418, 432), QColor(255, 0, 0));
        QCOMPARE(page.pixelColor(424, 432), QColor(255, 255, 255));
        QCOMPARE(page.pixelColor(418, 440), QColor(255, 255, 255));
    }

    void aPictureCanBePrintedUpright() {
        const QByteArray bytes = pdfOf(PicturePage(drawing, u"t"_s, QPageLayout::Portrait));
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"595 x 842 pts (A4)"_s);
    }

    void unknownFormatsAreRefused() {
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, bytesOf(drawing, u"t"_s, u"bmp"_s));
    }
};

int runDrawingTest(int argc, char** argv) {
    DrawingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DrawingTest.moc"
