#include "profile/ui/GraphProfileWindow.h"

#include <QPrinter>
#include <QtWidgets>

#include "ProfileUiTests.h"
#include "platform/files/Folder.h"
#include "profile/ui/ProfilView.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The window on a profile that tests change.
struct Graph {
    TestDesk desk;
    Profil profil = plainProfil();
    int fetched = 0;
    GraphProfileWindow window{desk.desk, [this] {
                                  ++fetched;
                                  return ShownProfil{profil, u"Dive 7 – a.carnet"_s, u"Dive 7"_s};
                              }};

    Graph() {
        window.open();
        if (!QTest::qWaitForWindowActive(&window)) qFatal("the window does not become active");
        window.view().setFixedSize(plainSize);
        QTest::qWait(0);
    }
    QString readOut() const { return window.findChild<QLabel*>(u"readOut"_s)->text(); }
    QImage picture() { return window.view().grab().toImage(); }
};

}  // namespace

class GraphProfileWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowShowsTheGraph() {
        Graph graph;
        QCOMPARE(graph.window.windowTitle(), u"Dive 7 – a.carnet"_s);
        const QImage shown = graph.picture();
        QVERIFY(nearest(shown, QPointF(227.5, 230), QColor(255, 0, 255)) < 110);
    }

    void thePointerIsReadOut() {
        const Strings words;
        ProfilView untouched(words);
        untouched.setProfil(plainProfil());
        QCOMPARE(untouched.readOut(), u"No sample here"_s);
        Graph graph;
        QTest::mouseMove(&graph.window.view(), {227, 100});
        QCOMPARE(graph.readOut(), u"10.0 m at 0:10"_s);
        QTest::mouseMove(&graph.window.view(), {425, 10});
        QCOMPARE(graph.readOut(), u"19.0 m at 0:20"_s);
        QTest::mouseMove(&graph.window.view(), {800, 100});
        QCOMPARE(graph.readOut(), u"No sample here"_s);
    }

    void manyChangesAreFetchedOnce() {
        Graph graph;
        const int before = graph.fetched;
        graph.profil.profilData = reals({0, 5, 0});
        for (int i = 0; i < 50; ++i) graph.window.refresh();
        QTRY_COMPARE(graph.fetched, before + 1);
        QCOMPARE(graph.window.view().profil().profilData.size(), 3);
    }

    void aChangedProfileIsAnnounced() {
        Graph graph;
        graph.profil.profilData = reals({0, 5, 0});
        graph.desk.notifications.post(u"fillProfileChanged"_s, nullptr);
        QTRY_COMPARE(graph.window.view().profil().profilData.size(), 3);
    }

    void aClosedWindowFetchesWhenItOpens() {
        Graph graph;
        graph.window.close();
        const int before = graph.fetched;
        graph.window.refresh();
        QTest::qWait(5);
        QCOMPARE(graph.fetched, before);
        graph.profil.profilData = reals({0, 5, 0});
        graph.window.open();
        QCOMPARE(graph.window.view().profil().profilData.size(), 3);
    }

    void thePictureIsSaved_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("begins");
        QTest::newRow("png") << u"a.png"_s << QByteArray("\x89PNG");
        QTest::newRow("svg") << u"a.svg"_s << QByteArray("<?xml");
        QTest::newRow("pdf") << u"a.PDF"_s << QByteArray("%PDF-1");
    }
    void thePictureIsSaved() {
        QFETCH(QString, name);
        Graph graph;
        const Folder folder(Folder::Where::Memory);
        QString suggested;
        graph.window.chooseFile = [&](const QString& file) {
            suggested = file;
            return folder.path(name);
        };
        graph.window.findChild<QAction*>(u"savePicture"_s)->trigger();
        QCOMPARE(suggested, u"Dive 7.png"_s);
        QFETCH(QByteArray, begins);
        QVERIFY(folder.content(name).startsWith(begins));
    }

    void whatCannotBeSavedIsTold() {
        Graph graph;
        graph.desk.prompt.expectAlert(u"This program cannot write a file with such an ending."_s);
        QVERIFY(!graph.window.savePicture(u"a.gif"_s));
        QCOMPARE(graph.desk.prompt.finish(), QStringList());
        graph.window.chooseFile = [](const QString&) { return QString(); };
        graph.window.findChild<QAction*>(u"savePicture"_s)->trigger();
        QCOMPARE(graph.desk.prompt.finish(), QStringList());
    }

    void theGraphIsPrintedOnOneLandscapePage() {
        Graph graph;
        const Folder folder(Folder::Where::Memory);
        graph.window.printing().paper = [&](QPrinter& printer, QWidget*) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(folder.path(u"out.pdf"_s));
            return true;
        };
        graph.window.findChild<QAction*>(u"printProfile"_s)->trigger();
        const QByteArray pdf = folder.content(u"out.pdf"_s);
        QVERIFY(pdf.startsWith("%PDF"));
        QVERIFY2(pdf.contains("/MediaBox [0 0 842"), "landscape A4");
        QCOMPARE(pdf.count("/Type /Page\n"), 1);
    }

    void markersAreSwitchedInTheirMenu() {
        Graph graph;
        auto* menu = graph.window.findChild<QToolButton*>(u"markers"_s)->menu();
        graph.desk.defaults.store(u"alarmeGAZ"_s, true);
        Q_EMIT menu->aboutToShow();
        for (QAction* marker : menu->actions()) {
            QCOMPARE(marker->isChecked(), marker->objectName() == u"alarmeGAZ"_s);
            marker->trigger();
            QCOMPARE(graph.desk.defaults.boolean(marker->objectName()),
                     marker->objectName() != u"alarmeGAZ"_s);
        }
        QCOMPARE(menu->actions().size(), 5);
    }

    void theWindowsSizeIsRemembered() {
        TestDesk desk;
        const auto source = [] { return ShownProfil{}; };
        GraphProfileWindow first(desk.desk, source);
        first.open();
        first.resize(500, 400);
        first.close();
        QCOMPARE(GraphProfileWindow(desk.desk, source).size(), QSize(500, 400));
    }
};

int runGraphProfileWindowTest(int argc, char** argv) {
    GraphProfileWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GraphProfileWindowTest.moc"
