#include "AppTests.h"
#include "app/StartWindow.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QByteArray udcf = "<PROFILE><REPGROUP><DIVE><PLACE>Brest</PLACE></DIVE></REPGROUP></PROFILE>";
const QByteArray uddf =
    "<uddf><profiledata><repetitiongroup><dive/><dive/></repetitiongroup></profiledata></uddf>";
const QByteArray handheld = "<log><repgroup><dive/></repgroup></log>";

/// A desktop that starts with the start window alone.
struct Started : Desktop {
    Started() {
        desk.defaults.store(u"recent documents"_s, QJsonArray{});
        suite.launch({});
    }
    ~Started() {
        if (const QStringList left = desk.prompt.finish(); !left.isEmpty())
            qFatal("%s", qPrintable(left.join(u'\n')));
    }
    QString file(const QString& name, const QByteArray& bytes) const {
        QFile made(path(name));
        if (!made.open(QIODevice::WriteOnly)) qFatal("the test cannot write its file");
        made.write(bytes);
        return made.fileName();
    }
    void dropOnStartWindow(const QStringList& paths) {
        QMimeData dragged;
        QList<QUrl> urls;
        for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
        dragged.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(suite.startWindow(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(suite.startWindow(), &drop);
        QCoreApplication::processEvents();
    }
};

}  // namespace

/// Files of dives from other programs, opened as if they were documents: they become a new logbook.
class DiveFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void becomeANewUntitledLogbook_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("dives");
        QTest::addColumn<QString>("told");
        QTest::newRow("UDCF") << u"a.udcf"_s << udcf << 1 << u"1 dive was read from “a.udcf”."_s;
        QTest::newRow("UDDF") << u"a.uddf"_s << uddf << 2 << u"2 dives were read from “a.uddf”."_s;
        QTest::newRow("handheld") << u"a.xml"_s << handheld << 1 << u"1 dive was read from “a.xml”."_s;
        QTest::newRow("by content") << u"dives"_s << udcf << 1 << u"1 dive was read from “dives”."_s;
    }
    void becomeANewUntitledLogbook() {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(int, dives);
        QFETCH(QString, told);
        Started desktop;
        desktop.desk.prompt.expectAlert(told);
        desktop.dropOnStartWindow({desktop.file(name, bytes)});
        QCOMPARE(desktop.count(), 1);
        QVERIFY(!desktop.suite.startWindow());
        const Carnet& carnet = desktop.logbook()->carnet();
        QCOMPARE(carnet.count(), dives);
        QCOMPARE(carnet.displayName(), u"Untitled"_s);
        QVERIFY(carnet.path().isEmpty() && carnet.isEdited());
        QCOMPARE(desktop.controller().recentDocuments(), QStringList());
        QVERIFY(desktop.controller().defaultType() == u"Carnet de plongee"_s);
    }

    void openFromTheCommandLineAndFromTheMenu() {
        Desktop desktop;
        QFile made(desktop.path(u"a.udcf"_s));
        QVERIFY(made.open(QIODevice::WriteOnly));
        made.write(udcf);
        made.close();
        for (int i = 0; i < 2; ++i) desktop.desk.prompt.expectAlert(u"1 dive was read from “a.udcf”."_s);
        desktop.suite.launch({made.fileName()});
        QCOMPARE(desktop.count(), 1);
        desktop.toOpen = {made.fileName()};
        desktop.trigger(desktop.logbook(), "openDocument");
        QCOMPARE(desktop.count(), 2);
        QCOMPARE(desktop.logbook(1)->carnet().displayName(), u"Untitled 2"_s);
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
    }

    void anUntouchedNewLogbookGivesWay() {
        Desktop desktop;
        desktop.suite.launch({});
        QFile made(desktop.path(u"a.udcf"_s));
        QVERIFY(made.open(QIODevice::WriteOnly));
        made.write(udcf);
        made.close();
        desktop.desk.prompt.expectAlert(u"1 dive was read from “a.udcf”."_s);
        desktop.toOpen = {made.fileName()};
        desktop.trigger(desktop.logbook(), "openDocument");
        QTRY_COMPARE(desktop.count(), 1);
        QCOMPARE(desktop.logbook()->carnet().count(), 1);
    }

    void filesOpenedTogetherGoIntoOneLogbook() {
        Started desktop;
        const QString document = desktop.copyOf(u"plongee-v27.carnet"_s, u"mine.carnet"_s);
        // UDDF comes first, whatever the order of the files.
        desktop.desk.prompt.expectAlert(u"2 dives were read from “b.uddf”."_s);
        desktop.desk.prompt.expectAlert(u"2 dives were read from 2 files."_s);
        desktop.dropOnStartWindow({desktop.file(u"a.udcf"_s, udcf), document, desktop.file(u"b.uddf"_s, uddf),
                                   desktop.file(u"c.udcf"_s, udcf)});
        QCOMPARE(desktop.count(), 2);
        QCOMPARE(desktop.controller().documents().front()->path(), document);
        QCOMPARE(desktop.logbook(1)->carnet().count(), 4);
    }

    void withoutADiveNothingOpens_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("told");
        QTest::newRow("empty") << QByteArray("<uddf></uddf>") << u"No dive was read from “a.xml”."_s;
        QTest::newRow("broken") << QByteArray("<uddf>\n<b>")
                                << u"%1: line 2, column 3: an element does not end as it began"_s;
        QTest::newRow("other XML")
            << QByteArray("<html/>")
            << u"%1: It is damaged at byte 0: expected streamer version 4, found version 60."_s;
    }
    void withoutADiveNothingOpens() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        Started desktop;
        const QString path = desktop.file(u"a.xml"_s, bytes);
        desktop.desk.prompt.expectAlert(QString(told).replace(u"%1"_s, path));
        desktop.dropOnStartWindow({path});
        QCOMPARE(desktop.count(), 0);
        QVERIFY(desktop.suite.startWindow() && desktop.suite.startWindow()->isVisible());
        desktop.controller().openUntitledDocument();
        QCOMPARE(desktop.logbook()->carnet().displayName(), u"Untitled"_s);
    }

    void aStoppedImportOpensNothing() {
        Started desktop;
        desktop.desk.prompt.stopProgressAfter = 0;
        desktop.desk.prompt.expectAlert(u"The import was stopped, and nothing was added."_s);
        desktop.dropOnStartWindow({desktop.file(u"a.udcf"_s, udcf)});
        QCOMPARE(desktop.count(), 0);
    }
};

int runDiveFilesTest(int argc, char** argv) {
    DiveFilesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveFilesTest.moc"
