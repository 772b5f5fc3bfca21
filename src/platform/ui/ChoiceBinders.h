#pragma once

#include "platform/ui/ControlBinder.h"

class QButtonGroup;
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

/// One of a menu's items, all of them in view as radio buttons; the same rules as a pop-up's. The first
/// button stands for the whole where the keyboard comes to the control; arrows go on from there.
class RadioBinder : public ControlBinder {
public:
    RadioBinder(Form& form, int control, const Strings& strings, QWidget* parent);
    QWidget* widget() const override;
    void takeFocus() override;

protected:
    void show(const ControlState& state) override;

private:
    QWidget* _box;
    QButtonGroup* _buttons;  ///< by place in the menu; a tag may be any number
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
