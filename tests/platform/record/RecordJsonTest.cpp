#include <QJsonDocument>
#include <QTest>
#include <limits>

#include "platform/record/RecordJson.h"
#include "platform/record/RecordTests.h"
#include "platform/text/Message.h"
#include "support/Failure.h"
#include "support/Sample.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

QJsonObject parsed(const char* text) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(text, &error);
    Q_ASSERT(error.error == QJsonParseError::NoError);
    return document.object();
}

Sample fromJson(const QJsonObject& object) {
    return recordFromJson<Sample>(object, u"records[3]"_s, sampleClass());
}

QJsonObject toJson(const Sample& sample) {
    return recordToJson<Sample>(sample, SampleFields::all);
}

/// The value of one field, written and read as JSON text.
template <class T>
T throughText(const T& value, json::ListKind kind = json::ListKind::Reals) {
    const QByteArray text = QJsonDocument(QJsonObject{{u"v"_s, json::value(value)}}).toJson();
    T read{};
    json::read(QJsonDocument::fromJson(text).object().value("v"_L1), u"v"_s, kind, read);
    return read;
}

}  // namespace

class RecordJsonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsDumpedByItsName() {
        const QJsonObject blank =
            parsed(R"({"whole": 0, "copy": 0, "real": 0, "old": 0, "bitwise": 0, "text": null,
            "date": null, "depths": null, "flags": null, "picture": null, "memo": 0})");
        QCOMPARE(toJson(Sample()), blank);
    }

    void valuesAreDumpedAsDocumented() {
        Sample sample;
        sample.setWhole(INT_MIN);
        sample.setReal(12.3F);
        sample.setText(u""_s);
        sample.setDate(Moment::fromDateTime(QDateTime(QDate(2016, 6, 7), QTime(14, 30, 0, 250))));
        NumberArray mixed = NumberArray::ofDoubles(std::to_array({0.1}));
        mixed.appendFloat(12.3F);
        mixed.appendLongLong(9007199254740993);
        mixed.appendBool(true);
        mixed.append(-std::numeric_limits<double>::infinity());
        sample.setDepths(mixed);
        sample.setFlags(NumberArray::empty());
        sample.setPicture({QByteArray("\xff\xd8\xff\x00", 4)});
        const QByteArray text = QJsonDocument(toJson(sample)).toJson(QJsonDocument::Compact);
        const QByteArray wanted =
            R"({"bitwise":0,"copy":0,"date":"2016-06-07T14:30:00.25","depths":[0.1,12.3,9007199254740993,1,"-inf"],)"
            R"("flags":[],"memo":0,"old":0,"picture":{"base64":"/9j/AA==","image":"jpeg"},"real":12.3,"text":"",)"
            R"("whole":-2147483648})";
        QCOMPARE(text, wanted);
    }

    void picturesNameTheirKind_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("kind");
        QTest::newRow("png") << QByteArray("\x89PNG\r\n\x1a\n") << u"png"_s;
        QTest::newRow("jpeg") << QByteArray("\xff\xd8\xff\xe0") << u"jpeg"_s;
        QTest::newRow("tiff, Intel") << QByteArray("II*\0", 4) << u"tiff"_s;
        QTest::newRow("tiff, Motorola") << QByteArray("MM\0*", 4) << u"tiff"_s;
    }
    void picturesNameTheirKind() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, kind);
        const QJsonObject object = json::value(Picture{bytes}).toObject();
        QCOMPARE(object.value("image"_L1).toString(), kind);
        QCOMPARE(QByteArray::fromBase64(object.value("base64"_L1).toString().toLatin1()), bytes);
        QCOMPARE(throughText(Picture{bytes}).bytes, bytes);
    }

    void floatsReadBackToTheBit_data() {
        QTest::addColumn<float>("value");
        const float least = std::numeric_limits<float>::denorm_min();
        for (const float value :
             {0.0F, 12.3F, -4.5F, 16777217.0F / 3, 1e-5F, least, std::numeric_limits<float>::max(),
              std::numeric_limits<float>::min(), infinity, -infinity, 1e15F, 123456789.0F})
            QTest::newRow(qPrintable(shortest(value))) << value;
    }
    void floatsReadBackToTheBit() {
        QFETCH(float, value);
        QCOMPARE(std::bit_cast<quint32>(throughText(value)), std::bit_cast<quint32>(value));
    }
    // JSON as Qt reads it knows one zero only.
    void aNegativeZeroReadsBackAsZero() { QCOMPARE(throughText(-0.0F), 0.0F); }
    void whatIsNoNumberReadsBackAsNone() {
        QCOMPARE(json::value(std::numeric_limits<float>::quiet_NaN()).toString(), u"nan"_s);
        QVERIFY(std::isnan(throughText(std::numeric_limits<float>::quiet_NaN())));
        QCOMPARE(json::value(-infinity).toString(), u"-inf"_s);
    }

    void theLargestFloatIsOneAndWhatIsBeyondIsNot() {
        float value = 0;
        json::read(3.4028235e38, u"v"_s, json::ListKind::Reals, value);
        QCOMPARE(value, std::numeric_limits<float>::max());
        QVERIFY(failureOf<JsonError>([&] { json::read(3.5e38, u"v"_s, json::ListKind::Reals, value); }));
    }

    void recordsReadBack() {
        Sample sample;
        sample.setWhole(INT_MAX);
        sample.setReal(-12.25F);
        sample.setBitwise(1e-45F);
        sample.setText(u"a\0b \"quoted\" 水"_s);
        sample.setDate(Moment::fromIso(u"1900-01-01"_s));
        sample.setDepths(NumberArray::ofDoubles(std::to_array({0.0, 33.35, 1e10})));
        sample.setFlags(NumberArray::ofInts(std::to_array<qint32>({INT_MIN, 0, INT_MAX})));
        sample.setPicture({QByteArray("\x89PNG\0", 5)});
        const QByteArray text = QJsonDocument(toJson(sample)).toJson();
        const Sample read = fromJson(QJsonDocument::fromJson(text).object());
        QVERIFY(sameRecord<Sample>(read, sample, SampleFields::all));
        sample.setMemo(7);  // which is not archived
        QCOMPARE(fromJson(toJson(sample)).memo(), 0);
    }

    void missingFieldsAreZeroOrAbsent() {
        QVERIFY(sameRecord<Sample>(fromJson({}), Sample(), SampleFields::all));
        QVERIFY(fromJson(parsed(R"({"text": null})")).text().isNull());
        QVERIFY(!fromJson(parsed(R"({"text": ""})")).text().isNull());
    }

    void listsTakeTheKindThatTheirFieldIsArchivedIn() {
        const Sample sample =
            fromJson(parsed(R"({"depths": [1, 2.5], "flags": [1, 3000000000, 0.5, -2147483648]})"));
        QCOMPARE(sample.depths().commonKind(), NumberKind::Double);
        QCOMPARE(sample.flags().kindAt(0), NumberKind::Int);
        QCOMPARE(sample.flags().kindAt(1), NumberKind::LongLong);
        QCOMPARE(sample.flags().kindAt(2), NumberKind::Double);
        QCOMPARE(sample.flags().kindAt(3), NumberKind::Int);
        QCOMPARE(sample.flags().at(1), 3e9);
    }

    void wrongValuesAreToldWithTheirPlace_data() {
        QTest::addColumn<QByteArray>("object");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char* name, const char* object, const QString& sentence) {
            QTest::newRow(name) << QByteArray(object) << u"records[3]."_s + sentence;
        };
        const QString whole = u": expected a whole number of 32 bits"_s;
        row("unknown", R"({"Whole": 1})", u"Whole: unknown field"_s);
        row("unknown though null", R"({"wholes": null})", u"wholes: unknown field"_s);
        row("text for whole", R"({"whole": "1"})", u"whole"_s + whole);
        row("null for whole", R"({"whole": null})", u"whole"_s + whole);
        row("fraction for whole", R"({"whole": 1.5})", u"whole"_s + whole);
        row("half for whole", R"({"whole": 0.5})", u"whole"_s + whole);
        row("truth for whole", R"({"whole": true})", u"whole"_s + whole);
        row("one too many", R"({"whole": 2147483648})", u"whole"_s + whole);
        row("one too few", R"({"whole": -2147483649})", u"whole"_s + whole);
        row("inf for whole", R"({"whole": "inf"})", u"whole"_s + whole);
        row("not archived, wrong kind", R"({"memo": "x"})", u"memo"_s + whole);
        row("text for real", R"({"real": "12.3"})", u"real: expected a number"_s);
        row("null for real", R"({"real": null})", u"real: expected a number"_s);
        row("too large for real", R"({"real": 1e39})", u"real: expected a number that 32 bits can hold"_s);
        row("number for text", R"({"text": 5})", u"text: expected a text or null"_s);
        row("list for text", R"({"text": []})", u"text: expected a text or null"_s);
        const QString date = u"date: expected a date such as \"2016-06-07T14:30:00\" or null"_s;
        row("word for date", R"({"date": "yesterday"})", date);
        row("impossible date", R"({"date": "2015-02-29T00:00:00"})", date);
        row("empty date", R"({"date": ""})", date);
        row("number for date", R"({"date": 5})", date);
        row("object for list", R"({"depths": {}})", u"depths: expected an array of numbers or null"_s);
        row("word in list", R"({"depths": [1, 2, "x"]})", u"depths[2]: expected a number"_s);
        row("null in list", R"({"flags": [null]})", u"flags[0]: expected a number"_s);
        const QString picture = u"picture: expected a picture {\"image\": …, \"base64\": …} or null"_s;
        row("text for picture", R"({"picture": "x"})", picture);
        row("picture without bytes", R"({"picture": {"image": "png"}})", picture);
        const QString bytes = u"picture.base64: expected the bytes of a PNG, JPEG or TIFF picture"_s;
        row("no picture", R"({"picture": {"image": "png", "base64": "c2tldGNo"}})", bytes);
        row("no bytes", R"({"picture": {"image": "png", "base64": ""}})", bytes);
        row("another kind", R"({"picture": {"image": "png", "base64": "/9j/AA=="}})",
            u"picture.image: expected jpeg"_s);
        row("no base64", R"({"picture": {"image": "png", "base64": "%%%"}})",
            u"picture.base64: expected base64 text"_s);
    }
    void wrongValuesAreToldWithTheirPlace() {
        QFETCH(QByteArray, object);
        QFETCH(QString, sentence);
        const auto error = failureOf<JsonError>([&] { fromJson(parsed(object.constData())); });
        QVERIFY(error);
        QCOMPARE(error->sentence(), sentence);
    }
};

int runRecordJsonTest(int argc, char** argv) {
    RecordJsonTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RecordJsonTest.moc"
