#pragma once

#include <QtTest>
#include <QtWidgets>

#include "app/DesktopSuite.h"
#include "logbook/ui/DiveEditWindow.h"
#include "logbook/ui/LogbookWindow.h"
#include "platform/ui/SourceTableView.h"
#include "support/FormWalk.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

int runDesktopPromptTest(int argc, char** argv);
int runDiveFilesTest(int argc, char** argv);
int runLanguageTest(int argc, char** argv);
int runLaunchTest(int argc, char** argv);
int runMenuTest(int argc, char** argv);
int runSavingTest(int argc, char** argv);
int runSettingsTest(int argc, char** argv);
int runSingleInstanceTest(int argc, char** argv);
int runSpokenNamesTest(int argc, char** argv);

namespace sargan {

/// The desktop program with a scripted person before it, and a folder of its own.
struct Desktop {
    TestDesk desk;
    QTemporaryDir folder;
    QStringList toOpen;  ///< what the next open dialog answers
    QString toSave;      ///< what the next save dialog answers
    QString suggested;   ///< what the last save dialog was offered
    DesktopSuite suite{desk.kinds, desk.desk};

    Desktop() {
        suite.choosers.open = [this] { return toOpen; };
        suite.choosers.save = [this](const Document&, const QString& name) {
            suggested = name;
            return toSave;
        };
    }

    MyDocumentController& controller() { return suite.controller(); }
    QString path(const QString& name) const { return folder.filePath(name); }
    /// A copy of a golden file that may be changed.
    QString copyOf(const QString& golden, const QString& name) const {
        QFile::copy(golden::path(golden), path(name));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner);
        return path(name);
    }
    LogbookWindow* logbook(qsizetype at = 0) {
        const auto open = suite.windows().all();
        return std::size_t(at) < open.size() ? qobject_cast<LogbookWindow*>(open[std::size_t(at)]) : nullptr;
    }
    static QAction* action(const DocumentWindow* window, const char* name) {
        return window->findChild<QAction*>(QLatin1String(name));
    }
    static void trigger(const DocumentWindow* window, const char* name) {
        QAction* found = action(window, name);
        QVERIFY2(found, name);
        found->trigger();
        QCoreApplication::processEvents();
    }
    qsizetype count() { return qsizetype(controller().documents().size()); }
};

}  // namespace sargan
