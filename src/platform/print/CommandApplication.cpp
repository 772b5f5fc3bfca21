#include "platform/print/CommandApplication.h"

#include <QGuiApplication>
#include <stdexcept>

namespace sargan {

namespace {

/// As with QCoreApplication itself there is at most one.
CommandApplication* current = nullptr;

}  // namespace

CommandApplication::CommandApplication(int& argc, char** argv)
    : _argc(argc), _argv(argv), _application(std::make_unique<QCoreApplication>(argc, argv)) {
    current = this;
}

CommandApplication::~CommandApplication() {
    current = nullptr;
}

void ensureGuiApplication() {
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
    if (!current) throw std::logic_error("nothing can be drawn without an application that knows fonts");
    // A command never needs the display, even where there is one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    current->_application.reset();
    // Words of the command line are the command's, never the toolkit's.
    current->_argc = 1;
    // What the toolkit has to say of a machine without a desktop is nothing that the command's user can use.
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    current->_application = std::make_unique<QGuiApplication>(current->_argc, current->_argv);
    qInstallMessageHandler(before);
}

}  // namespace sargan
