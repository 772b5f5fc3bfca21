#pragma once

class QWidget;

namespace sargan {

/// Gives the labels and buttons of a pane letters that reach them with Alt: the first letter of a word that
/// is still free, else any letter. Labels without a control
/// that the keyboard reaches get none.
void allotMnemonics(QWidget* pane);

}  // namespace sargan
