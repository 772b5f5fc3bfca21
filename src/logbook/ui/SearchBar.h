#pragma once

#include <QWidget>

#include "logbook/Carnet.h"

class QLineEdit;
class QToolButton;

namespace sargan {

class ControlBinder;

/// The logbook's search: a text, a menu for where to look, and how many dives were found.
class SearchBar : public QWidget {
    Q_OBJECT

public:
    explicit SearchBar(Carnet& carnet);
    ~SearchBar() override;

    void startTyping();
    /// Where the next search looks, as the menu counts.
    int place() const { return _place; }
    void lookIn(int place);

private:
    void makeMenu();
    void search();

    Carnet& _carnet;
    std::unique_ptr<ControlBinder> _text;
    std::unique_ptr<ControlBinder> _found;
    QToolButton* _where;
    int _place = 2;  ///< in the table of places: notes
};

}  // namespace sargan
