#pragma once

#include <QHash>
#include <QObject>

#include "platform/desk/Desk.h"
#include "platform/form/Form.h"

class QLabel;
class QWidget;

namespace sargan {

/// What the results of a calculator show beyond plain text. A red one also gets bold letters and a mark in
/// words beside it, for those who do not see the colour; a text in pieces gets the colours of its pieces.
class ResultMarks : public QObject {
    Q_OBJECT

public:
    /// `view` holds the labels, each named as its control.
    ResultMarks(const Form& form, const Desk& desk, QWidget* view);

    void updateAll();

private:
    void update(int control);
    QLabel* markOf(QLabel* result);

    const Form& _form;
    const Desk& _desk;
    QWidget* _view;
    QHash<QLabel*, QLabel*> _marks;  ///< by result
};

}  // namespace sargan
