#pragma once

#include <QDialog>

#include "logbook/Carnet.h"

class QPushButton;

namespace sargan {

class ControlBinder;

/// Asks for the first dive's number; the others count on from it, in list order.
class RenumberSheet : public QDialog {
    Q_OBJECT

public:
    RenumberSheet(Carnet& carnet, QWidget* parent);
    ~RenumberSheet() override;

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool isNumber() const;

    Carnet& _carnet;
    std::unique_ptr<ControlBinder> _number;
    QPushButton* _confirm;
};

}  // namespace sargan
