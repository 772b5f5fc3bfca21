#include "logbook/ui/SearchBar.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

#include "platform/document/DocumentError.h"
#include "platform/ui/ControlBinder.h"
#include "platform/ui/Mnemonics.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

struct Place {
    const char* action;
    Message<> words;
    void (Carnet::*find)();
};

constexpr Place places[] = {
    {"findInBateaux", ui("Boats"), &Carnet::findInBateaux},
    {"findInEpaves", ui("Wrecks"), &Carnet::findInEpaves},
    {"findInNotes", ui("Notes"), &Carnet::findInNotes},
    {"findInPartenaires", ui("Buddies"), &Carnet::findInPartenaires},
    {"findInOrdinateurs", ui("Computers"), &Carnet::findInOrdinateurs},
};

const FormChoosers noChoosers;

}  // namespace

SearchBar::SearchBar(Carnet& carnet) : _carnet(carnet), _where(new QToolButton(this)) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(4, 0, 4, 0);
    Form& panel = carnet.panel();
    _found = makeBinder(panel, panel[panelcontrol::found], carnet.desk(), noChoosers, this);
    _text = makeBinder(panel, panel[panelcontrol::search], carnet.desk(), noChoosers, this);
    connect(&panel, &Form::changed, this, [this](int control) {
        for (ControlBinder* binder : {_text.get(), _found.get()})
            if (binder->control() == control) binder->refresh();
    });
    auto* field = static_cast<QLineEdit*>(_text->widget());
    field->setMaximumWidth(220);
    field->setMinimumWidth(90);
    field->setClearButtonEnabled(true);
    field->setPlaceholderText(carnet.strings().text({"Carnet", "Find"}));
    field->setAccessibleName(field->placeholderText());
    connect(field, &QLineEdit::returnPressed, this, &SearchBar::search);
    makeMenu();
    line->addStretch(1);
    line->addWidget(_found->widget());
    line->addWidget(field);
    line->addWidget(_where);
}

SearchBar::~SearchBar() = default;

void SearchBar::makeMenu() {
    _where->setObjectName(u"rechercher"_s);
    _where->setPopupMode(QToolButton::MenuButtonPopup);
    _where->setToolButtonStyle(Qt::ToolButtonTextOnly);
    _where->setToolTip(_carnet.strings().ui("Find dives that contain the text"));
    auto* menu = new QMenu(_where);
    auto* group = new QActionGroup(menu);
    for (int i = 0; i < int(std::size(places)); ++i) {
        QAction* action = menu->addAction(_carnet.strings().text(places[i].words));
        action->setObjectName(QLatin1String(places[i].action));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, i] {
            lookIn(i);
            search();
        });
    }
    keepMnemonics(menu);
    _where->setMenu(menu);
    connect(_where, &QToolButton::clicked, this, &SearchBar::search);
    lookIn(_place);
}

void SearchBar::lookIn(int place) {
    _place = place;
    _where->menu()->actions().at(place)->setChecked(true);
    _where->setText(_carnet.strings().text(Message<QString>{"Interface", "Find in: %@", "Find in: %@"},
                                           _carnet.strings().text(places[place].words)));
}

void SearchBar::startTyping() {
    _text->takeFocus();
}

void SearchBar::search() {
    try {
        (_carnet.*places[_place].find)();
    } catch (const std::exception& error) {
        _carnet.desk().prompt.alert(sentenceOf(error));
    }
}

}  // namespace sargan
