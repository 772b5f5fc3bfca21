#pragma once

#include <QSet>

class QMenu;
class QMenuBar;
class QWidget;

namespace sargan {

/// Gives the labels and buttons of a pane letters that reach them with Alt: the first letter of a word that
/// is still free, else any letter. Labels without a control that the keyboard reaches get none.
/// Letters that are taken beside the pane are left; answers all that are taken then.
QSet<QChar> allotMnemonics(QWidget* pane, QSet<QChar> taken = {});

/// Gives the entries of a menu, and of the menus below it, such letters whenever it is about to be shown, for
/// its texts may have changed. A letter that a text has already stays, unless an entry above has the same.
void keepMnemonics(QMenu* menu);
/// The titles of the menus, now, and the entries of every menu below them.
void keepMnemonics(QMenuBar* bar);

}  // namespace sargan
