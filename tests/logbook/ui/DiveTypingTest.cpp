#include "LogbookUiTests.h"
#include "platform/ui/FormView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// What the person types into one control, and what the dive then holds, as texts.
struct Typed {
    QByteArray control;
    QString keys;  ///< none: only passed by
};

/// All controls in the order in which Tab reaches them. A number behind a pop-up is how often Down is
/// pressed after Home; behind a slider, how often Right.
QList<Typed> wholeDive() {
    QList<Typed> dive{{"plongeeNoField", u"413"_s},
                      {"typePlongeePopUp", u"4"_s},
                      {"dateField", u"05/09/2015"_s},
                      {"heureField", u"10:45"_s},
                      {"nocturneSwitch", u" "_s},
                      {"inoubliablePopUp", u"1"_s},
                      {"difficulteSlider", u"3"_s},
                      {"partenairesField", u"Anais, Zoe"_s},
                      {"structureField", u"GRIEME"_s},
                      {"bateauField", u"Suroit"_s},
                      {"lieuField", u"Porquerolles"_s},
                      {"siteField", u"Le Donator"_s},
                      {"paysField", u"France"_s},
                      {"countryCodeField", u"FR"_s},
                      {"epavesField", u"Donator"_s},
                      {"gpsField", u"N 42 59.600"_s},
                      {"gpsSystemPopUp", u"2"_s},
                      {"meteoPopUp", u"3"_s},
                      {"ventSecteurPopUp", u"8"_s},
                      {"ventForcePopUp", u"5"_s},
                      {"tempAirField", u"24"_s},
                      {"tempEauField", u"-1"_s},
                      {"visibilitePopUp", u"8"_s},
                      {"courantPopUp", u"2"_s},
                      {"pmBmPopUp", u"1"_s},
                      {"coeffField", u"95"_s},
                      {"profondeurField", u"51,5"_s},
                      {"tempsField", u"62"_s},
                      {"surfaceField", u"03:15"_s},
                      {"altitudeField", u"12"_s},
                      {"pAtmField", u"1013"_s},
                      {"decoPopUp", u"5"_s},
                      {"deco_TTSField", u"28"_s},
                      {"decoSoftNameField", u"MultiDeco"_s},
                      {"decoAlgoTypeField", u"VPM-B"_s},
                      {"decoConservatismField", u"+2"_s},
                      {"lowGFField", u"30"_s},
                      {"highGFField", u"85"_s}};
    for (const char* level : {"1", "2", "3", "4", "5", "6"}) {
        const auto named = [&](const char* stem) { return QByteArray(stem) + "_Level_" + level + "_Field"; };
        dive << Typed{named("depthDeco"), u"2"_s + QLatin1String(level)}
             << Typed{named("timeDeco"), u"1"_s + QLatin1String(level)}
             << Typed{named("decoO2"), u"5"_s + QLatin1String(level)}
             << Typed{named("decoHe"), QString::fromLatin1(level)};
    }
    dive << Typed{"runtimeField", u"3 6 9"_s};
    for (const QByteArray& tank : {QByteArray(), QByteArray("_2")}) {
        const bool isFirst = tank.isEmpty();
        dive << Typed{"alliageBloc" + tank + "PopUp", u"1"_s} << Typed{"gaz" + tank + "PopUp", u"2"_s}
             << Typed{"volumeBloc" + tank + "Field", isFirst ? u"15"_s : u"7"_s}
             << Typed{"o2Mix" + tank + "Field", isFirst ? u"18"_s : u"50"_s}
             << Typed{"pressionBloc" + tank + "Field", u"232"_s}
             << Typed{"depart" + tank + "Field", isFirst ? u"220"_s : u"180"_s}
             << Typed{"heMix" + tank + "Field", isFirst ? u"45"_s : u"5"_s}
             << Typed{"fin" + tank + "Field", u"60"_s};
        if (isFirst) dive << Typed{"razAir", {}} << Typed{"razNitrox", {}} << Typed{"razHeliox", {}};
    }
    dive << Typed{"rebreatherPopUp", u"3"_s} << Typed{"flowField", u"12"_s} << Typed{"ppO2PopUp", u"6"_s}
         << Typed{"lowSetpointPopUp", u"1"_s} << Typed{"sodaTypeField", u"Sofnolime"_s};
    for (const QByteArray& tank :
         {QByteArray("bailout_1_"), QByteArray("bailout_2_"), QByteArray("bailout_3_")})
        for (const auto& [value, keys] : {std::pair{"Volume", u"7"_s},
                                          {"Depart", u"200"_s},
                                          {"Fin", u"150"_s},
                                          {"O2", u"32"_s},
                                          {"He", u"10"_s}})
            dive << Typed{tank + value + "Field", keys};
    dive << Typed{"combinaisonPopUp", u"1"_s} << Typed{"lestageField", u"7"_s}
         << Typed{"configurationPopUp", u"0"_s} << Typed{"fabricantField", u"Marsouin"_s}
         << Typed{"ordinateurField", u"M2"_s} << Typed{"serieField", u"0815"_s}
         << Typed{"samplingRatePopUp", u"5"_s};
    for (int row = 1; row <= 6; ++row)
        for (const int slot : {row, row + 6})
            dive << Typed{"equip_" + QByteArray::number(slot) + "Field", u"Thing %1"_s.arg(slot)};
    dive << Typed{"notesField", u"Deux congres."_s};
    return dive;
}

}  // namespace

