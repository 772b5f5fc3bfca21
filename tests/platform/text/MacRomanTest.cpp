#include <QTest>

#include "platform/text/MacRoman.h"
#include "platform/text/TextTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class MacRomanTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void encodesWithItsNearestReplacements_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isExact");
        const auto exact = [](const QString& text, const QByteArray& bytes) {
            QTest::newRow(qPrintable(text)) << text << bytes << true;
        };
        const auto nearest = [](const QString& text, const QByteArray& bytes) {
            QTest::newRow(qPrintable(text)) << text << bytes << false;
        };
        exact(u""_s, "");
        exact(u"Plongée n°1\t\r\n"_s,
              "Plong\x8E"
              "e n\xA1"
              "1\t\r\n");
        exact(u"ÄÅÇÉÑÖÜ"_s, "\x80\x81\x82\x83\x84\x85\x86");
        exact(u"Œœ «Ÿ» … €"_s, "\xCE\xCF \xC7\xD9\xC8 \xC9 \xDB");
        exact(u"e\u0301a\u0302"_s, "\x8E\x89");
        exact(u"≠∞≤≥ˇ"_s, "\xAD\xB0\xB2\xB3\xFF");
        nearest(u"Győr Łódź"_s,
                "Gyor L\x97"
                "dz");
        nearest(u"Şile İzmir"_s, "Sile Izmir");
        nearest(u"H₂O m² ½"_s,
                "H2O m2 1\xDA"
                "2");
        nearest(u"a→b −5 × 3"_s, "a->b -5 x 3");
        nearest(u"東京🐠"_s, "???");
        nearest(u"Þór"_s, "Th\x97r");
        nearest(u"q\u0301"_s, "q");
        nearest(u"\u0301"_s, "?");
        nearest(u"ﬃ"_s, "ffi");
        nearest(QString(QChar(0xD800)) + u"x"_s, "?x");
    }
    void encodesWithItsNearestReplacements() {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QByteArray encoded = "> ";
        const bool isExact = MacRoman::append(encoded, text);
        QCOMPARE(encoded, "> " + bytes);
        QTEST(isExact, "isExact");
    }

    void everyByteComesBack() {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) all.append(char(byte));
        const QString text = MacRoman::decode(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(text[0x8E], QChar(u'é'));
        QCOMPARE(text[0xFF], QChar(u'ˇ'));
        QByteArray again;
        QVERIFY(MacRoman::append(again, text));
        QCOMPARE(again, all);
    }
};

int runMacRomanTest(int argc, char** argv) {
    MacRomanTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MacRomanTest.moc"
