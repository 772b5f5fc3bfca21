#pragma once

#include <QCoreApplication>
#include <memory>

namespace sargan {

/// The application object of the command line. It starts plain, which is quick; the first command that draws
/// texts makes it one that knows fonts, off screen.
class CommandApplication {
public:
    CommandApplication(int& argc, char** argv);
    ~CommandApplication();

private:
    friend void ensureGuiApplication();

    int& _argc;
    char** _argv;
    std::unique_ptr<QCoreApplication> _application;
};

/// Call it before anything is laid out or drawn. Throws std::logic_error when the program has neither a
/// CommandApplication nor an application that knows fonts already.
void ensureGuiApplication();

}  // namespace sargan
