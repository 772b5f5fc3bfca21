#include "SampleForm.h"
#include "UiTests.h"
#include "platform/ui/MomentField.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class FormViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAbsentTextStaysAbsentUntilSomebodyTypes() {
        SampleWindow window;
        window.form.setText(window.at("nameField"), u"x"_s);
        window.form.setText(window.at("nameField"), QString());
        QVERIFY(window.form.text(window.at("nameField")).isNull());
        auto* field = window.widget<QLineEdit>("nameField");
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Tab);
        QVERIFY(window.form.text(window.at("nameField")).isNull());
        QTest::keyClicks(field, u"a"_s);
        QTest::keyClick(field, Qt::Key_Backspace);
        QCOMPARE(window.form.text(window.at("nameField")), u""_s);
        QVERIFY(!window.form.text(window.at("nameField")).isNull());
    }

    void leavingAControlEndsItsEditingOnceWhenItWasTouched_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"nameField", "sizeField", "notesField", "placeField", "dayField", "timeField"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void leavingAControlEndsItsEditingOnceWhenItWasTouched() {
        QFETCH(QString, name);
        SampleWindow window;
        QVERIFY(QTest::qWaitForWindowActive(window.view.get()));
        QWidget* widget = window.widget(name.toLatin1().constData());
        if (qobject_cast<MomentField*>(widget))
            window.form.setDate(window.at(name.toLatin1().constData()),
                                Moment::fromIso(u"2016-06-07T14:30:00"_s));
        widget->setFocus();
        QList<int> ended;
        window.form.onEndEditing = [&](int control) { ended << control; };
        QTest::keyClick(widget, Qt::Key_Tab);
        QCOMPARE(ended, QList<int>());
        widget->setFocus();
        // A day or a time is touched when it is another one, not by a digit on the way to it.
        QTest::keyClick(widget, qobject_cast<MomentField*>(widget) ? Qt::Key_Up : Qt::Key_1);
        QTest::keyClick(widget, Qt::Key_Tab);
        QCOMPARE(ended, QList<int>{window.at(name.toLatin1().constData())});
        window.form.onEndEditing = nullptr;
    }

    void aTagThatTheMenuLacksIsKeptAndNothingIsSelected() {
        SampleWindow window;
        window.form.setTag(window.at("kindPopUp"), 42);
        QCOMPARE(window.widget<QComboBox>("kindPopUp")->currentIndex(), -1);
        window.view->hide();
        window.view->show();
        QCOMPARE(window.form.tag(window.at("kindPopUp")), 42);
        window.form.setTag(window.at("kindPopUp"), 5);
        QCOMPARE(window.widget<QComboBox>("kindPopUp")->currentText(), u"five"_s);
    }

    void aSliderValueBeyondItsEndsIsKept() {
        SampleWindow window;
        window.form.setTag(window.at("levelSlider"), 9);
        QCOMPARE(window.widget<QSlider>("levelSlider")->value(), 5);
        QCOMPARE(window.form.tag(window.at("levelSlider")), 9);
    }

    void aComboBoxOffersItsPickListAsItIsNow() {
        SampleWindow window;
        auto* combo = window.widget<QComboBox>("placeField");
        const auto offered = [combo] {
            QStringList texts;
            for (int i = 0; i < combo->count(); ++i) texts << combo->itemText(i);
            return texts;
        };
        window.keepPlaces({u"Brest"_s, u"Cannes"_s});
        QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
        QCOMPARE(offered(), (QStringList{u"Brest"_s, u"Cannes"_s}));
        QCOMPARE(combo->currentText(), QString());
        window.keepPlaces({u"Brest"_s, u"Cannes"_s, u"Dieppe"_s});
        QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
        QCOMPARE(offered().size(), 3);
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(window.form.text(window.at("placeField")), u"Brest"_s);
    }

    void returnDoesNotReplaceWhatWasTypedByAnEntryInOtherLetters() {
        SampleWindow window;
        window.keepPlaces({u"Brest"_s});
        auto* combo = window.widget<QComboBox>("placeField");
        QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
        combo->setFocus();
        QTest::keyClicks(combo, u"brest"_s);
        combo->completer()->popup()->hide();
        QTest::keyClick(combo, Qt::Key_Return);
        QCOMPARE(window.form.text(window.at("placeField")), u"brest"_s);
        QCOMPARE(combo->currentText(), u"brest"_s);
    }

    void theWheelOverAControlWithoutTheKeyboardChangesNothing_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"kindPopUp", "volumeField", "levelSlider"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void theWheelOverAControlWithoutTheKeyboardChangesNothing() {
        QFETCH(QString, name);
        SampleWindow window;
        QWidget* widget = window.widget(name.toLatin1().constData());
        window.form.setTag(window.at("kindPopUp"), 5);
        window.form.setTag(window.at("levelSlider"), 3);
        window.form.setText(window.at("volumeField"), u"15"_s);
        window.widget("nameField")->setFocus();
        QWheelEvent turn(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &turn);
        QCOMPARE(window.form.tag(window.at("kindPopUp")), 5);
        QCOMPARE(window.form.tag(window.at("levelSlider")), 3);
        QCOMPARE(window.form.text(window.at("volumeField")), u"15"_s);
    }

    void picturesAndColoursAreChosenWithAClick() {
        SampleWindow window;
        QTest::mouseClick(window.widget("inkWell"), Qt::LeftButton);
        QCOMPARE(window.form.state(window.at("inkWell")).color, QColor(1, 2, 3));
        QTest::mouseClick(window.widget("photoView"), Qt::LeftButton);
        QCOMPARE(window.form.state(window.at("photoView")).image, QByteArray("\x89PNG bytes"));
        window.widget("photoView")->setFocus();
        QTest::keyClick(window.widget("photoView"), Qt::Key_Delete);
        QVERIFY(window.form.state(window.at("photoView")).image.isEmpty());
    }

    void aPictureIsShown() {
        SampleWindow window;
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(picture.save(&buffer, "PNG"));
        window.form.setImage(window.at("photoView"), png);
        auto* well = window.widget<QToolButton>("photoView");
        QVERIFY(!well->icon().isNull());
        const qint64 shown = well->icon().cacheKey();
        // Without one the well says what it is for.
        window.form.setImage(window.at("photoView"), QByteArray());
        QVERIFY(!well->icon().isNull() && well->icon().cacheKey() != shown);
        QCOMPARE(well->text(), u"Choose a picture…"_s);
    }

    void aHiddenViewCatchesUpWhenItIsShown() {
        SampleWindow window;
        window.view->hide();
        window.form.setText(window.at("nameField"), u"later"_s);
        window.view->show();
        QCOMPARE(window.widget<QLineEdit>("nameField")->text(), u"later"_s);
    }

    void readOnlyTextsCanBeReadButNotChanged() {
        SampleWindow window;
        window.form.setText(window.at("nameField"), u"keep"_s);
        window.view->setReadOnly(true);
        for (int i = 0; i < window.form.count(); ++i) {
            const QString before = formwalk::held(window.form, i);
            formwalk::operate(window.widget(window.form.spec(i).name), window.form.spec(i), 1);
            QCOMPARE(formwalk::held(window.form, i), before);
        }
        QVERIFY(window.form.state(window.at("photoView")).image.isEmpty());
        QVERIFY(window.widget("nameField")->isEnabled());
        window.view->setReadOnly(false);
        formwalk::operate(window.widget("nameField"), window.form.spec(window.at("nameField")), 1);
        QCOMPARE(window.form.text(window.at("nameField")), u"11,5"_s);
    }

    void theFormCanAskForTheKeyboard() {
        SampleWindow window;
        QVERIFY(QTest::qWaitForWindowActive(window.view.get()));
        window.form.setText(window.at("sizeField"), u"77"_s);
        window.form.setFocus(window.at("sizeField"));
        auto* field = window.widget<QLineEdit>("sizeField");
        QVERIFY(field->hasFocus());
        QCOMPARE(field->selectedText(), u"77"_s);
    }

    void tabGoesThroughTheControlsInTheOrderOfTheLayout() {
        SampleWindow window;
        QVERIFY(QTest::qWaitForWindowActive(window.view.get()));
        window.widget("nameField")->setFocus();
        QStringList visited;
        for (int i = 0; i < 9; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget* focus = QApplication::focusWidget();
            visited << (focus->objectName().isEmpty() || focus->objectName().startsWith(u"qt_"_s)
                            ? focus->parentWidget()->objectName()
                            : focus->objectName());
        }
        QCOMPARE(visited, (QStringList{u"sizeField"_s, u"notesField"_s, u"placeField"_s, u"volumeField"_s,
                                       u"dayField"_s, u"timeField"_s, u"kindPopUp"_s, u"nightSwitch"_s,
                                       u"levelSlider"_s}));
    }

    void aLayoutThatNamesAControlTwiceIsAnError() {
        TestDesk desk;
        Form form(sampleSpecs);
        const LayoutRow row{{{.control = "nameField"}}};
        const WindowLayout twice{"twice", {}, {{"pane", {}, nullptr, {{{}, {row, row}}}}}};
        QVERIFY(failureOf<std::logic_error>([&] { FormView(form, twice, desk.desk); }));
    }
};

int runFormViewTest(int argc, char** argv) {
    FormViewTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FormViewTest.moc"
