#include "settings/Colors.h"

#include <QTest>

#include "SettingsTests.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The bytes from the start of a file to the end of the colour's class: an object of NSColor : NSObject.
const QByteArray head =
    "040b73747265616d747970656481e803"  // signature, system version 1000
    "840140"                            // a group of one object
    "848484074e53436f6c6f7200"          // NSColor, version 0
    "8484084e534f626a6563740085";       // NSObject, version 0, nothing above it

QJsonValue archiveOf(const QByteArray& hex) {
    return QJsonObject{{u"archive"_s, QString::fromLatin1(QByteArray::fromHex(hex).toBase64())}};
}

QByteArray bytesOf(const QJsonValue& value) {
    return QByteArray::fromBase64(value[u"archive"_s].toString().toLatin1()).toHex();
}

}  // namespace

class ColorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aColourIsStoredAsAnArchiveOfTheColourObject() {
        QCOMPARE(bytesOf(colorValue(systemcolor::blue)),
                 head + "84016301" + "840466666666" + "00000101" + "86");
        // 0.5 is 3f000000 as a float, the least byte first.
        QCOMPARE(bytesOf(colorValue(ColorComponents{1, 0.5F, 0, 1})),
                 head + "84016301" + "840466666666" + "01" + "830000003f" + "0001" + "86");
    }

    void readsEveryColourSpaceThatIsKnown_data() {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("color");
        const QByteArray half = "830000003f";
        QTest::newRow("calibrated RGB") << QByteArray(
                                               "84016301"
                                               "840466666666" +
                                               half +
                                               "010001"
                                               "86")
                                        << u"rgba(0.5, 1, 0, 1)"_s;
        QTest::newRow("device RGB") << QByteArray(
                                           "84016302"
                                           "840466666666"
                                           "0001" +
                                           half +
                                           "00"
                                           "86")
                                    << u"rgba(0, 1, 0.5, 0)"_s;
        QTest::newRow("calibrated white") << QByteArray(
                                                 "84016303"
                                                 "84026666" +
                                                 half +
                                                 "01"
                                                 "86")
                                          << u"rgba(0.5, 0.5, 0.5, 1)"_s;
        QTest::newRow("device white") << QByteArray(
                                             "84016304"
                                             "84026666"
                                             "01" +
                                             half + "86")
                                      << u"rgba(1, 1, 1, 0.5)"_s;
        // Cyan and no black; then half black over yellow.
        QTest::newRow("CMYK") << QByteArray(
                                     "84016305"
                                     "84056666666666"
                                     "01000000"
                                     "01"
                                     "86")
                              << u"rgba(0, 1, 1, 1)"_s;
        QTest::newRow("CMYK with black") << QByteArray(
                                                "84016305"
                                                "84056666666666"
                                                "000001" +
                                                half +
                                                "01"
                                                "86")
                                         << u"rgba(0.5, 0.5, 0, 1)"_s;
        QTest::newRow("named") << QByteArray(
                                      "84016306"
                                      "8403404040"
                                      "848484084e53537472696e670194"
                                      "84012b"
                                      "0653797374656d"
                                      "86"
                                      "8496"
                                      "98"
                                      "0974657874436f6c6f72"
                                      "86"
                                      "8493"
                                      "95"
                                      "03"
                                      "84026666"
                                      "0001"
                                      "86"
                                      "86")
                               << u"rgba(0, 0, 0, 1)"_s;
        QTest::newRow("beyond the ends") << QByteArray(
                                                "84016301"
                                                "840466666666"
                                                "02fe0001"
                                                "86")
                                         << u"rgba(1, 0, 0, 1)"_s;
    }
    void readsEveryColourSpaceThatIsKnown() {
        QFETCH(QByteArray, hex);
        const auto components = componentsIn(archiveOf(head + hex));
        QVERIFY(components);
        QTEST(colorText(*components), "color");
    }

    void whatDoesNotDecodeGivesTheFallback_data() {
        QTest::addColumn<QJsonValue>("value");
        const QByteArray good = head +
                                "84016301"
                                "840466666666"
                                "00000101"
                                "86";
        QTest::newRow("nothing stored") << QJsonValue(QJsonValue::Undefined);
        QTest::newRow("keyed archive") << undecodedColor();
        QTest::newRow("no base64") << QJsonValue(QJsonObject{{u"archive"_s, u"#"_s}});
        QTest::newRow("empty archive") << QJsonValue(QJsonObject{{u"archive"_s, u""_s}});
        QTest::newRow("a number") << QJsonValue(4);
        QTest::newRow("a text") << QJsonValue(u"rgba(0, 0, 1, 1)"_s);
        QTest::newRow("cut off") << archiveOf(good.chopped(6));
        QTest::newRow("more behind it") << archiveOf(good + "00");
        QTest::newRow("a pattern") << archiveOf(head +
                                                "8401630a"
                                                "840466666666"
                                                "00000101"
                                                "86");
        QTest::newRow("too few components") << archiveOf(head +
                                                         "84016301"
                                                         "8403666666"
                                                         "000001"
                                                         "86");
        QTest::newRow("no components") << archiveOf(head +
                                                    "84016301"
                                                    "86");
        QTest::newRow("not a number") << archiveOf(head +
                                                   "84016301"
                                                   "840466666666"
                                                   "830000c07f"
                                                   "000001"
                                                   "86");
        QTest::newRow("another class") << archiveOf(
            "040b73747265616d747970656481e803"
            "840140"
            "848484084e534f626a6563740085"
            "86");
    }
    void whatDoesNotDecodeGivesTheFallback() {
        QFETCH(QJsonValue, value);
        UserDefaults defaults;
        if (!value.isUndefined()) defaults.store(u"depth color"_s, value);
        QCOMPARE(storedColor(defaults, u"depth color"_s, QColor(1, 2, 3)), QColor(1, 2, 3));
    }

    void aColourComesBackAsItWas_data() {
        QTest::addColumn<QColor>("color");
        for (const QColor& color :
             {systemcolor::black, systemcolor::gray, systemcolor::brown, systemcolor::red, systemcolor::blue,
              systemcolor::green, systemcolor::orange, systemcolor::purple, systemcolor::yellow,
              systemcolor::white})
            QTest::newRow(qPrintable(systemColorName(color))) << color;
        QTest::newRow("mixed") << QColor::fromRgbF(0.725F, 1, 0.674F, 0.2F);
        QTest::newRow("hue") << QColor::fromHsv(200, 90, 33);
    }
    void aColourComesBackAsItWas() {
        QFETCH(QColor, color);
        UserDefaults defaults;
        defaults.store(u"plot color"_s, colorValue(color));
        QCOMPARE(storedColor(defaults, u"plot color"_s, QColor()), color.toRgb());
    }

    void anAlphaIsKept() {
        UserDefaults defaults;
        defaults.store(u"plot color"_s, colorValue(QColor::fromRgbF(0, 0, 0, 0.4F)));
        QCOMPARE(storedColor(defaults, u"plot color"_s, QColor()).alphaF(), 0.4F);
    }

    void componentsAreThoseThatWereSet_data() {
        QTest::addColumn<float>("component");
        for (const float component :
             {0.0F, 0.1F, 0.2F, 0.149F, 0.49F, 0.6F, 0.674F, 0.702F, 0.725F, 0.855F, 1.0F})
            QTest::newRow(qPrintable(QString::number(component))) << component;
    }
    void componentsAreThoseThatWereSet() {
        QFETCH(float, component);
        QCOMPARE(componentsOf(QColor::fromRgbF(component, 0, 0))[0], component);
    }

    void readsColoursInWords_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::newRow("rgba") << u"rgba(0, 0.5, 1, 1)"_s << QColor::fromRgbF(0, 0.5F, 1);
        QTest::newRow("close together") << u"rgba(1,0,0,1)"_s << QColor(255, 0, 0);
        QTest::newRow("the system's green") << u"green"_s << QColor(0, 255, 0);
        QTest::newRow("the system's orange") << u"orange"_s << QColor(255, 128, 0);
        QTest::newRow("hexadecimal") << u"#336699"_s << QColor(0x33, 0x66, 0x99);
        QTest::newRow("three components") << u"rgba(0, 0, 1)"_s << QColor();
        QTest::newRow("too large") << u"rgba(0, 0, 255, 1)"_s << QColor();
        QTest::newRow("not a number") << u"rgba(nan, 0, 0, 1)"_s << QColor();
        QTest::newRow("no colour") << u"deep"_s << QColor();
        QTest::newRow("empty") << u""_s << QColor();
    }
    void readsColoursInWords() {
        QFETCH(QString, text);
        QTEST(colorFromText(text), "color");
    }

    void knowsTheKeysOfColours() {
        for (const char* key :
             {"depth color", "time color", "low temperature color", "foreign color", "plot color",
              "background color", "fill color", "gradient lines color", "ASC color", "SLOW color"})
            QVERIFY2(isColorKey(QLatin1String(key)), key);
        for (const char* key : {"alpha fill color", "color item", "mix in color", ""})
            QVERIFY2(!isColorKey(QLatin1String(key)), key);
    }
};

int runColorsTest(int argc, char** argv) {
    ColorsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ColorsTest.moc"
