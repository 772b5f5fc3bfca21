#include <QImage>
#include <QTest>

#include "platform/files/Folder.h"
#include "platform/form/FormTests.h"
#include "support/ColouredPdf.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// What a control holds, in one text.
QString held(const Form& form, int control) {
    const ControlState& state = form.state(control);
    switch (form.spec(control).kind) {
        case ControlKind::Date:
        case ControlKind::Time:
            return state.date.iso();
        case ControlKind::PopUp:
        case ControlKind::Switch:
        case ControlKind::Slider:
            return QString::number(state.tag);
        case ControlKind::Color:
            return state.color.isValid() ? state.color.name(QColor::HexArgb) : QString();
        default:
            return state.text;
    }
}

}  // namespace

class FormFillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesAValueWrittenAsText_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("result");
        const auto row = [](const QString& control, const QString& value, const QString& result) {
            QTest::newRow(qPrintable(control + u'=' + value)) << control << value << result;
        };
        row(u"textField"_s, u"Brest"_s, u"Brest"_s);
        row(u"textField"_s, u" two words "_s, u" two words "_s);
        row(u"textField"_s, u"a=b"_s, u"a=b"_s);
        row(u"numberField"_s, u"12,5"_s, u"12,5"_s);
        row(u"numberField"_s, u"-"_s, u"-"_s);
        row(u"areaField"_s, u"two\nlines"_s, u"two\nlines"_s);
        row(u"comboField"_s, u"not in the list"_s, u"not in the list"_s);
        row(u"dateField"_s, u"2016-06-07"_s, u"2016-06-07T00:00:00"_s);
        row(u"dateField"_s, u"2016-06-07T14:30:00"_s, u"2016-06-07T14:30:00"_s);
        row(u"timeField"_s, u"14:30"_s, u"2001-01-01T14:30:00"_s);
        row(u"timeField"_s, u""_s, u""_s);
        row(u"menuPopUp"_s, u"3"_s, u"3"_s);
        row(u"menuPopUp"_s, u"-1"_s, u"-1"_s);
        row(u"menuPopUp"_s, u"17"_s, u"17"_s);
        row(u"levelSlider"_s, u"5"_s, u"5"_s);
        row(u"onSwitch"_s, u"1"_s, u"1"_s);
        row(u"onSwitch"_s, u"0"_s, u"0"_s);
        row(u"tintWell"_s, u"#ff0000"_s, u"#ffff0000"_s);
    }
    void takesAValueWrittenAsText() {
        QFETCH(QString, control);
        QFETCH(QString, value);
        Form form(formtest::controls);
        form.fill(form.find(control), value);
        QTEST(held(form, form.find(control)), "result");
    }

    void refusesWhatAControlCannotTake_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const QString& control, const QString& value, const QString& problem) {
            QTest::newRow(qPrintable(control + u'=' + value))
                << control << value << control + u": "_s + problem;
        };
        const auto noNumber = [](const QString& value) {
            return u"\"%1\" is not a whole number"_s.arg(value);
        };
        for (const auto& value : {u"seven"_s, u""_s, u"1.5"_s, u"2147483648"_s})
            row(u"menuPopUp"_s, value, noNumber(value));
        row(u"levelSlider"_s, u"x"_s, noNumber(u"x"_s));
        row(u"onSwitch"_s, u"on"_s, noNumber(u"on"_s));
        row(u"onSwitch"_s, u"2"_s, u"a switch takes 0 or 1"_s);
        row(u"onSwitch"_s, u"-1"_s, u"a switch takes 0 or 1"_s);
        for (const auto& value : {u"yesterday"_s, u"2015-02-29"_s, u"25:00"_s, u"07/06/2016"_s})
            for (const auto& control : {u"dateField"_s, u"timeField"_s})
                row(control, value,
                    u"\"%1\" is not a date or time such as 2016-06-07, 14:30 or 2016-06-07T14:30:00"_s.arg(
                        value));
        row(u"captionField"_s, u"x"_s, u"is shown only, it takes no value"_s);
        row(u"tintWell"_s, u"no colour"_s, u"\"no colour\" is not a colour"_s);
    }
    void refusesWhatAControlCannotTake() {
        QFETCH(QString, control);
        QFETCH(QString, value);
        QFETCH(QString, sentence);
        Form form(formtest::controls);
        const int place = form.find(control);
        int ended = 0;
        form.onEndEditing = [&](int) { ++ended; };
        const auto error = failureOf<ControlValueError>([&] { form.fill(place, value); });
        QVERIFY(error);
        QCOMPARE(error->sentence(), sentence);
        QVERIFY(form.state(place) == ControlState());
        QCOMPARE(ended, 0);
    }

    void anEmptyTextFilledInIsPresent() {
        Form form(formtest::controls);
        form.fill(form.find(u"textField"), u""_s);
        QVERIFY(!form.text(form.find(u"textField")).isNull());
    }

    void takesAPictureByItsFile() {
        const Folder folder;
        folder.put(u"photo.png"_s, "\x89PNG bytes");
        Form form(formtest::controls);
        const int photo = form.find(u"photoImage");
        form.fill(photo, folder.path(u"photo.png"_s));
        QCOMPARE(form.state(photo).image, QByteArray("\x89PNG bytes"));
        QVERIFY(failureOf<ReadError>([&] { form.fill(photo, folder.path(u"none.png"_s)); }));
        QCOMPARE(form.state(photo).image, QByteArray("\x89PNG bytes"));
        form.fill(photo, u""_s);
        QVERIFY(form.state(photo).image.isEmpty());
    }

    void aPageOfAPdfIsChosenByItsNumber_data() {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QSize>("size");  // two pixels to a point
        QTest::addColumn<QColor>("color");
        QTest::newRow("the first of itself") << u"three.pdf"_s << QSize(200, 100) << QColor(Qt::red);
        QTest::newRow("first") << u"three.pdf#1"_s << QSize(200, 100) << QColor(Qt::red);
        QTest::newRow("second") << u"three.pdf#2"_s << QSize(400, 100) << QColor(Qt::green);
        QTest::newRow("last") << u"three.pdf#3"_s << QSize(600, 100) << QColor(Qt::blue);
        QTest::newRow("a file of that name") << u"one.pdf#2"_s << QSize(200, 100) << QColor(Qt::yellow);
    }
    void aPageOfAPdfIsChosenByItsNumber() {
        QFETCH(QString, place);
        const Folder folder;
        folder.put(u"three.pdf"_s, pdf::colouredPages({Qt::red, Qt::green, Qt::blue}));
        folder.put(u"one.pdf#2"_s, pdf::colouredPages({Qt::yellow}));
        Form form(formtest::controls);
        form.fill(form.find(u"photoImage"), folder.path(place));
        QImage page;
        QVERIFY(page.loadFromData(form.state(form.find(u"photoImage")).image, "PNG"));
        QTEST(page.size(), "size");
        QTEST(page.pixelColor(page.rect().center()), "color");
    }

    void aPageThatThereIsNotIsTold_data() {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("problem");
        QTest::newRow("none") << u"two.pdf#0"_s
                              << u"photoImage: the file has no page 0, its last one is page 2"_s;
        QTest::newRow("behind the last")
            << u"two.pdf#3"_s << u"photoImage: the file has no page 3, its last one is page 2"_s;
        QTest::newRow("no PDF") << u"a.txt#1"_s << u"photoImage: only a PDF has pages to choose from"_s;
        QTest::newRow("cut off") << u"cut.pdf"_s << u"photoImage: the file is no picture"_s;
    }
    void aPageThatThereIsNotIsTold() {
        QFETCH(QString, place);
        const Folder folder;
        folder.put(u"two.pdf"_s, pdf::colouredPages({Qt::red, Qt::green}));
        folder.put(u"a.txt"_s, "words");
        folder.put(u"cut.pdf"_s, "%PDF-1.4\n");
        Form form(formtest::controls);
        const auto failure =
            failureOf<ControlValueError>([&] { form.fill(form.find(u"photoImage"), folder.path(place)); });
        QVERIFY(failure);
        QTEST(failure->sentence(), "problem");
        QVERIFY(form.state(form.find(u"photoImage")).image.isNull());
    }
};

int runFormFillTest(int argc, char** argv) {
    FormFillTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FormFillTest.moc"
