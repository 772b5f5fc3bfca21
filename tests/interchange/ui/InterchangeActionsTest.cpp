#include <QtTest>
#include <QtWidgets>

#include "app/AppTests.h"
#include "interchange/Formats.h"
#include "interchange/ui/InterchangeActions.h"
#include "platform/ui/DesktopPrompt.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Import and export as the person has them: menus, toolbar, files dropped on the window, Save As.
class InterchangeActionsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Desktop> _desktop;

    LogbookWindow& window() { return *_desktop->logbook(); }
    Carnet& carnet() { return window().carnet(); }
    InterchangeActions& interchange() { return *window().findChild<InterchangeActions*>(); }
    QString file(const QString& name, const QByteArray& bytes) {
        QFile made(_desktop->path(name));
        if (!made.open(QIODevice::WriteOnly)) qFatal("the test cannot write its file");
        made.write(bytes);
        return made.fileName();
    }
    QByteArray contentOf(const QString& name) {
        QFile read(_desktop->path(name));
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
    static QByteArray udcf() {
        return "<PROFILE><REPGROUP><DIVE><PLACE>Brest</PLACE></DIVE></REPGROUP></PROFILE>";
    }
    void pressInToolbar(const char* name) {
        auto* bar = window().findChild<QToolBar*>(u"tableViewToolbar"_s);
        QWidget* button = bar->widgetForAction(Desktop::action(&window(), name));
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void drop(const QStringList& paths) {
        QMimeData dragged;
        QList<QUrl> urls;
        for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
        dragged.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &event);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init() {
        _desktop = std::make_unique<Desktop>();
        _desktop->controller().openUntitledDocument();
    }
    void cleanup() { QCOMPARE(_desktop->desk.prompt.finish(), QStringList()); }

    void theToolbarHasTheTwoImportsBeforeTheSearch() {
        QStringList names;
        for (const QAction* item : window().findChild<QToolBar*>(u"tableViewToolbar"_s)->actions())
            names << item->objectName();
        const qsizetype at = names.indexOf(u"importUDCF"_s);
        QVERIFY(at > 0);
        QCOMPARE(names[at + 1], u"importUDDF"_s);
        QVERIFY(at + 2 < names.size());
    }

    void everyImportIsInTheFileMenu() {
        auto* menu = window().findChild<QMenu*>(u"importMenu"_s);
        QVERIFY(menu);
        QStringList names;
        for (const QAction* item : menu->actions()) names << item->objectName();
        QCOMPARE(names, QStringList({u"importUDCF"_s, u"importUDDF"_s, u"importHandheld"_s}));
        for (const QAction* item : menu->actions()) QVERIFY(!item->icon().isNull());
    }

    void importingReadsTheChosenFileAndTellsHowItWent() {
        QString asked;
        interchange().chooseImport = [&](const DiveReader& reader) {
            asked = QLatin1String(reader.name());
            return file(u"a.udcf"_s, udcf());
        };
        _desktop->desk.prompt.expectAlert(u"1 dive was read from “a.udcf”."_s);
        pressInToolbar("importUDCF");
        QCOMPARE(asked, u"udcf"_s);
        QCOMPARE(carnet().count(), 1);
        QCOMPARE(window().table().model()->rowCount(), 1);
        QVERIFY(carnet().isEdited());
        Desktop::trigger(&window(), "undo");
        QCOMPARE(carnet().count(), 0);
    }

    void givingUpTheDialogDoesNothing() {
        interchange().chooseImport = [](const DiveReader&) { return QString(); };
        interchange().chooseExport = [](const QString&) { return SaveChoice(); };
        for (const char* name : {"importUDCF", "importUDDF", "importHandheld"})
            Desktop::trigger(&window(), name);
        interchange().exportDives();
        QVERIFY(!carnet().isEdited());
    }

    void aFileThatCannotBeReadIsToldInTheLanguageOfTheProgram() {
        _desktop->desk.strings.setLanguage(Strings::Language::French);
        const QString path = file(u"bad.xml"_s, "<a>\n<b>");
        interchange().chooseImport = [&](const DiveReader&) { return path; };
        _desktop->desk.prompt.expectAlert(
            path + u": ligne 2, colonne 3 : un élément ne se termine pas comme il a commencé"_s);
        Desktop::trigger(&window(), "importUDDF");
        QCOMPARE(carnet().count(), 0);
    }

    void whatWasTypedIsStoredBeforeAnImport() {
        carnet().addDive();
        window().editWindow();
        QVERIFY(QTest::qWaitForWindowActive(window().editWindowIfMade()));
        carnet().form().setText(ControlName{"lieuField"}, u"typed"_s);
        interchange().chooseImport = [&](const DiveReader&) { return file(u"a.udcf"_s, udcf()); };
        _desktop->desk.prompt.expectAlert(u"1 dive was read from “a.udcf”."_s);
        Desktop::trigger(&window(), "importUDCF");
        QCOMPARE(carnet().record(0).lieu(), u"typed"_s);
        QCOMPARE(carnet().record(1).lieu(), u"Brest"_s);
        QCOMPARE(carnet().form().text(ControlName{"lieuField"}), u"Brest"_s);
    }

    void oneAlertPerProblemNotPerDive() {
        QByteArray dives;
        for (int i = 0; i < 200; ++i)
            dives += "<DIVE><GASES><MIX><TANK><PSTART>1</PSTART><PEND>2</PEND></TANK></MIX></GASES></DIVE>";
        const QString path = file(u"a.udcf"_s, "<PROFILE><REPGROUP>" + dives + "</REPGROUP></PROFILE>");
        interchange().chooseImport = [&](const DiveReader&) { return path; };
        _desktop->desk.prompt.expectAlert(
            u"200 dives were read from “a.udcf”.\n\nCheck the pressures: the end pressure is above the start "
            "pressure, or one of them is negative. Dives concerned: 1–200."_s);
        Desktop::trigger(&window(), "importUDCF");
        QCOMPARE(carnet().count(), 200);
    }

    void aDroppedFileIsImportedByWhatItIs_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("UDCF") << udcf();
        QTest::newRow("UDDF") << QByteArray(
            "<uddf><profiledata><repetitiongroup><dive/></repetitiongroup></profiledata></uddf>");
        QTest::newRow("handheld") << QByteArray("<log><repgroup><dive/></repgroup></log>");
    }
    void aDroppedFileIsImportedByWhatItIs() {
        QFETCH(QByteArray, bytes);
        _desktop->desk.prompt.expectAlert(u"1 dive was read from “dropped.xml”."_s);
        drop({file(u"dropped.xml"_s, bytes)});
        QCOMPARE(carnet().count(), 1);
        QCOMPARE(_desktop->count(), 1);
    }

    void otherDroppedFilesAreOpened() {
        drop({_desktop->copyOf(u"plongee-v26.carnet"_s, u"b.carnet"_s)});
        QCOMPARE(_desktop->count(), 2);
        QCOMPARE(carnet().count(), 0);
    }

    void exportWritesTheChosenFormat() {
        carnet().addDive();
        QString offered;
        interchange().chooseExport = [&](const QString& suggested) {
            offered = suggested;
            return SaveChoice(_desktop->path(u"out.udcf"_s), exportFormatNamed(u"udcf"_s));
        };
        Desktop::trigger(&window(), "exportDives");
        QCOMPARE(offered, u"Untitled"_s);
        QVERIFY(contentOf(u"out.udcf"_s).contains("<PROFILE UDCF=\"1\">"));
        QVERIFY(carnet().isEdited());
        QVERIFY(carnet().path().isEmpty());
    }

    void saveAsCanExportAndLeavesTheDocument() {
        carnet().addDive();
        _desktop->suite.choosers.save = [&](const Document&, const QString&) {
            return SaveChoice(_desktop->path(u"out.csv"_s), exportFormatNamed(u"csv-semicolon"_s));
        };
        Desktop::trigger(&window(), "saveDocumentAs");
        QVERIFY(contentOf(u"out.csv"_s).startsWith("\"Dive #\""));
        QVERIFY(carnet().isEdited());
        QVERIFY(carnet().path().isEmpty());
    }

    void anExportThatFailsIsTold() {
        carnet().addDive();
        interchange().chooseExport = [&](const QString&) {
            return SaveChoice(_desktop->path(u"no/such/folder/out.udcf"_s), exportFormatNamed(u"udcf"_s));
        };
        const QString told = sentenceOfMissingFolder();
        _desktop->desk.prompt.expectAlert(told);
        Desktop::trigger(&window(), "exportDives");
    }

    void whatCannotBeDoneCannotBePressed() {
        QVERIFY(!Desktop::action(&window(), "exportDives")->isEnabled());
        carnet().addDive();
        QVERIFY(Desktop::action(&window(), "exportDives")->isEnabled());
        carnet().setReadOnly(true);
        QVERIFY(!Desktop::action(&window(), "importUDCF")->isEnabled());
        QVERIFY(Desktop::action(&window(), "exportDives")->isEnabled());
    }

    void theSaveDialogOffersTheOwnKindFirstAndFollowsTheChosenOne() {
        carnet().addDive();
        QStringList filters;
        QString name;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            filters = dialog->nameFilters();
            dialog->findChild<QComboBox*>(u"fileTypeCombo"_s)->setCurrentIndex(5);
            Q_EMIT dialog->filterSelected(dialog->nameFilters()[5]);
            name = QFileInfo(dialog->selectedFiles().value(0)).fileName();
            dialog->reject();
        });
        const SaveChoice choice = askWhereToSave(&window(), u"Save As"_s, _desktop->folder.path(),
                                                 u"dives.carnet"_s, carnet(), {u"*.carnet"_s});
        QVERIFY(choice.path.isEmpty());
        QCOMPARE(filters.size(), 7);
        QCOMPARE(filters[0], u"*.carnet"_s);
        QCOMPARE(filters[5], u"UDCF (Universal Dive Computer Format) (*.udcf)"_s);
        QCOMPARE(name, u"dives.udcf"_s);
    }

private:
    QString sentenceOfMissingFolder() {
        const SaveError error(SaveProblem::NoFolder, _desktop->path(u"no/such/folder/out.udcf"_s), 0);
        return error.sentence();
    }
};

int runInterchangeActionsTest(int argc, char** argv) {
    InterchangeActionsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InterchangeActionsTest.moc"
