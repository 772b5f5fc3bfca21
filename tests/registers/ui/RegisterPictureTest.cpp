#include "registers/ui/RegisterUiTests.h"
#include "support/ColouredPdf.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const char* format, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A wreck's form on the page with its photograph.
struct PhotoPage : RegisterOnScreen {
    QToolButton* well = nullptr;

    PhotoPage() : RegisterOnScreen("Epaves", {u"a"_s}) {
        shown->selectRows({0});
        openEdit();
        edit()->goPage(4);
        well = field<QToolButton>(u"photoWell"_s);
    }
    QByteArray held() const { return form().state(at(u"photoWell"_s)).image; }
    void drop(QMimeData& dragged) const {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(well, &enter);
        QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(well, &dropped);
    }
    QString file(const char* name, const QByteArray& bytes) {
        QFile made(folder.filePath(QLatin1String(name)));
        if (!made.open(QIODevice::WriteOnly) || made.write(bytes) != bytes.size()) qFatal("no file");
        return made.fileName();
    }

    QTemporaryDir folder;
};

}  // namespace

class RegisterPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClickChoosesAPicture() {
        PhotoPage page;
        const QByteArray bytes = encoded("JPG", 40, 30);
        page.edit()->view().choosers.image = [&](QWidget*) { return bytes; };
        QTest::mouseClick(page.well, Qt::LeftButton);
        QCOMPARE(page.held(), bytes);
        page.edit()->close();
        QCOMPARE(page.record<Epaves>(0).photo().bytes, bytes);
    }

    void aFileIsDroppedAsItIs_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("png") << encoded("PNG", 4, 4);
        QTest::newRow("jpeg") << encoded("JPG", 4, 4);
        QTest::newRow("tiff, little end first") << QByteArray("II*\0 no picture at all", 22);
    }
    void aFileIsDroppedAsItIs() {
        QFETCH(QByteArray, bytes);
        PhotoPage page;
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(page.file("p", bytes))});
        page.drop(dragged);
        QCOMPARE(page.held(), bytes);
    }

    void anotherKindOfPictureBecomesAPng() {
        PhotoPage page;
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(page.file("p.bmp", encoded("BMP", 5, 4)))});
        page.drop(dragged);
        QVERIFY(page.held().startsWith("\x89PNG"));
        QCOMPARE(QImage::fromData(page.held()).size(), QSize(5, 4));
    }

    void aPdfOfSeveralPagesIsAskedForThePage_data() {
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("questions");
        QTest::addColumn<QColor>("color");
        QTest::newRow("one page") << 1 << 7 << 0 << QColor(Qt::red);
        QTest::newRow("the first") << 3 << 0 << 1 << QColor(Qt::red);
        QTest::newRow("the last") << 3 << 2 << 1 << QColor(Qt::blue);
        QTest::newRow("given up") << 3 << -1 << 1 << QColor();
    }
    void aPdfOfSeveralPagesIsAskedForThePage() {
        QFETCH(int, pages);
        QFETCH(int, answer);
        QFETCH(int, questions);
        QFETCH(QColor, color);
        const QByteArray pdf = pdf::colouredPages(QList<QColor>{Qt::red, Qt::green, Qt::blue}.first(pages));
        PhotoPage page;
        int asked = 0;
        page.edit()->view().choosers.page = [&](QWidget*, const QByteArray& file) {
            ++asked;
            return file == pdf ? answer : -1;
        };
        const auto check = [&] {
            QTRY_COMPARE(asked, questions);
            QCOMPARE(QImage::fromData(page.held()).pixelColor(10, 10), color);
            page.form().setImage(page.at(u"photoWell"_s), {});
            asked = 0;
        };
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(page.file("p.pdf", pdf))});
        page.drop(dragged);
        check();
        page.edit()->view().choosers.image = [&](QWidget*) { return pdf; };
        QTest::mouseClick(page.well, Qt::LeftButton);
        check();
    }

    void aChosenFileThatIsNoPictureIsTold() {
        PhotoPage page;
        page.edit()->view().choosers.image = [](QWidget*) { return QByteArray("words"); };
        page.desk.prompt.expectAlert(u"This file is no picture."_s);
        QTest::mouseClick(page.well, Qt::LeftButton);
        QCOMPARE(page.desk.prompt.finish(), QStringList());
        QVERIFY(page.held().isNull());
    }

    void aFileThatIsNoPictureChangesNothing() {
        PhotoPage page;
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(page.file("p.txt", "words"))});
        page.drop(dragged);
        QVERIFY(page.held().isNull());
    }

    void aPictureIsPasted() {
        PhotoPage page;
        QImage image(6, 7, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QApplication::clipboard()->setImage(image);
        page.well->setFocus();
        QTest::keyClick(page.well, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(QImage::fromData(page.held()).size(), QSize(6, 7));
    }

    void deleteTakesThePictureAway() {
        PhotoPage page;
        page.form().setImage(page.at(u"photoWell"_s), encoded("PNG", 4, 4));
        page.well->setFocus();
        QTest::keyClick(page.well, Qt::Key_Delete);
        QVERIFY(page.held().isNull());
    }

    void aLargePictureIsShownScaledToTheRoomThereIs() {
        PhotoPage page;
        page.form().setImage(page.at(u"photoWell"_s), encoded("JPG", 3000, 2000));
        QVERIFY(!page.well->icon().isNull());
        const QSize shown = page.well->icon().actualSize(page.well->iconSize());
        QVERIFY(shown.width() <= page.well->width() && shown.height() <= page.well->height());
        QVERIFY(std::abs(shown.width() * 2 - shown.height() * 3) <= 3);
    }

    void whatCannotBeShownSaysSoAndIsKept() {
        Epaves wreck;
        wreck.setPhoto({QByteArray("sketch on a napkin")});
        PhotoPage page;
        const QString empty = page.well->text();
        page.load<Epaves>({wreck}, epavesClass());
        QVERIFY(page.well->text() != empty);
        QVERIFY(page.well->icon().isNull());
        page.edit()->close();
        QVERIFY(page.document->dataRepresentationOfType({}).contains("sketch on a napkin"));
    }

    void aDocumentToLookAtTakesNoPicture() {
        PhotoPage page;
        page.document->setReadOnly(true);
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(page.file("p.png", encoded("PNG", 4, 4)))});
        page.drop(dragged);
        QVERIFY(page.held().isNull());
    }
};

int runRegisterPictureTest(int argc, char** argv) {
    RegisterPictureTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterPictureTest.moc"