/// A dive written down with the keyboard alone, in the real windows.
class DiveTypingTest : public QObject {
    Q_OBJECT

    static void pressAt(QWidget* widget, ControlKind kind, const QString& keys) {
        if (kind == ControlKind::PopUp || kind == ControlKind::Slider) {
            QTest::keyClick(widget, Qt::Key_Home);
            for (int i = keys.toInt(); i > 0; --i)
                QTest::keyClick(widget, kind == ControlKind::PopUp ? Qt::Key_Down : Qt::Key_Right);
        } else if (kind == ControlKind::Switch) {
            QTest::keyClick(widget, Qt::Key_Space);
        } else {
            QTest::keyClicks(widget, keys);
        }
    }
    /// What the control would hold if `keys` had been filled in from the command line.
    static QString wanted(const ControlSpec& spec, const QString& keys) {
        switch (spec.kind) {
            case ControlKind::Date:
                return QDate::fromString(keys, u"dd/MM/yyyy"_s).toString(u"yyyy-MM-dd"_s);
            case ControlKind::Switch:
                return u"1"_s;
            default:
                return keys;
        }
    }

private Q_SLOTS:
    void aWholeDiveIsTypedFromPaneToPane() {
        LogbookOnScreen logbook;
        Form& form = logbook.carnet->form();
        QTest::keyClick(&logbook.window->table(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(logbook.edit() && QTest::qWaitForWindowActive(logbook.edit()));
        for (const Typed& typed : wholeDive()) {
            QWidget* focused = logbook.edit()->focusWidget();
            QVERIFY(focused);
            QCOMPARE(focused->objectName(), QLatin1String(typed.control));
            if (typed.keys.isNull()) {
                QTest::keyClick(focused, Qt::Key_Tab);
                continue;
            }
            const ControlSpec& spec = form.spec(form.find(focused->objectName()));
            // A new word is asked for when the field is left; it is not kept here.
            if (spec.pickList) {
                logbook.desk.prompt.expectBeep();
                logbook.desk.prompt.expectQuestion(u"Add “%1” to the list?"_s.arg(typed.keys), 1);
            }
            pressAt(focused, spec.kind, typed.keys);
            QTest::keyClick(focused, Qt::Key_Tab);
            QVERIFY2(logbook.desk.prompt.finish().isEmpty(), typed.control.constData());
        }
        QTest::keyClick(logbook.edit()->focusWidget(), Qt::Key_Escape);
        QVERIFY(!logbook.edit()->isVisible());
        const Plongee stored = logbook.carnet->record(0);
        QCOMPARE(stored.noPlongee(), 413);
        QCOMPARE(stored.profondeur(), 51.5F);
        QCOMPARE(stored.tempEau(), -1);
        // Saved, opened anew and looked at: every control holds what was typed.
        QTemporaryDir folder;
        logbook.carnet->saveAs(folder.filePath(u"typed.carnet"_s));
        DocumentController controller(logbook.desk.kinds, logbook.desk.desk);
        const auto again = controller.read(folder.filePath(u"typed.carnet"_s));
        auto& carnet = static_cast<Carnet&>(*again);
        carnet.select({0});
        for (const Typed& typed : wholeDive()) {
            if (typed.keys.isNull()) continue;
            const int control = form.find(QString::fromLatin1(typed.control));
            QString held = formwalk::held(carnet.form(), control);
            if (typed.control == "profondeurField") held.replace(u'.', u',');
            QVERIFY2(held == wanted(form.spec(control), typed.keys),
                     qPrintable(QLatin1String(typed.control) + u": "_s + held));
        }
    }

    void tabReachesEveryControlOfAllPanes() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        QStringList reached;
        for (int i = 0; i < 400 && (i == 0 || logbook.edit()->focusWidget()->objectName() != reached.first());
             ++i) {
            reached << logbook.edit()->focusWidget()->objectName();
            QTest::keyClick(logbook.edit()->focusWidget(), Qt::Key_Tab);
        }
        for (const DiveControl& control : diveControls()) {
            const QString name = QLatin1String(control.spec.name);
            const bool isTyped = control.spec.kind != ControlKind::Caption && !name.startsWith(u"n2Mix"_s);
            QVERIFY2(reached.count(name) == (isTyped ? 1 : 0), control.spec.name);
        }
        for (const auto& button : {u"razAir"_s, u"razNitrox"_s, u"razHeliox"_s})
            QVERIFY(reached.contains(button));
        // The same way back.
        QStringList back;
        for (qsizetype i = 0; i < reached.size(); ++i) {
            QTest::keyClick(logbook.edit()->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
            back.prepend(logbook.edit()->focusWidget()->objectName());
        }
        QCOMPARE(back, reached);
    }

    void returnGoesOnLikeTabAndPressesButtons() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        QTest::keyClick(logbook.edit()->focusWidget(), Qt::Key_Return);
        QCOMPARE(logbook.edit()->focusWidget()->objectName(), u"typePlongeePopUp"_s);
        QTest::keyClick(logbook.edit()->focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(logbook.edit()->focusWidget()->objectName(), u"dateField"_s);
        QTest::keyClick(logbook.edit(), Qt::Key_4, Qt::ControlModifier);
        formwalk::typeInto(logbook.field<QWidget>("o2MixField"), u"36"_s);
        auto* nitrox = logbook.field<QPushButton>("razNitrox");
        nitrox->setFocus();
        QTest::keyClick(nitrox, Qt::Key_Return);
        QCOMPARE(logbook.field<QLineEdit>("n2MixField")->text(), u"64"_s);
        QCOMPARE(logbook.edit()->focusWidget(), nitrox);
    }

    void returnInTheNotesBeginsALine() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        QTest::keyClick(logbook.edit(), Qt::Key_6, Qt::ControlModifier);
        auto* notes = logbook.field<QPlainTextEdit>("notesField");
        QCOMPARE(logbook.edit()->focusWidget(), notes);
        QTest::keyClicks(notes, u"a"_s);
        QTest::keyClick(notes, Qt::Key_Return);
        QTest::keyClicks(notes, u"b"_s);
        QTest::keyClick(logbook.edit(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->record(0).notes(), u"a\nb"_s);
        QVERIFY(logbook.edit()->isVisible());
    }

    void everyLabelledControlHasALetter_data() {
        QTest::addColumn<int>("pane");
        for (int pane = 0; pane < 6; ++pane) QTest::addRow("pane %d", pane + 1) << pane;
    }
    void everyLabelledControlHasALetter() {
        QFETCH(int, pane);
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        logbook.edit()->view().showPane(pane);
        const auto letterOf = [](const QString& text) {
            const qsizetype at = text.indexOf(QRegularExpression(u"&[^&]"_s));
            return at < 0 ? QChar() : text[at + 1].toLower();
        };
        QString letters;
        for (const auto* button : logbook.edit()->view().findChildren<QPushButton*>())
            if (button->isVisible()) letters += letterOf(button->text());
        QStringList without;
        for (const QLabel* label : logbook.edit()->view().findChildren<QLabel*>()) {
            const QWidget* control = label->buddy();
            if (!control || !label->isVisible()) continue;
            const QChar letter = letterOf(label->text());
            if (!control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus)) {
                QVERIFY2(letter.isNull(), qPrintable(label->text()));
                continue;
            }
            if (letter.isNull()) {
                without << label->text();
                continue;
            }
            QVERIFY2(!letters.contains(letter), qPrintable(label->text()));
            letters += letter;
            QTest::keyClick(logbook.edit(), Qt::Key(letter.toUpper().unicode()), Qt::AltModifier);
            QCOMPARE(logbook.edit()->focusWidget(), control);
        }
        // A label goes without only when others have all of its letters.
        for (const QString& words : without)
            for (const QChar letter : words.toLower())
                QVERIFY2(letters.contains(letter) || !letter.isLetterOrNumber() || letter.unicode() >= 0x80,
                         qPrintable(words));
    }

    void anUnknownWordIsAskedForOnce() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(0);
        logbook.openEdit();
        auto* site = logbook.field<QComboBox>("siteField");
        formwalk::typeInto(site, u"La Fourmi"_s);
        const auto expectOffer = [&] {
            logbook.desk.prompt.expectBeep();
            logbook.desk.prompt.expectQuestion(u"Add “La Fourmi” to the list?"_s, 1);
        };
        expectOffer();
        QTest::keyClick(site, Qt::Key_Return);
        // Nothing was typed since: leaving it and coming back asks nothing.
        site->setFocus();
        QTest::keyClick(site, Qt::Key_Tab);
        site->setFocus();
        QTest::keyClick(site, Qt::Key_Escape);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
    }

