#pragma once

#include "platform/ui/ControlBinder.h"

class QCheckBox;
class QComboBox;
class QSlider;
class QToolButton;

namespace sargan {

/// One of a menu's items. A tag that the menu lacks is shown as nothing selected, and kept.
class PopUpBinder : public ControlBinder {
public:
    PopUpBinder(Form& form, int control, const Strings& strings, QWidget* parent);
    QWidget* widget() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void show(const ControlState& state) override;

private:
    QComboBox* _combo;
};

class SwitchBinder : public ControlBinder {
public:
    SwitchBinder(Form& form, int control, QWidget* parent);
    QWidget* widget() const override;

protected:
    void show(const ControlState& state) override;

private:
    QCheckBox* _box;
};

class SliderBinder : public ControlBinder {
public:
    SliderBinder(Form& form, int control, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void show(const ControlState& state) override;

private:
    QSlider* _slider;
};

class ColorBinder : public ControlBinder {
public:
    ColorBinder(Form& form, int control, const FormChoosers& choosers, QWidget* parent);
    QWidget* widget() const override;

protected:
    void show(const ControlState& state) override;

private:
    void choose();

    const FormChoosers& _choosers;
    QToolButton* _well;
};

}  // namespace sargan
