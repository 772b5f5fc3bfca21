#include <QImage>
#include <QtTest>

#include "cli/Workshop.h"
#include "registers/DiversDocs.h"
#include "registers/RegisterTests.h"
#include "support/ColouredPdf.h"

using namespace Qt::StringLiterals;

namespace {

/// A wreck of an archive made elsewhere whose picture begins like no picture that anyone knows.
QByteArray unreadable() {
    QByteArray bytes = golden::bytes(u"epaves-v6.epaves"_s);
    const qsizetype at = bytes.indexOf("\x89PNG");
    if (at < 0) qFatal("no picture to spoil");
    return bytes.replace(at, 4, "?PNG");
}

/// The row of that wreck.
constexpr int spoilt = 1;

QJsonObject picture(const Workshop& shop, const QString& file, int row) {
    return shop.record(file, row)[u"photo"_s].toObject();
}

}  // namespace

class RegisterPictureDumpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPictureThatNobodyCanReadIsDumpedAsTheObjectThatItIs() {
        const Workshop shop;
        shop.put(u"a.epaves"_s, unreadable());
        const QJsonObject photo = picture(shop, u"a.epaves"_s, spoilt);
        QCOMPARE(photo[u"image"_s].toString(), u"archived"_s);
        const QByteArray object = QByteArray::fromBase64(photo[u"base64"_s].toString().toLatin1());
        QVERIFY(object.startsWith("\x04\x0bstreamtyped"));
        QVERIFY(object.contains("NSBitmapImageRep"));
        QVERIFY(object.contains("?PNG"));
    }

    void itComesBackFromItsDump() {
        const Workshop shop;
        shop.put(u"a.epaves"_s, unreadable());
        shop.put(u"a.json"_s, shop.run({u"dump"_s, u"a.epaves"_s}).output);
        const Outcome loaded = shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"b.epaves"_s});
        QVERIFY2(loaded.status == 0, qPrintable(loaded.errors));
        QCOMPARE(picture(shop, u"b.epaves"_s, spoilt), picture(shop, u"a.epaves"_s, spoilt));
        QVERIFY(shop.folder().content(u"b.epaves"_s).contains("NSBitmapImageRep"));
        // Changing another field leaves it alone, an empty picture takes it away.
        QCOMPARE(shop.run({u"set"_s, u"b.epaves"_s, u"--row"_s, u"1"_s, u"notes=x"_s}).status, 0);
        QCOMPARE(picture(shop, u"b.epaves"_s, spoilt), picture(shop, u"a.epaves"_s, spoilt));
        QCOMPARE(shop.run({u"set"_s, u"b.epaves"_s, u"--row"_s, u"1"_s, u"photo="_s}).status, 0);
        QVERIFY(shop.record(u"b.epaves"_s, spoilt)[u"photo"_s].isNull());
    }

    /// Bytes of our own form that are no picture: a program before this one took any file.
    void bytesThatAreNoPictureAreDumpedToo() {
        sargan::DiversDocs paper;
        paper.setPhotocopy({QByteArray("sketch")});
        const Workshop shop;
        shop.put(u"a.documents"_s,
                 sargan::writeRecords<sargan::DiversDocs>({std::make_shared<const sargan::DiversDocs>(paper)},
                                                          sargan::diversDocsClass()));
        const QByteArray dump = shop.run({u"dump"_s, u"a.documents"_s}).output;
        shop.put(u"b.json"_s, dump);
        QCOMPARE(shop.run({u"load"_s, u"b.json"_s, u"-o"_s, u"b.documents"_s}).status, 0);
        QCOMPARE(shop.run({u"dump"_s, u"b.documents"_s}).output, dump);
        QCOMPARE(shop.folder().content(u"b.documents"_s), shop.folder().content(u"a.documents"_s));
    }

    void whatIsNoSuchArchiveIsRefused_data() {
        QTest::addColumn<QByteArray>("object");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("words") << QByteArray("sketch");
        QTest::newRow("cut off") << unreadable().first(40);
        QTest::newRow("a picture that can be read") << golden::bytes(u"epaves-v6.epaves"_s);
        QTest::newRow("no object") << QByteArray("\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x85", 20);
    }
    void whatIsNoSuchArchiveIsRefused() {
        QFETCH(QByteArray, object);
        const Workshop shop;
        shop.put(u"a.json"_s,
                 R"({"type": "Epaves", "records": [{"photo": {"image": "archived", "base64": ")" +
                     object.toBase64() + R"("}}]})");
        const Outcome loaded = shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"a.epaves"_s});
        QCOMPARE(loaded.status, 1);
        QVERIFY2(isOneSentence(loaded.errors) && loaded.errors.contains(u"records[0].photo.base64"_s),
                 qPrintable(loaded.errors));
        QCOMPARE(shop.folder().names(), QStringList{u"a.json"_s});
    }

    void aPageOfAScanIsTakenByItsNumber() {
        const Workshop shop;
        shop.put(u"scan.pdf"_s, pdf::colouredPages({Qt::red, Qt::green, Qt::blue}));
        QCOMPARE(shop.run({u"new"_s, u"Divers documents"_s, u"a.documents"_s}).status, 0);
        const Outcome added = shop.run({u"add"_s, u"a.documents"_s, u"photocopy=scan.pdf#2"_s});
        QVERIFY2(added.status == 0, qPrintable(added.errors));
        const QJsonObject copy = shop.record(u"a.documents"_s, 0)[u"photocopy"_s].toObject();
        QImage page;
        QVERIFY(page.loadFromData(QByteArray::fromBase64(copy[u"base64"_s].toString().toLatin1()), "PNG"));
        QCOMPARE(page.pixelColor(page.rect().center()), QColor(Qt::green));
        const Outcome refused = shop.run({u"add"_s, u"a.documents"_s, u"photocopy=scan.pdf#4"_s});
        QCOMPARE(refused.status, 2);
        QVERIFY2(refused.errors.contains(u"the file has no page 4, its last one is page 3"_s),
                 qPrintable(refused.errors));
        QCOMPARE(shop.records(u"a.documents"_s).size(), 1);
    }
};

int runRegisterPictureDumpTest(int argc, char** argv) {
    RegisterPictureDumpTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterPictureDumpTest.moc"
