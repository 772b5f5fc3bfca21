#include "logbook/ui/ProfileGraph.h"

#include "logbook/DiveProfil.h"

namespace sargan {

namespace {

ShownProfil shownProfil(Carnet& carnet) {
    ShownProfil shown;
    const Strings& strings = carnet.strings();
    if (carnet.selectedRow() < 0) {
        shown.title = strings.ui("No dive selected");
    } else {
        const int number = carnet.form().integer(divecontrol::plongeeNo);
        shown.profil = profilOf(carnet.diveForm());
        shown.fileName = strings.text(Message<int>{"Interface", "Dive %d", "Dive %d"}, number);
        shown.title = shown.fileName;
    }
    shown.title += QStringLiteral(" – ") + carnet.displayName();
    shown.profil.style = profilStyle(carnet.desk().defaults);
    return shown;
}

}  // namespace

std::unique_ptr<GraphProfileWindow> makeProfileGraph(Carnet& carnet) {
    auto window =
        std::make_unique<GraphProfileWindow>(carnet.desk(), [&carnet] { return shownProfil(carnet); });
    GraphProfileWindow* graph = window.get();
    QObject::connect(&carnet, &Document::selectionChanged, graph, &GraphProfileWindow::refresh);
    QObject::connect(&carnet, &Document::contentChanged, graph, &GraphProfileWindow::refresh);
    QObject::connect(&carnet, &Document::fileChanged, graph, &GraphProfileWindow::refresh);
    QObject::connect(&carnet, &Carnet::profileChanged, graph, &GraphProfileWindow::refresh);
    QObject::connect(&carnet.form(), &Form::changed, graph, &GraphProfileWindow::refresh);
    return window;
}

}  // namespace sargan
