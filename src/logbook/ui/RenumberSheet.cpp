#include "logbook/ui/RenumberSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/ControlBinder.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const FormChoosers noChoosers;

}  // namespace

RenumberSheet::RenumberSheet(Carnet& carnet, QWidget* parent) : QDialog(parent), _carnet(carnet) {
    const Strings& strings = carnet.strings();
    setObjectName(u"renumDivesWindow"_s);
    setWindowTitle(strings.ui("Renumber dives"));
    setWindowModality(Qt::WindowModal);
    _number = makeBinder(carnet.panel(), carnet.panel()[panelcontrol::renumNumber], carnet.desk(), noChoosers,
                         this);
    _number->setCharacters(8);
    auto* label = new QLabel(strings.ui("Number of the &first dive:"));
    label->setBuddy(_number->widget());
    auto* hint = new QLabel(strings.ui("The dives are numbered on from it in the order of the table."));
    hint->setWordWrap(true);
    auto* buttons = new QDialogButtonBox;
    _confirm = buttons->addButton(strings.ui("Renumber"), QDialogButtonBox::AcceptRole);
    _confirm->setObjectName(u"renumDives"_s);
    buttons->addButton(strings.text({"Main", "Cancel", "Cancel"}), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(_number->widget());
    line->addStretch(1);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(line);
    whole->addWidget(hint);
    whole->addWidget(buttons);
    connect(&carnet.panel(), &Form::changed, this, [this](int control) {
        if (control != _number->control()) return;
        _number->refresh();
        _confirm->setEnabled(isNumber());
    });
    _confirm->setEnabled(isNumber());
}

RenumberSheet::~RenumberSheet() = default;

bool RenumberSheet::isNumber() const {
    bool fine = false;
    _carnet.panel().text(panelcontrol::renumNumber).trimmed().toInt(&fine);
    return fine;
}

void RenumberSheet::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    _number->takeFocus();
}

void RenumberSheet::accept() {
    if (!isNumber()) return;
    QDialog::accept();
    _carnet.renumDives();
}

}  // namespace sargan
