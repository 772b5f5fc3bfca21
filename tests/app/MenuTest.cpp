#include "AppTests.h"
#include "platform/document/Sentences.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Without the marks of the keys.
QString plain(QString text) {
    return text.remove(QRegularExpression(u"&(?!&)"_s));
}

QMenu* menuNamed(const DocumentWindow* window, const QString& title) {
    for (QMenu* menu : window->findChildren<QMenu*>())
        if (plain(menu->title()) == plain(title)) return menu;
    return nullptr;
}

QStringList textsOf(const QMenu* menu) {
    QStringList texts;
    for (const QAction* action : menu->actions())
        if (!action->isSeparator()) texts << plain(action->text());
    return texts;
}

/// What is wrong with the keys of a menu's entries and of the menus below it, once it was opened.
QStringList problemsOf(const QString& where, const QList<QAction*>& entries) {
    QStringList problems;
    QSet<QChar> taken;
    for (QAction* entry : entries) {
        if (entry->isSeparator()) continue;
        const QRegularExpressionMatch mark =
            QRegularExpression(u"^(?:[^&]|&&)*&([A-Za-z0-9])(?:[^&]|&&)*$"_s).match(entry->text());
        const QString name = where + u" > "_s + entry->text();
        if (!mark.hasMatch())
            problems << name + u" has no key"_s;
        else if (taken.contains(mark.captured(1)[0].toLower()))
            problems << name + u" has another's key"_s;
        else
            taken << mark.captured(1)[0].toLower();
        if (!entry->menu()) continue;
        Q_EMIT entry->menu()->aboutToShow();
        problems += problemsOf(name, entry->menu()->actions());
    }
    return problems;
}

}  // namespace

class MenuTest : public QObject {
    Q_OBJECT

    /// The entries of the Edit menu with their marks, but for the step that they name.
    static QStringList keysOf(const DocumentWindow* window) {
        QStringList keys;
        for (const QAction* entry : window->menuBar()->actions().at(1)->menu()->actions())
            if (!entry->isSeparator() && entry->objectName() != u"undo"_s) keys << entry->text();
        return keys;
    }

private Q_SLOTS:
    void openingAFileTwiceShowsOneWindow() {
        Desktop desktop;
        const QString file = desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        desktop.suite.launch({file});
        const QString link = desktop.path(u"link.carnet"_s);
        QVERIFY(QFile::link(file, link));
        desktop.toOpen = {file, link};
        desktop.trigger(desktop.logbook(), "openDocument");
        QCOMPARE(desktop.count(), 1);
        QCOMPARE(desktop.suite.windows().all().size(), std::size_t(1));
    }

