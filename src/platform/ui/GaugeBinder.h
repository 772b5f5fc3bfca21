#pragma once

#include "platform/ui/ControlBinder.h"

class QProgressBar;

namespace sargan {

/// A bar that the program fills; beyond its ends it is empty or full. Its number tells how far.
class GaugeBinder : public ControlBinder {
public:
    GaugeBinder(Form& form, int control, const Strings& strings, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }

protected:
    void show(const ControlState& state) override;

private:
    const Strings& _strings;
    QProgressBar* _bar;
};

}  // namespace sargan
