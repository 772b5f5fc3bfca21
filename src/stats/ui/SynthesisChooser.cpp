#include "stats/ui/SynthesisChooser.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/FormView.h"

namespace sargan {

using namespace Qt::StringLiterals;

SynthesisChooser::SynthesisChooser(Synthesis& synthesis, QWidget* parent)
    : QDialog(parent), _synthesis(synthesis) {
    setObjectName(u"divesForSynthesisWindow"_s);
    Desk& desk = synthesis.carnet().desk();
    setWindowTitle(desk.strings.text(synthesisChooserLayout().title));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new FormView(synthesis.chooser(), synthesisChooserLayout(), desk, this));
    if (auto* button = findChild<QPushButton*>(u"syntheseWindow"_s)) button->setDefault(true);
    connect(&synthesis.chooser(), &Form::changed, this, &SynthesisChooser::validate);
    connect(&synthesis.carnet(), &Document::selectionChanged, this, &SynthesisChooser::validate);
    validate();
}

void SynthesisChooser::validate() {
    if (auto* button = findChild<QPushButton*>(u"syntheseWindow"_s)) button->setEnabled(_synthesis.canFill());
}

}  // namespace sargan