    void severalFilesOpenAtOnce() {
        Desktop desktop;
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)});
        desktop.toOpen = {desktop.copyOf(u"plongee-v26.carnet"_s, u"b.carnet"_s),
                          desktop.copyOf(u"budget-v1.budget"_s, u"c.budget"_s)};
        desktop.trigger(desktop.logbook(), "openDocument");
        QCOMPARE(desktop.count(), 3);
    }

    void anUntouchedNewDocumentGivesWayToAFile() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.toOpen = {desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)};
        desktop.trigger(desktop.logbook(), "openDocument");
        QTRY_COMPARE(desktop.count(), 1);
        QCOMPARE(desktop.controller().documents().front()->path(), desktop.toOpen.first());
    }

    void aNewDocumentWithADiveStays() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.logbook()->addDive();
        desktop.toOpen = {desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)};
        desktop.trigger(desktop.logbook(), "openDocument");
        QCoreApplication::processEvents();
        QCOMPARE(desktop.count(), 2);
    }

    void recentDocumentsAreListedAndCleared() {
        Desktop desktop;
        const QString a = desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        const QString b = desktop.copyOf(u"plongee-v26.carnet"_s, u"b.carnet"_s);
        desktop.suite.launch({a, b});
        QMenu* recent = menuNamed(desktop.logbook(), u"Open Recent"_s);
        Q_EMIT recent->aboutToShow();
        QCOMPARE(textsOf(recent), (QStringList{u"b.carnet"_s, u"a.carnet"_s, u"Clear Menu"_s}));
        desktop.trigger(desktop.logbook(), "clearRecentDocuments");
        Q_EMIT recent->aboutToShow();
        QCOMPARE(textsOf(recent), QStringList{u"Clear Menu"_s});
    }

    void aRecentDocumentOpensFromTheMenu() {
        Desktop desktop;
        const QString a = desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        desktop.suite.launch({a});
        desktop.controller().newDocument(desktop.desk.kinds.standard());
        desktop.logbook(1)->addDive();
        desktop.trigger(desktop.logbook(), "closeDocument");
        QTRY_COMPARE(desktop.count(), 1);
        QMenu* recent = menuNamed(desktop.logbook(), u"Open Recent"_s);
        Q_EMIT recent->aboutToShow();
        recent->actions().first()->trigger();
        QCOMPARE(desktop.count(), 2);
        QCOMPARE(desktop.controller().documents().back()->path(), a);
    }

    void theWindowMenuListsTheOpenDocuments() {
        Desktop desktop;
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s),
                              desktop.copyOf(u"budget-v1.budget"_s, u"b.budget"_s)});
        QMenu* windows = menuNamed(desktop.logbook(), u"&Window"_s);
        Q_EMIT windows->aboutToShow();
        QCOMPARE(textsOf(windows), (QStringList{u"Reminder note"_s, u"a.carnet"_s, u"b.budget"_s}));
    }

    void aFileDroppedOnAWindowOpens() {
        Desktop desktop;
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)});
        const QString file = desktop.copyOf(u"structures-v0.structures"_s, u"s.structures"_s);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desktop.logbook(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desktop.logbook(), &drop);
        QTRY_COMPARE(desktop.count(), 2);
        QCOMPARE(desktop.controller().documents().back()->path(), file);
    }

    void everyEntryOfEveryMenuHasAKeyOfItsOwn_data() {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("file");
        for (const auto& [name, file] :
             {std::pair("logbook", u"plongee-v27.carnet"_s), std::pair("register", u"epaves-v6.epaves"_s)}) {
            QTest::addRow("%s, English", name) << int(Strings::Language::English) << file;
            QTest::addRow("%s, French", name) << int(Strings::Language::French) << file;
        }
    }
    void everyEntryOfEveryMenuHasAKeyOfItsOwn() {
        QFETCH(int, language);
        QFETCH(QString, file);
        Desktop desktop;
        desktop.desk.strings.setLanguage(Strings::Language(language));
        desktop.suite.launch({desktop.copyOf(file, u"a & b.doc"_s), desktop.copyOf(file, u"a & c.doc"_s)});
        const DocumentWindow* window = desktop.suite.windows().all().front();
        const auto problems = [&] { return problemsOf({}, window->menuBar()->actions()).join(u'\n'); };
        QVERIFY(window->menuBar()->actions().size() >= 7);
        QCOMPARE(problems(), QString());
        // Entries whose words have changed since get keys too, and no entry loses its own.
        const QStringList before = keysOf(window);
        Desktop::trigger(window, window == desktop.logbook() ? "addDive" : "addWreck");
        QCOMPARE(problems(), QString());
        QCOMPARE(keysOf(window), before);
    }

    void aMenuIsGoneThroughWithTheKeyboard() {
        Desktop desktop;
        desktop.suite.launch({});
        QVERIFY(QTest::qWaitForWindowActive(desktop.logbook()));
        QAction* calculators = nullptr;
        for (QAction* title : desktop.logbook()->menuBar()->actions())
            if (plain(title->text()) == u"Calculators"_s) calculators = title;
        QVERIFY(calculators);
        const auto keyOf = [](const QAction* entry) {
            const QString text = entry->text();
            return text[text.indexOf(u'&') + 1].toLatin1();
        };
        QTest::keyClick(desktop.logbook(), keyOf(calculators), Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), keyOf(calculators->menu()->actions().first()));
        QTRY_VERIFY(calculators->menu()->actions().first()->menu()->isVisible());
        QMenu* nitrox = calculators->menu()->actions().first()->menu();
        QTest::keyClick(nitrox, keyOf(nitrox->actions().last()));
        QTRY_VERIFY(desktop.suite.delegate().calculators().display(u"Blend Nitrox")->isVisible());
    }

    void renumberingIsOfferedByEveryOpenLogbook() {
        Desktop desktop;
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s),
                              desktop.copyOf(u"plongee-v26.carnet"_s, u"b.carnet"_s)});
        QStringList posted;
        desktop.desk.notifications.onPost = [&](const QString& name) { posted << name; };
        desktop.trigger(desktop.logbook(), "renumDives");
        QCOMPARE(posted, QStringList{u"renumDives"_s});
        for (const int at : {0, 1}) {
            auto* sheet = desktop.logbook(at)->findChild<QDialog*>(u"renumDivesWindow"_s);
            QVERIFY(sheet && sheet->isVisible());
            sheet->close();
        }
    }

    void aFileThatIsNoDocumentIsRefusedWithASentence() {
        Desktop desktop;
        desktop.suite.launch({});
        const QString file = desktop.path(u"junk.carnet"_s);
        QFile junk(file);
        QVERIFY(junk.open(QIODevice::WriteOnly));
        junk.write("this is no archive");
        junk.close();
        QString sentence;
        try {
            desktop.controller().read(file);
        } catch (const std::exception& error) {
            sentence = sentenceIn(desktop.desk.strings, error);
        }
        QVERIFY(sentence.contains(u"junk.carnet"_s));
        desktop.desk.prompt.expectAlert(sentence);
        desktop.toOpen = {file};
        desktop.trigger(desktop.logbook(), "openDocument");
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.count(), 1);
    }
};

int runMenuTest(int argc, char** argv) {
    MenuTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MenuTest.moc"