    void closingAndGoingOnEndTheEditingFirst_data() {
        QTest::addColumn<int>("way");
        for (const auto& [name, way] : {std::pair{"Escape", 0}, {"next dive", 1}, {"store", 2}, {"row", 3}})
            QTest::newRow(name) << way;
    }
    void closingAndGoingOnEndTheEditingFirst() {
        QFETCH(int, way);
        LogbookOnScreen logbook(2);
        logbook.clickRow(0);
        logbook.openEdit();
        auto* site = logbook.field<QComboBox>("siteField");
        formwalk::typeInto(site, u"La Fourmi"_s);
        logbook.desk.prompt.expectBeep();
        logbook.desk.prompt.expectQuestion(u"Add “La Fourmi” to the list?"_s, 0);
        if (way == 0) QTest::keyClick(site, Qt::Key_Escape);
        if (way == 1) QTest::keyClick(site, Qt::Key_PageDown, Qt::ControlModifier);
        if (way == 2) QTest::keyClick(site, Qt::Key_Return, Qt::ControlModifier);
        if (way == 3) logbook.clickRow(1);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
        QCOMPARE(logbook.desk.pickLists.list(u"sites"_s), QStringList{u"La Fourmi"_s});
        QCOMPARE(logbook.carnet->record(0).site(), u"La Fourmi"_s);
        QCOMPARE(logbook.carnet->record(1).site(), u""_s);
    }

    void theToolbarHasRoomInANarrowWindow_data() {
        QTest::addColumn<QString>("language");
        for (const auto& language : {u"en"_s, u"fr"_s}) QTest::newRow(qPrintable(language)) << language;
    }
    void theToolbarHasRoomInANarrowWindow() {
        QFETCH(QString, language);
        LogbookOnScreen logbook(1);
        logbook.desk.strings.setLanguage(*Strings::languageNamed(language));
        logbook.clickRow(0);
        logbook.openEdit();
        auto* bar = logbook.edit()->findChild<QToolBar*>(u"editWindowToolbar"_s);
        for (const int width : {640, 1000}) {
            logbook.edit()->resize(width, 480);
            QTest::qWait(1);
            QCOMPARE(logbook.edit()->width(), width);
            for (QAction* action : bar->actions()) QVERIFY(bar->widgetForAction(action)->isVisible());
        }
    }
};

int runDiveTypingTest(int argc, char** argv) {
    DiveTypingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveTypingTest.moc"
