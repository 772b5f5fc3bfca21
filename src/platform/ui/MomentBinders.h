#pragma once

#include "platform/ui/ControlBinder.h"
#include "platform/ui/MomentField.h"

namespace sargan {

class MomentBinder : public ControlBinder {
public:
    MomentBinder(Form& form, int control, MomentField::Part part, QWidget* parent);
    QWidget* widget() const override { return _field; }
    void setCharacters(int count) override;
    void takeFocus() override;

protected:
    void show(const ControlState& state) override;
    void applyLock(bool locked, bool enabled) override;

private:
    MomentField* _field;
};

class DateBinder : public MomentBinder {
public:
    DateBinder(Form& form, int control, QWidget* parent);
};

class TimeBinder : public MomentBinder {
public:
    TimeBinder(Form& form, int control, QWidget* parent);
};

}  // namespace sargan
