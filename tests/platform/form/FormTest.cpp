#include <QSignalSpy>
#include <QTest>

#include "platform/form/FormTests.h"
#include "platform/text/Strings.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

using Change = std::function<void(Form&)>;
Q_DECLARE_METATYPE(Change)

namespace {

enum Control { text, number, area, combo, date, hour, popUp, onSwitch, slider, caption, image, well };

const Moment june = Moment::fromIso(u"2016-06-07T14:30:00"_s);

void addChanges() {
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("control");
    const auto row = [](const char* name, int control, Change change) {
        QTest::newRow(name) << change << control;
    };
    row("text", text, [](Form& form) { form.setText(text, u"a"_s); });
    row("empty text", text, [](Form& form) { form.setText(text, u""_s); });
    row("number", number, [](Form& form) { form.setInteger(number, 0); });
    row("tag", popUp, [](Form& form) { form.setTag(popUp, 3); });
    row("tag as integer", slider, [](Form& form) { form.setInteger(slider, -1); });
    row("date", date, [](Form& form) { form.setDate(date, june); });
    row("image", image, [](Form& form) { form.setImage(image, "x"); });
    row("colour", text, [](Form& form) { form.setColor(text, Qt::red); });
    row("disabled", text, [](Form& form) { form.setEnabled(text, false); });
    row("hidden", text, [](Form& form) { form.setHidden(text, true); });
    row("runs", caption, [](Form& form) { form.setRuns(caption, {{u"a"_s, Qt::red}, {u"b"_s, {}}}); });
}

}  // namespace

class FormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsBlank() {
        const Form form(formtest::controls);
        QCOMPARE(form.count(), 12);
        for (int control = 0; control < form.count(); ++control)
            QVERIFY(form.state(control) == ControlState());
        QVERIFY(form.text(text).isNull());
        QCOMPARE(form.focus(), -1);
    }

    void tellsEachChangeOnce_data() { addChanges(); }
    void tellsEachChangeOnce() {
        QFETCH(Change, change);
        QFETCH(int, control);
        Form form(formtest::controls);
        QSignalSpy changed(&form, &Form::changed);
        change(form);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toInt(), control);
        change(form);
        QCOMPARE(changed.size(), 1);
    }

    void anAbsentTextIsNotAnEmptyOne() {
        Form form(formtest::controls);
        form.setText(text, u""_s);
        QVERIFY(!form.text(text).isNull());
        form.setText(text, QString());
        QVERIFY(form.text(text).isNull());
    }

    void aPlainTextTakesThePlaceOfColouredPieces() {
        Form form(formtest::controls);
        form.setRuns(caption, {{u"a"_s, Qt::red}, {u"b"_s, {}}});
        QCOMPARE(form.text(caption), u"ab"_s);
        QSignalSpy changed(&form, &Form::changed);
        form.setText(caption, u"ab"_s);
        QVERIFY(form.state(caption).runs.isEmpty());
        QCOMPARE(changed.size(), 1);
        form.setRuns(caption, {});
        QCOMPARE(form.text(caption), u""_s);
        QCOMPARE(changed.size(), 2);
    }

    void findsControlsByNameAndAlias() {
        Form form(formtest::controls);
        form.addAlias(u"lieu"_s, combo);
        QCOMPARE(form.find(u"comboField"), int(combo));
        QCOMPARE(form.find(u"lieu"), int(combo));
        QCOMPARE(form[ControlName{"levelSlider"}], int(slider));
        for (const auto& unknown : {u"combofield"_s, u""_s, u"lieuField"_s}) {
            const auto error = failureOf<UnknownControlError>([&] { form.find(unknown); });
            QVERIFY(error);
            QCOMPARE(error->sentence(), u"there is no control named \"%1\""_s.arg(unknown));
        }
    }

    void readsNumbersOfTextsAndTags_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("real");
        QTest::addColumn<int>("whole");
        QTest::newRow("comma") << u"12,5"_s << 12.5 << 12;
        QTest::newRow("point") << u"-12.5 m"_s << -12.5 << -12;
        QTest::newRow("dash") << u"-"_s << 0.0 << 0;
        QTest::newRow("nothing") << u""_s << 0.0 << 0;
        QTest::newRow("huge") << u"1e10"_s << 1e10 << 1;
    }
    void readsNumbersOfTextsAndTags() {
        QFETCH(QString, typed);
        Form form(formtest::controls);
        for (const int control : {text, number, area, combo, caption}) {
            form.setText(control, typed);
            QTEST(form.number(control), "real");
            QTEST(form.integer(control), "whole");
        }
        for (const int control : {popUp, onSwitch, slider}) {
            form.setTag(control, 4);
            form.setText(control, u"7"_s);
            QCOMPARE(form.number(control), 4.0);
            QCOMPARE(form.integer(control), 4);
            QVERIFY(form.isOn(control));
        }
    }

    void pressesItsButtonsByName() {
        Form form(formtest::controls);
        QStringList pressed;
        form.addAction(u"razNitrox"_s, [&] { pressed << u"nitrox"_s; });
        form.addAction(u"razAir"_s, [&] { pressed << u"air"_s; });
        form.press(u"razAir"_s);
        form.press(u"razNitrox"_s);
        QCOMPARE(pressed, QStringList({u"air"_s, u"nitrox"_s}));
        QCOMPARE(form.actionNames(), QStringList({u"razAir"_s, u"razNitrox"_s}));
        QVERIFY(failureOf<UnknownControlError>([&] { form.press(u"textField"_s); }));
    }

    void remembersWhereTheFocusShouldBe() {
        Form form(formtest::controls);
        QSignalSpy wanted(&form, &Form::focusWanted);
        form.setFocus(number);
        form.setFocus(number);
        QCOMPARE(form.focus(), int(number));
        QCOMPARE(wanted.size(), 2);  // each time the program wants it there anew
    }

    void tellsWhenEditingEnds() {
        Form form(formtest::controls);
        form.endEditing(text);
        QList<int> ended;
        form.onEndEditing = [&](int control) { ended << control; };
        form.setText(text, u"a"_s);
        QVERIFY(ended.isEmpty());
        form.endEditing(text);
        form.fill(number, u"5"_s);
        QCOMPARE(ended, QList<int>({text, number}));
    }

    void showsValuesInWords() {
        Form form(formtest::controls);
        const Strings strings(Strings::Language::French);
        QCOMPARE(form.shownText(popUp, strings), u"Facile"_s);
        form.setTag(popUp, 3);
        QCOMPARE(form.shownText(popUp, strings), u"Difficile"_s);
        form.setTag(popUp, 1);
        QCOMPARE(form.shownText(popUp, strings), u""_s);
        QCOMPARE(form.shownText(date, strings), u""_s);
        form.setDate(date, june);
        form.setDate(hour, june);
        QCOMPARE(form.shownText(date, strings), u"07/06/2016"_s);
        QCOMPARE(form.shownText(hour, strings), u"14:30"_s);
        form.setTag(slider, 4);
        QCOMPARE(form.shownText(slider, strings), u"4"_s);
        QCOMPARE(form.shownText(onSwitch, strings), u"0"_s);
        form.setText(area, u"two\nlines"_s);
        QCOMPARE(form.shownText(area, strings), u"two\nlines"_s);
        form.setImage(image, "x");
        QCOMPARE(form.shownText(image, strings), u""_s);
    }
};

int runFormTest(int argc, char** argv) {
    FormTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FormTest.moc"
